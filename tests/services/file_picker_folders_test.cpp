// The folders and drives of the file picker.
#include "services/file_picker.h"
#include "services/path.h"
#include "tests/services/picker_fixture.h"

namespace {

TEST_F(FilePickerTest, DoubleClickOnAFolderOpensIt) {
  Then([] {
    DrawingClear();
    OpenFolderRow("[sub]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\sub");
    EXPECT_EQ(CurrentFolder(), "C:\\start\\sub");
    EXPECT_EQ(Folders(), (Rows{"[..]", "[deep]", "[-c-]", "[-z-]"}));
    EXPECT_EQ(Files(), Rows{"inner.txt"});
    EXPECT_EQ(PathShown(), "Path: C:\\start\\sub");
    EXPECT_TRUE(UpIsEnabled());
    TypeName("new");
    PressOk();
  });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\sub\\new");
}

TEST_F(FilePickerTest, DoubleClickOnAFolderWithADoubleByteNameOpensIt) {
  Then([] {
    OpenFolderRow("[\x95\x5C]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\\x95\x5C");
    EXPECT_EQ(Files(), Rows{"\x94\x5C.txt"});
    OpenFolderRow("[..]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, TheRowWithTwoFullStopsGoesUpOneLevel) {
  GoTo("C:\\start\\sub\\deep");
  Then([] {
    OpenFolderRow("[..]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\sub");
    OpenFolderRow("[..]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, TheUpButtonGoesUpUntilTheDriveRootWhereItIsDisabled) {
  Then([] {
    DrawingClear();
    Press(TopDialog(), kFolderUpId);
    EXPECT_STREQ(Picker.PickFolder, "C:\\");
    EXPECT_EQ(CurrentFolder(), "C:\\");
    EXPECT_EQ(PathShown(), "Path: C:\\");
    EXPECT_EQ(Files(), Rows{"top.txt"});
    EXPECT_FALSE(UpIsEnabled());
    // The keyboard is not left on a button that is grey.
    EXPECT_TRUE(WindowHasFocus(Control(TopDialog(), kFolderListId)));
    const Rows rows = Folders();
    EXPECT_EQ(std::find(rows.begin(), rows.end(), "[..]"), rows.end());
    // A command that comes all the same goes nowhere.
    SendCommand(TopDialog(), kFolderUpId);
    EXPECT_STREQ(Picker.PickFolder, "C:\\");
    OpenFolderRow("[start]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    EXPECT_TRUE(UpIsEnabled());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, InADriveRootUpIsDisabled) {
  GoTo("C:\\");
  Then([] {
    EXPECT_STREQ(Picker.PickFolder, "C:\\");
    EXPECT_FALSE(UpIsEnabled());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFileInADriveRootComesBackWithTwoBackslashes) {
  GoTo("C:\\");
  Then([] { ChooseFile("top.txt", true); });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\\\top.txt");
  EXPECT_EQ(FileExists(path), 1);
}

TEST_F(FilePickerTest, ADriveRowChangesToTheDrivesRoot) {
  Then([] {
    OpenFolderRow("[-c-]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\");
    OpenFolderRow("[-z-]");
    EXPECT_STREQ(Picker.PickFolder, "Z:\\");
    EXPECT_EQ(CurrentFolder(), "Z:\\");
    EXPECT_FALSE(UpIsEnabled());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFolderThatIsGoneLeavesThePickerWhereItWas) {
  Then([] {
    RemoveFile("C:\\start\\sub\\deep");
    RemoveFile("C:\\start\\sub\\inner.txt");
    RemoveFile("C:\\start\\sub");
    OpenFolderRow("[sub]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    const Rows rows = Folders();
    EXPECT_EQ(std::find(rows.begin(), rows.end(), "[sub]"), rows.end());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFolderWhoseNameBeginsWithAFullStopLeadsUp) {
  MakeFolder("C:\\start\\sub\\.git");
  GoTo("C:\\start\\sub");
  Then([] {
    OpenFolderRow("[.git]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFolderWhoseNameBeginsWithAHyphenLeadsToADrive) {
  MakeFolder("C:\\start\\-zeta");
  MakeFolder("C:\\start\\-xeno");
  Then([] {
    OpenFolderRow("[-xeno]");  // there is no drive X:
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    OpenFolderRow("[-zeta]");
    EXPECT_STREQ(Picker.PickFolder, "Z:\\");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFolderTooDeepForTheBufferIsNotLost) {
  std::string deep = "C:\\start";
  while (deep.size() + 51 < 255) {
    deep += "\\" + std::string(50, 'n');
    MakeFolder(deep);
  }
  MakeFolder(deep + "\\" + std::string(60, 'm'));
  GoTo(deep);
  Then([=] {
    EXPECT_EQ(Picker.PickFolder, deep);
    OpenFolderRow("[" + std::string(60, 'm') + "]");
    EXPECT_EQ(Picker.PickFolder, deep);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, TheCurrentFolderMovesWithThePickerAndStays) {
  Then([] { OpenFolderRow("[sub]"); });
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(CurrentFolder(), "C:\\start\\sub");
}

TEST_F(FilePickerTest, AFolderChangedUnderThePickerDoesNotMoveTheList) {
  Then([] {
    GoTo("C:\\");  // as a sibling program's start does
    ChooseRow(TopDialog(), kPickFilterId, 8);
    EXPECT_EQ(Files(), Rows{"a.txt"});
    EXPECT_EQ(CurrentFolder(), "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

}  // namespace
