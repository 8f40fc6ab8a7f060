// What a walking row may add to a walk: trail, wipe and shake.
#include <algorithm>
#include <set>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "resources/character_ids.h"
#include "services/random.h"
#include "tests/character/walk_fixture.h"

namespace {

TEST_F(WalkTest, WithTheTrailOnTheFirstWindowResetsTheTrailAndTheTrailClosesAtTheWalksEnd) {
  CharaTables.WalkFlags[0] = kWalkTrail;
  Character.CharaSet.WalkPeriod[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(OpenWindowCount(), 2);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
  });
  for (int i = 1; i < 5; ++i) {
    ThenTicks(1);
    Then([i] {
      EXPECT_EQ(OpenWindowCount(), 2 + i);
      EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));  // stays where it is
      EXPECT_EQ(PlaceOf(FindDialog(IDD_FlyingBat1)), (Place{486 - 14 * i, 338 - 12 * i, 60, 50}));
      EXPECT_TRUE(IsVisible(FindDialog(IDD_FlyingBat1)));
    });
  }
  Then([] {
    WalkTicks(1);
    EXPECT_EQ(OpenWindowCount(), 2);  // nothing but the walk's own loop, which is ending
  });
  // The balloon and the end picture are up inside the step above.
  Then([] { EXPECT_EQ(OpenWindowCount(), 4); });
  ThenTicks(4);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, ATrailWindowThatCannotBeMadeIsLeftOut) {
  CharaTables.WalkFlags[0] = kWalkTrail;
  Character.CharaSet.WalkPeriod[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    FaultArm(FaultKind::Window, 1);
    WalkTicks(1);
    FaultClear();
    EXPECT_EQ(OpenWindowCount(), 2);
    WalkTicks(1);
    EXPECT_EQ(OpenWindowCount(), 3);
    WalkAbort();
    EXPECT_EQ(OpenWindowCount(), 2);
  });
  WalkTicks(1);
  EXPECT_EQ(OpenWindowCount(), 1);
}

// The picture is 60 wide and the end wait 4: slices of 15. The wipe count is 1 when
// the window opens and goes up with each step.
TEST_F(WalkTest, WithTheWipeOnThePictureIsRevealedFromTheRightInEqualSlices) {
  CharaTables.WalkFlags[0] = kWalkWipe;
  Character.CharaSet.WalkPeriod[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  for (int i = 0; i < 4; ++i) {
    Then([i] {
      DrawingClear();
      SendPaint(WalkWindow());
      ASSERT_EQ(DibsDrawn(WalkWindow()).size(), 1U);
      const DrawCall call = DibsDrawn(WalkWindow())[0];
      EXPECT_EQ(call.clipped, i < 3);
      if (call.clipped) {
        EXPECT_EQ(call.clip.left, 60 - 15 * (i + 1));
        EXPECT_EQ(call.clip.right, 60);
        EXPECT_EQ(call.clip.top, 0);
        EXPECT_EQ(call.clip.bottom, 50);
      }
    });
    ThenTicks(1);
  }
  Then([] { WalkAbort(); });
  WalkTicks(1);
}

TEST_F(WalkTest, WithoutAnEndWaitTheWipeHasThreeSlices) {
  CharaTables.WalkFlags[0] = kWalkWipe;
  Character.CharaSet.EndWait[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    DrawingClear();
    SendPaint(WalkWindow());
    ASSERT_EQ(DibsDrawn(WalkWindow()).size(), 1U);
    EXPECT_EQ(DibsDrawn(WalkWindow())[0].clip.left, 40);
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, WithTheShakeOnEachStepJumpsByUpTo49PixelsAndTheWalkItselfDoesNot) {
  RandomSeed(3);
  CharaTables.WalkFlags[0] = kWalkShake;
  Character.CharaSet.WalkPeriod[0] = 0;
  Character.CharaSet.WalkCount[0] = 200;
  Character.CharaSet.WalkStepX[0] = 0;
  Character.CharaSet.WalkStepY[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()).top, 350);  // not when it opens
    std::set<int> tops;
    for (int i = 0; i < 199; ++i) {
      WalkTicks(1);
      const int top = PlaceOf(WalkWindow()).top;
      EXPECT_TRUE(top >= 350 - 49 && top <= 350 + 49) << top;
      EXPECT_EQ(top, Walk.WalkLastY);
      EXPECT_EQ(Walk.WalkSlots[0].y, 350);
      tops.insert(top);
    }
    EXPECT_GT(tops.size(), 20U);
    WalkAbort();
  });
  WalkTicks(1);
}

// Of 20000 steps each of the 99 differences comes, the rarest every 2500 steps.
TEST_F(WalkTest, AStepShakesByOneNumberBelow50MinusAnother) {
  CharaTables.WalkFlags[0] = kWalkShake;
  Character.CharaSet.WalkStepX[0] = 0;
  Character.CharaSet.WalkStepY[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    RandomSeed(5);
    std::vector<int> tops;
    for (int i = 0; i < 20000; ++i) {
      CommandSendTo(WalkWindow(), Command::NextStep);
      tops.push_back(Walk.WalkLastY);
    }
    RandomSeed(5);
    for (const int top : tops) {
      const int up = RandomBelow(50);
      ASSERT_EQ(top, 350 + up - RandomBelow(50));
    }
    EXPECT_EQ(*std::min_element(tops.begin(), tops.end()), 350 - 49);
    EXPECT_EQ(*std::max_element(tops.begin(), tops.end()), 350 + 49);
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, TheFlagsAreThoseOfTheWalkingRow) {
  CharaTables.WalkFlags[0] = 1;
  CharaTables.WalkFlags[49] = 4;
  EXPECT_EQ(WalkFlagsNow(), 1U);
  Character.CharaSet.WalkRow[0] = 50;
  EXPECT_EQ(WalkFlagsNow(), 4U);
  for (const int row : {0, 51, 65535}) {
    Character.CharaSet.WalkRow[0] = static_cast<std::uint16_t>(row);
    EXPECT_EQ(WalkFlagsNow(), 0U) << row;
  }
}

}  // namespace
