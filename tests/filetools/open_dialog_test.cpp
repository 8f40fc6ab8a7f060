// FileOpnDialog and what it opens, driven by a user.
#include "scenario/world_list.h"
#include "tests/filetools/open_fixture.h"

namespace {

const char* const kAssociated = "関連づけプログラム";

class OpenDialogTest : public OpenFixture {
 protected:
  void SetUp() override {
    OpenFixture::SetUp();
    MakeFolder("C:\\data");
  }
  // Presses the button that leads to a dialog, lets `steps` script that one, and
  // cancels FileOpnDialog.
  static void In(int button, const std::function<void()>& steps) {
    ThenPress(button);
    steps();
    ThenPress(kCancel);
    OpenDialog();
  }
};

// --- FileOpnDialog

TEST_F(OpenDialogTest, AFirstStartWithNoFilesShowsEmptyListsAndTheAssociations) {
  ClassValueSet("txtfile\\shell\\open\\command", "%SystemRoot%\\NOTEPAD.EXE %1");
  ClassValueSet("cfile\\shell\\&Open with MSDev\\command", "C:\\vc\\msdev.exe \"%1\"");
  ClassValueSet("PDXFileType\\shell\\Open\\command", "C:\\pdf\\read.exe %1");
  ClassValueSet("DocShortcut\\shell\\open\\command", "C:\\doc\\word.exe");
  ThenExpect([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル オープン");
    EXPECT_EQ(DlgIdMenu, 2000);
    EXPECT_EQ(FuncNo, 1);
    EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{});
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), -1);
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "NOTEPAD.EXE [C:\\WINDOWS\\]",
                                             "msdev.exe [C:\\vc\\]", "read.exe [C:\\pdf\\]"}));
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 0);
    Press(TopDialog(), kOk);  // nothing is chosen: the dialog stays
  });
  ThenPress(kCancel);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{});
  EXPECT_FALSE(FileThere(HistoryPath()));
  EXPECT_FALSE(FileThere(GroupPath()));
}

TEST_F(OpenDialogTest, ThePanelClosesAndItsStateIsTakenBack) {
  MenuPanelState = 2;
  ThenPress(kCancel);
  OpenDialog();
  EXPECT_EQ(MenuPanelState, 0);
}

TEST_F(OpenDialogTest, AHistoryFileOneByteShortFailsTheMessageShowsAndAllIsReset) {
  AddHistories(5);
  OpnHistory.animeOn = 0;
  OpnHistory.soundOn = 0;
  SaveHistory();
  PutFile(HistoryPath(), FileBytes(HistoryPath()).substr(0, 240803));
  ExpectBox("オープンファイル履歴が失われました", "履歴ファイルの読み込みエラー");
  ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{}); });
  ThenPress(kCancel);
  OpenDialog();
  ASSERT_EQ(BoxesShown().size(), 1U);
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Exclamation);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::Ok);
  EXPECT_EQ(OpnHistory.fileCount, 0);
  EXPECT_EQ(OpnHistory.animeOn, 1);
  EXPECT_EQ(OpnHistory.soundOn, 1);
}

TEST_F(OpenDialogTest, AWholeHistoryFileIsShownWithTheProgramOfTheFirstFile) {
  AddHistory("表紙.txt", "C:\\書類\\", "edit.exe", "C:\\道具\\");
  AddHistory("b.txt", "C:\\data\\");
  SaveHistory();
  OpnHisReset();
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_FILE), (Rows{"表紙.txt [C:\\書類\\]", "b.txt [C:\\data\\]"}));
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "edit.exe [C:\\道具\\]"}));
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
    ChooseRow(TopDialog(), IDC_OPN_FILE, 1);
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 0);
    ChooseRow(TopDialog(), IDC_OPN_FILE, 0);
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, WithNobodyToWalkTheFileOpensAtOnceAndTheDialogCloses) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\data\\");
  SaveHistory();
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{"C:\\data\\edit.exe \"C:\\data\\a.txt\""});
  EXPECT_EQ(OpnRecord.recCount, 1);
  EXPECT_EQ(OpeningState, 0);
}

TEST_F(OpenDialogTest, WithTheAnimationOffTheFileOpensAtOnce) {
  PutWalker();
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\data\\");
  OpnHistory.animeOn = 0;
  OpnTextSet(OpnHistory.soundName, "foot1.wav");
  SaveHistory();
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started().size(), 1U);
  EXPECT_FALSE(WalkActive);
  EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\foot1.wav"});
}

TEST_F(OpenDialogTest, WithTheAnimationOnTheFileOpensWhenTheWalkIsOver) {
  PutWalker();
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\data\\");
  OpnHistory.soundOn = 0;
  SaveHistory();
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(OpeningState, 1);
  EXPECT_EQ(Started(), Rows{});
  EXPECT_EQ(SoundsPlayed(), Rows{});
  WalkThrough();
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(Started(), Rows{"C:\\data\\edit.exe \"C:\\data\\a.txt\""});
  EXPECT_EQ(OpnRecord.recCount, 1);
}

TEST_F(OpenDialogTest, ABrowsedFileIsOpenedAndLandsOnTopOfTheSavedHistory) {
  AddHistories(2);
  SaveHistory();
  PutFile("C:\\data\\新しい表.txt", "x");
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("新しい表.txt");
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 3U);
    EXPECT_EQ(RowsOf(IDC_OPN_FILE)[2], "新しい表.txt [C:\\mirrell\\]");
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 2);
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 0);
  });
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{" \"C:\\mirrell\\新しい表.txt\""});
  EXPECT_EQ(HistoryFiles(), (Rows{"新しい表.txt", "name0.txt", "name1.txt"}));
  OpnHisReset();
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(HistoryFiles(), (Rows{"新しい表.txt", "name0.txt", "name1.txt"}));
}

TEST_F(OpenDialogTest, ABrowsedFileThatIsNotOpenedIsForgotten) {
  AddHistories(1);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  ThenPress(kCancel);
  OpenDialog();
  EXPECT_EQ(OpnWork.fileCount, 1);
  ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 1U); });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, ACancelledPickerChangesNothing) {
  AddHistories(1);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPress(kFolderCancelId);
  ThenPress(IDC_OPN_ADD_PROGRAM);
  ThenPress(kFolderCancelId);
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 1U);
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM).size(), 1U);
    EXPECT_NE(FileStatus, 0);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, With200FilesANewOneIsToldOfAndDropped) {
  AddHistories(200);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ExpectBox("オープンファイル登録最大数は２００個です", "ファイル登録リミット", BoxAnswer::Ok, [] {
    const WindowHandle dialog = FindDialog(IDD_FileOpnDialog);
    EXPECT_EQ(ListRows(dialog, IDC_OPN_FILE).size(), 200U);
    EXPECT_EQ(ListSelected(dialog, IDC_OPN_FILE), 199);
  });
  ThenPick("new.txt");
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\name199.txt\""});
  EXPECT_EQ(HistoryFiles().size(), 200U);
  EXPECT_EQ(HistoryFiles()[199], "name199.txt");
}

TEST_F(OpenDialogTest, ABrowsedProgramIsChosenAndLandsOnTopOfItsList) {
  AddHistory("a.txt", "C:\\data\\", "old.exe", "C:\\data\\");
  SaveHistory();
  ThenPress(IDC_OPN_ADD_PROGRAM);
  ThenPick("new.exe");
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM),
              (Rows{kAssociated, "old.exe [C:\\data\\]", "new.exe [C:\\mirrell\\]"}));
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 2);
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
  });
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{"C:\\mirrell\\new.exe \"C:\\data\\a.txt\""});
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM),
              (Rows{kAssociated, "new.exe [C:\\mirrell\\]", "old.exe [C:\\data\\]"}));
    EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, With199ProgramsANewOneIsToldOfAndDropped) {
  for (int i = 0; i < 199; ++i) AddHistory("f" + std::to_string(i), "C:\\", "p" + std::to_string(i), "C:\\");
  SaveHistory();
  ThenPress(IDC_OPN_ADD_PROGRAM);
  ExpectBox("オープンプログラム登録最大数は１９９個です", "プログラム登録リミット", BoxAnswer::Ok,
            [] { EXPECT_EQ(ListRows(FindDialog(IDD_FileOpnDialog), IDC_OPN_PROGRAM).size(), 200U); });
  ThenPick("new.exe");
  ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 199); });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, AKnownFileReopenedWithAnotherProgramIsSavedWithoutMoving) {
  AddHistories(2);
  AddHistory("x", "C:\\", "edit.exe", "C:\\");
  SaveHistory();
  ThenChoose(IDC_OPN_FILE, 1);
  ThenChoose(IDC_OPN_PROGRAM, 1);
  ThenPress(kOk);
  OpenDialog();
  OpnHisReset();
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(HistoryFiles(), (Rows{"name0.txt", "name1.txt", "x"}));
  EXPECT_STREQ(OpnHistory.progName[1], "edit.exe");
}

TEST_F(OpenDialogTest, TheListsAreShownAnewWhenAFileOpensWhileTheDialogStands) {
  AddHistories(2);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  ThenExpect([] {
    ASSERT_TRUE(OpnSelectionFill(2, 0));
    SendCommand(hMainWnd, 2202);
    EXPECT_EQ(RowsOf(IDC_OPN_FILE)[0], "new.txt [C:\\mirrell\\]");
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, CommandsThatBelongToTheDialogDoNothingWithoutIt) {
  SendCommand(hMainWnd, 2002);
  SendCommand(hMainWnd, 2003);
  EXPECT_EQ(OpnWork.fileCount, 0);
}

TEST_F(OpenDialogTest, TheDialogIsNotOpenedTwice) {
  ThenExpect([] {
    SendCommand(hMainWnd, 1900);
    EXPECT_EQ(OpenWindowCount(), 2);
    EXPECT_EQ(FuncNo, 1);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, ASecondPickerDoesNotOpenOverTheFirst) {
  ThenPress(IDC_OPN_ADD_FILE);
  ThenExpect([] {
    const WindowHandle picker = TopDialog();
    SendCommand(hMainWnd, 2002);
    SendCommand(hMainWnd, 2003);
    EXPECT_EQ(TopDialog(), picker);
    Press(picker, kFolderCancelId);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, DialogsShowFilesWhoseFieldsHaveNoEnd) {
  // Every text fills its field with lead bytes; only the counts are good.
  std::string history(240804, '\x81');
  history[0] = static_cast<char>(200);
  std::string groups(7371800, '\x81');
  for (std::size_t group = 0; group < 200; ++group) groups[group * 36859] = 30;
  ASSERT_TRUE(PutFile(HistoryPath(), history));
  ASSERT_TRUE(PutFile(GroupPath(), groups));
  const std::string text(256, '\x81');
  const std::string row = text + " [" + text + "]";
  ThenExpect([row] {
    EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows(200, row));
    EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, row}));
  });
  ThenPress(IDC_OPN_DELETE_HISTORY);
  ThenChoose(IDC_OPN_FILE, 199);
  ExpectBox((text + "のオープンを履歴から削除します").c_str(), "履歴削除の確認", BoxAnswer::Ok);
  ThenPress(IDC_OPN_REMOVE);
  ThenPress(kCancel);
  ThenPress(IDC_OPN_ANIMATION);
  ThenPress(IDC_OPN_CHECK);
  ThenPress(kOk);
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenExpect([row] {
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[199], "* 200 (" + std::string(255, '\x81') + ")");
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows(30, row));
    EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), std::string(255, '\x81'));
    Type(TopDialog(), IDC_OPN_NAME_WORDS, "\x81\x81");
  });
  ThenPress(IDC_OPN_SEARCH_NAMES);
  ThenPress(kCancel);
  ThenPress(kCancel);
  ThenPress(IDC_OPN_GROUP_SET);
  ThenPress(IDC_OPN_DETAILS);
  ThenPress(kOk);
  ThenPress(IDC_OPN_GROUP_ADD);  // the group holds it
  ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
  ThenPress(kCancel);
  OpenDialog();
  // And it opens: the line holds the first 256 bytes of each text.
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Started(), Rows{text + text + " \"" + text + text + "\""});
}

// --- The record

TEST_F(OpenDialogTest, TheRecordIsShownInItsColumns) {
  Select("表紙.txt", "C:\\書類\\");
  OpnRecordAdd();
  In(IDC_OPN_SHOW_RECORD, [] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspListOpnFileRecDlg);
      EXPECT_EQ(DlgIdTool, 2029);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD),
                Rows{"表紙.txt" + std::string(28, ' ') + "関連プログラム" + std::string(56, ' ')});
    });
    ThenPress(kOk);
  });
}

TEST_F(OpenDialogTest, TheRecordIsClearedWhenTheUserAgrees) {
  Select("a", "C:\\");
  OpnRecordAdd();
  const char* const text = "オープン記録を全てクリアします。よろしいですか ?";
  ExpectBox(text, "オープン記録クリアの確認", BoxAnswer::Cancel);
  In(IDC_OPN_CLEAR_RECORD, [] {});
  EXPECT_EQ(OpnRecord.recCount, 1);
  ExpectBox(text, "オープン記録クリアの確認", BoxAnswer::Ok);
  In(IDC_OPN_CLEAR_RECORD, [] {});
  EXPECT_EQ(OpnRecord.recCount, 0);
  for (const Box& box : BoxesShown()) {
    EXPECT_EQ(box.buttons, BoxButtons::OkCancel);
    EXPECT_EQ(box.icon, BoxIcon::Question);
  }
}

// --- FileOpnGrpSetDlg

class GroupSetTest : public OpenDialogTest {
 protected:
  // Leaves FileOpnDialog for the groups and lets `steps` script what follows.
  static void Groups(const std::function<void()>& steps) {
    ThenPress(IDC_OPN_GROUP_SET);
    steps();
    OpenDialog();
  }
};

TEST_F(GroupSetTest, TheGroupsOpenWhenFileOpnDialogHasClosedAndKeepItsChoice) {
  AddHistories(2);
  SaveHistory();
  ThenChoose(IDC_OPN_FILE, 1);
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  ThenPress(IDC_OPN_ADD_PROGRAM);
  ThenPick("edit.exe");
  Groups([] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnGrpSetDlg);
      EXPECT_EQ(FindDialog(IDD_FileOpnDialog), nullptr);
      EXPECT_EQ(DlgIdTool, 2000);
      EXPECT_EQ(DlgIdMenu, 0);
      EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 3U);
      EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 2);
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP).size(), 200U);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "   1");
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 0);
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"new.txt [C:\\mirrell\\]"});
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 ()");
    });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
  std::memset(OpnGroupTable, 0, sizeof OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"new.txt [C:\\mirrell\\] edit.exe"});
  EXPECT_STREQ(OpnGroupTable[0].progPath[0], "C:\\mirrell\\");
}

TEST_F(GroupSetTest, AddingAFileThatTheGroupHoldsMovesItToTheEnd) {
  AddHistories(3);
  SaveHistory();
  for (int i = 0; i < 3; ++i) AddToGroup(0, "name" + std::to_string(i) + ".txt");
  SaveGroups();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 1);
    ThenExpect([] {
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES),
                (Rows{"name0.txt [C:\\data\\]", "name2.txt [C:\\data\\]", "name1.txt [C:\\data\\]"}));
    });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
}

TEST_F(GroupSetTest, AFullGroupIsToldOf) {
  AddHistories(31);
  SaveHistory();
  for (int i = 0; i < 30; ++i) AddToGroup(0, "name" + std::to_string(i) + ".txt");
  SaveGroups();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 30);
    ExpectBox("グループにはファイルを３０個まで登録できます", "ファイル最大登録数をオーバー");
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 30U);
      // One that it holds still moves to the end.
      ChooseRow(TopDialog(), IDC_OPN_FILE, 0);
      Press(TopDialog(), IDC_OPN_GROUP_ADD);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 30U);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES)[29], "name0.txt [C:\\data\\]");
    });
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, WithoutAChosenFileNothingIsAdded) {
  Groups([] {
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenPress(kCancel);  // nothing has changed: nobody asks
  });
  EXPECT_EQ(OpnGroupTable[0].fileCount, 0);
}

TEST_F(GroupSetTest, AFileIsRemovedWhenTheUserAgrees) {
  AddToGroup(0, "a");
  AddToGroup(0, "b");
  SaveGroups();
  Groups([] {
    ThenPress(IDC_OPN_GROUP_REMOVE);  // no row is chosen
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES).size(), 2U); });
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"b [C:\\data\\]"}); });
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Cancel);
    ThenPress(kOk);
    ExpectBox("変更内容を登録して終了します。よろしいですか ?", "登録の確認", BoxAnswer::Ok);
    ThenPress(kOk);
  });
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"b [C:\\data\\]"});
}

TEST_F(GroupSetTest, ACancelTakesEverythingBack) {
  AddToGroup(0, "a");
  AddToGroup(1, "b");
  OpnGroupSetComment(0, "old");
  SaveGroups();
  const std::string file = FileBytes(GroupPath());
  Groups([] {
    ThenChoose(IDC_OPN_GROUP_FILES, 0);
    ExpectBox("グループから削除しますか?", "グループから削除", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REMOVE);
    ThenType(IDC_OPN_COMMENT, "new");
    ThenChoose(IDC_OPN_GROUP, 1);
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Cancel);
    ThenPress(kCancel);
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    Then([] { SendClose(TopDialog()); });
  });
  EXPECT_EQ(GroupFiles(0), Rows{"a [C:\\data\\]"});
  EXPECT_STREQ(OpnGroupTable[0].comment, "old");
  EXPECT_TRUE(FileBytes(GroupPath()) == file);
}

TEST_F(GroupSetTest, ChangingTheGroupStoresTheCommentThatWasShown) {
  AddToGroup(0, "a");
  AddToGroup(1, "b");
  OpnGroupSetComment(1, "second");
  SaveGroups();
  Groups([] {
    ThenType(IDC_OPN_COMMENT, "朝");
    ThenChoose(IDC_OPN_GROUP, 1);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 (朝)");
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "second");
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"b [C:\\data\\]"});
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 1);
    });
    ThenType(IDC_OPN_COMMENT, "夜");
    ThenPress(kOk);  // comments alone make nobody ask
  });
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_STREQ(OpnGroupTable[0].comment, "朝");
  EXPECT_STREQ(OpnGroupTable[1].comment, "夜");
}

TEST_F(GroupSetTest, ACommentTakes255Bytes) {
  Groups([] {
    ThenType(IDC_OPN_COMMENT, std::string(255, 'c'));
    ThenExpect([] { Type(TopDialog(), IDC_OPN_COMMENT, (std::string(254, 'a') + "表").c_str()); });
    ThenPress(kOk);
  });
  EXPECT_EQ(std::string(OpnGroupTable[0].comment), std::string(254, 'a') + "\x95");
}

TEST_F(GroupSetTest, TheProgramFollowsTheChosenFile) {
  AddHistory("a", "C:\\");
  AddHistory("b", "C:\\", "edit.exe", "C:\\");
  SaveHistory();
  Groups([] {
    ThenChoose(IDC_OPN_FILE, 1);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1); });
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, TheDetailsListTheHistory) {
  AddHistory("表紙.txt", "C:\\書類\\");
  AddHistory("b.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  Groups([] {
    ThenPress(IDC_OPN_DETAILS);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspListOpnFileHisDlg);
      EXPECT_EQ(DlgIdSub, 2013);
      EXPECT_EQ(RowsOf(IDC_OPN_LINES),
                (Rows{"--項目 No. 1--", "   ファイル名: 表紙.txt", "   ファイルパス: C:\\書類\\",
                      "--項目 No. 2--", "   ファイル名: b.txt", "   ファイルパス: C:\\data\\",
                      "   プログラム名: edit.exe", "   プログラムパス: C:\\道具\\"}));
    });
    ThenPress(kOk);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, AGroupFileThatCannotBeWrittenIsSilent) {
  Groups([] {
    ThenType(IDC_OPN_COMMENT, "x");
    Then([] {
      FaultArm(FaultKind::Write, 1);
      Press(TopDialog(), kOk);
      EXPECT_TRUE(FaultWasMet());
      FaultClear();
    });
  });
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(GroupSetTest, AChoiceThatWaitsForItsWalkIsNotLostToAGroup) {
  AddHistories(1);
  SaveHistory();
  Groups([] {
    ThenExpect([] { Select("waiting", "C:\\"); });
    ThenPress(IDC_OPN_GROUP_ADD);
    ThenExpect([] { EXPECT_STREQ(OpnSelection.fileName, "waiting"); });
    ExpectBox("変更をキャンセルしてもよろしいですか ?", "キャンセルの確認", BoxAnswer::Ok);
    ThenPress(kCancel);
  });
}

TEST_F(GroupSetTest, TheGroupsOpenByTheirCommandAloneWithTheirFiles) {
  AddToGroup(0, "a");
  SaveGroups();
  std::memset(OpnGroupTable, 0, sizeof OpnGroupTable);
  ThenExpect([] {
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[0], "*  1 ()");
    SendCommand(hMainWnd, 2008);  // is up already
    SendCommand(hMainWnd, 1900);  // would read the tables that are in work
    EXPECT_EQ(OpenWindowCount(), 2);
  });
  ThenPress(kOk);
  SendCommand(hMainWnd, 2008);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(0), Rows{"a [C:\\data\\]"});
}

// --- SetGrpOpnFileRecDlg

class RecordToGroupTest : public OpenDialogTest {
 protected:
  static void Record(int count) {
    for (int i = 0; i < count; ++i) {
      Select("r" + std::to_string(i), "C:\\data\\");
      OpnRecordAdd();
    }
  }
};

TEST_F(RecordToGroupTest, TheRecordGoesIntoTheChosenGroupWithItsComment) {
  AddToGroup(1, "a");
  SaveGroups();
  Record(2);
  Select("kept", "C:\\");
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetGrpOpnFileRecDlg);
      EXPECT_EQ(DlgIdTool, 2030);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD).size(), 2U);
      EXPECT_EQ(RowsOf(IDC_OPN_RECORD)[0].substr(0, 3), "r1 ");
      ChooseRow(TopDialog(), IDC_OPN_GROUP, 1);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"a [C:\\data\\]"});
      Type(TopDialog(), IDC_OPN_COMMENT, "記録");
    });
    ExpectBox("オープン記録をグループ2に追加登録します", "グループへの登録", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenExpect([] { EXPECT_STREQ(OpnGroupTable[1].comment, ""); });
    ExpectBox("オープン記録をグループ2に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), (Rows{"a [C:\\data\\]", "r1 [C:\\data\\]", "r0 [C:\\data\\]"}));
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP)[1], "*  2 (記録)");
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 1);
    });
    ThenPress(kCancel);
  });
  EXPECT_STREQ(OpnSelection.fileName, "kept");
  std::memset(OpnGroupTable, 0, sizeof OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  EXPECT_EQ(GroupFiles(1).size(), 3U);
  EXPECT_STREQ(OpnGroupTable[1].comment, "記録");
}

TEST_F(RecordToGroupTest, AGroupOf30AndARecordOfMoreSavesTheFirstRowsThatFitWhenTheUserAgrees) {
  Record(31);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ExpectBox("1グループのファイル数=最大30個をオーバーしました。登録しますか?", "ファイル登録数オーバー",
              BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  std::memset(OpnGroupTable, 0, sizeof OpnGroupTable);
  ASSERT_EQ(OpnGroupLoad(), 0);
  const Rows files = GroupFiles(0);
  ASSERT_EQ(files.size(), 30U);
  EXPECT_EQ(files[0], "r30 [C:\\data\\]");
  EXPECT_EQ(files[29], "r1 [C:\\data\\]");
}

TEST_F(RecordToGroupTest, ARefusedOverflowStaysInMemoryAndIsNotSaved) {
  Record(31);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ExpectBox("1グループのファイル数=最大30個をオーバーしました。登録しますか?", "ファイル登録数オーバー",
              BoxAnswer::Cancel);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  EXPECT_EQ(OpnGroupTable[0].fileCount, 30);
  EXPECT_FALSE(FileThere(GroupPath()));
}

TEST_F(RecordToGroupTest, ThirtyRowsFitWithoutAQuestion) {
  Record(30);
  In(IDC_OPN_RECORD_TO_GROUP, [] {
    ExpectBox("オープン記録をグループ1に追加登録します", "グループへの登録", BoxAnswer::Ok);
    ThenPress(IDC_OPN_GROUP_REGISTER);
    ThenPress(kCancel);
  });
  EXPECT_TRUE(FileThere(GroupPath()));
}

// --- TakeOpnGrpSetDlg

TEST_F(OpenDialogTest, ACalledGroupOpensOnTheNextTickWithNobodyToWalk) {
  AddToGroup(2, "a");
  AddToGroup(2, "b");
  OpnGroupSetComment(2, "朝");
  SaveGroups();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenExpect([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TakeOpnGrpSetDlg);
    EXPECT_EQ(DlgIdTool, 2001);
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{});
    ChooseRow(TopDialog(), IDC_OPN_GROUP, 2);
    EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), (Rows{"a [C:\\data\\]", "b [C:\\data\\]"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "朝");
  });
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(OpnPendingGroup, &OpnGroupTable[2]);
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(Started(), Rows{});
  Ticks(1);
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\a\""});
  Ticks(51);
  EXPECT_EQ(Started(), (Rows{" \"C:\\data\\a\"", " \"C:\\data\\b\""}));
}

TEST_F(OpenDialogTest, AGroupWaitsForTheWalkAndThenOpens) {
  PutWalker();
  AddToGroup(0, "a");
  SaveGroups();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(OpeningState, 2);
  WalkThrough();
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(Started(), Rows{});
  Ticks(1);
  EXPECT_EQ(Started(), Rows{" \"C:\\data\\a\""});
}

TEST_F(OpenDialogTest, AGroupWithNoFilesCalledRunsTheAnimationOpensNothingAndEnds) {
  PutWalker();
  ThenPress(IDC_OPN_TAKE_GROUP);
  ThenPress(kOk);
  OpenDialog();
  EXPECT_TRUE(WalkActive);
  EXPECT_EQ(OpeningState, 2);
  EXPECT_NE(OpnPendingGroup, nullptr);
  WalkThrough();
  Ticks(1);
  EXPECT_EQ(OpnPendingGroup, nullptr);
  EXPECT_EQ(Started(), Rows{});
}

TEST_F(OpenDialogTest, ACancelledCallLeavesFileOpnDialogOpen) {
  In(IDC_OPN_TAKE_GROUP, [] { ThenPress(kCancel); });
  EXPECT_EQ(OpnPendingGroup, nullptr);
}

TEST_F(OpenDialogTest, ASearchByNameLeadsToTheChosenGroup) {
  AddToGroup(3, "Report1.txt");
  AddToGroup(8, "report2.txt");
  OpnGroupSetComment(8, "二");
  SaveGroups();
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_NAME_WORDS, "report");
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchOpnFileGrpSelDlg);
      EXPECT_EQ(WindowText(TopDialog()), "検索したグループの選択");
      EXPECT_EQ(DlgIdSub, 2030);
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP), (Rows{"*  4 ()", "*  9 (二)"}));
      ChooseRow(TopDialog(), IDC_OPN_GROUP, 1);
      Press(TopDialog(), kOk);
    });
    ThenExpect([] {
      EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 8);
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_COMMENT), "二");
      EXPECT_EQ(RowsOf(IDC_OPN_GROUP_FILES), Rows{"report2.txt [C:\\data\\]"});
    });
    // A cancelled choice leaves the group that was there.
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ThenPress(kCancel);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 8); });
    ThenPress(kCancel);
  });
}

TEST_F(OpenDialogTest, ASearchByCommentLeadsToTheChosenGroup) {
  AddToGroup(3, "a");
  OpnGroupSetComment(3, "朝の仕事");
  SaveGroups();
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_COMMENT_WORDS, "仕事");
    ThenPress(IDC_OPN_SEARCH_COMMENTS);
    ThenPress(kOk);
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_GROUP), 3); });
    ThenPress(kCancel);
  });
}

TEST_F(OpenDialogTest, SearchesThatFindNothingSaySo) {
  In(IDC_OPN_TAKE_GROUP, [] {
    ThenType(IDC_OPN_NAME_WORDS, "x");
    ExpectBox("一致するグループは見つかりませんでした", "ファイル名検索失敗");
    ThenPress(IDC_OPN_SEARCH_NAMES);
    ExpectBox("一致するグループは見つかりませんでした", "コメント検索失敗");
    ThenPress(IDC_OPN_SEARCH_COMMENTS);
    ThenPress(kCancel);
  });
}

// --- DelListOpnFileHisDlg

TEST_F(OpenDialogTest, AHistoryRowIsShownAndRemovedWhenTheUserAgrees) {
  AddHistory("表紙.txt", "C:\\書類\\");
  AddHistory("b.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenExpect([] {
      const WindowHandle dialog = TopDialog();
      EXPECT_EQ(TemplateOf(dialog), IDD_DelListOpnFileHisDlg);
      EXPECT_EQ(DlgIdTool, 2032);
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), (Rows{"表紙.txt [C:\\書類\\]", "b.txt [C:\\data\\]"}));
      Press(dialog, IDC_OPN_REMOVE);  // no row is chosen
      ChooseRow(dialog, IDC_OPN_FILE, 1);
      EXPECT_EQ(ControlText(dialog, IDC_OPN_NAME), "b.txt");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_FOLDER), "C:\\data\\");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_PROGRAM_NAME), "edit.exe");
      ChooseRow(dialog, IDC_OPN_FILE, 0);
      EXPECT_EQ(ControlText(dialog, IDC_OPN_NAME), "表紙.txt");
      EXPECT_EQ(ControlText(dialog, IDC_OPN_PROGRAM_NAME), "関連プログラム");
    });
    ExpectBox("表紙.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_REMOVE);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 2U); });
    ExpectBox("表紙.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{"b.txt [C:\\data\\]"});
      EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_NAME), "");
    });
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{"b.txt [C:\\data\\]"});
      EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 1);
    });
  });
  OpnHisReset();
  ASSERT_EQ(OpnHisLoad(), 0);
  EXPECT_EQ(HistoryFiles(), Rows{"b.txt"});
}

TEST_F(OpenDialogTest, TheProgramOfARemovedFileStaysInItsList) {
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\道具\\");
  SaveHistory();
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenChoose(IDC_OPN_FILE, 0);
    ExpectBox("a.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{});
      EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "edit.exe [C:\\道具\\]"}));
    });
  });
}

TEST_F(OpenDialogTest, ABrowsedFileOutlastsTheRemovalOfAnother) {
  AddHistories(2);
  SaveHistory();
  ThenPress(IDC_OPN_ADD_FILE);
  ThenPick("new.txt");
  In(IDC_OPN_DELETE_HISTORY, [] {
    ThenChoose(IDC_OPN_FILE, 0);
    ExpectBox("name0.txtのオープンを履歴から削除します", "履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE);
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), (Rows{"name1.txt [C:\\data\\]", "new.txt [C:\\mirrell\\]"}));
    });
  });
}

TEST_F(OpenDialogTest, TheWholeHistoryIsRemovedAndTheProgramListBuiltAnew) {
  for (int i = 0; i < 200; ++i) AddHistory("f" + std::to_string(i), "C:\\", "p" + std::to_string(i), "C:\\");
  SaveHistory();
  ClassValueSet("txtfile\\shell\\open\\command", "C:\\note.exe %1");
  const char* const text = "ファイルとプログラム全ての履歴登録を削除します";
  In(IDC_OPN_DELETE_HISTORY, [text] {
    ExpectBox(text, "全履歴削除の確認", BoxAnswer::Cancel);
    ThenPress(IDC_OPN_REMOVE_ALL);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE).size(), 200U); });
    ExpectBox(text, "全履歴削除の確認", BoxAnswer::Ok);
    ThenPress(IDC_OPN_REMOVE_ALL);
    ThenExpect([] { EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{}); });
    ThenPress(kCancel);
    ThenExpect([] {
      EXPECT_EQ(RowsOf(IDC_OPN_FILE), Rows{});
      EXPECT_EQ(RowsOf(IDC_OPN_PROGRAM), (Rows{kAssociated, "note.exe [C:\\]"}));
      EXPECT_EQ(ChosenOf(IDC_OPN_PROGRAM), 0);
    });
  });
  std::string empty(240804, '\0');
  empty[240201] = empty[240202] = 1;
  EXPECT_TRUE(FileBytes(HistoryPath()) == empty);
}

TEST_F(OpenDialogTest, LookingAtTheHistoryWritesNothing) {
  AddHistories(1);
  SaveHistory();
  FaultArm(FaultKind::Create, 1);
  In(IDC_OPN_DELETE_HISTORY, [] { ThenPress(kCancel); });
  EXPECT_FALSE(FaultWasMet());
  FaultClear();
}

// --- SetOpnFileAnimeDlg

class OpenAnimeTest : public OpenDialogTest {
 protected:
  void SetUp() override {
    OpenDialogTest::SetUp();
    MakeFolder("C:\\mirrell\\サウンド\\sub");
    PutFile(InProgram("サウンド\\foot2.wav"), "x");
    PutFile(InProgram("サウンド\\foot1.wav"), "x");
    PutFile(InProgram("サウンド\\鐘.wav"), "x");
    OpnTextSet(OpnHistory.soundName, "foot2.wav");
    OpnHistory.soundOn = 0;
    SaveHistory();
  }
  static std::string SavedSound() { return FileBytes(HistoryPath()).substr(240503, 300); }
};

TEST_F(OpenAnimeTest, ThePresentSettingsAreShown) {
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] {
      const WindowHandle dialog = TopDialog();
      EXPECT_EQ(TemplateOf(dialog), IDD_SetOpnFileAnimeDlg);
      EXPECT_EQ(WindowText(dialog), "ファイルオープン アニメーション/サウンド設定");
      EXPECT_EQ(DlgIdSub, 2014);
      EXPECT_TRUE(ControlIsChecked(dialog, IDC_OPN_ANIME));
      EXPECT_FALSE(ControlIsChecked(dialog, IDC_OPN_SOUND));
      EXPECT_EQ(RowsOf(IDC_OPN_SOUND_FILE), (Rows{"foot1.wav", "foot2.wav", "鐘.wav"}));
      EXPECT_EQ(ChosenOf(IDC_OPN_SOUND_FILE), 1);
    });
    ThenPress(kCancel);
  });
}

TEST_F(OpenAnimeTest, TheSettingsAreStoredAndTheHistorySaved) {
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_ANIME);
    ThenPress(IDC_OPN_SOUND);
    ThenChoose(IDC_OPN_SOUND_FILE, 2);
    ThenPress(kOk);
  });
  const std::string file = FileBytes(HistoryPath());
  ASSERT_EQ(file.size(), 240804U);
  EXPECT_EQ(file[240201], 0);
  EXPECT_EQ(file[240202], 1);
  EXPECT_EQ(SavedSound(), std::string("鐘.wav") + std::string(294, '\0'));
}

TEST_F(OpenAnimeTest, ACancelChangesNothing) {
  const std::string before = FileBytes(HistoryPath());
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_ANIME);
    ThenChoose(IDC_OPN_SOUND_FILE, 0);
    ThenPress(kCancel);
  });
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_ANIME);
    Then([] { SendClose(TopDialog()); });
  });
  EXPECT_TRUE(FileBytes(HistoryPath()) == before);
  EXPECT_EQ(OpnHistory.animeOn, 1);
}

TEST_F(OpenAnimeTest, WithoutAChosenSoundTheStoredOneStays) {
  OpnTextSet(OpnHistory.soundName, "gone.wav");
  SaveHistory();
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] { EXPECT_EQ(ChosenOf(IDC_OPN_SOUND_FILE), -1); });
    ThenPress(kOk);
  });
  EXPECT_EQ(SavedSound(), std::string("gone.wav") + std::string(292, '\0'));
}

TEST_F(OpenAnimeTest, ACheckPlaysWhatTheDialogShowsAndStoresNothing) {
  PutWalker();
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_SOUND);
    ThenChoose(IDC_OPN_SOUND_FILE, 0);
    ThenExpect([] {
      Press(TopDialog(), IDC_OPN_CHECK);
      EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\foot1.wav"});
      EXPECT_EQ(OpeningState, 3);
      EXPECT_TRUE(WalkActive);
      EXPECT_EQ(OpnHistory.soundOn, 0);
      EXPECT_STREQ(OpnHistory.soundName, "foot2.wav");
      Press(TopDialog(), IDC_OPN_CHECK);  // one is running
      EXPECT_EQ(SoundsPlayed().size(), 1U);
    });
    // The tick that opens the walking window, and three inside of the walk's windows.
    for (int i = 0; i < 4; ++i) Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetOpnFileAnimeDlg);
      EXPECT_EQ(OpeningState, 0);
      EXPECT_FALSE(WalkActive);
    });
    ThenPress(kCancel);
  });
  EXPECT_EQ(Started(), Rows{});
}

TEST_F(OpenAnimeTest, ClosingTheDialogEndsTheCheckAtOnce) {
  PutWalker();
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_CHECK);
    Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FlyingBat1);
      Press(FindDialog(IDD_SetOpnFileAnimeDlg), kCancel);
    });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
      EXPECT_EQ(OpeningState, 0);
      EXPECT_FALSE(WalkActive);
      EXPECT_FALSE(WalkEndActive);
    });
  });
}

TEST_F(OpenAnimeTest, ClosingTheDialogInTheEndPhaseOfTheCheckEndsItToo) {
  PutWalker();
  SetEndWait(CharaSet, 0, 50);
  In(IDC_OPN_ANIMATION, [] {
    ThenPress(IDC_OPN_CHECK);
    Then([] { Ticks(1); });
    Then([] { Ticks(1); });
    ThenExpect([] {
      EXPECT_TRUE(WalkEndActive);
      Press(FindDialog(IDD_SetOpnFileAnimeDlg), kOk);
    });
    ThenExpect([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
      EXPECT_EQ(OpeningState, 0);
      EXPECT_FALSE(WalkEndActive);
    });
  });
}

TEST_F(OpenAnimeTest, ACheckIsRefusedWhileANotificationIsRunning) {
  OpnHistory.soundOn = 1;
  SaveHistory();
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] {
      for (std::int32_t* running : {&OpeningState, &MailPhase}) {
        *running = 2;
        Press(TopDialog(), IDC_OPN_CHECK);
        *running = 0;
      }
      for (bool* running : {&WalkActive, &WalkEndActive}) {
        *running = true;
        Press(TopDialog(), IDC_OPN_CHECK);
        *running = false;
      }
      EXPECT_EQ(SoundsPlayed(), Rows{});
      Press(TopDialog(), IDC_OPN_CHECK);
      EXPECT_EQ(SoundsPlayed().size(), 1U);
    });
    ThenPress(kCancel);
  });
}

TEST_F(OpenAnimeTest, TheNameOfTheCharacterIsShown) {
  MainCharaCount = 1;
  MainCharas[0].charaNo = 2;
  WorldCharaCount = 2;
  TextCopy(WorldCharas[1].name, sizeof WorldCharas[1].name, "ミル");
  In(IDC_OPN_ANIMATION, [] {
    ThenExpect([] { EXPECT_EQ(ControlText(TopDialog(), IDC_OPN_CHARA), "ミル"); });
    ThenPress(kCancel);
  });
  WorldCharaCount = 0;
  WorldCharas[1] = {};
}

TEST_F(OpenAnimeTest, WithTheMailSettingsActiveTheDialogServesTheMailNotice) {
  const std::string before = FileBytes(HistoryPath());
  MailSetting.soundOn = 1;
  TextCopy(MailSetting.soundName, sizeof MailSetting.soundName, "foot1.wav");
  FuncNo = 11;
  ThenExpect([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SetMailAnimeDlg);
    EXPECT_EQ(WindowText(dialog), "メール受信時アニメーション設定");
    EXPECT_EQ(DlgIdSub, 2014);
    EXPECT_FALSE(ControlIsChecked(dialog, IDC_OPN_ANIME));
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_OPN_SOUND));
    EXPECT_EQ(ChosenOf(IDC_OPN_SOUND_FILE), 0);
    Press(dialog, IDC_OPN_ANIME);
    ChooseRow(dialog, IDC_OPN_SOUND_FILE, 2);
    Press(dialog, IDC_OPN_CHECK);
    EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\鐘.wav"});
    EXPECT_STREQ(MailSetting.soundName, "foot1.wav");
    EXPECT_EQ(MailSetting.animeOn, 0);
    Press(dialog, kOk);
  });
  EXPECT_TRUE(SetOpnFileAnimeDlgRun(hMainWnd));
  EXPECT_EQ(MailSetting.animeOn, 1);
  EXPECT_EQ(MailSetting.soundOn, 1);
  EXPECT_STREQ(MailSetting.soundName, "鐘.wav");
  EXPECT_TRUE(FileBytes(HistoryPath()) == before);
  ThenPress(kCancel);
  EXPECT_FALSE(SetOpnFileAnimeDlgRun(hMainWnd));
  FuncNo = 0;
}

}  // namespace
