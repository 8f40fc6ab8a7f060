// The tick: its steps, their order and their counters.
#include "shell/tick.h"

#include "character/motion.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "filetools/back_up/back_up.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/window.h"
#include "schedule/table/row_selection.h"
#include "schedule/table/table_scroll.h"
#include "services/commands.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "shell/file_watch.h"
#include "shell/panel.h"
#include "tests/support/program.h"

namespace {

using Words = std::vector<std::string>;

class TickTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
  }
};

TEST_F(TickTest, ActiveBackUpIsTold2375AndOnlyThen) {
  BackUpRun.hBackUpDlg = OpenListener();
  MainTick();
  EXPECT_EQ(TakeHeard(), Words{});
  BackUpRun.BackUpActive = true;
  Ticks(2);
  EXPECT_EQ(TakeHeard(), (Words{"command 2375", "command 2375"}));
  WindowDestroy(BackUpRun.hBackUpDlg);
}

TEST_F(TickTest, SteppedWorkIsTold2376InStates1To4) {
  Stepped.hSearchDlg = OpenListener();
  for (Stepped.progressMode = 0; Stepped.progressMode <= 5; ++Stepped.progressMode) MainTick();
  EXPECT_EQ(TakeHeard(), Words(4, "command 2376"));
  WindowDestroy(Stepped.hSearchDlg);
}

TEST_F(TickTest, ReopenGuardCountsDownToZero) {
  Panel.MenuReopenGuard = 2;
  MainTick();
  EXPECT_EQ(Panel.MenuReopenGuard, 1);
  Ticks(2);
  EXPECT_EQ(Panel.MenuReopenGuard, 0);
}

TEST_F(TickTest, PanelThatWasNeverEnteredClosesAfter40Ticks) {
  Panel.hDiskMenu = OpenListener();
  Panel.MenuPanelState = 1;
  Panel.MenuCloseCount = 40;
  Ticks(39);
  EXPECT_EQ(Panel.MenuPanelState, 1);
  EXPECT_EQ(TakeHeard(), Words{});
  MainTick();
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(TakeHeard(), Words{"pressed 2"});
  WindowDestroy(Panel.hDiskMenu);
}

TEST_F(TickTest, MenuCloseCountAtTheMarkNeverTimesOutOnlyThePointerLeavingCloses) {
  Panel.hDiskMenu = OpenListener();
  Panel.MenuPanelState = 1;
  Panel.MenuCloseCount = kMenuInside;
  Panel.MenuPanelRect = {100, 100, 300, 300};
  SetPointer(299, 299);
  Ticks(500);
  EXPECT_EQ(Panel.MenuPanelState, 1);
  SetPointer(300, 299);
  MainTick();
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(TakeHeard(), Words{"pressed 2"});
  WindowDestroy(Panel.hDiskMenu);
}

TEST_F(TickTest, SubLevelsDoNotCloseByThemselves) {
  Panel.hDiskMenu = OpenListener();
  Panel.MenuPanelState = 4;
  Panel.MenuCloseCount = 1;
  Ticks(100);
  EXPECT_EQ(Panel.MenuPanelState, 4);
  EXPECT_EQ(Panel.MenuCloseCount, 1);
  EXPECT_EQ(TakeHeard(), Words{});
  WindowDestroy(Panel.hDiskMenu);
}

TEST_F(TickTest, SixThousandTicksMakeOneUnitOfTheMailInterval) {
  MailSetting.enabled = 1;
  MailSetting.intervalIndex = 1;  // two units
  Mail.mailStopped = true;        // no server is asked
  Mail.MailMinuteCount = 2;
  Ticks(5999);
  EXPECT_EQ(Mail.MailMinuteCount, 2);
  EXPECT_EQ(Mail.MailTickCount, 5999);
  MainTick();
  EXPECT_EQ(Mail.MailMinuteCount, 1);
  EXPECT_EQ(Mail.MailTickCount, 0);
  Ticks(5999);
  EXPECT_EQ(Mail.MailMinuteCount, 1);
  MainTick();
  // At 0 the count is loaded again from the setting in the same tick.
  EXPECT_EQ(Mail.MailMinuteCount, 2);
}

TEST_F(TickTest, AMailCountOf0IsLoadedAgainInTheSameTick) {
  MailSetting.enabled = 1;
  Mail.mailStopped = true;
  Mail.MailMinuteCount = 0;
  Mail.MailTickCount = 3000;
  ListenToEverything();
  Ticks(5999);
  EXPECT_EQ(Mail.MailMinuteCount, 1);
  EXPECT_EQ(Mail.MailTickCount, 5998) << "a whole interval begins";
  EXPECT_EQ(TakeHeard(), Words{"main 2079"});
}

TEST_F(TickTest, MailCountersStandStillWhileCheckingIsOff) {
  Mail.MailMinuteCount = 1;
  Ticks(100);
  EXPECT_EQ(Mail.MailTickCount, 0);
  EXPECT_EQ(Mail.MailMinuteCount, 1);
}

TEST_F(TickTest, FrameDividerIsOffAtZeroAndReloadsWithFive) {
  Ticks(10);
  EXPECT_EQ(FiveTicks.FrameDivider, 0);
  FiveTicks.FrameDivider = 1;
  MainTick();
  EXPECT_EQ(FiveTicks.FrameDivider, 5);
  Ticks(4);
  EXPECT_EQ(FiveTicks.FrameDivider, 1);
  MainTick();
  EXPECT_EQ(FiveTicks.FrameDivider, 5);
}

TEST_F(TickTest, FileWatchCountRunsFrom0To201) {
  Watch.FileWatchCount = 0;
  Ticks(200);
  EXPECT_EQ(Watch.FileWatchCount, 200);
  MainTick();
  EXPECT_EQ(Watch.FileWatchCount, 0);
}

TEST_F(TickTest, CharacterStepsEvery17Ticks) {
  Motion.CharaStepCount = 0;
  Ticks(16);
  EXPECT_EQ(Motion.CharaStepCount, 16);
  MainTick();
  EXPECT_EQ(Motion.CharaStepCount, 0);
}

class TableScrollTest : public TickTest {
 protected:
  void SetUp() override {
    TickTest::SetUp();
    SclTable.hSclTableWnd = OpenListener();
    SclTable.SclTableView.lines = 12;
    SclTable.SclTableView.pageLines = 10;
    SclTable.SclTableView.scrollBar =
        ControlCreate(SclTable.hSclTableWnd, ControlKind::VerticalScrollBar, 900, {0, 0, 16, 200}, "");
    TakeHeard();
  }
  void TearDown() override {
    WindowDestroy(SclTable.hSclTableWnd);
    TickTest::TearDown();
  }
};

TEST_F(TableScrollTest, DownMovesALineEverySixTicksUntilTheLastPage) {
  SclTable.TableScrollDirection = ScrollDirection::Down;
  RowSelection.selectionEnd = 11;
  MainTick();
  EXPECT_EQ(SclTable.SclTableView.firstLine, 1);
  EXPECT_EQ(RowSelection.selectionEnd, 12);
  EXPECT_EQ(SclTable.AutoScrollDelay, 5);
  EXPECT_EQ(TakeHeard(), Words{"paint"});
  EXPECT_EQ(ScrollBarState(SclTable.SclTableView.scrollBar).position, 1);
  Ticks(5);
  EXPECT_EQ(SclTable.SclTableView.firstLine, 1);
  MainTick();
  EXPECT_EQ(SclTable.SclTableView.firstLine, 2);
  EXPECT_EQ(RowSelection.selectionEnd, 12) << "the last line stays the end of the selection";
  Ticks(6);
  EXPECT_EQ(SclTable.SclTableView.firstLine, 2);
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::None);
}

// The bar's own height tells its page, in lines of 20 pixels, whatever the table has.
TEST_F(TableScrollTest, TheBarHasThePageOfItsHeightAndIsOffWhenAllLinesFit) {
  WindowMove(SclTable.SclTableView.scrollBar, 0, 0, 16, 160, false);
  SclTable.TableScrollDirection = ScrollDirection::Down;
  MainTick();
  EXPECT_EQ(ScrollBarState(SclTable.SclTableView.scrollBar).lines, 12);
  EXPECT_EQ(ScrollBarState(SclTable.SclTableView.scrollBar).page, 7);
  EXPECT_EQ(ScrollBarState(SclTable.SclTableView.scrollBar).position, 1);
  EXPECT_TRUE(ScrollBarState(SclTable.SclTableView.scrollBar).enabled);
  WindowMove(SclTable.SclTableView.scrollBar, 0, 0, 16, 240, false);
  Ticks(6);
  EXPECT_EQ(SclTable.SclTableView.firstLine, 2);
  EXPECT_FALSE(ScrollBarState(SclTable.SclTableView.scrollBar).enabled);
}

TEST_F(TableScrollTest, UpMovesALineUntilTheFirst) {
  SclTable.TableScrollDirection = ScrollDirection::Up;
  SclTable.SclTableView.firstLine = 1;
  RowSelection.selectionEnd = 1;
  MainTick();
  EXPECT_EQ(SclTable.SclTableView.firstLine, 0);
  EXPECT_EQ(RowSelection.selectionEnd, 1);
  Ticks(6);
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::None);
}

TEST_F(TableScrollTest, UpTakesTheEndOfTheSelectionALineUpAsFarAsTheFirst) {
  SclTable.TableScrollDirection = ScrollDirection::Up;
  SclTable.SclTableView.firstLine = 2;
  RowSelection.selectionEnd = 2;
  MainTick();
  EXPECT_EQ(RowSelection.selectionEnd, 1);
  Ticks(6);
  EXPECT_EQ(SclTable.SclTableView.firstLine, 0);
  EXPECT_EQ(RowSelection.selectionEnd, 1);
}

TEST_F(TableScrollTest, ButtonUpOnTheStageStopsScrolling) {
  SclTable.TableScrollDirection = ScrollDirection::Down;
  SclTable.AutoScrollDelay = 4;
  Mouse(Program.hMainWnd, EventKind::LeftUp, 5, 5);
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(SclTable.AutoScrollDelay, 0);
}

class MainWindowTest : public TickTest {};

TEST_F(MainWindowTest, ClicksOnTheCharacterDoNothing) {
  const LiveObjects before = DiagnosticsLive();
  for (const EventKind kind :
       {EventKind::LeftDown, EventKind::LeftDouble, EventKind::RightDown, EventKind::MiddleDown,
        EventKind::Wheel, EventKind::KeyDown, EventKind::VScroll, EventKind::SetCursor, EventKind::User}) {
    Mouse(Program.hMainWnd, kind, 10, 40);
  }
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

TEST_F(MainWindowTest, EscapeClearsPanelStateFeatureAndGuardOnlyWhenAStateIsSet) {
  Panel.FuncNo = 3;
  Panel.MenuReopenGuard = 7;
  PressKey(Program.hMainWnd, 27);
  EXPECT_EQ(Panel.FuncNo, 3);
  EXPECT_EQ(Panel.MenuReopenGuard, 7);
  Panel.MenuPanelState = 4;
  PressKey(Program.hMainWnd, 'a');
  EXPECT_EQ(Panel.MenuPanelState, 4);
  PressKey(Program.hMainWnd, 27);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(Panel.MenuReopenGuard, 0);
}

TEST_F(MainWindowTest, PaintGoesOnToClockCalendarPlanAndTable) {
  SclTable.hSclTableWnd = OpenListener("table");
  SclTable.hPlanWnd = OpenListener("plan");
  Calendar.hCalenWnd = OpenListener("calendar");
  Clock.hClockWnd = OpenListener("clock");
  TakeHeard();
  SendPaint(Program.hMainWnd);
  EXPECT_EQ(TakeHeard(), (Words{"clock paint", "calendar paint", "plan paint", "table paint"}));
  for (const WindowHandle window :
       {Clock.hClockWnd, Calendar.hCalenWnd, SclTable.hPlanWnd, SclTable.hSclTableWnd}) {
    WindowDestroy(window);
  }
}

TEST_F(MainWindowTest, ExitAsksAndCancelOnlyClearsThePanelState) {
  Panel.MenuPanelState = 1;
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Cancel);
  CommandSend(Command::Exit);
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_FALSE(QuitWasAsked());
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Ok);
  CommandSend(Command::Exit);
  EXPECT_TRUE(QuitWasAsked());
}

TEST_F(MainWindowTest, UnknownCommandsAreIgnored) {
  for (const std::uint32_t number : {0U, 1U, 1899U, 3000U, 65536U + 8U, 0xFFFFFFFFU})
    SendCommand(Program.hMainWnd, number);
  EXPECT_FALSE(QuitWasAsked());
}

TEST_F(MainWindowTest, MenuEntry8ClosesTheProgram) {
  SendCommand(Program.hMainWnd, 8);
  EXPECT_TRUE(QuitWasAsked());
}

}  // namespace
