// FileOpnDialog, driven by a user.
#include "character/walk.h"
#include "resources/character_ids.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/filetools/open/open_fixture.h"

namespace {

const char* const kAssociated = "関連づけプログラム";

TEST_F(OpenDialogTest, AFirstStartWithNoFilesShowsEmptyListsAndTheAssociations) {
  ClassValueSet("txtfile\\shell\\open\\command", "%SystemRoot%\\NOTEPAD.EXE %1");
  ClassValueSet("cfile\\shell\\&Open with MSDev\\command", "C:\\vc\\msdev.exe \"%1\"");
  ClassValueSet("PDXFileType\\shell\\Open\\command", "C:\\pdf\\read.exe %1");
  ClassValueSet("DocShortcut\\shell\\open\\command", "C:\\doc\\word.exe");
  ThenExpect([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileOpnDialog);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル オープン");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FileOpnDialog);
    EXPECT_EQ(Panel.FuncNo, 1);
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
  Panel.MenuPanelState = 2;
  ThenPress(kCancel);
  OpenDialog();
  EXPECT_EQ(Panel.MenuPanelState, 0);
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
  EXPECT_EQ(Walk.OpeningState, 0);
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
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_EQ(SoundsPlayed(), Rows{"C:\\mirrell\\サウンド\\foot1.wav"});
}

TEST_F(OpenDialogTest, WithTheAnimationOnTheFileOpensWhenTheWalkIsOver) {
  PutWalker();
  AddHistory("a.txt", "C:\\data\\", "edit.exe", "C:\\data\\");
  OpnHistory.soundOn = 0;
  SaveHistory();
  ThenPress(kOk);
  OpenDialog();
  EXPECT_EQ(Walk.OpeningState, 1);
  EXPECT_EQ(Started(), Rows{});
  EXPECT_EQ(SoundsPlayed(), Rows{});
  WalkThrough();
  EXPECT_EQ(Walk.OpeningState, 0);
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
  EXPECT_EQ(OpnHistory.workCount, 1);
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
    EXPECT_NE(FileResult.FileStatus, 0);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, FullListsAreDrawnOnceAndNotForEachRow) {
  AddHistories(200);
  SaveHistory();
  ThenExpect([] {
    const WindowHandle dialog = FindDialog(IDD_FileOpnDialog);
    EXPECT_EQ(ListRows(dialog, IDC_OPN_FILE).size(), 200U);
    EXPECT_EQ(ListDrawings(dialog, IDC_OPN_FILE), 1);
    EXPECT_EQ(ListDrawings(dialog, IDC_OPN_PROGRAM), 1);
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
    CommandSend(Command::OpenLaunch);
    EXPECT_EQ(RowsOf(IDC_OPN_FILE)[0], "new.txt [C:\\mirrell\\]");
    EXPECT_EQ(ChosenOf(IDC_OPN_FILE), 0);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, CommandsThatBelongToTheDialogDoNothingWithoutIt) {
  CommandSend(Command::OpenAddFile);
  CommandSend(Command::OpenAddProgram);
  EXPECT_EQ(OpnHistory.workCount, 0);
}

TEST_F(OpenDialogTest, TheDialogIsNotOpenedTwice) {
  ThenExpect([] {
    CommandSend(Command::FileOpen);
    EXPECT_EQ(OpenWindowCount(), 2);
    EXPECT_EQ(Panel.FuncNo, 1);
  });
  ThenPress(kCancel);
  OpenDialog();
}

TEST_F(OpenDialogTest, ASecondPickerDoesNotOpenOverTheFirst) {
  ThenPress(IDC_OPN_ADD_FILE);
  ThenExpect([] {
    const WindowHandle picker = TopDialog();
    CommandSend(Command::OpenAddFile);
    CommandSend(Command::OpenAddProgram);
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
  ThenPress(IDC_WALK_CHECK);
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

}  // namespace
