// Walks of several slots, and what an earlier walk leaves behind.
#include <gtest/gtest.h>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "tests/character/walk_fixture.h"

namespace {

using Commands = std::vector<std::uint32_t>;

class WalkRoundTest : public WalkFixture {
 protected:
  void SetUp() override {
    WalkFixture::SetUp();
    Character.CharaSet.WalkPeriod[0] = 0;
  }
  // A walk in that slot with so many steps left.
  static void PutWalk(int slot, int left) {
    Walk.WalkSlots[slot].active = true;
    Walk.WalkSlots[slot].frameCount = 1;
    Walk.WalkSlots[slot].WalkLeft = left;
  }
  static int TrailWindows() { return OpenWindowCount() - 2; }  // beside the stage and the walking window
};

// A mail clears the first ten flags only, so that a walk of a later slot may go on.
TEST_F(WalkRoundTest, AWalkThatEndsLeavesTheOthersTheirStepOfTheRound) {
  extraCommand = nullptr;
  Walk.WalkActive = true;
  PutWalk(0, 0);
  PutWalk(11, 3);
  WalkTickAll();
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_EQ(Walk.WalkSlots[11].WalkLeft, 2);
  EXPECT_EQ(commands, (Commands{2208, 2203}));
  WalkTickAll();
  EXPECT_EQ(Walk.WalkSlots[11].WalkLeft, 2) << "no round without the common flag";
}

TEST_F(WalkRoundTest, AnEndPhaseNeedsTheCommonFlagToo) {
  Walk.WalkSlots[0].ending = true;
  Walk.WalkSlots[0].endWait = 3;
  WalkEndTickAll();
  EXPECT_EQ(Walk.WalkSlots[0].endWait, 3);
  Walk.WalkEndActive = true;
  WalkEndTickAll();
  EXPECT_EQ(Walk.WalkSlots[0].endWait, 2);
}

TEST_F(WalkRoundTest, AnAbortEndsAWalkWithoutFrames) {
  for (int place = 0; place < kWalkListMax; ++place) Character.CharaSet.WalkFrames[0][place] = 0;
  request.opening = kOpeningCheck;
  ASSERT_EQ(WalkStart(request), 0);
  ASSERT_TRUE(Walk.WalkSlots[0].active);
  WalkAbort();
  EXPECT_FALSE(Walk.WalkSlots[0].active);
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_TRUE(commands.empty());
}

// The first walk leaves three trail windows when a second one starts in another slot.
TEST_F(WalkRoundTest, TheFirstWindowOfASecondWalkResetsTheTrail) {
  CharaTables.WalkFlags[0] = kWalkTrail;
  CharaTables.WalkCharas[1].number = 11;
  PutBmp(11, 1, BmpFile(20, 20));
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(3);
  Then([] {
    EXPECT_EQ(TrailWindows(), 3);
    request.slot = 1;
    ASSERT_EQ(WalkStart(request), 0);
    EXPECT_EQ(TrailWindows(), 3);
  });
  ThenTicks(1);
  Then([] { EXPECT_EQ(TrailWindows(), 1) << "both walking windows, and no trail"; });
  ThenTicks(2);
  Then([] {
    EXPECT_EQ(TrailWindows(), 3);
    WalkAbort();
    SendClose(Walk.WalkSlots[0].walkWindow);
    EXPECT_EQ(TrailWindows(), 1) << "both loops are ending, and no trail";
  });
  WalkTicks(1);
  EXPECT_EQ(OpenWindowCount(), 1);
}

}  // namespace
