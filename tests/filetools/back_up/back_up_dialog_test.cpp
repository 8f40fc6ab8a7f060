#include "filetools/back_up/back_up.h"
#include "platform/file.h"
#include "platform/time.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/filetools/back_up/back_up_fixture.h"

namespace {

constexpr int kSources = IDC_BACKUP_SOURCES;
constexpr int kCopies = IDC_BACKUP_COPIES;

class BackUpDialogTest : public BackUpFixture {
 protected:
  // Opens FileBackUpSetDlg, runs the steps that wait and closes it.
  static void RunDialog() {
    ThenPress(2);
    CommandSend(Command::BackUpFiles);
  }
  static Rows Sources() { return ListRows(Dialogs.hMenuDlg, kSources); }
  static Rows Copies() { return ListRows(Dialogs.hMenuDlg, kCopies); }
};

TEST_F(BackUpDialogTest, TheDialogOpensFromItsCommandAndClosesThePanelState) {
  Panel.MenuPanelState = 3;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileBackUpSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "ファイル バックアップ");
    EXPECT_EQ(Dialogs.hMenuDlg, TopDialog());
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FileBackUpSetDlg);
    EXPECT_EQ(Panel.FuncNo, 2);
  });
  RunDialog();
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
}

TEST_F(BackUpDialogTest, ItsLabelsReadAsTold) {
  Then([] {
    const std::pair<int, const char*> labels[] = {
        {IDC_BACKUP_ADD, "バックアップソースファイル選択"},
        {IDC_BACKUP_FOLDER, "バックアップ先ディレクトリ選択"},
        {IDC_BACKUP_REMOVE, "ソース選択解除"},
        {IDC_BACKUP_CLEAR, "全ソースの選択解除"},
        {IDC_BACKUP_RUN, "バックアップを実行"},
        {IDC_BACKUP_DATES, "日付で比較"},
        {IDC_BACKUP_CONTENTS, "内容で比較"},
        {IDC_BACKUP_SAVE, "設定ファイルセーブ"},
    };
    for (const auto& [id, text] : labels) EXPECT_EQ(ControlText(TopDialog(), id), text);
  });
  RunDialog();
}

TEST_F(BackUpDialogTest, AnAddedSourceShowsInBothLists) {
  Set(BackUp.destDir, sizeof BackUp.destDir, "D:\\控え");
  Then([] { EXPECT_EQ(Copies(), (Rows{"ディレクトリ名 --> D:\\控え"})); });
  ThenPress(IDC_BACKUP_ADD);
  ThenPick("表.txt");
  Then([] {
    EXPECT_EQ(Sources(), (Rows{"表.txt [C:\\mirrell\\]"}));
    EXPECT_EQ(Copies(), (Rows{"表.txt [D:\\控え\\]"}));
  });
  RunDialog();
}

TEST_F(BackUpDialogTest, ACancelledPickerAddsNothing) {
  ThenPress(IDC_BACKUP_ADD);
  ThenCancelPicker();
  Then([] { EXPECT_EQ(Sources(), Rows()); });
  RunDialog();
  EXPECT_EQ(BackUp.fileCount, 0);
}

TEST_F(BackUpDialogTest, AListOfAHundredRowsRefusesThePicker) {
  for (int i = 100; i < 200; ++i) BackUpAddSource(("C:\\" + std::to_string(i)).c_str());
  Then([] { EXPECT_EQ(Sources().size(), 100U); });
  ExpectBox("バックアップファイルの登録最大数は１００個です", "ファイル登録リミット");
  ThenPress(IDC_BACKUP_ADD);
  Then([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunDialog();
  EXPECT_EQ(BoxesShown()[0].icon, BoxIcon::Exclamation);
}

TEST_F(BackUpDialogTest, APathBehindAListedOneIsRefusedWithoutAWord) {
  BackUpAddSource("C:\\mirrell\\a.txt");
  ThenPress(IDC_BACKUP_ADD);
  ThenPick("a.txt.bak");
  Then([] { EXPECT_EQ(Sources().size(), 1U); });
  RunDialog();
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(BackUpDialogTest, AChosenFolderIsStoredAndTheCopiesFollow) {
  BackUpAddSource("C:\\work\\a.txt");
  Then([] { EXPECT_EQ(Copies(), Rows()) << "no folder, no copy"; });
  ThenPress(IDC_BACKUP_FOLDER);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileBackUpDirDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileBackUpDirDlg);
  });
  ThenPickFolder("[copies]");
  Then([] { EXPECT_EQ(Copies(), (Rows{"a.txt [C:\\mirrell\\copies\\]"})); });
  RunDialog();
  EXPECT_STREQ(BackUp.destDir, "C:\\mirrell\\copies");
  EXPECT_TRUE(BackUp.dirty);
}

TEST_F(BackUpDialogTest, WithoutSourcesAChosenFolderIsShownAlone) {
  ThenPress(IDC_BACKUP_FOLDER);
  ThenPickFolder("[copies]");
  Then([] { EXPECT_EQ(Copies(), (Rows{"ディレクトリ名 --> C:\\mirrell\\copies"})); });
  ThenPress(IDC_BACKUP_FOLDER);
  ThenPress(kFolderCancelId);
  RunDialog();
  EXPECT_STREQ(BackUp.destDir, "C:\\mirrell\\copies");
}

TEST_F(BackUpDialogTest, ARowIsRemovedAfterAQuestion) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a.txt", "b.txt"}) BackUpAddSource(InProgram(name).c_str());
  ThenPress(IDC_BACKUP_REMOVE);  // nothing is selected, nothing is asked
  Then([] { ChooseRow(TopDialog(), kSources, 0); });
  ExpectBox("ソースからa.txtの選択を除きます。", "バックアップソース選択を解除", BoxAnswer::Cancel);
  ThenPress(IDC_BACKUP_REMOVE);
  Then([] { EXPECT_EQ(Sources().size(), 2U); });
  ExpectBox("ソースからa.txtの選択を除きます。", "バックアップソース選択を解除");
  ThenPress(IDC_BACKUP_REMOVE);
  Then([] {
    EXPECT_EQ(Sources(), (Rows{"b.txt [C:\\mirrell\\]"}));
    EXPECT_EQ(Copies(), (Rows{"b.txt [C:\\mirrell\\copies\\]"}));
  });
  RunDialog();
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
}

TEST_F(BackUpDialogTest, AllRowsAreClearedAfterAQuestion) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a.txt", "b.txt"}) BackUpAddSource(InProgram(name).c_str());
  ExpectBox("全バックアップソース選択を解除します", "全バックアップソース選択の解除", BoxAnswer::Cancel);
  ThenPress(IDC_BACKUP_CLEAR);
  Then([] { EXPECT_EQ(Sources().size(), 2U); });
  ExpectBox("全バックアップソース選択を解除します", "全バックアップソース選択の解除");
  ThenPress(IDC_BACKUP_CLEAR);
  Then([] {
    EXPECT_EQ(Sources(), Rows());
    EXPECT_EQ(Copies(), (Rows{"ディレクトリ名 --> C:\\mirrell\\copies"}));
  });
  RunDialog();
}

// --- The run

TEST_F(BackUpDialogTest, ARunWithoutFilesIsTold) {
  ExpectBox("バックアップファイルが設定されていません", "ファイル未設定");
  ThenPress(IDC_BACKUP_RUN);
  RunDialog();
}

TEST_F(BackUpDialogTest, ARunCopiesOneFileATickAndTellsTheEnd) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  ThenPress(IDC_BACKUP_RUN);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_BackUpDlg);
    EXPECT_EQ(WindowText(TopDialog()), "バックアップ実行中");
    EXPECT_EQ(ControlText(TopDialog(), 2), "中止");
    EXPECT_EQ(BackUpRun.hBackUpDlg, TopDialog());
    EXPECT_TRUE(BackUpRun.BackUpActive);
    MainTick();
    EXPECT_TRUE(FileThere("C:\\mirrell\\copies\\a"));
    EXPECT_FALSE(FileThere("C:\\mirrell\\copies\\b"));
  });
  ThenTicks(1);
  ExpectBox("バックアップ先にファイルをコピーしました", "ファイルバックアップ完了");
  ThenTicks(1);
  Then([] {
    EXPECT_EQ(BackUpRun.hBackUpDlg, nullptr);
    EXPECT_FALSE(BackUpRun.BackUpActive);
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDialog();
  EXPECT_EQ(FileBytes("C:\\mirrell\\copies\\b"), "b");
}

TEST_F(BackUpDialogTest, ARunWithAMissingSourceStopsThereWithTheCopyError) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "a");
  BackUpAddSource("C:\\mirrell\\gone");
  AddSource("c", "c");
  ThenPress(IDC_BACKUP_RUN);
  ThenTicks(1);
  ExpectBox("ファイルをコピーできません", "ファイルバックアップエラー", BoxAnswer::Ok, [] {
    EXPECT_FALSE(BackUpRun.BackUpActive);
    MainTick();  // the run is over, the tick leaves it alone
  });
  ThenTicks(1);
  Then([] { EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg); });
  RunDialog();
  EXPECT_TRUE(FileThere("C:\\mirrell\\copies\\a"));
  EXPECT_FALSE(FileThere("C:\\mirrell\\copies\\c"));
}

TEST_F(BackUpDialogTest, AStoppedRunKeepsWhatWasCopiedWithoutAWord) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  ThenPress(IDC_BACKUP_RUN);
  ThenTicks(1);
  ThenPress(2);
  Then([] {
    EXPECT_EQ(BackUpRun.hBackUpDlg, nullptr);
    MainTick();
    EXPECT_EQ(TopDialog(), Dialogs.hMenuDlg);
  });
  RunDialog();
  EXPECT_TRUE(FileThere("C:\\mirrell\\copies\\a"));
  EXPECT_FALSE(FileThere("C:\\mirrell\\copies\\b"));
}

TEST_F(BackUpDialogTest, TheNextRunBeginsWithTheFirstFile) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a", "b"}) AddSource(name, name);
  ThenPress(IDC_BACKUP_RUN);
  ThenTicks(1);
  ThenPress(2);
  ThenPress(IDC_BACKUP_RUN);
  Then([] { EXPECT_EQ(BackUp.fileCursor, 0); });
  Then([] { SendClose(TopDialog()); });
  RunDialog();
}

TEST_F(BackUpDialogTest, AProgressDialogThatCannotBeMadeCopiesNothing) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "a");
  Then([] {
    FaultArm(FaultKind::Window, 1);
    Press(TopDialog(), IDC_BACKUP_RUN);
    FaultClear();
  });
  RunDialog();
  EXPECT_FALSE(FileThere("C:\\mirrell\\copies\\a"));
}

// --- Comparisons

TEST_F(BackUpDialogTest, ComparisonsWithoutFilesAreTold) {
  ExpectBox("バックアップファイルが指定されていません!", "日付で比較");
  ThenPress(IDC_BACKUP_DATES);
  ExpectBox("バックアップファイルが指定されていません!", "内容で比較");
  ThenPress(IDC_BACKUP_CONTENTS);
  RunDialog();
}

TEST_F(BackUpDialogTest, EqualFilesAreTold) {
  CopyTo("C:\\mirrell\\copies");
  AddSource("a", "a");
  RunSteps();
  ExpectBox("ファイルの日付に違いはありません", "日付で比較");
  ThenPress(IDC_BACKUP_DATES);
  ExpectBox("ファイル内容に違いはありません", "内容で比較");
  ThenPress(IDC_BACKUP_CONTENTS);
  RunDialog();
}

TEST_F(BackUpDialogTest, AMissingSourceIsToldByBoth) {
  CopyTo("C:\\mirrell\\copies");
  BackUpAddSource("C:\\mirrell\\gone");
  ExpectBox("バックアップ ソース ファイルがありません", "日付で比較エラー");
  ThenPress(IDC_BACKUP_DATES);
  ExpectBox("バックアップ ソース ファイルがありません", "内容で比較エラー");
  ThenPress(IDC_BACKUP_CONTENTS);
  RunDialog();
}

std::string TimeTold(long long seconds) {
  LocalTime time{};
  TimeFromFileTime(116444736000000000ULL + static_cast<std::uint64_t>(seconds) * 10000000ULL, &time);
  char text[64];
  TextFormat(text, sizeof text, "%d/%d/%d %d:%d:%d", time.year, time.month, time.day, time.hour, time.minute,
             time.second);
  return text;
}

TEST_F(BackUpDialogTest, AMissingCopyIsListedByDateAndRefusedByContent) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) AddSource(name, name);
  RunSteps();
  RemoveFile("C:\\mirrell\\copies\\a.txt");
  SetFileTime("C:\\mirrell\\copies\\c.txt", 1600000000);
  ThenPress(IDC_BACKUP_DATES);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileBackUpDateDlg);
    EXPECT_EQ(WindowText(TopDialog()), "バックアップファイル日付比較");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileBackUpDateDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_BACKUP_ROWS),
              (Rows{"a.txt (" + TimeTold(1700000000) + " -  ****** )",
                    "c.txt (" + TimeTold(1700000000) + " - " + TimeTold(1600000000) + ")"}));
    Press(TopDialog(), 1);
  });
  ExpectBox("バックアップ先ファイルがありません", "内容で比較エラー");
  ThenPress(IDC_BACKUP_CONTENTS);
  RunDialog();
}

TEST_F(BackUpDialogTest, DifferentContentsAreListedThoughTheTimesAreEqual) {
  CopyTo("C:\\mirrell\\copies");
  for (const char* name : {"a.txt", "b.txt"}) AddSource(name, name);
  RunSteps();
  PutFile(InProgram("b.txt"), "other");
  SetFileTime(InProgram("b.txt"), 1700000000);
  ExpectBox("ファイルの日付に違いはありません", "日付で比較");
  ThenPress(IDC_BACKUP_DATES);
  ThenPress(IDC_BACKUP_CONTENTS);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FileBackUpContentDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FileBackUpContentDlg);
    const std::string time = TimeTold(1700000000);
    EXPECT_EQ(ListRows(TopDialog(), IDC_BACKUP_ROWS), (Rows{"b.txt (" + time + " - " + time + ")"}));
    SendClose(TopDialog());
  });
  RunDialog();
}

// --- The settings file

TEST_F(BackUpDialogTest, SettingsAreSavedAndLoaded) {
  CopyTo("D:\\控え");
  BackUpAddSource("C:\\work\\a.txt");
  Then([] { Type(TopDialog(), IDC_BACKUP_COMMENT, "毎週の控え"); });
  ThenPress(IDC_BACKUP_SAVE);
  ThenPick("week");
  Then([] {
    EXPECT_EQ(FileBytes(InProgram("week.BUP")).size(), 120605U);
    std::memset(&BackUp, 0, sizeof BackUp);
    BackUp.dirty = true;
  });
  ThenPress(IDC_BACKUP_LOAD);
  ThenPick("week.BUP");
  Then([] {
    EXPECT_EQ(Sources(), (Rows{"a.txt [C:\\work\\]"}));
    EXPECT_EQ(Copies(), (Rows{"a.txt [D:\\控え\\]"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_BACKUP_COMMENT), "毎週の控え");
    EXPECT_FALSE(BackUp.dirty);
  });
  RunDialog();
}

TEST_F(BackUpDialogTest, AnExistingSettingsFileIsReplacedOnlyAfterOk) {
  PutFile(InProgram("week.BUP"), "old");
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::Ok}) {
    ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", answer);
    ThenPress(IDC_BACKUP_SAVE);
    ThenPick("week.BUP");
    Then([answer] {
      EXPECT_EQ(FileBytes(InProgram("week.BUP")).size(), answer == BoxAnswer::Ok ? 120605U : 3U);
    });
  }
  RunDialog();
}

TEST_F(BackUpDialogTest, ACancelledPickerSavesAndLoadsNothing) {
  ThenPress(IDC_BACKUP_SAVE);
  ThenCancelPicker();
  Then([] { EXPECT_NE(FileResult.FileStatus, 0); });
  ThenPress(IDC_BACKUP_LOAD);
  ThenCancelPicker();
  Then([] { EXPECT_NE(FileResult.FileStatus, 0); });
  RunDialog();
}

TEST_F(BackUpDialogTest, ASettingsFileThatCannotBeMadeIsTold) {
  MakeFolder(InProgram("folder.BUP"));
  ExpectBox("ファイルを開けません", "セーブエラー");
  ThenPress(IDC_BACKUP_SAVE);
  ThenPick("folder.BUP");
  RunDialog();
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(BackUpDialogTest, AShortWriteIsToldByNoBox) {
  ThenPress(IDC_BACKUP_SAVE);
  Then([] {
    FaultArm(FaultKind::Write, 2);
    Type(TopDialog(), kPickNameId, "week");
    Press(TopDialog(), 1);
  });
  RunDialog();
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_TRUE(FaultWasMet());
}

TEST_F(BackUpDialogTest, ABadSettingsFileIsToldAndTheListsStand) {
  BackUpAddSource("C:\\work\\a.txt");
  ExpectBox("ファイルを開けません", "バックアップ設定読み込みエラー");
  ThenPress(IDC_BACKUP_LOAD);
  ThenPick("none.BUP");
  Then([] {
    BackUpSave("C:\\mirrell\\short.BUP");
    const std::string bytes = FileBytes(InProgram("short.BUP"));
    PutFile(InProgram("short.BUP"), bytes.substr(0, 120604));
  });
  ExpectBox("データが正しく読み込めません", "バックアップ設定読み込みエラー");
  ThenPress(IDC_BACKUP_LOAD);
  ThenPick("short.BUP");
  PutFile(InProgram("other.BUP"), "something else");
  ExpectBox("データが正しく読み込めません", "バックアップ設定読み込みエラー");
  ThenPress(IDC_BACKUP_LOAD);
  ThenPick("other.BUP");
  Then([] { EXPECT_EQ(Sources(), (Rows{"a.txt [C:\\work\\]"})); });
  RunDialog();
}

// --- Guards

TEST_F(BackUpDialogTest, WhileAPickerIsOpenNoOtherOpens) {
  ThenPress(IDC_BACKUP_ADD);
  Then([] {
    const int windows = OpenWindowCount();
    for (const Command command :
         {Command::BackUpAdd, Command::BackUpFolder, Command::BackUpLoad, Command::BackUpSave}) {
      CommandSend(command);
    }
    EXPECT_EQ(OpenWindowCount(), windows);
  });
  ThenCancelPicker();
  RunDialog();
}

TEST_F(BackUpDialogTest, EachCallForFoldersAndSearchesFailingInTurnLosesNothing) {
  MakeFolder("C:\\mirrell\\sub");
  const auto current = [] {
    char folder[64] = "";
    FolderGetCurrent(folder, sizeof folder);
    return std::string(folder);
  };
  for (const FaultKind kind :
       {FaultKind::FolderGet, FaultKind::FolderSet, FaultKind::SearchFirst, FaultKind::SearchNext}) {
    for (int nth = 1;; ++nth) {
      std::memset(&BackUp, 0, sizeof BackUp);
      FolderSetCurrent("C:\\mirrell");
      AddSource("a.txt", "one");
      CopyTo("C:\\mirrell\\copies");
      ThenPress(IDC_BACKUP_ADD);
      ThenPick("b.txt");
      ThenPress(IDC_BACKUP_FOLDER);
      ThenPickFolder("[sub]");
      FaultArm(kind, nth);
      RunDialog();
      const bool met = FaultWasMet();
      FaultClear();
      EXPECT_EQ(DiagnosticsLive().searches, 0);
      ASSERT_EQ(BackUp.fileCount, 2);
      EXPECT_STREQ(BackUp.sourcePath[0], "C:\\mirrell\\a.txt");
      EXPECT_EQ(FileBytes(InProgram("a.txt")), "one");
      // What was chosen is what stood there to be chosen.
      const std::string folder = BackUp.destDir;
      EXPECT_TRUE(folder == "C:\\mirrell\\sub" || folder == "C:\\mirrell") << folder;
      EXPECT_EQ(current(), folder);
      EXPECT_EQ(BackUp.destPath[0], folder + "\\a.txt");
      if (!met) {
        EXPECT_STREQ(BackUp.sourcePath[1], "C:\\mirrell\\b.txt");
        EXPECT_EQ(folder, "C:\\mirrell\\sub");
        EXPECT_GT(nth, 1);
        break;
      }
    }
  }
}

TEST_F(BackUpDialogTest, AFolderThatCannotBeToldIsNoChoice) {
  AddSource("a.txt", "one");
  CopyTo("C:\\mirrell\\copies");
  Then([] {
    FaultArmFrom(FaultKind::FolderGet, 1);
    Press(TopDialog(), IDC_BACKUP_FOLDER);
  });
  Then([] {
    EXPECT_TRUE(FaultWasMet());
    FaultClear();
    Press(TopDialog(), 1);
  });
  RunDialog();
  EXPECT_STREQ(BackUp.destDir, "C:\\mirrell\\copies");
  EXPECT_STREQ(BackUp.destPath[0], "C:\\mirrell\\copies\\a.txt");
}

TEST_F(BackUpDialogTest, CommandsWithoutTheDialogWorkOnTheList) {
  ThenPick("a.txt");
  CommandSend(Command::BackUpAdd);
  EXPECT_STREQ(BackUp.sourcePath[0], "C:\\mirrell\\a.txt");
  ThenPickFolder("[copies]");
  CommandSend(Command::BackUpFolder);
  EXPECT_STREQ(BackUp.destPath[0], "C:\\mirrell\\copies\\a.txt");
}

TEST_F(BackUpDialogTest, ACommentThatFillsItsFieldKeepsItsTerminator) {
  Then([] { Type(TopDialog(), IDC_BACKUP_COMMENT, std::string(400, 'c').c_str()); });
  ThenPress(IDC_BACKUP_SAVE);
  ThenPick("week");
  RunDialog();
  EXPECT_EQ(std::string(BackUp.comment), std::string(255, 'c'));
}

}  // namespace
