#include "character/walk.h"

#include <gtest/gtest.h>

#include <set>

#include "shell/random.h"
#include "tests/character/walk_fixture.h"

namespace {

class WalkTest : public WalkFixture {};

struct Place {
  int left, top, width, height;
  bool operator==(const Place&) const = default;
};
Place PlaceOf(WindowHandle window) {
  const Rect rect = WindowRect(window);
  return {rect.left, rect.top, RectWidth(rect), RectHeight(rect)};
}
std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << place.left << "," << place.top << " " << place.width << "x" << place.height;
}

const std::vector<std::uint32_t> kWholeWalk = {2203, 2208, 2202};

// --- Starting

TEST_F(WalkTest, StartingPlaysTheSoundOfTheOpeningFromTheSoundFolder) {
  OpnHistory.soundOn = 1;
  TextCopy(OpnHistory.soundName, kOpnTextSize, "foot1.wav");
  EXPECT_EQ(WalkStartOpen(), 0);
  EXPECT_EQ(SoundsPlayed(), (std::vector<std::string>{"C:\\mirrell\\サウンド\\foot1.wav"}));
}

TEST_F(WalkTest, WithTheAnimationOffTheOpeningFollowsStraightAwayWithItsSound) {
  OpnHistory.animeOn = 0;
  OpnHistory.soundOn = 1;
  TextCopy(OpnHistory.soundName, kOpnTextSize, "a.wav");
  WalkForOpening();
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2202}));
  EXPECT_EQ(OpeningState, 0);
  EXPECT_FALSE(WalkActive);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
}

TEST_F(WalkTest, AWalkingRowOf0OrAWalkingNumberOf0MeansThatTheActionGoesOnWithoutAWalk) {
  SetWalkRow(CharaSet, 0, 0);
  WalkForOpening();
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2202}));
  EXPECT_FALSE(WalkActive);
  EXPECT_FALSE(WalkSlots[0].active);
  SetWalkRow(CharaSet, 0, 1);
  WalkCharas[0].number = 0;
  WalkForOpening();
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2202, 2202}));
  EXPECT_EQ(OpeningState, 0);
}

TEST_F(WalkTest, LoadingAWalkerTellsNegativeSlotsAndSlotsWithoutACharacter) {
  EXPECT_EQ(WalkCharaLoad(-1), -9);
  EXPECT_EQ(WalkCharaLoad(1), -10);
  EXPECT_EQ(WalkCharaLoad(50), -10);
  EXPECT_EQ(WalkCharaLoad(0), 0);
  // x + 4, 4 + 50 - y - 1
  EXPECT_EQ(WalkOutlines[0].count, 3);
  EXPECT_EQ(WalkOutlines[0].points[0].x, 4);
  EXPECT_EQ(WalkOutlines[0].points[0].y, 53);
  EXPECT_EQ(WalkOutlines[0].points[2].y, 4);
  EXPECT_EQ(WalkOutlines[2].points[0].y, 4 + 20 - 1);
  EXPECT_EQ(DibWidth(WalkPicture(0, 2)), 30);
}

TEST_F(WalkTest, AStartSetsUpTheSlotFromTheCurrentCharacter) {
  WalkSlots[7].active = true;
  WalkSlots[49].active = true;
  ASSERT_EQ(WalkStartOpen(), 0);
  const WalkSlot& s = WalkSlots[0];
  EXPECT_TRUE(WalkActive);
  EXPECT_TRUE(s.active);
  EXPECT_FALSE(WalkSlots[7].active);
  EXPECT_FALSE(WalkSlots[49].active);
  EXPECT_EQ(s.x, 500);
  EXPECT_EQ(s.y, 350);
  EXPECT_EQ(WalkStartX(CharaSet), 500);  // the start is kept in the record
  EXPECT_EQ(WalkStartY(CharaSet), 350);
  EXPECT_EQ(s.stepX, -14);
  EXPECT_EQ(s.stepY, -12);
  EXPECT_EQ(s.WalkLeft, 5);
  EXPECT_EQ(s.WalkWait, 0);
  EXPECT_EQ(s.frameCount, 2);
  EXPECT_EQ(s.endFrameCount, 1);
  EXPECT_EQ(s.endWait, 4);
}

TEST_F(WalkTest, AMailTakesTheFirstRowWithTheSameNumberAndClearsOnlyTheFirstTenFlags) {
  MailSetting.animeOn = 1;
  MailSetting.soundOn = 1;
  TextCopy(MailSetting.soundName, kMailSoundSize, "mail.wav");
  WalkCharas[3].number = 10;
  CharaIndex = 3;
  WalkSlots[9].active = true;
  WalkSlots[10].active = true;
  EXPECT_EQ(WalkStartMail(), 0);
  EXPECT_TRUE(WalkSlots[0].active);
  EXPECT_FALSE(WalkSlots[3].active);
  EXPECT_FALSE(WalkSlots[9].active);
  EXPECT_TRUE(WalkSlots[10].active);
  EXPECT_EQ(SoundsPlayed(), (std::vector<std::string>{"C:\\mirrell\\サウンド\\mail.wav"}));
  MailSetting.animeOn = 0;
  EXPECT_EQ(WalkStartMail(), -1);
}

TEST_F(WalkTest, AMainCharacterBeyondTheSlotsStartsNoWalk) {
  for (const int index : {-1, 50, 1000000}) {
    CharaIndex = index;
    MailSetting.animeOn = 1;
    EXPECT_EQ(WalkStartOpen(), -1) << index;
    EXPECT_EQ(WalkStartMail(), -1) << index;
    EXPECT_FALSE(WalkActive);
  }
}

// --- Walking

// Steps at the ticks 1, 4, 7, 10, 13; the end at tick 16; the end picture is down
// to 0 after four ticks more.
TEST_F(WalkTest, AWalkStepsEveryPeriodEndsWithItsPictureAndOnlyThenTheFileOpens) {
  WalkForOpening();
  EXPECT_EQ(OpeningState, 1);
  EXPECT_TRUE(commands.empty());
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
    EXPECT_EQ(WalkSlots[0].place, 1);
  });
  ThenTicks(2);
  Then([] { EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50})); });
  ThenTicks(1);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{472, 326, 60, 50}));
    EXPECT_EQ(WalkSlots[0].place, 0);
  });
  ThenTicks(11);  // up to tick 15
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{430, 290, 60, 50}));
    EXPECT_EQ(WalkSlots[0].WalkLeft, 0);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203}));
  });
  ThenTicks(1);  // tick 16
  Then([] {
    EXPECT_EQ(WalkWindow(), nullptr);
    EXPECT_FALSE(WalkActive);
    EXPECT_TRUE(WalkEndActive);
    ASSERT_NE(WalkSlots[0].endWindow, nullptr);
    EXPECT_EQ(PlaceOf(WalkSlots[0].endWindow), (Place{430, 290, 30, 20}));
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  });
  ThenTicks(3);
  Then([] {
    EXPECT_NE(WalkSlots[0].balloonWindow, nullptr);
    EXPECT_EQ(OpeningState, 1);
  });
  ThenTicks(1);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(WalkSlots[0].endWindow, nullptr);
  EXPECT_EQ(WalkSlots[0].balloonWindow, nullptr);
  EXPECT_FALSE(WalkEndActive);
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, TheFirstStepOpensTheWindowAtTheStartPointPlusOneStep) {
  SetWalkStartPoint(CharaSet, 3);
  SetWalkStep(CharaSet, 0, 25, 30);
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{25, 30, 60, 50}));
    EXPECT_TRUE(IsVisible(WalkWindow()));
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, EachStepCutsTheWindowToItsFramesOutline) {
  ASSERT_EQ(WalkStartOpen(), 0);
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
  SetWalkFrames(CharaSet, 0, 0, 5);  // no files
  ASSERT_EQ(WalkStartOpen(), 0);
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
  SetWalkFrames(CharaSet, 0, 1, 255);
  SetEndFrames(CharaSet, 0, 0, 255);
  ASSERT_EQ(WalkStartOpen(), 0);
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
  SetWalkStep(CharaSet, 0, 300, 2147483647);
  SetWalkPeriod(CharaSet, 0, 0);
  SetWalkCount(CharaSet, 0, 4);
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] { EXPECT_EQ(PlaceOf(WalkWindow()), (Place{800, 650, 60, 50})); });
  for (int i = 0; i < 3; ++i) {
    ThenTicks(1);
    Then([i] {
      EXPECT_EQ(PlaceOf(WalkWindow()), (Place{940, 650, 60, 50}));
      EXPECT_EQ(WalkSlots[0].place, i % 2);
      EXPECT_EQ(WalkSlots[0].WalkLeft, 2 - i);
    });
  }
  ThenTicks(5);
  WalkTicks(1);

  SetWalkStep(CharaSet, 0, -2147483647 - 1, -300);
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{0, 50, 60, 50}));
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{0, 0, 60, 50}));
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, AWalkWithoutFramesStandsStillForGoodAndTheOpeningWaits) {
  SetWalkFrames(CharaSet, 0, 0, 0);
  SetWalkFrames(CharaSet, 0, 1, 0);
  WalkForOpening();
  WalkTicks(1000);
  EXPECT_TRUE(commands.empty());
  EXPECT_TRUE(WalkActive);
  EXPECT_EQ(OpeningState, 1);
  EXPECT_EQ(WalkSlots[0].WalkLeft, 5);
}

TEST_F(WalkTest, AWalkOfNoStepsGoesStraightToItsEnd) {
  SetWalkCount(CharaSet, 0, 0);
  SetEndWait(CharaSet, 0, 0);
  WalkForOpening();
  ThenTicks(1);
  WalkTicks(1);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2208, 2202}));
}

TEST_F(WalkTest, AWindowThatCannotBeMadeIsTriedAgainAtTheNextStep) {
  SetWalkPeriod(CharaSet, 0, 0);
  SetWalkCount(CharaSet, 0, 2);
  WalkForOpening();
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
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] {
    SendCommand(WalkWindow(), 2);
    SendCommand(WalkWindow(), 1);
    EXPECT_NE(WalkWindow(), nullptr);
    WalkAbort();
  });
  WalkTicks(1);
}

// --- Trail, wipe, shake

TEST_F(WalkTest, WithTheTrailOnTheFirstWindowResetsTheTrailAndTheTrailClosesAtTheWalksEnd) {
  WalkFlags[0] = kWalkTrail;
  SetWalkPeriod(CharaSet, 0, 0);
  WalkForOpening();
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
  WalkFlags[0] = kWalkTrail;
  SetWalkPeriod(CharaSet, 0, 0);
  ASSERT_EQ(WalkStartOpen(), 0);
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
  WalkFlags[0] = kWalkWipe;
  SetWalkPeriod(CharaSet, 0, 0);
  ASSERT_EQ(WalkStartOpen(), 0);
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
  WalkFlags[0] = kWalkWipe;
  SetEndWait(CharaSet, 0, 0);
  ASSERT_EQ(WalkStartOpen(), 0);
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
  WalkFlags[0] = kWalkShake;
  SetWalkPeriod(CharaSet, 0, 0);
  SetWalkCount(CharaSet, 0, 200);
  SetWalkStep(CharaSet, 0, 0, 0);
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] {
    EXPECT_EQ(PlaceOf(WalkWindow()).top, 350);  // not when it opens
    std::set<int> tops;
    for (int i = 0; i < 199; ++i) {
      WalkTicks(1);
      const int top = PlaceOf(WalkWindow()).top;
      EXPECT_TRUE(top >= 350 - 49 && top <= 350 + 49) << top;
      EXPECT_EQ(top, WalkLastY);
      EXPECT_EQ(WalkSlots[0].y, 350);
      tops.insert(top);
    }
    EXPECT_GT(tops.size(), 20U);
    WalkAbort();
  });
  WalkTicks(1);
}

TEST_F(WalkTest, TheFlagsAreThoseOfTheWalkingRow) {
  WalkFlags[0] = 1;
  WalkFlags[49] = 4;
  EXPECT_EQ(WalkFlagsNow(), 1U);
  SetWalkRow(CharaSet, 0, 50);
  EXPECT_EQ(WalkFlagsNow(), 4U);
  for (const int row : {0, 51, 65535}) {
    SetWalkRow(CharaSet, 0, row);
    EXPECT_EQ(WalkFlagsNow(), 0U) << row;
  }
}

// --- The end phase

TEST_F(WalkTest, WithoutAnEndPictureOnlyTheBalloonStands) {
  SetEndFrames(CharaSet, 0, 0, 9);
  WalkForOpening();
  ThenTicks(15);
  Then([] {
    EXPECT_EQ(WalkSlots[0].endWindow, nullptr);
    ASSERT_NE(WalkSlots[0].balloonWindow, nullptr);
    // 300 left of and 200 above (430, 290)
    EXPECT_EQ(PlaceOf(WalkSlots[0].balloonWindow), (Place{130, 90, 300, 200}));
  });
  ThenTicks(4);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, AnUnusedEndFrameIsFrame0) {
  SetEndFrames(CharaSet, 0, 0, 0);
  WalkForOpening();
  ThenTicks(15);
  Then([] {
    const WindowHandle end = WalkSlots[0].endWindow;
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
  WalkForOpening();
  ThenTicks(14);
  Then([] {
    FaultArm(FaultKind::Window, 1);
    WalkTicks(1);
  });
  Then([] {
    FaultClear();
    EXPECT_EQ(WalkSlots[0].endWindow, nullptr);
    EXPECT_NE(WalkSlots[0].balloonWindow, nullptr);
  });
  ThenTicks(4);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, ABalloonThatCannotBeMadeLetsTheEndPhaseRunOut) {
  WalkForOpening();
  ThenTicks(14);
  Then([] {
    FaultArm(FaultKind::Window, 2);
    WalkTicks(1);
    FaultClear();
    EXPECT_NE(WalkSlots[0].endWindow, nullptr);
  });
  WalkTicks(1);
  // Tick 16 has stepped the end phase, and so has the rest of the first tick, which
  // had been waiting for the walking window.
  WalkTicks(1);
  EXPECT_EQ(OpeningState, 1);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, AGroupsWalkEndsWithItsStateClearedAndNothingSent) {
  for (const int state : {2, 3}) {
    commands.clear();
    ASSERT_EQ(WalkStartOpen(), 0);
    OpeningState = state;
    ThenTicks(19);
    WalkTicks(1);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208})) << state;
    EXPECT_EQ(OpeningState, 0);
  }
}

TEST_F(WalkTest, AMailsWalkOpensTheNoticeAndNothingIsLaunched) {
  MailSetting.animeOn = 1;
  ASSERT_EQ(WalkStartMail(), 0);
  OpeningState = 1;
  MailPhase = 2;
  ThenTicks(15);
  WalkTicks(1);
  EXPECT_EQ(WalkSlots[0].balloonWindow, nullptr);
  ASSERT_NE(hMailNoticeWnd, nullptr);
  // Under the end picture of 20 rows.
  EXPECT_EQ(PlaceOf(hMailNoticeWnd), (Place{430, 310, 300, 200}));
  EXPECT_EQ(OpeningState, 1);
  // The notice needs no loop: tick 16 and the rest of the first tick have stepped the
  // end phase.
  WalkTicks(2);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(WalkSlots[0].endWindow, nullptr);
  EXPECT_NE(hMailNoticeWnd, nullptr);
  EXPECT_EQ(MailPhase, 2);
  Press(hMailNoticeWnd, 1);
  EXPECT_EQ(hMailNoticeWnd, nullptr);
  EXPECT_EQ(MailPhase, 0);
}

TEST_F(WalkTest, WhileTheMailSettingsAreOpenAWalkEndsWithTheNotice) {
  FuncNo = 11;
  ASSERT_EQ(WalkStartOpen(), 0);
  OpeningState = 3;
  ThenTicks(15);
  WalkTicks(1);
  ASSERT_NE(hMailNoticeWnd, nullptr);
  EXPECT_EQ(WalkSlots[0].balloonWindow, nullptr);
  EXPECT_EQ(PlaceOf(hMailNoticeWnd), (Place{0, 0, 300, 200}));
  const WindowHandle notice = hMailNoticeWnd;
  WalkAbort();
  ASSERT_EQ(WalkStartOpen(), 0);
  ThenTicks(15);
  WalkTicks(1);
  EXPECT_EQ(hMailNoticeWnd, notice);  // one that is up stays
  WalkAbort();
  SendClose(hMailNoticeWnd);
}

// --- Abort

TEST_F(WalkTest, AnAbortEndsAWalkWithoutItsEndPhase) {
  ASSERT_EQ(WalkStartOpen(), 0);
  OpeningState = 3;
  ThenTicks(2);
  Then([] {
    WalkAbort();
    EXPECT_EQ(WalkWindow(), nullptr);
  });
  WalkTicks(1);
  EXPECT_FALSE(WalkActive);
  EXPECT_FALSE(WalkEndActive);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203}));
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, AnAbortEndsAnEndPhaseToo) {
  ASSERT_EQ(WalkStartOpen(), 0);
  OpeningState = 3;
  ThenTicks(16);
  Then([] {
    WalkAbort();
    EXPECT_EQ(WalkSlots[0].balloonWindow, nullptr);
    EXPECT_EQ(WalkSlots[0].endWindow, nullptr);
  });
  WalkTicks(1);
  EXPECT_EQ(OpeningState, 0);
  EXPECT_EQ(OpenWindowCount(), 1);
}

TEST_F(WalkTest, AnAbortWithNothingGoingOnDoesNothing) {
  WalkAbort();
  EXPECT_TRUE(commands.empty());
}

// --- Second starts

TEST_F(WalkTest, ASecondStartInTheSameSlotWalksTheSameWindowFromTheStart) {
  WalkForOpening();
  ThenTicks(4);
  Then([] {
    ASSERT_EQ(WalkStartOpen(), 0);
    EXPECT_EQ(WalkSlots[0].WalkLeft, 5);
    WalkTicks(1);
    EXPECT_EQ(PlaceOf(WalkWindow()), (Place{486, 338, 60, 50}));
  });
  ThenTicks(19);
  WalkTicks(1);
  EXPECT_EQ(commands, kWholeWalk);
}

TEST_F(WalkTest, ASecondStartInAnotherSlotLeavesTheFirstWindowUntilItsOwnClose) {
  WalkCharas[1].number = 11;
  PutBmp(11, 1, BmpFile(20, 20));
  ASSERT_EQ(WalkStartOpen(), 0);
  Then([] {
    CharaIndex = 1;
    ASSERT_EQ(WalkStartOpen(), 0);
    EXPECT_FALSE(WalkSlots[0].active);
    EXPECT_NE(WalkSlots[0].walkWindow, nullptr);
  });
  ThenTicks(19);
  Then([] { WalkTicks(1); });
  Then([] {
    EXPECT_EQ(WalkSlots[1].walkWindow, nullptr);
    EXPECT_NE(WalkSlots[0].walkWindow, nullptr);
    SendPaint(WalkSlots[0].walkWindow);
    SendClose(WalkSlots[0].walkWindow);
    EXPECT_EQ(WalkSlots[0].walkWindow, nullptr);
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
    for (int i = kCharaSetWalkRow; i < kCharaSetSize; ++i) {
      CharaSet[i] = static_cast<unsigned char>(RandomBelow(4) == 0 ? RandomBelow(256) : RandomBelow(3));
    }
    SetWalkRow(CharaSet, 0, RandomBelow(60));
    SetWalkPeriod(CharaSet, 0, RandomBelow(3));
    for (unsigned char& flags : WalkFlags) flags = static_cast<unsigned char>(RandomBelow(8));
    OpeningState = RandomBelow(4);
    if (WalkStartOpen() != 0) continue;
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
