// A walk: how it starts, steps and starts again.
#include "character/walk.h"

#include "character/character.h"
#include "character/character_tables.h"
#include "services/random.h"
#include "tests/character/walk_fixture.h"
#include "tests/support/record_check.h"

namespace {

// --- Starting

TEST_F(WalkTest, StartingPlaysTheSoundOfTheRequestFromTheSoundFolder) {
  request.settings.soundOn = 1;
  TextCopy(request.settings.soundName, kWalkSoundNameSize, "foot1.wav");
  EXPECT_EQ(WalkStart(request), 0);
  EXPECT_EQ(SoundsPlayed(), (std::vector<std::string>{"C:\\mirrell\\サウンド\\foot1.wav"}));
  EXPECT_EQ(Walk.OpeningState, 1);
}

TEST_F(WalkTest, WithTheAnimationOffNobodyWalksAndTheSoundIsHeard) {
  request.settings.animeOn = 0;
  request.settings.soundOn = 1;
  TextCopy(request.settings.soundName, kWalkSoundNameSize, "a.wav");
  EXPECT_EQ(WalkStart(request), -1);
  EXPECT_TRUE(commands.empty());
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
}

TEST_F(WalkTest, WithAWalkingRowOf0OrAWalkingNumberOf0NobodyWalks) {
  Character.CharaSet.WalkRow[0] = 0;
  EXPECT_EQ(WalkStart(request), -1);
  EXPECT_FALSE(Walk.WalkActive);
  EXPECT_FALSE(Walk.WalkSlots[0].active);
  Character.CharaSet.WalkRow[0] = 1;
  CharaTables.WalkCharas[0].number = 0;
  EXPECT_EQ(WalkStart(request), -1);
  EXPECT_EQ(Walk.OpeningState, 0);
}

TEST_F(WalkTest, LoadingAWalkerTellsNegativeSlotsAndSlotsWithoutACharacter) {
  EXPECT_EQ(WalkCharaLoad(-1), -9);
  EXPECT_EQ(WalkCharaLoad(1), -10);
  EXPECT_EQ(WalkCharaLoad(50), -10);
  EXPECT_EQ(WalkCharaLoad(0), 0);
  // x + 4, 4 + 50 - y - 1
  EXPECT_EQ(Walk.WalkOutlines[0].count, 3);
  EXPECT_EQ(Walk.WalkOutlines[0].points[0].x, 4);
  EXPECT_EQ(Walk.WalkOutlines[0].points[0].y, 53);
  EXPECT_EQ(Walk.WalkOutlines[0].points[2].y, 4);
  EXPECT_EQ(Walk.WalkOutlines[2].points[0].y, 4 + 20 - 1);
  EXPECT_EQ(DibWidth(WalkPicture(0, 2)), 30);
}

TEST_F(WalkTest, AStartSetsUpTheSlotFromTheCurrentCharacter) {
  Walk.WalkSlots[7].active = true;
  Walk.WalkSlots[49].active = true;
  ASSERT_EQ(WalkStart(request), 0);
  const WalkSlot& s = Walk.WalkSlots[0];
  EXPECT_TRUE(Walk.WalkActive);
  EXPECT_TRUE(s.active);
  EXPECT_FALSE(Walk.WalkSlots[7].active);
  EXPECT_FALSE(Walk.WalkSlots[49].active);
  EXPECT_EQ(s.x, 500);
  EXPECT_EQ(s.y, 350);
  EXPECT_EQ(Character.CharaSet.WalkStartX[0], 500);  // the start is kept in the record
  EXPECT_EQ(Character.CharaSet.WalkStartY[0], 350);
  EXPECT_EQ(s.stepX, -14);
  EXPECT_EQ(s.stepY, -12);
  EXPECT_EQ(s.WalkLeft, 5);
  EXPECT_EQ(s.WalkWait, 0);
  EXPECT_EQ(s.frameCount, 2);
  EXPECT_EQ(s.endFrameCount, 1);
  EXPECT_EQ(s.endWait, 4);
}

TEST_F(WalkTest, ASlotBeyondTheTableStartsNoWalk) {
  for (const int slot : {-1, 50, 1000000}) {
    request.slot = slot;
    EXPECT_EQ(WalkStart(request), -1) << slot;
    EXPECT_FALSE(Walk.WalkActive);
  }
}

// --- Walking

// Steps at the ticks 1, 4, 7, 10, 13; the end at tick 16; the end picture is down
// to 0 after four ticks more.
TEST_F(WalkTest, AWalkStepsEveryPeriodEndsWithItsPictureAndOnlyThenTheFileOpens) {
  ASSERT_EQ(WalkStart(request), 0);
  EXPECT_EQ(Walk.OpeningState, 1);
  EXPECT_TRUE(commands.empty());
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
    EXPECT_EQ(Walk.WalkSlots[0].place, 1);
  });
  ThenTicks(2);
  Then([] { EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50})); });
  ThenTicks(1);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{472, 326, 60, 50}));
    EXPECT_EQ(Walk.WalkSlots[0].place, 0);
  });
  ThenTicks(11);  // up to tick 15
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{430, 290, 60, 50}));
    EXPECT_EQ(Walk.WalkSlots[0].WalkLeft, 0);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203}));
  });
  ThenTicks(1);  // tick 16
  Then([] {
    EXPECT_EQ(WalkWindow(), nullptr);
    EXPECT_FALSE(Walk.WalkActive);
    EXPECT_TRUE(Walk.WalkEndActive);
    ASSERT_NE(Walk.WalkSlots[0].endWindow, nullptr);
    EXPECT_EQ(PlaceOf(Walk.WalkSlots[0].endWindow), (Place{430, 290, 30, 20}));
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  });
  ThenTicks(3);
  Then([] {
    EXPECT_NE(Walk.WalkSlots[0].balloonWindow, nullptr);
    EXPECT_EQ(Walk.OpeningState, 1);
  });
  ThenTicks(1);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(Walk.WalkSlots[0].endWindow, nullptr);
  EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
  EXPECT_FALSE(Walk.WalkEndActive);
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, TheFirstStepOpensTheWindowAtTheStartPointPlusOneStep) {
  Character.CharaSet.WalkStartPoint = 3;
  Character.CharaSet.WalkStepX[0] = 25;
  Character.CharaSet.WalkStepY[0] = 30;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{25, 30, 60, 50}));
    EXPECT_TRUE(IsVisible(WalkWindow()));
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, EachStepCutsTheWindowToItsFramesOutline) {
  ASSERT_EQ(WalkStart(request), 0);
  Then([] { EXPECT_EQ(PointsOf(RegionOf(WalkWindow())), (FilePoints{{5, 53}, {62, 53}, {34, 4}})); });
  ThenTicks(3);
  Then([] {
    EXPECT_EQ(PointsOf(RegionOf(WalkWindow())), (FilePoints{{4, 53}, {63, 53}, {34, 4}}));
    DrawingClear();
    SendPaint(WalkWindow());
    ASSERT_EQ(DibsDrawn(WalkWindow()).size(), 1U);
    EXPECT_EQ(DibsDrawn(WalkWindow())[0].dib, WalkPicture(0, 0));
    EXPECT_FALSE(DibsDrawn(WalkWindow())[0].clipped);
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, AFrameWithoutAnOutlineIsPaintedAtOnceAndAFrameWithoutAPictureIs300By200) {
  Character.CharaSet.WalkFrames[0][0] = 5;  // no files
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
    DrawingClear();
  });
  ThenTicks(2);
  Then([] {
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{472, 326, 300, 200}));
    EXPECT_EQ(RegionOf(WalkWindow()), nullptr);
    EXPECT_TRUE(DibsDrawn(WalkWindow()).empty());
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, AFrameNumberBeyondTheTableIsAFrameWithoutAPicture) {
  Character.CharaSet.WalkFrames[0][1] = 255;
  Character.CharaSet.EndFrames[0][0] = 255;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 300, 200}));
    SendPaint(WalkWindow());
  });
  ThenTicks(19);
  WalkTicks(1);
  EXPECT_EQ(OpenWindowCount(), 1);
}

// From (500, 350) with steps of (300, 0): the far edge stops at 1000, so x is 940;
// with steps to the left x stops at 0. The frames keep turning.
TEST_F(WalkTest, AWalkThatLeavesTheScreenStopsAtTheEdgeAndKeepsItsFramesTurning) {
  Character.CharaSet.WalkStepX[0] = 300;
  Character.CharaSet.WalkStepY[0] = 2147483647;
  Character.CharaSet.WalkPeriod[0] = 0;
  Character.CharaSet.WalkCount[0] = 4;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] { EXPECT_EQ(PlaceOf(WalkWindow()), (Place{800, 650, 60, 50})); });
  for (int i = 0; i < 3; ++i) {
    ThenTicks(1);
    Then([i] {
      EXPECT_EQ(PlaceOf(WalkWindow()), (Place{940, 650, 60, 50}));
      EXPECT_EQ(Walk.WalkSlots[0].place, i % 2);
      EXPECT_EQ(Walk.WalkSlots[0].WalkLeft, 2 - i);
    });
  }
  ThenTicks(5);
  WalkTicks(1);

  Character.CharaSet.WalkStepX[0] = -2147483647 - 1;
  Character.CharaSet.WalkStepY[0] = -300;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{0, 50, 60, 50}));
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{0, 0, 60, 50}));
    WalkAbort();
  });
  WalkTicks(1);
}

// Frame 1 is 60 by 50 and frame 2 is 20 by 10: from the lower right corner the walk
// stands at (1000 - 60, 700 - 50), whichever of them shows.
TEST_F(WalkTest, TheFirstFrameHoldsTheWalkOnTheScreenWhateverFrameShows) {
  PutBmp(10, 2, BmpFile(20, 10));
  Character.CharaSet.WalkStartPoint = 0;
  Character.CharaSet.WalkStepX[0] = 0;
  Character.CharaSet.WalkStepY[0] = 0;
  Character.CharaSet.WalkPeriod[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{940, 650, 20, 10}));
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{940, 650, 60, 50}));
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{940, 650, 20, 10}));
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, AWalkWithoutFramesStandsStillForGoodAndTheOpeningWaits) {
  Character.CharaSet.WalkFrames[0][0] = 0;
  Character.CharaSet.WalkFrames[0][1] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  WalkTicks(1000);
  EXPECT_TRUE(commands.empty());
  EXPECT_TRUE(Walk.WalkActive);
  EXPECT_EQ(Walk.OpeningState, 1);
  EXPECT_EQ(Walk.WalkSlots[0].WalkLeft, 5);
}

TEST_F(WalkTest, AWalkOfNoStepsGoesStraightToItsEnd) {
  Character.CharaSet.WalkCount[0] = 0;
  Character.CharaSet.EndWait[0] = 0;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(1);
  WalkTicks(1);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2208, 2202}));
}

TEST_F(WalkTest, AWindowThatCannotBeMadeIsTriedAgainAtTheNextStep) {
  Character.CharaSet.WalkPeriod[0] = 0;
  Character.CharaSet.WalkCount[0] = 2;
  ASSERT_EQ(WalkStart(request), 0);
  FaultArm(FaultKind::Window, 1);
  WalkTicks(1);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  EXPECT_EQ(WalkWindow(), nullptr);
  ThenTicks(5);
  WalkTicks(1);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2203, 2208, 2202}));
}

TEST_F(WalkTest, EscapeDoesNotCloseAWalkingWindow) {
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    SendCommand(WalkWindow(), 2);
    SendCommand(WalkWindow(), 1);
    EXPECT_NE(WalkWindow(), nullptr);
    WalkAbort();
  });
  WalkTicks(1);
}

// --- Second starts

TEST_F(WalkTest, ASecondStartInTheSameSlotWalksTheSameWindowFromTheStart) {
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(4);
  Then([] {
    ASSERT_EQ(WalkStart(request), 0);
    EXPECT_EQ(Walk.WalkSlots[0].WalkLeft, 5);
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
  });
  ThenTicks(19);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, ASecondStartInAnotherSlotLeavesTheFirstWindowUntilItsOwnClose) {
  CharaTables.WalkCharas[1].number = 11;
  PutBmp(11, 1, BmpFile(20, 20));
  ASSERT_EQ(WalkStart(request), 0);
  Then([] {
    request.slot = 1;
    ASSERT_EQ(WalkStart(request), 0);
    EXPECT_FALSE(Walk.WalkSlots[0].active);
    EXPECT_NE(Walk.WalkSlots[0].walkWindow, nullptr);
  });
  ThenTicks(19);
  Then([] { WalkTicks(1); });
  Then([] {
    EXPECT_EQ(Walk.WalkSlots[1].walkWindow, nullptr);
    EXPECT_NE(Walk.WalkSlots[0].walkWindow, nullptr);
    SendPaint(Walk.WalkSlots[0].walkWindow);
    SendClose(Walk.WalkSlots[0].walkWindow);
    EXPECT_EQ(Walk.WalkSlots[0].walkWindow, nullptr);
  });
  WalkTicks(1);
  EXPECT_EQ(OpenWindowCount(), 1);
}

// Whatever stands in a record, its walk stays inside the tables and ends.
TEST_F(WalkTest, RandomRecordsWalkInsideTheTables) {
  RandomSeed(11);
  extraCommand = [](std::uint32_t command) {
    if (command == 2203) {
      Then([] {
        WalkTicks(4);
        WalkAbort();
      });
      WalkWindowRun();
    }
    if (command == 2208) {
      Then([] { WalkAbort(); });
      EndWindowsRun();
    }
  };
  for (int round = 0; round < 1000; ++round) {
    std::string set = RecordBytes(Character.CharaSet);
    for (std::size_t i = 324; i < set.size(); ++i) {  // from the walks on
      set[i] = static_cast<char>(RandomBelow(4) == 0 ? RandomBelow(256) : RandomBelow(3));
    }
    RecordSet(Character.CharaSet, set);
    Character.CharaSet.WalkRow[0] = static_cast<std::uint16_t>(RandomBelow(60));
    Character.CharaSet.WalkPeriod[0] = static_cast<std::uint16_t>(RandomBelow(3));
    for (unsigned char& flags : CharaTables.WalkFlags) flags = static_cast<unsigned char>(RandomBelow(8));
    request.opening = RandomBelow(4);
    if (WalkStart(request) != 0) continue;
    WalkTicks(1);
    WalkAbort();
    ASSERT_EQ(StepsLeft(), 0) << round;
    ASSERT_EQ(OpenWindowCount(), 1) << round;
  }
}

TEST_F(WalkTest, SlotsThatAreNotThereDoNothing) {
  WalkTick(-1);
  WalkTick(50);
  WalkEndTick(-1);
  WalkEndTick(50);
  EXPECT_TRUE(commands.empty());
}

}  // namespace
