// The tool menu panel as a window: where it opens, which row is hit, when it closes.
#include "shell/panel.h"

#include "character/character.h"
#include "character/motion.h"
#include "character/stage.h"
#include "platform/posix/faults.h"
#include "services/program.h"
#include "services/tick_step.h"
#include "shell/tick_timer.h"
#include "tests/shell/panel_fixture.h"

namespace {

// --- Hit test

TEST_F(PanelTest, RowsAreTwentyPixelsHighFromPixelTenOn) {
  Panel.MenuHiLine = 3;
  Open({[] {
    const auto markedAt = [](int y) {
      Mouse(TopDialog(), EventKind::MouseMove, 0, y);
      return Panel.MenuHiLine;
    };
    EXPECT_EQ(markedAt(0), 0);  // above the first row
    EXPECT_EQ(markedAt(29), 0);
    EXPECT_EQ(markedAt(30), 1);
    EXPECT_EQ(markedAt(49), 1);
    EXPECT_EQ(markedAt(50), 2);
    EXPECT_EQ(markedAt(150), 7);
    EXPECT_EQ(markedAt(169), 7);
    EXPECT_EQ(markedAt(170), 7);  // row 8 is no row of this level
    Escape();
  }});
}

// --- Opening and placing

TEST_F(PanelTest, ThePointerOnTheStageOpensTheTopLevelAndTheStageIsPaintedAfterwards) {
  SetPointer(0, 0);
  Then([] {
    EXPECT_EQ(Panel.MenuPanelState, 1);
    EXPECT_EQ(Panel.MenuCloseCount, 40);
    stagePaints = 0;
    Escape();
  });
  Mouse(Program.hMainWnd, EventKind::MouseMove, 5, 5);
  EXPECT_EQ(stagePaints, 0);
  Tick();  // what is due is painted before the timer fires
  EXPECT_EQ(stagePaints, 1);
}

TEST_F(PanelTest, NothingOpensWhileTheGuardRuns) {
  Panel.MenuReopenGuard = 2;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(Panel.MenuPanelState, 0);
  MainTick();
  MainTick();
  Open({Escape});
  EXPECT_EQ(StepsLeft(), 0);
}

TEST_F(PanelTest, NothingOpensWhileAnEntryIsCarriedOut) {
  Panel.MenuPanelState = 400;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(Panel.MenuPanelState, 400);
  EXPECT_EQ(TopDialog(), nullptr);
  Panel.MenuPanelState = 0;
}

TEST_F(PanelTest, TheCharacterTurnsToItsMenuFrameWhenItHasOne) {
  Character.MenuFrame = 3;
  Open({[] {
    EXPECT_EQ(Motion.CharaMotion, kMotionMenu);
    EXPECT_EQ(Stage.CharaFrame, 3);
    EXPECT_EQ(sentCommands, (std::vector<Sent>{{2293, 1}}));
    Escape();
  }});
}

TEST_F(PanelTest, WithoutAMenuFrameTheCharacterStays) {
  Open({[] {
    EXPECT_EQ(Motion.CharaMotion, kMotionIdle);
    EXPECT_TRUE(sentCommands.empty());
    Escape();
  }});
}

void ExpectPanelAt(int left, int top, int right, int bottom) {
  const Rect rect = WindowRect(TopDialog());
  EXPECT_EQ(rect.left, left);
  EXPECT_EQ(rect.top, top);
  EXPECT_EQ(rect.right, right);
  EXPECT_EQ(rect.bottom, bottom);
  EXPECT_EQ(Panel.MenuPanelRect.left, left);
  EXPECT_EQ(Panel.MenuPanelRect.top, top);
  EXPECT_EQ(Panel.MenuPanelRect.right, right);
  EXPECT_EQ(Panel.MenuPanelRect.bottom, bottom);
}

TEST_F(PanelTest, StageOnTheLeftHasThePanelOnItsRight) {
  // 512 > 100 + 60; the panel covers 50 pixels of the stage.
  Open({[] {
    ExpectPanelAt(100 + 120 - 50, 50, 370, 250);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheRightEdgeThePanelOpensToTheLeftOfTheStage) {
  Character.StageX = 904;
  Open({[] {
    ExpectPanelAt(704, 50, 904, 250);
    Escape();
  }});
}

TEST_F(PanelTest, TheMiddleOfTheScreenCountsAsRight) {
  Character.StageX = 512 - 60;  // half the screen is not more than the stage's middle
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 452 - 200);
    Escape();
  }});
  Character.StageX = 511 - 60;
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 451 + 120 - 50);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheBottomThePanelIsPushedUp) {
  Character.StageY = 700;
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  Character.StageY = 568;  // just at the edge: the same place by either rule
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  Character.StageY = 567;
  Open({[] {
    ExpectPanelAt(170, 567, 370, 767);
    Escape();
  }});
}

TEST_F(PanelTest, ASubLevelIsPlacedByItsOwnHeight) {
  Character.StageY = 700;
  OpenLevel(1902, {[] {
              ExpectPanelAt(170, 688, 370, 768);
              Escape();
            }});
}

// --- Closing by the tick

TEST_F(PanelTest, MovingOverTheStageAndAwayWithoutEnteringClosesThePanelAfterFortyTicks) {
  TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  Open({[] { Tick(39); },
        [] {
          EXPECT_EQ(Panel.hDiskMenu, TopDialog());
          EXPECT_EQ(Panel.MenuCloseCount, 1);
          Tick(1);
          EXPECT_EQ(Panel.hDiskMenu, nullptr);
          EXPECT_EQ(Panel.MenuPanelState, 0);
        }});
  TimerStop(Program.hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ThePointerOnTheStageKeepsThePanel) {
  TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
    Tick(39);
    Mouse(Program.hMainWnd, EventKind::MouseMove, 5, 5);  // the stage hears it, though it owns the panel
    EXPECT_EQ(Panel.MenuCloseCount, 40);
    Tick(39);
    EXPECT_EQ(Panel.hDiskMenu, TopDialog());
    Tick(1);
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
  }});
  TimerStop(Program.hMainWnd, kTickTimer);
}

TEST_F(PanelTest, AfterThePointerHasEnteredOnlyLeavingTheRectangleCloses) {
  TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
          MoveTo(2);
          Tick(500);
          EXPECT_EQ(Panel.hDiskMenu, TopDialog());
          EXPECT_EQ(Panel.MenuCloseCount, kMenuInside);
        },
        [] {
          // The four corners are inside, what lies beyond them is not.
          const Point inside[] = {{170, 50}, {369, 50}, {170, 249}, {369, 249}};
          for (const Point& at : inside) {
            SetPointer(at.x, at.y);
            Tick(1);
            EXPECT_EQ(Panel.hDiskMenu, TopDialog());
          }
          SetPointer(370, 100);
          Tick(1);
          EXPECT_EQ(Panel.hDiskMenu, nullptr);
          EXPECT_EQ(Panel.MenuPanelState, 0);
        }});
  TimerStop(Program.hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ASubLevelIsNotClosedByTheTick) {
  TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  OpenLevel(1904, {[] {
              Tick(300);
              EXPECT_EQ(Panel.hDiskMenu, TopDialog());
              MoveTo(1);
              SetPointer(900, 700);
              Tick(300);
              EXPECT_EQ(Panel.hDiskMenu, TopDialog());
              Escape();
            }});
  TimerStop(Program.hMainWnd, kTickTimer);
}

TEST_F(PanelTest, APanelThatCannotBeMadeIsForgottenByTheTick) {
  FaultArm(FaultKind::Window, 1);
  PanelPointerOnStage(MoveOnStage());
  FaultClear();
  EXPECT_EQ(Panel.hDiskMenu, nullptr);
  for (int i = 0; i < 40; ++i) MainTick();
  EXPECT_EQ(Panel.MenuPanelState, 0);
}

}  // namespace
