// Folders that are too long for the list of folders.
#include <unistd.h>

#include "platform/posix/posix_paths.h"
#include "resources/filetools_ids.h"
#include "services/file_picker.h"
#include "services/folder_pick.h"
#include "services/path.h"
#include "tests/services/picker_fixture.h"

namespace {

// "C:\start" and four levels of 61 bytes with their backslashes: 8 + 4 * 61 = 252. A
// further level does not go into 255 bytes.
const std::string kLevel = "\\" + std::string(60, 'n');
const std::string kFits = "C:\\start" + kLevel + kLevel + kLevel + kLevel;
const std::string kTooLong = kFits + "\\deep\\er";

class FolderListTest : public PickerFixture {
 protected:
  void SetUp() override {
    PickerFixture::SetUp();
    MakeFolder(kTooLong);
    PutFile(kFits + "\\in.txt", "");
  }
  int PickFolderOf(const std::string& name) {
    Then([=] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), 1);
    });
    return PickFileForLoad(nullptr, "*.*", path);
  }
  char path[kPickPathSize] = "";
};

TEST_F(FolderListTest, AStartFolderThatIsTooLongIsNotGoneTo) {
  const std::string start = kTooLong + "\\x.txt";
  std::snprintf(path, sizeof path, "%s", start.c_str());
  Then([] {
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    EXPECT_EQ(CurrentFolder(), "C:\\start");
    EXPECT_EQ(Folders().size(), 6U);
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(PickFileForLoad(nullptr, "*.*", path), 1);
  EXPECT_STREQ(path, "C:\\start\\x.txt");
}

TEST_F(FolderListTest, ACurrentFolderThatIsTooLongGivesWayToTheOneItLiesIn) {
  GoTo(kTooLong);
  EXPECT_EQ(PickFolderOf("in.txt"), 1);
  EXPECT_EQ(path, kFits + "\\in.txt");
  EXPECT_EQ(CurrentFolder(), kFits);
}

// A folder's buffer takes 255 bytes and the terminator.
TEST_F(FolderListTest, AFolderOf255BytesFitsAndOneOf256GivesWay) {
  const std::string longest = kFits + "\\nn";
  MakeFolder(longest);
  PutFile(longest + "\\in.txt", "");
  GoTo(longest);
  EXPECT_EQ(PickFolderOf("in.txt"), 1);
  EXPECT_EQ(path, longest + "\\in.txt");
  path[0] = '\0';
  MakeFolder(kFits + "\\nnn");
  GoTo(kFits + "\\nnn");
  EXPECT_EQ(PickFolderOf("in.txt"), 1);
  EXPECT_EQ(path, kFits + "\\in.txt");
}

TEST_F(FolderListTest, TheListOfAFolderDialogDoesTheSame) {
  GoTo(kTooLong);
  char folder[300] = "";
  Then([] {
    EXPECT_EQ(CurrentFolder(), kFits);
    EXPECT_EQ(Folders(), (Rows{"[..]", "[deep]", "[-c-]", "[-z-]"}));
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(FolderPickRun(ToolDialog::FileBackUpDirDlg, IDD_FileBackUpDirDlg, nullptr, folder, sizeof folder),
            1);
  EXPECT_EQ(folder, kFits);
}

// A short name may lead to a long folder.
TEST_F(FolderListTest, ARowThatLeadsToATooLongFolderLeavesTheListWhereItWas) {
  ASSERT_EQ(symlink(PosixPath(kTooLong.c_str()).c_str(), PosixPath("C:\\start\\link").c_str()), 0);
  Then([] { OpenFolderRow("[link]"); });
  Then([] {
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    EXPECT_EQ(CurrentFolder(), "C:\\start");
    EXPECT_EQ(PathShown(), "Path: C:\\start");
    OpenFolderRow("[sub]");
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\sub");
  });
  EXPECT_EQ(PickFolderOf("inner.txt"), 1);
  EXPECT_STREQ(path, "C:\\start\\sub\\inner.txt");
}

}  // namespace
