// The end of a walk: its end phase, and the abort.
#include <algorithm>

#include "character/character.h"
#include "character/walk.h"
#include "tests/character/walk_fixture.h"

namespace {

// The first tick opens the walking window; the others run in its loop.
void WalkThenAbort(int ticks) {
  for (int i = 1; i < ticks; ++i) Then([] { MainTick(); });
  Then([] { WalkAbort(); });
  MainTick();
}

// --- The end phase

TEST_F(WalkTest, WithoutAnEndPictureOnlyTheBalloonStands) {
  Character.CharaSet.EndFrames[0][0] = 9;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(15);
  Then([] {
    EXPECT_EQ(Walk.WalkSlots[0].endWindow, nullptr);
    ASSERT_NE(Walk.WalkSlots[0].balloonWindow, nullptr);
    // 300 left of and 200 above (430, 290)
    EXPECT_EQ(PlaceOf(Walk.WalkSlots[0].balloonWindow), (Place{130, 90, 300, 200}));
  });
  ThenTicks(4);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, AnUnusedEndFrameIsFrame0) {
  Character.CharaSet.EndFrames[0][0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(15);
  Then([] {
    const WindowHandle end = Walk.WalkSlots[0].endWindow;
    EXPECT_EQ(PlaceOf(end), (Place{430, 290, 60, 50}));
    EXPECT_EQ(PointsOf(RegionOf(end)), (FilePoints{{4, 53}, {63, 53}, {34, 4}}));
    DrawingClear();
    SendPaint(end);
    ASSERT_EQ(DibsDrawn(end).size(), 1U);
    EXPECT_EQ(DibsDrawn(end)[0].dib, WalkPicture(0, 0));
  });
  ThenTicks(4);
  WalkTicks(1);
}

TEST_F(WalkTest, AnEndPictureThatCannotBeMadeLeavesTheBalloon) {
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(14);
  Then([] {
    FaultArm(FaultKind::Window, 1);
    WalkTicks(1);
  });
  Then([] {
    FaultClear();
    EXPECT_EQ(Walk.WalkSlots[0].endWindow, nullptr);
    EXPECT_NE(Walk.WalkSlots[0].balloonWindow, nullptr);
  });
  ThenTicks(4);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, ABalloonThatCannotBeMadeLetsTheEndPhaseRunOut) {
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(14);
  Then([] {
    FaultArm(FaultKind::Window, 2);
    WalkTicks(1);
    FaultClear();
    EXPECT_NE(Walk.WalkSlots[0].endWindow, nullptr);
  });
  WalkTicks(1);
  // Tick 16 has stepped the end phase, and so has the rest of the first tick, which
  // had been waiting for the walking window.
  WalkTicks(1);
  EXPECT_EQ(Walk.OpeningState, 1);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, AGroupsWalkEndsWithItsStateClearedAndNothingSent) {
  for (const int state : {2, 3}) {
    commands.clear();
    request.opening = state;
    ASSERT_EQ(WalkStart(request), 0);
    ThenTicks(19);
    WalkTicks(1);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208})) << state;
    EXPECT_EQ(Walk.OpeningState, 0);
  }
}

TEST_F(WalkTest, AWalkThatAsksForNothingAtItsEndSendsNothing) {
  request.atEnd = Command::None;
  ASSERT_EQ(WalkStart(request), 0);
  EXPECT_EQ(Walk.OpeningState, 1);
  ThenTicks(19);
  WalkTicks(1);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  EXPECT_EQ(Walk.OpeningState, 0);
}

// --- Abort

TEST_F(WalkTest, AnAbortEndsAWalkWithoutItsEndPhase) {
  request.opening = kOpeningCheck;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(2);
  Then([] {
    WalkAbort();
    EXPECT_EQ(WalkWindow(), nullptr);
  });
  WalkTicks(1);
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_FALSE(Walk.WalkEndActive);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203}));
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, AnAbortEndsAnEndPhaseToo) {
  request.opening = kOpeningCheck;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(16);
  Then([] {
    WalkAbort();
    EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
    EXPECT_EQ(Walk.WalkSlots[0].endWindow, nullptr);
  });
  WalkTicks(1);
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, AFileThatWaitedForAnAbortedWalkIsOpenedOnce) {
  for (const int ticks : {0, 2, 16}) {
    commands.clear();
    ASSERT_EQ(WalkStart(request), 0);
    if (ticks != 0) WalkThenAbort(ticks);
    if (ticks == 0) WalkAbort();
    EXPECT_EQ(std::count(commands.begin(), commands.end(), 2202U), 1) << ticks;
    EXPECT_EQ(Walk.OpeningState, 0);
    WalkTicks(30);
    EXPECT_EQ(std::count(commands.begin(), commands.end(), 2202U), 1) << ticks;
  }
}

TEST_F(WalkTest, AnAbortWithNothingGoingOnDoesNothing) {
  WalkAbort();
  EXPECT_TRUE(commands.empty());
}

}  // namespace
