// FolderScopeSetDlg and the progress of the searches.
#include <algorithm>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_commands.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "platform/posix/faults.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/folder_list.h"
#include "shell/panel.h"
#include "tests/filetools/scope/scope_dialog_fixture.h"

namespace {

// --- FolderScopeSetDlg.

TEST_F(FolderScopeDialogTest, TheCommandOpensTheScopeInItsFamilyAndTakesItsMarksBack) {
  Panel.MenuPanelState = 400;
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FolderScopeSetDlg);
    EXPECT_EQ(Panel.FuncNo, 6);
    EXPECT_EQ(Dialogs.hToolDlg, TopDialog());
    EXPECT_EQ(WindowText(TopDialog()), "フォルダースコープ");
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
  EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
}

TEST_F(FolderScopeDialogTest, EscapeClosesTheScope) {
  Then([] { SendCommand(TopDialog(), 2); });
  FolderScopeCommand();
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
}

TEST_F(FolderScopeDialogTest, ListsTheFilesOfTheFolderAndFollowsTheFolderList) {
  MakeTree();
  FolderSetCurrent("C:\\data");
  Then([] {
    EXPECT_STREQ(Scope.scopeFolder, "C:\\data");
    EXPECT_STREQ(Scope.firstLevelName, "data");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), Names{"other.bin"});
    const Names folders = ListRows(TopDialog(), kFolderListId);
    const auto at = std::find(folders.begin(), folders.end(), "[photos]");
    ASSERT_NE(at, folders.end());
    DoubleClickRow(TopDialog(), kFolderListId, static_cast<int>(at - folders.begin()));
    EXPECT_STREQ(Scope.scopeFolder, "C:\\data\\photos");
    EXPECT_STREQ(Scope.folderName, "photos");
    Names files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    EXPECT_EQ(files, SearchOrder("C:\\data\\photos"));
    EXPECT_TRUE(HasText("Path: C:\\data\\photos"));
    Press(TopDialog(), kFolderUpId);
    Press(TopDialog(), kFolderUpId);
    EXPECT_STREQ(Scope.scopeFolder, "C:\\");
    EXPECT_STREQ(Scope.folderName, "");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), Names{"note.txt"});
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, TheFilterHasItsSixteenRowsAndAdmitsByTheFirstDot) {
  MakeFolder("C:\\files");
  for (const char* name :
       {"a.txt", "b.TXT", "c.old.txt", "d.txt.old", "e.c", "f.cpp", "g.Rc", "h", ".i.txt", "j.inc", "k.h"}) {
    PutFile(std::string("C:\\files\\") + name, "");
  }
  FolderSetCurrent("C:\\files");
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILTER),
              (Names{"*.*", "*.C", "*.CPP", "*.H", "*.INC", "*.RC", "*.C *.CPP *.H *.INC *RC", "*.DOC",
                     "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3", "*.INI", "*.BAT"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCOPE_FILTER), 0);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCOPE_FILES), SearchOrder("C:\\files"));
    ChooseRow(TopDialog(), IDC_SCOPE_FILTER, 8);
    Names files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    std::sort(files.begin(), files.end());
    // "c.old.txt" is out: its extension reads from the first dot.
    EXPECT_EQ(files, (Names{"a.txt", "b.TXT"}));
    ChooseRow(TopDialog(), IDC_SCOPE_FILTER, 6);
    files = ListRows(TopDialog(), IDC_SCOPE_FILES);
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files, (Names{"e.c", "f.cpp", "g.Rc", "j.inc", "k.h"}));
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, BothStatisticsOpenOverTheScopeAndGoBackToIt) {
  MakeTree();
  FolderSetCurrent("C:\\data\\photos");
  Then([] { Press(TopDialog(), IDC_SCOPE_PIES); });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchDrvDlg);
    EXPECT_EQ(WindowText(TopDialog()), "指定ドライブ検索中");
    EXPECT_EQ(Stepped.progressMode, 1);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchFolderDlg);
    EXPECT_EQ(WindowText(TopDialog()), "指定フォルダ検索中");
    EXPECT_EQ(Stepped.progressMode, 2);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FolderStaticsDlg);
    EXPECT_EQ(WindowText(TopDialog()), "フォルダー統計 円グラフ");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FolderStaticsDlg);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::FolderScopeSetDlg);
    EXPECT_EQ(Dialogs.hMenuDlg, TopDialog());
    EXPECT_EQ(Stepped.progressMode, 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_STATICS_FOLDER), "C:\\data\\photos");
    Press(TopDialog(), 2);
  });
  Then([] {
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(TopDialog(), Dialogs.hToolDlg);
    Press(TopDialog(), IDC_SCOPE_BARS);
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SerchFolderDlg);
    TicksOfSearch();
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_FolderStaticsDlg2);
    EXPECT_EQ(WindowText(TopDialog()), "フォルダー統計 棒グラフ");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::FolderStaticsDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_STATICS_FOLDER), "C:\\data\\photos");
    SendClose(TopDialog());
  });
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
}

// --- The searches.

TEST_F(FolderScopeDialogTest, StopInTheDriveSearchEndsTheStatistics) {
  MakeTree();
  Choose("C:\\data");
  Then([] {
    MainTick();
    EXPECT_EQ(DiagnosticsLive().searches, 1);
    Press(TopDialog(), 2);
  });
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(Stepped.hSearchDlg, nullptr);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_EQ(Stepped.progressMode, 0);
  EXPECT_EQ(DiagnosticsLive().searches, 0);
  EXPECT_EQ(CurrentOne(), "C:\\mirrell");
}

TEST_F(FolderScopeDialogTest, StopInTheFolderSearchEndsTheStatistics) {
  MakeTree();
  Choose("C:\\data");
  Then(TicksOfSearch);
  Then([] {
    MainTick();
    SendClose(TopDialog());
  });
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  Then([] { Press(TopDialog(), 2); });
  FolderStaticsDlg2Run(nullptr);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_EQ(Stepped.progressMode, 0);
  EXPECT_EQ(DiagnosticsLive().searches, 0);
}

TEST_F(FolderScopeDialogTest, AFolderWith3105EntriesClosesTheStatisticsAtOnceAndSilently) {
  MakeMany("C:\\many", 3105);
  Choose("C:\\many");
  Then(TicksOfSearch);
  Then(TicksOfSearch);
  FolderStaticsDlgRun(nullptr);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_EQ(Scope.scopeFolderCount, -2);
  Then(TicksOfSearch);
  FolderStaticsDlg2Run(nullptr);
  EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(FolderScopeDialogTest, AStepBehindTheEndOfASearchIsPassedOver) {
  Choose("C:\\");
  Then([] {
    const WindowHandle dialog = Stepped.hSearchDlg;
    TicksOfSearch();
    CommandSendTo(dialog, Command::WorkStep);
    SendCommand(dialog, 2);
  });
  EXPECT_EQ(ScopeSearchRun(nullptr, kStepDriveSearch), 1);
  EXPECT_EQ(Stepped.progressMode, 0);
}

TEST_F(FolderScopeDialogTest, ASecondSearchWhileOneIsRunningIsRefused) {
  Choose("C:\\");
  Then([] {
    MainTick();
    EXPECT_EQ(ScopeSearchRun(nullptr, kStepFolderSearch), -1);
    EXPECT_EQ(Stepped.progressMode, 1);
    TicksOfSearch();
  });
  EXPECT_EQ(ScopeSearchRun(nullptr, kStepDriveSearch), 1);  // "mirrell"
}

TEST_F(FolderScopeDialogTest, ASecondScopeWhileOneIsOpenIsRefused) {
  Then([] {
    FolderScopeCommand();
    Press(TopDialog(), 3);
  });
  FolderScopeCommand();
  Then([] { Press(TopDialog(), 3); });
  FolderScopeCommand();
}

TEST_F(FolderScopeDialogTest, EachWindowThatCannotBeMadeLeavesNothingBehind) {
  MakeTree();
  for (int nth = 1; nth < 5; ++nth) {
    Choose("C:\\data");
    FaultArm(FaultKind::Window, nth);
    if (nth > 2) Then(TicksOfSearch);
    if (nth > 3) Then(TicksOfSearch);
    if (nth > 3) Then([] { Press(TopDialog(), 2); });
    FolderStaticsDlgRun(nullptr);
    EXPECT_EQ(FaultWasMet(), nth < 4);
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(Stepped.progressMode, 0);
  }
  // The bars: the dialog, the search, the scroll bar.
  for (int nth = 1; nth < 5; ++nth) {
    FaultArm(FaultKind::Window, nth);
    if (nth > 2) Then(TicksOfSearch);
    if (nth > 2) Then([] { Press(TopDialog(), 2); });
    FolderStaticsDlg2Run(nullptr);
    EXPECT_EQ(FaultWasMet(), nth < 4);
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
  }
}

}  // namespace
