// When mail is asked for, and how a mail that has come is announced.
#include "mail_music/mail/mail_tick.h"

#include <algorithm>

#include "tests/mail_music/mail_fixture.h"

namespace {

using Words = std::vector<std::string>;

class MailTickTest : public MailTest {
 protected:
  // On with that interval, just begun. The checks themselves are stopped.
  static void On(int interval) {
    MailSetting.enabled = 1;
    MailSetting.intervalIndex = interval;
    Mail.mailStopped = true;
    MailResetInterval();
    ListenToEverything();
  }
  // The checks that were asked for since the last call.
  static int ChecksAsked() {
    const Words heard = TakeHeard();
    return static_cast<int>(std::count(heard.begin(), heard.end(), "main 2079"));
  }
};

TEST_F(MailTickTest, EveryIntervalWaitsItsUnits) {
  constexpr int kUnits[] = {1, 2, 5, 10, 15, 20, 30, 40, 60, 120, 240};
  for (int index = 0; index < 11; ++index) {
    MailSetting.intervalIndex = index;
    Mail.MailTickCount = 9;
    MailResetInterval();
    EXPECT_EQ(Mail.MailMinuteCount, kUnits[index]) << index;
    EXPECT_EQ(Mail.MailTickCount, 0);
  }
}

TEST_F(MailTickTest, AnIntervalOutsideTheTableIsHeldInside) {
  MailSetting.intervalIndex = 11;
  MailResetInterval();
  EXPECT_EQ(Mail.MailMinuteCount, 240);
  MailSetting.intervalIndex = -1;
  MailResetInterval();
  EXPECT_EQ(Mail.MailMinuteCount, 1);
}

TEST_F(MailTickTest, IntervalIndex1ChecksAfterTwoUnitsThoughTheComboBoxSaysThree) {
  On(1);
  Ticks(2 * kUnit - 1);
  EXPECT_EQ(ChecksAsked(), 0);
  Ticks(1);
  EXPECT_EQ(ChecksAsked(), 1);
  EXPECT_EQ(Mail.MailMinuteCount, 2) << "and so on";
  Ticks(2 * kUnit - 1);
  EXPECT_EQ(ChecksAsked(), 0);
  Ticks(1);
  EXPECT_EQ(ChecksAsked(), 1);
}

TEST_F(MailTickTest, SwitchedOffNothingIsCountedAndNothingAnnounced) {
  Walk.mailState = kMailSeen;
  Mail.MailMinuteCount = 0;
  Ticks(3);
  EXPECT_EQ(Mail.MailTickCount, 0);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(MailDue(), kTickNever);
}

TEST_F(MailTickTest, TheTimerGoesOnCountingWhileChecksAreStopped) {
  On(0);
  Ticks(3 * kUnit);
  EXPECT_EQ(ChecksAsked(), 3);
  EXPECT_TRUE(BoxesShown().empty());
}

// The feature is on and one of the three fields empty: the error box once, then silence
// until the settings are confirmed again.
TEST_F(MailTickTest, WithAnyFieldEmptyTheErrorBoxComesOnceThenSilenceUntilTheNextConfirmation) {
  constexpr const char* kFields[][3] = {{"", "u", "p"}, {"s", "", "p"}, {"s", "u", ""}, {"", "", ""}};
  for (const auto& [server, user, password] : kFields) {
    MailSetting.enabled = 0;
    ConnectWith(server, user, password);
    for (std::size_t round = 1; round <= 2; ++round) {
      Then([] {
        if (!ControlIsChecked(TopDialog(), IDC_MAIL_ENABLED)) Press(TopDialog(), IDC_MAIL_ENABLED);
      });
      ThenPress(1);
      ExpectUnset();
      CommandSend(Command::MailSettings);
      EXPECT_TRUE(Mail.mailStopped);
      Ticks(3 * kUnit);
      EXPECT_EQ(BoxesLeft(), 0);
    }
  }
}

TEST_F(MailTickTest, WithSoundAndAnimationOffTheWindowShowsAloneAtTheCorner) {
  On(0);
  Walk.mailState = kMailSeen;
  EXPECT_EQ(MailDue(), 1);
  Ticks(1);
  EXPECT_EQ(Walk.mailState, kMailAlone);
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_TRUE(SoundsPlayed().empty());
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  const Rect place = WindowRect(Mail.hMailNoticeWnd);
  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
  EXPECT_EQ(RectWidth(place), 300);
  EXPECT_EQ(RectHeight(place), 200);
  EXPECT_TRUE(IsTopmost(Mail.hMailNoticeWnd));
  EXPECT_EQ(ControlText(Mail.hMailNoticeWnd, 1), " OK ");
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.mailState, 0);
}

TEST_F(MailTickTest, TheSoundPlaysWithoutTheAnimationToo) {
  On(0);
  MailSetting.soundOn = 1;
  TextCopy(MailSetting.soundName, sizeof MailSetting.soundName, "鐘.wav");
  Walk.mailState = kMailSeen;
  Ticks(1);
  EXPECT_EQ(SoundsPlayed(), Words{"C:\\mirrell\\サウンド\\鐘.wav"});
  EXPECT_EQ(Walk.mailState, kMailAlone);
}

TEST_F(MailTickTest, AnEmptyCommentShowsTheDefaultText) {
  On(0);
  Walk.mailState = kMailSeen;
  Ticks(1);
  SendPaint(Mail.hMailNoticeWnd);
  EXPECT_TRUE(TextStands(Mail.hMailNoticeWnd, "メール受信のお知らせ", 10, 100));
  TextCopy(MailSetting.comment, sizeof MailSetting.comment, "お便り");
  DrawingClear();
  SendPaint(Mail.hMailNoticeWnd);
  EXPECT_TRUE(TextStands(Mail.hMailNoticeWnd, "お便り", 10, 100));
}

TEST_F(MailTickTest, AMailThatIsStillThereIsAnnouncedAgainWhetherOrNotTheWindowWasRead) {
  On(0);
  Walk.mailState = kMailSeen;
  Ticks(1);
  const WindowHandle notice = Mail.hMailNoticeWnd;
  Walk.mailState = kMailSeen;
  Ticks(1);
  EXPECT_EQ(Mail.hMailNoticeWnd, notice) << "one that is up stays";
  EXPECT_EQ(Walk.mailState, kMailAlone);
  SendClose(notice);
  Walk.mailState = kMailSeen;
  Ticks(1);
  EXPECT_NE(Mail.hMailNoticeWnd, nullptr);
}

}  // namespace
