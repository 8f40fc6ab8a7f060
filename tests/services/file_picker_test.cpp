// The file picker: how it opens, what it picks and how it is left.
#include "services/file_picker.h"

#include "platform/posix/faults.h"
#include "resources/services_ids.h"
#include "services/data_file.h"
#include "tests/services/picker_fixture.h"

namespace {

// --- Opening

TEST_F(FilePickerTest, OpensInTheCurrentFolder) {
  Then([] {
    EXPECT_EQ(Picker.hFilePickDlg, TopDialog());
    EXPECT_EQ(Picker.PickActive, 1);
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
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
    EXPECT_EQ(Picker.PickMode, 0);
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileSelectForSaveDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイルの保存");
    EXPECT_EQ(ControlText(TopDialog(), 1), "保存する");
    EXPECT_EQ(Picker.PickMode, 1);
    PressCancel();
  });
  EXPECT_EQ(Save(), 0);
}

TEST_F(FilePickerTest, TheProposalGivesFolderAndName) {
  Propose("C:\\start\\sub\\plan.txt");
  Then([] {
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\sub");
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
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    EXPECT_EQ(Name(), "plan.txt");
    PressCancel();
  });
  EXPECT_EQ(Load(), 0);
  EXPECT_STREQ(path, "C:\\gone\\plan.txt");
}

TEST_F(FilePickerTest, AProposalWithDoubleByteNamesIsNotSplitAtTheirSecondBytes) {
  Propose("C:\\start\\\x95\x5C\\\x94\x5C.txt");
  Then([] {
    EXPECT_STREQ(Picker.PickFolder, "C:\\start\\\x95\x5C");
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

// --- The list's number and Escape's

TEST_F(FilePickerTest, ASingleClickInTheFolderListDoesNotCancel) {
  Then([] {
    ChooseRow(TopDialog(), kFolderListId, 1);
    EXPECT_STREQ(Picker.PickFolder, "C:\\start");
    EXPECT_NE(Picker.hFilePickDlg, nullptr);
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
  EXPECT_EQ(Picker.PickDone, 0);
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
  FileResult.FileStatus = 1;
  Then(PressCancel);
  EXPECT_EQ(Load(), 0);
  EXPECT_EQ(FileResult.FileStatus, 1);
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

// --- One at a time, and faults

TEST_F(FilePickerTest, ASecondPickerDoesNotOpenOverTheFirst) {
  Then([] {
    char other[kPickPathSize] = "keep";
    EXPECT_EQ(PickFileForSave(TopDialog(), "*.BUP", other), 0);
    EXPECT_STREQ(other, "keep");
    EXPECT_EQ(Picker.PickActive, 1);
    EXPECT_STREQ(Picker.PickFilter, "*.*");
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
    const bool hasUp = nth == 2;  // the first of the two is the list, the second the button
    Then([hasUp] {
      EXPECT_EQ(Files().size(), 7U);
      if (hasUp) Press(TopDialog(), kFolderUpId);
      EXPECT_STREQ(Picker.PickFolder, hasUp ? "C:\\" : "C:\\start");
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
