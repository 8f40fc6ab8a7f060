// The tick: its steps, their order and their counters.
#include "shell/tick.h"

#include "character/motion.h"
#include "mail_music/mail.h"
#include "platform/window.h"
#include "schedule/table_scroll.h"
#include "shell/shell.h"
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
  hBackUpDlg = OpenListener();
  MainTick();
  EXPECT_EQ(TakeHeard(), Words{});
  BackUpActive = true;
  Ticks(2);
  EXPECT_EQ(TakeHeard(), (Words{"command 2375", "command 2375"}));
  WindowDestroy(hBackUpDlg);
}

TEST_F(TickTest, SteppedWorkIsTold2376InStates1To4) {
  hSearchDlg = OpenListener();
  for (progressMode = 0; progressMode <= 5; ++progressMode) MainTick();
  EXPECT_EQ(TakeHeard(), Words(4, "command 2376"));
  WindowDestroy(hSearchDlg);
}

TEST_F(TickTest, ReopenGuardCountsDownToZero) {
  MenuReopenGuard = 2;
  MainTick();
  EXPECT_EQ(MenuReopenGuard, 1);
  Ticks(2);
  EXPECT_EQ(MenuReopenGuard, 0);
}

TEST_F(TickTest, PanelThatWasNeverEnteredClosesAfter40Ticks) {
  hDiskMenu = OpenListener();
  MenuPanelState = 1;
  MenuCloseCount = 40;
  Ticks(39);
  EXPECT_EQ(MenuPanelState, 1);
  EXPECT_EQ(TakeHeard(), Words{});
  MainTick();
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(TakeHeard(), Words{"command 2"});
  WindowDestroy(hDiskMenu);
}

TEST_F(TickTest, MenuCloseCountAtTheMarkNeverTimesOutOnlyThePointerLeavingCloses) {
  hDiskMenu = OpenListener();
  MenuPanelState = 1;
  MenuCloseCount = kMenuInside;
  MenuPanelRect = {100, 100, 300, 300};
  SetPointer(299, 299);
  Ticks(500);
  EXPECT_EQ(MenuPanelState, 1);
  SetPointer(300, 299);
  MainTick();
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(TakeHeard(), Words{"command 2"});
  WindowDestroy(hDiskMenu);
}

TEST_F(TickTest, SubLevelsDoNotCloseByThemselves) {
  hDiskMenu = OpenListener();
  MenuPanelState = 4;
  MenuCloseCount = 1;
  Ticks(100);
  EXPECT_EQ(MenuPanelState, 4);
  EXPECT_EQ(MenuCloseCount, 1);
  EXPECT_EQ(TakeHeard(), Words{});
  WindowDestroy(hDiskMenu);
}

TEST_F(TickTest, SixThousandTicksMakeOneUnitOfTheMailInterval) {
  MailCheckOn = true;
  MailInterval = 2;
  MailMinuteCount = 2;
  Ticks(5999);
  EXPECT_EQ(MailMinuteCount, 2);
  EXPECT_EQ(MailTickCount, 5999);
  MainTick();
  EXPECT_EQ(MailMinuteCount, 1);
  EXPECT_EQ(MailTickCount, 0);
  Ticks(5999);
  EXPECT_EQ(MailMinuteCount, 1);
  MainTick();
  // At 0 the count is loaded again from the setting in the same tick.
  EXPECT_EQ(MailMinuteCount, 2);
}

TEST_F(TickTest, MailCountersStandStillWhileCheckingIsOff) {
  MailMinuteCount = 1;
  Ticks(100);
  EXPECT_EQ(MailTickCount, 0);
  EXPECT_EQ(MailMinuteCount, 1);
}

TEST_F(TickTest, FrameDividerIsOffAtZeroAndReloadsWithFive) {
  Ticks(10);
  EXPECT_EQ(FrameDivider, 0);
  FrameDivider = 1;
  MainTick();
  EXPECT_EQ(FrameDivider, 5);
  Ticks(4);
  EXPECT_EQ(FrameDivider, 1);
  MainTick();
  EXPECT_EQ(FrameDivider, 5);
}

TEST_F(TickTest, FileWatchCountRunsFrom0To201) {
  FileWatchCount = 0;
  Ticks(200);
  EXPECT_EQ(FileWatchCount, 200);
  MainTick();
  EXPECT_EQ(FileWatchCount, 0);
}

TEST_F(TickTest, CharacterStepsEvery17Ticks) {
  CharaStepCount = 0;
  Ticks(16);
  EXPECT_EQ(CharaStepCount, 16);
  MainTick();
  EXPECT_EQ(CharaStepCount, 0);
}

class TableScrollTest : public TickTest {
 protected:
  void SetUp() override {
    TickTest::SetUp();
    hSclTableWnd = OpenListener();
    SclTableView.lines = 12;
    SclTableView.pageLines = 10;
    SclTableView.scrollBar =
        ControlCreate(hSclTableWnd, ControlKind::VerticalScrollBar, 900, {0, 0, 16, 200}, "");
    TakeHeard();
  }
  void TearDown() override {
    WindowDestroy(hSclTableWnd);
    TickTest::TearDown();
  }
};

TEST_F(TableScrollTest, DownMovesALineEverySixTicksUntilTheLastPage) {
  TableScrollDirection = ScrollDirection::Down;
  SclTableView.selectionEnd = 10;
  MainTick();
  EXPECT_EQ(SclTableView.firstLine, 1);
  EXPECT_EQ(SclTableView.selectionEnd, 11);
  EXPECT_EQ(AutoScrollDelay, 5);
  EXPECT_EQ(TakeHeard(), Words{"paint"});
  EXPECT_EQ(ScrollBarState(SclTableView.scrollBar).position, 1);
  Ticks(5);
  EXPECT_EQ(SclTableView.firstLine, 1);
  MainTick();
  EXPECT_EQ(SclTableView.firstLine, 2);
  EXPECT_EQ(SclTableView.selectionEnd, 11) << "the last line stays the end of the selection";
  Ticks(6);
  EXPECT_EQ(SclTableView.firstLine, 2);
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
}

// The bar's own height tells its page, in lines of 20 pixels, whatever the table has.
TEST_F(TableScrollTest, TheBarHasThePageOfItsHeightAndIsOffWhenAllLinesFit) {
  WindowMove(SclTableView.scrollBar, 0, 0, 16, 160, false);
  TableScrollDirection = ScrollDirection::Down;
  MainTick();
  EXPECT_EQ(ScrollBarState(SclTableView.scrollBar).lines, 12);
  EXPECT_EQ(ScrollBarState(SclTableView.scrollBar).page, 7);
  EXPECT_EQ(ScrollBarState(SclTableView.scrollBar).position, 1);
  EXPECT_TRUE(ScrollBarState(SclTableView.scrollBar).enabled);
  WindowMove(SclTableView.scrollBar, 0, 0, 16, 240, false);
  Ticks(6);
  EXPECT_EQ(SclTableView.firstLine, 2);
  EXPECT_FALSE(ScrollBarState(SclTableView.scrollBar).enabled);
}

TEST_F(TableScrollTest, UpMovesALineUntilTheFirst) {
  TableScrollDirection = ScrollDirection::Up;
  SclTableView.firstLine = 1;
  SclTableView.selectionEnd = 0;
  MainTick();
  EXPECT_EQ(SclTableView.firstLine, 0);
  EXPECT_EQ(SclTableView.selectionEnd, 0);
  Ticks(6);
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
}

TEST_F(TableScrollTest, ButtonUpOnTheStageStopsScrolling) {
  TableScrollDirection = ScrollDirection::Down;
  AutoScrollDelay = 4;
  Mouse(hMainWnd, EventKind::LeftUp, 5, 5);
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(AutoScrollDelay, 0);
}

class MainWindowTest : public TickTest {};

TEST_F(MainWindowTest, ClicksOnTheCharacterDoNothing) {
  const LiveObjects before = DiagnosticsLive();
  for (const EventKind kind :
       {EventKind::LeftDown, EventKind::LeftDouble, EventKind::RightDown, EventKind::MiddleDown,
        EventKind::Wheel, EventKind::KeyDown, EventKind::VScroll, EventKind::SetCursor, EventKind::User}) {
    Mouse(hMainWnd, kind, 10, 40);
  }
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

TEST_F(MainWindowTest, EscapeClearsPanelStateFeatureAndGuardOnlyWhenAStateIsSet) {
  FuncNo = 3;
  MenuReopenGuard = 7;
  PressKey(hMainWnd, 27);
  EXPECT_EQ(FuncNo, 3);
  EXPECT_EQ(MenuReopenGuard, 7);
  MenuPanelState = 4;
  PressKey(hMainWnd, 'a');
  EXPECT_EQ(MenuPanelState, 4);
  PressKey(hMainWnd, 27);
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(FuncNo, 0);
  EXPECT_EQ(MenuReopenGuard, 0);
}

TEST_F(MainWindowTest, PaintGoesOnToClockCalendarPlanAndTable) {
  hClockWnd = OpenListener();
  hPlanWnd = OpenListener();
  SendPaint(hMainWnd);
  EXPECT_EQ(TakeHeard(), (Words{"paint", "paint"}));
  WindowDestroy(hClockWnd);
  WindowDestroy(hPlanWnd);
}

TEST_F(MainWindowTest, ExitAsksAndCancelOnlyClearsThePanelState) {
  MenuPanelState = 1;
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Cancel);
  SendCommand(hMainWnd, 1908);
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_FALSE(QuitWasAsked());
  ExpectBox("プログラムを終了します。", "プログラム終了", BoxAnswer::Ok);
  SendCommand(hMainWnd, 1908);
  EXPECT_TRUE(QuitWasAsked());
}

TEST_F(MainWindowTest, UnknownCommandsAreIgnored) {
  for (const std::uint32_t number : {0U, 1U, 1899U, 3000U, 65536U + 8U, 0xFFFFFFFFU})
    SendCommand(hMainWnd, number);
  EXPECT_FALSE(QuitWasAsked());
}

TEST_F(MainWindowTest, MenuEntry8ClosesTheProgram) {
  SendCommand(hMainWnd, 8);
  EXPECT_TRUE(QuitWasAsked());
}

}  // namespace
