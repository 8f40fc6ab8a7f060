// The end of a walk: its end phase, and the abort.
#include "character/character.h"
#include "character/walk.h"
#include "mail_music/mail/mail.h"
#include "shell/panel.h"
#include "tests/character/walk_fixture.h"

namespace {

// --- The end phase

TEST_F(WalkTest, WithoutAnEndPictureOnlyTheBalloonStands) {
  Character.CharaSet.EndFrames[0][0] = 9;
  WalkForOpening();
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
  WalkForOpening();
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
  WalkForOpening();
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
  WalkForOpening();
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
    ASSERT_EQ(WalkStartOpen(), 0);
    Walk.OpeningState = state;
    ThenTicks(19);
    WalkTicks(1);
    EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208})) << state;
    EXPECT_EQ(Walk.OpeningState, 0);
  }
}

TEST_F(WalkTest, AMailsWalkOpensTheNoticeAndNothingIsLaunched) {
  MailSetting.animeOn = 1;
  ASSERT_EQ(WalkStartMail(), 0);
  Walk.OpeningState = 1;
  Mail.MailPhase = 2;
  ThenTicks(15);
  WalkTicks(1);
  EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  // Under the end picture of 20 rows.
  EXPECT_EQ(PlaceOf(Mail.hMailNoticeWnd), (Place{430, 310, 300, 200}));
  EXPECT_EQ(Walk.OpeningState, 1);
  // The notice needs no loop: tick 16 and the rest of the first tick have stepped the
  // end phase.
  WalkTicks(2);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(Walk.WalkSlots[0].endWindow, nullptr);
  EXPECT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Mail.MailPhase, 2);
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Mail.MailPhase, 0);
}

TEST_F(WalkTest, WhileTheMailSettingsAreOpenAWalkEndsWithTheNotice) {
  Panel.FuncNo = 11;
  ASSERT_EQ(WalkStartOpen(), 0);
  Walk.OpeningState = 3;
  ThenTicks(15);
  WalkTicks(1);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
  EXPECT_EQ(PlaceOf(Mail.hMailNoticeWnd), (Place{0, 0, 300, 200}));
  const WindowHandle notice = Mail.hMailNoticeWnd;
  WalkAbort();
  ASSERT_EQ(WalkStartOpen(), 0);
  ThenTicks(15);
  WalkTicks(1);
  EXPECT_EQ(Mail.hMailNoticeWnd, notice);  // one that is up stays
  WalkAbort();
  SendClose(Mail.hMailNoticeWnd);
}

// --- Abort

TEST_F(WalkTest, AnAbortEndsAWalkWithoutItsEndPhase) {
  ASSERT_EQ(WalkStartOpen(), 0);
  Walk.OpeningState = 3;
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
  ASSERT_EQ(WalkStartOpen(), 0);
  Walk.OpeningState = 3;
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

TEST_F(WalkTest, AnAbortWithNothingGoingOnDoesNothing) {
  WalkAbort();
  EXPECT_TRUE(commands.empty());
}

}  // namespace
