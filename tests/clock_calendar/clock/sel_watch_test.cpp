// SelWatchDlg: which clock stands on the desktop.
#include "tests/clock_calendar/clock/sel_watch_fixture.h"

namespace {

TEST_F(SelWatchTest, ItListsTheDesignsAndReadsAsTold) {
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SelWatchDlg);
    EXPECT_EQ(WindowText(dialog), "時計 選択/設定");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SelWatchDlg);
    EXPECT_EQ(Panel.FuncNo, 16);
    EXPECT_EQ(ControlText(dialog, IDC_WATCH_SHOW), "時計をデスクトップへ表示する(&D)");
    EXPECT_EQ(ControlText(dialog, IDC_WATCH_ADUST), "時計詳細設定(&S)");
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_WATCH_SHOW));
    EXPECT_EQ(ListRows(dialog, IDC_WATCH_DESIGNS), (Rows{"鳩時計", "電車"}));
    EXPECT_EQ(ListSelected(dialog, IDC_WATCH_DESIGNS), 0);
  });
  ThenEscape();
  Run();
}

TEST_F(SelWatchTest, OkPutsTheChosenDesignOnTheDesktopAndSavesTheSettings) {
  OpenClock();
  Then([] { ChooseRow(TopDialog(), IDC_WATCH_DESIGNS, 1); });
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, 1);
  ASSERT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(RectWidth(WindowRect(Clock.hClockWnd)), 60);
  const std::string file = SettingsFile();
  ASSERT_EQ(file.size(), 172720U);
  EXPECT_EQ(file[1092], 1);
  EXPECT_EQ(file[1093], 1);
}

TEST_F(SelWatchTest, ADoubleClickTakesADesignToo) {
  Then([] { DoubleClickRow(TopDialog(), IDC_WATCH_DESIGNS, 1); });
  Run();
  EXPECT_EQ(Clock.ClockDesign, 1);
}

TEST_F(SelWatchTest, SwitchingTheClockOffClosesItAndOnAgainOpensIt) {
  OpenClock();
  ThenPress(IDC_WATCH_SHOW);
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.hClockWnd, nullptr);
  EXPECT_EQ(Clock.ClockShow, 0);
  EXPECT_EQ(SettingsFile()[1092], 0);
  ThenPress(IDC_WATCH_SHOW);
  Then([] { PressEnter(TopDialog()); });
  Run();
  EXPECT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(SettingsFile()[1092], 1);
}

TEST_F(SelWatchTest, AChoiceThatCannotBeSavedIsTold) {
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルセーブできません", "時計 選択/設定");
  ThenPress(1);
  Run();
}

TEST_F(SelWatchTest, CancelEscapeAndTheSignInTheCaptionChangeNothing) {
  for (int way = 0; way < 3; ++way) {
    ThenPress(IDC_WATCH_SHOW);
    Then([way] {
      ChooseRow(TopDialog(), IDC_WATCH_DESIGNS, 1);
      if (way == 0) Press(TopDialog(), 2);
      if (way == 1) PressEscape(TopDialog());
      if (way == 2) PressClose(TopDialog());
    });
    Run();
    EXPECT_EQ(Clock.ClockDesign, 0);
    EXPECT_EQ(Clock.ClockWanted, 0);
    EXPECT_EQ(Clock.ClockShow, 1);
    EXPECT_EQ(Clock.ClockShowWanted, 1);
    EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
  }
}

TEST_F(SelWatchTest, WhileNoDesignIsChosenTheFirstIsProposed) {
  Take(kClockNone);
  Clock.ClockShow = 0;
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_WATCH_DESIGNS), 0); });
  ThenPress(IDC_WATCH_SHOW);
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, 0);
  EXPECT_NE(Clock.hClockWnd, nullptr);
}

TEST_F(SelWatchTest, WithoutDesignsNothingIsChosen) {
  CharaTables.ClockDesignCount = 0;
  Take(kClockNone);
  Then([] {
    EXPECT_TRUE(ListRows(TopDialog(), IDC_WATCH_DESIGNS).empty());
    Press(TopDialog(), IDC_WATCH_ADUST);
  });
  Then([] {
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), IDC_ADUST_CHECK));
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), IDC_ADUST_DEFAULT));
    PressEscape(TopDialog());
  });
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, kClockNone);
  EXPECT_EQ(Clock.hClockWnd, nullptr);
}

TEST_F(SelWatchTest, ACountBeyondTheTableListsOnlyTheTable) {
  CharaTables.ClockDesignCount = 1000;
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_WATCH_DESIGNS).size(), 50U); });
  ThenEscape();
  Run();
}

}  // namespace
