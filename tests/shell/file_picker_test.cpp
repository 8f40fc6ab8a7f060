#include "shell/file_picker.h"

#include <cstring>

#include "platform/posix/faults.h"
#include "resources/ids.h"
#include "shell/data_file.h"
#include "shell/path.h"
#include "tests/shell/picker_fixture.h"

namespace {

class FilePickerTest : public PickerFixture {
 protected:
  void TearDown() override {
    EXPECT_EQ(hFilePickDlg, nullptr);
    EXPECT_EQ(PickActive, 0);
    EXPECT_STREQ(PickStartFolder, "");
    EXPECT_STREQ(PickName, "");
    PickerFixture::TearDown();
  }

  static Rows Files() {
    Rows rows = ListRows(TopDialog(), kPickFilesId);
    std::sort(rows.begin(), rows.end());
    return rows;
  }
  static std::string Name() { return ControlText(TopDialog(), kPickNameId); }
  static void ChooseFile(const std::string& name, bool twice = false) {
    const Rows rows = ListRows(TopDialog(), kPickFilesId);
    const auto at = std::find(rows.begin(), rows.end(), name);
    ASSERT_NE(at, rows.end()) << name;
    (twice ? DoubleClickRow : ChooseRow)(TopDialog(), kPickFilesId, static_cast<int>(at - rows.begin()));
  }
  static void TypeName(const char* name) { Type(TopDialog(), kPickNameId, name); }
  static void PressOk() { Press(TopDialog(), 1); }
  static void PressCancel() { Press(TopDialog(), kFolderCancelId); }

  int Load(const char* filter = "*.*") { return PickFileForLoad(nullptr, filter, path); }
  int Save(const char* filter = "*.*") { return PickFileForSave(nullptr, filter, path); }
  void Propose(const char* text) { std::snprintf(path, sizeof path, "%s", text); }
  // Saves under a name that the user types.
  std::string SaveAs(const char* name, const char* filter) {
    Then([=] { TypeName(name); });
    Then(PressOk);
    EXPECT_EQ(Save(filter), 1);
    return path;
  }

  char path[kPickPathSize] = "";
};

// --- Opening

TEST_F(FilePickerTest, OpensInTheCurrentFolder) {
  Then([] {
    EXPECT_EQ(hFilePickDlg, TopDialog());
    EXPECT_EQ(PickActive, 1);
    EXPECT_STREQ(PickFolder, "C:\\start");
    EXPECT_EQ(Folders(), (Rows{"[..]", "[sub]", "[\x95\x5C]", "[-c-]", "[-z-]"}));
    EXPECT_EQ(Files(), (Rows{"a.txt", "b.bmp", "c.CPP", "d.h", "e.f.txt", "g.bup", "plain"}));
    EXPECT_EQ(Name(), "");
    EXPECT_TRUE(UpIsEnabled());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, LoadAndSaveDifferInTitleAndOkButton) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileSelectForLoadDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイルのロード");
    EXPECT_EQ(ControlText(TopDialog(), 1), "ロードする");
    EXPECT_EQ(PickMode, 0);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileSelectForSaveDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイルの保存");
    EXPECT_EQ(ControlText(TopDialog(), 1), "保存する");
    EXPECT_EQ(PickMode, 1);
    PressCancel();
  });
  EXPECT_EQ(Save(), 0);
}

TEST_F(FilePickerTest, TheProposalGivesFolderAndName) {
  Propose("C:\\start\\sub\\plan.txt");
  Then([] {
    EXPECT_STREQ(PickFolder, "C:\\start\\sub");
    EXPECT_EQ(Name(), "plan.txt");
    EXPECT_EQ(Files(), Rows{"inner.txt"});
    PressOk();
  });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\sub\\plan.txt");
}

TEST_F(FilePickerTest, AProposalInAFolderThatIsNotThereOpensInTheCurrentOne) {
  Propose("C:\\gone\\plan.txt");
  Then([] {
    EXPECT_STREQ(PickFolder, "C:\\start");
    EXPECT_EQ(Name(), "plan.txt");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
  EXPECT_STREQ(path, "C:\\gone\\plan.txt");
}

TEST_F(FilePickerTest, AProposalWithDoubleByteNamesIsNotSplitAtTheirSecondBytes) {
  Propose("C:\\start\\\x95\x5C\\\x94\x5C.txt");
  Then([] {
    EXPECT_STREQ(PickFolder, "C:\\start\\\x95\x5C");
    EXPECT_EQ(Name(), "\x94\x5C.txt");
    EXPECT_EQ(Files(), Rows{"\x94\x5C.txt"});
    PressOk();
  });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\\x95\x5C\\\x94\x5C.txt");
}

TEST_F(FilePickerTest, ThePartsOfTheDialogStandWhereTheyBelong) {
  Then([] {
    const Rect client = WindowClientRect(TopDialog());
    ASSERT_EQ(client.right, 760);
    ASSERT_EQ(client.bottom, 380);
    // List: 760 * 200 / 380 + 2 to 760 - 2 across, 4 * 16 and 380 * 120 / 190 down.
    const Rect list = PlaceOf(kFolderListId);
    EXPECT_EQ(list.right, 758 - 402);
    EXPECT_EQ(list.bottom, 240);
    // "↑" right of the band, at y 40, which is 24 above the list.
    const Rect up = PlaceOf(kFolderUpId);
    EXPECT_EQ(up.left, 760 * 366 / 380 - 402);
    EXPECT_EQ(up.right - up.left, 16);
    EXPECT_EQ(up.top, 40 - 64);
    EXPECT_EQ(up.bottom - up.top, 22);
    EXPECT_EQ(ControlText(TopDialog(), kFolderUpId), "↑");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, NoControlOfTheTemplateOverlapsTheFolderList) {
  Then([] {
    for (int id : {1, kFolderCancelId, kPickNameId, kPickFilesId, kPickFilterId}) {
      const Rect list = PlaceOf(kFolderListId);
      const Rect place = PlaceOf(id);
      const bool apart = place.right <= list.left || place.left >= list.right || place.bottom <= -24 ||
                         place.top >= list.bottom || id == kPickFilterId;
      EXPECT_TRUE(apart) << id;
    }
    EXPECT_LE(PlaceOf(kPickFilterId).right, 0);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, ThePathIsDrawnInABandAboveTheList) {
  Then([] {
    EXPECT_TRUE(TextStands(TopDialog(), "Path: C:\\start", 402, 42));
    const std::vector<DrawCall> calls = Drawings(TopDialog());
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].kind, DrawCall::Kind::Rectangle);
    EXPECT_EQ(calls[0].brush, FaceColour());
    EXPECT_FALSE(calls[0].edged);
    for (const DrawCall& call : calls) {
      EXPECT_TRUE(call.clipped);
      EXPECT_EQ(call.clip.left, 402);
      EXPECT_EQ(call.clip.right, 402 + 732 - 402 - 2);
      EXPECT_EQ(call.clip.top, 40);
      EXPECT_EQ(call.clip.bottom, 60);
    }
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

// --- Folders

TEST_F(FilePickerTest, DoubleClickOnAFolderOpensIt) {
  Then([] {
    DrawingClear();
    OpenFolderRow("[sub]");
    EXPECT_STREQ(PickFolder, "C:\\start\\sub");
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
    EXPECT_STREQ(PickFolder, "C:\\start\\\x95\x5C");
    EXPECT_EQ(Files(), Rows{"\x94\x5C.txt"});
    OpenFolderRow("[..]");
    EXPECT_STREQ(PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, TheRowWithTwoFullStopsGoesUpOneLevel) {
  GoTo("C:\\start\\sub\\deep");
  Then([] {
    OpenFolderRow("[..]");
    EXPECT_STREQ(PickFolder, "C:\\start\\sub");
    OpenFolderRow("[..]");
    EXPECT_STREQ(PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, TheUpButtonGoesUpUntilTheDriveRootWhereItIsDisabled) {
  Then([] {
    DrawingClear();
    Press(TopDialog(), kFolderUpId);
    EXPECT_STREQ(PickFolder, "C:\\");
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
    EXPECT_STREQ(PickFolder, "C:\\");
    OpenFolderRow("[start]");
    EXPECT_STREQ(PickFolder, "C:\\start");
    EXPECT_TRUE(UpIsEnabled());
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, InADriveRootUpIsDisabled) {
  GoTo("C:\\");
  Then([] {
    EXPECT_STREQ(PickFolder, "C:\\");
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
    EXPECT_STREQ(PickFolder, "C:\\");
    OpenFolderRow("[-z-]");
    EXPECT_STREQ(PickFolder, "Z:\\");
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
    EXPECT_STREQ(PickFolder, "C:\\start");
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
    EXPECT_STREQ(PickFolder, "C:\\start");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, AFolderWhoseNameBeginsWithAHyphenLeadsToADrive) {
  MakeFolder("C:\\start\\-zeta");
  MakeFolder("C:\\start\\-xeno");
  Then([] {
    OpenFolderRow("[-xeno]");  // there is no drive X:
    EXPECT_STREQ(PickFolder, "C:\\start");
    OpenFolderRow("[-zeta]");
    EXPECT_STREQ(PickFolder, "Z:\\");
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
    EXPECT_EQ(PickFolder, deep);
    OpenFolderRow("[" + std::string(60, 'm') + "]");
    EXPECT_EQ(PickFolder, deep);
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

// --- The list's number and Escape's

TEST_F(FilePickerTest, ASingleClickInTheFolderListDoesNotCancel) {
  Then([] {
    ChooseRow(TopDialog(), kFolderListId, 1);
    EXPECT_STREQ(PickFolder, "C:\\start");
    EXPECT_NE(hFilePickDlg, nullptr);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, EscapeCancels) {
  Then(Escape);
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, CancelAndCloseLeaveThePathAsItWas) {
  Propose("C:\\start\\sub\\plan.txt");
  Then([] { TypeName("other"); });
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(PickDone, 0);
  EXPECT_STREQ(path, "C:\\start\\sub\\plan.txt");
  Then([] { SendClose(TopDialog()); });
  EXPECT_EQ(Save("*.BUP"), 0);
  EXPECT_STREQ(path, "C:\\start\\sub\\plan.txt");
}

TEST_F(FilePickerTest, ACancelAfterAnOkIsACancel) {
  Then([] { TypeName("x"); });
  Then(PressOk);
  EXPECT_EQ(Load(), 1);
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_STREQ(path, "C:\\start\\x");
}

TEST_F(FilePickerTest, ThePickerLeavesTheFileStatusAlone) {
  FileStatus = 1;
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(FileStatus, 1);
}

// --- Files

TEST_F(FilePickerTest, ARowOfTheFileListGoesIntoTheNameField) {
  Then([] {
    ChooseFile("b.bmp");
    EXPECT_EQ(Name(), "b.bmp");
    PressOk();
  });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\b.bmp");
}

TEST_F(FilePickerTest, ADoubleClickInTheFileListPicks) {
  Then([] { ChooseFile("a.txt", true); });
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\a.txt");
}

TEST_F(FilePickerTest, ATypedNameComesBackAsItStands) {
  Then([] { TypeName("no such file.xyz"); });
  Then(PressOk);
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\no such file.xyz");
}

TEST_F(FilePickerTest, AnEmptyNameIsPickedToo) {
  Then(PressOk);
  EXPECT_EQ(Load(), 1);
  EXPECT_STREQ(path, "C:\\start\\");
}

TEST_F(FilePickerTest, TheLongestFolderAndNameFit) {
  Then([] { TypeName(std::string(500, 'x').c_str()); });
  Then(PressOk);
  EXPECT_EQ(Save("*.BUP"), 1);
  EXPECT_EQ(path, "C:\\start\\" + std::string(299, 'x') + ".BUP");
}

// --- Filters

TEST_F(FilePickerTest, TheFilterListHasSixteenRows) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId),
              (Rows{"*.*", "*.C", "*.CPP", "*.H", "*.INC", "*.RC", "*.C *.CPP *.H *.INC *RC", "*.DOC",
                    "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3", "*.INI", "*.BAT"}));
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 0);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, EachFilterRowListsItsOwnFiles) {
  const char* const extensions[16] = {"",    "c",   "CPP", "h",   "inc", "rc",  "",    "doc",
                                      "txt", "xcl", "bmp", "jpg", "wav", "mp3", "ini", "bat"};
  MakeFolder("C:\\kinds");
  Rows all;
  for (const char* extension : extensions) {
    if (*extension == '\0') continue;
    all.push_back(std::string("f.") + extension);
    PutFile("C:\\kinds\\" + all.back(), "");
  }
  std::sort(all.begin(), all.end());
  GoTo("C:\\kinds");
  Then([=] {
    for (int row = 15; row >= 0; --row) {
      ChooseRow(TopDialog(), kPickFilterId, row);
      EXPECT_EQ(PickFilterSel, row);
      const Rows wanted = row == 0   ? all
                          : row == 6 ? Rows{"f.CPP", "f.c", "f.h", "f.inc", "f.rc"}
                                     : Rows{std::string("f.") + extensions[row]};
      EXPECT_EQ(Files(), wanted) << row;
    }
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, ACallersFilterThatIsAFixedRowSelectsIt) {
  Then([] {
    EXPECT_EQ(PickFilterSel, 10);
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 10);
    EXPECT_EQ(ListCount(TopDialog(), kPickFilterId), 16);
    EXPECT_EQ(Files(), Rows{"b.bmp"});
    PressCancel();
  });
  EXPECT_EQ(Load("*.BMP"), 0);
}

TEST_F(FilePickerTest, ACallersOwnFilterBecomesTheSeventeenthRow) {
  Then([] {
    EXPECT_EQ(ListCount(TopDialog(), kPickFilterId), 17);
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId).back(), "*.BUP");
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 16);
    EXPECT_EQ(Files(), Rows{"g.bup"});
    ChooseRow(TopDialog(), kPickFilterId, 0);
    EXPECT_EQ(Files().size(), 7U);
    ChooseRow(TopDialog(), kPickFilterId, 16);
    EXPECT_EQ(Files(), Rows{"g.bup"});
    PressCancel();
  });
  EXPECT_EQ(Load("*.BUP"), 0);
}

TEST_F(FilePickerTest, TheFilterIsBackAfterACall) {
  PickFilterSel = 8;
  Then([] {
    EXPECT_EQ(Files(), Rows{"a.txt"});
    ChooseRow(TopDialog(), kPickFilterId, 2);
    PressCancel();
  });
  EXPECT_EQ(Load(""), 0);
  EXPECT_EQ(PickFilterSel, 8);
  Then(PressCancel);
  EXPECT_EQ(Load("*.BUP"), 0);
  EXPECT_EQ(PickFilterSel, 8);
  PickFilterSel = 0;
}

TEST_F(FilePickerTest, AFilterRowThatIsNotThereReadsAsAll) {
  PickFilterSel = 16;
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), kPickFilterId), 0);
    EXPECT_EQ(Files().size(), 7U);
    PressCancel();
  });
  EXPECT_EQ(Load(""), 0);
  PickFilterSel = 0;
}

TEST_F(FilePickerTest, AnOverlongFilterIsCut) {
  const std::string filter = "*." + std::string(60, 'Q');
  Then([=] {
    EXPECT_EQ(ListRows(TopDialog(), kPickFilterId).back(), filter.substr(0, 31));
    PressCancel();
  });
  EXPECT_EQ(Load(filter.c_str()), 0);
}

// --- Saving

TEST_F(FilePickerTest, ANameWithoutAFullStopGetsTheFiltersExtensionOnSave) {
  EXPECT_EQ(SaveAs("plan", "*.BUP"), "C:\\start\\plan.BUP");
}

TEST_F(FilePickerTest, AFilterOfEverythingGivesNoExtensionOnSave) {
  EXPECT_EQ(SaveAs("plan", "*.*"), "C:\\start\\plan");
  EXPECT_EQ(SaveAs("plan", ""), "C:\\start\\plan");
}

TEST_F(FilePickerTest, ANameWithAFullStopKeepsItAndTheFiltersExtensionIsNotAdded) {
  EXPECT_EQ(SaveAs("plan.old", "*.BUP"), "C:\\start\\plan.old");
  EXPECT_EQ(SaveAs("plan.", "*.BUP"), "C:\\start\\plan.");
}

TEST_F(FilePickerTest, AFullStopInTheFolderIsNoExtension) {
  MakeFolder("C:\\my.data");
  GoTo("C:\\my.data");
  EXPECT_EQ(SaveAs("plan", "*.BUP"), "C:\\my.data\\plan.BUP");
}

TEST_F(FilePickerTest, AFilterThatIsNoExtensionGivesNone) {
  EXPECT_EQ(SaveAs("plan", "*BUP"), "C:\\start\\plan");
  EXPECT_EQ(SaveAs("plan", "*"), "C:\\start\\plan");
}

TEST_F(FilePickerTest, LoadingAddsNoExtension) {
  Then([] { TypeName("plan"); });
  Then(PressOk);
  EXPECT_EQ(Load("*.BUP"), 1);
  EXPECT_STREQ(path, "C:\\start\\plan");
}

TEST_F(FilePickerTest, ADoubleByteNameWith5CKeepsItsBytesOnSave) {
  EXPECT_EQ(SaveAs("\x95\x5C", "*.BUP"), "C:\\start\\\x95\x5C.BUP");
}

// --- One at a time, and faults

TEST_F(FilePickerTest, ASecondPickerDoesNotOpenOverTheFirst) {
  Then([] {
    char other[kPickPathSize] = "keep";
    EXPECT_EQ(PickFileForSave(TopDialog(), "*.BUP", other), 0);
    EXPECT_STREQ(other, "keep");
    EXPECT_EQ(PickActive, 1);
    EXPECT_STREQ(PickFilter, "*.*");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
}

TEST_F(FilePickerTest, ADialogThatCannotBeMadePicksNothing) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(Load(), 0);
  EXPECT_TRUE(FaultWasMet());
}

TEST_F(FilePickerTest, WithoutTheFolderListANameCanStillBeTyped) {
  for (int nth = 2; nth <= 3; ++nth) {
    GoTo("C:\\start");
    Propose("");
    FaultArm(FaultKind::Window, nth);
    Then([] {
      EXPECT_EQ(Files().size(), 7U);
      SendCommand(TopDialog(), kFolderUpId);
      EXPECT_STREQ(PickFolder, "C:\\");
      TypeName("x");
      PressOk();
    });
    EXPECT_EQ(Load(), 1);
    EXPECT_TRUE(FaultWasMet()) << nth;
  }
  FaultArm(FaultKind::Window, 4);
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_FALSE(FaultWasMet());
}

}  // namespace
