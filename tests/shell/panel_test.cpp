// The tool menu panel as a window: where it opens, which row is hit, when it closes.
#include "platform/posix/faults.h"
#include "tests/shell/panel_fixture.h"

namespace {

// --- Hit test

TEST_F(PanelTest, RowsAreTwentyPixelsHighFromPixelTenOn) {
  MenuHiLine = 3;
  Open({[] {
    const auto markedAt = [](int y) {
      Mouse(TopDialog(), EventKind::MouseMove, 0, y);
      return MenuHiLine;
    };
    EXPECT_EQ(markedAt(0), 0);  // above the first row
    EXPECT_EQ(markedAt(-40), 0);
    EXPECT_EQ(markedAt(29), 0);
    EXPECT_EQ(markedAt(30), 1);
    EXPECT_EQ(markedAt(49), 1);
    EXPECT_EQ(markedAt(50), 2);
    EXPECT_EQ(markedAt(150), 7);
    EXPECT_EQ(markedAt(169), 7);
    EXPECT_EQ(markedAt(170), 7);  // row 8 is no row of this level
    EXPECT_EQ(markedAt(4000), 7);
    Escape();
  }});
}

// --- Opening and placing

TEST_F(PanelTest, ThePointerOnTheStageOpensTheTopLevelAndTheStageIsPaintedAfterwards) {
  SetPointer(0, 0);
  Then([] {
    EXPECT_EQ(MenuPanelState, 1);
    EXPECT_EQ(MenuCloseCount, 40);
    stagePaints = 0;
    Escape();
  });
  Mouse(hMainWnd, EventKind::MouseMove, 5, 5);
  EXPECT_EQ(stagePaints, 0);
  Tick();  // what is due is painted before the timer fires
  EXPECT_EQ(stagePaints, 1);
}

TEST_F(PanelTest, NothingOpensWhileTheGuardRuns) {
  MenuReopenGuard = 2;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(MenuPanelState, 0);
  MainTick();
  MainTick();
  Open({Escape});
  EXPECT_EQ(StepsLeft(), 0);
}

TEST_F(PanelTest, NothingOpensWhileAnEntryIsCarriedOut) {
  MenuPanelState = 400;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(MenuPanelState, 400);
  EXPECT_EQ(TopDialog(), nullptr);
  MenuPanelState = 0;
}

TEST_F(PanelTest, TheCharacterTurnsToItsMenuFrameWhenItHasOne) {
  MenuFrame = 3;
  Open({[] {
    EXPECT_EQ(CharaMotion, kMotionMenu);
    EXPECT_EQ(CharaFrame, 3);
    EXPECT_EQ(sentCommands, (std::vector<Sent>{{2293, 1}}));
    Escape();
  }});
}

TEST_F(PanelTest, WithoutAMenuFrameTheCharacterStays) {
  Open({[] {
    EXPECT_EQ(CharaMotion, kMotionIdle);
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
  EXPECT_EQ(MenuPanelRect.left, left);
  EXPECT_EQ(MenuPanelRect.top, top);
  EXPECT_EQ(MenuPanelRect.right, right);
  EXPECT_EQ(MenuPanelRect.bottom, bottom);
}

TEST_F(PanelTest, StageOnTheLeftHasThePanelOnItsRight) {
  // 512 > 100 + 60; the panel covers 50 pixels of the stage.
  Open({[] {
    ExpectPanelAt(100 + 120 - 50, 50, 370, 250);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheRightEdgeThePanelOpensToTheLeftOfTheStage) {
  StageX = 904;
  Open({[] {
    ExpectPanelAt(704, 50, 904, 250);
    Escape();
  }});
}

TEST_F(PanelTest, TheMiddleOfTheScreenCountsAsRight) {
  StageX = 512 - 60;  // half the screen is not more than the stage's middle
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 452 - 200);
    Escape();
  }});
  StageX = 511 - 60;
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 451 + 120 - 50);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheBottomThePanelIsPushedUp) {
  StageY = 700;
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  StageY = 568;  // just at the edge: the same place by either rule
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  StageY = 567;
  Open({[] {
    ExpectPanelAt(170, 567, 370, 767);
    Escape();
  }});
}

TEST_F(PanelTest, ASubLevelIsPlacedByItsOwnHeight) {
  StageY = 700;
  OpenLevel(1902, {[] {
              ExpectPanelAt(170, 688, 370, 768);
              Escape();
            }});
}

// --- Closing by the tick

TEST_F(PanelTest, MovingOverTheStageAndAwayWithoutEnteringClosesThePanelAfterFortyTicks) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  Open({[] { Tick(39); },
        [] {
          EXPECT_EQ(hDiskMenu, TopDialog());
          EXPECT_EQ(MenuCloseCount, 1);
          Tick(1);
          EXPECT_EQ(hDiskMenu, nullptr);
          EXPECT_EQ(MenuPanelState, 0);
        }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ThePointerOnTheStageKeepsThePanel) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
    Tick(39);
    Mouse(hMainWnd, EventKind::MouseMove, 5, 5);  // the stage hears it, though it owns the panel
    EXPECT_EQ(MenuCloseCount, 40);
    Tick(39);
    EXPECT_EQ(hDiskMenu, TopDialog());
    Tick(1);
    EXPECT_EQ(hDiskMenu, nullptr);
  }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, AfterThePointerHasEnteredOnlyLeavingTheRectangleCloses) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
          MoveTo(2);
          Tick(500);
          EXPECT_EQ(hDiskMenu, TopDialog());
          EXPECT_EQ(MenuCloseCount, kMenuInside);
        },
        [] {
          // The four corners are inside, what lies beyond them is not.
          const Point inside[] = {{170, 50}, {369, 50}, {170, 249}, {369, 249}};
          for (const Point& at : inside) {
            SetPointer(at.x, at.y);
            Tick(1);
            EXPECT_EQ(hDiskMenu, TopDialog());
          }
          SetPointer(370, 100);
          Tick(1);
          EXPECT_EQ(hDiskMenu, nullptr);
          EXPECT_EQ(MenuPanelState, 0);
        }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ASubLevelIsNotClosedByTheTick) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  OpenLevel(1904, {[] {
              Tick(300);
              EXPECT_EQ(hDiskMenu, TopDialog());
              MoveTo(1);
              SetPointer(900, 700);
              Tick(300);
              EXPECT_EQ(hDiskMenu, TopDialog());
              Escape();
            }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, APanelThatCannotBeMadeIsForgottenByTheTick) {
  FaultArm(FaultKind::Window, 1);
  PanelPointerOnStage(MoveOnStage());
  FaultClear();
  EXPECT_EQ(hDiskMenu, nullptr);
  for (int i = 0; i < 40; ++i) MainTick();
  EXPECT_EQ(MenuPanelState, 0);
}

}  // namespace
