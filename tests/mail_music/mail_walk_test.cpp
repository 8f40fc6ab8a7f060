// The walk that brings the mail notice.
#include "mail_music/mail/mail_walk.h"

#include <gtest/gtest.h>

#include "character/character.h"
#include "character/walk.h"
#include "filetools/open/open_commands.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_selection.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "shell/panel.h"
#include "tests/character/walk_fixture.h"

namespace {

// The walker of the fixture walks for a mail too: its walk ends at tick 16, its end
// picture is down to 0 after four ticks more.
class MailWalkTest : public WalkFixture {
 protected:
  void SetUp() override {
    WalkFixture::SetUp();
    MailSetting.animeOn = 1;
    MailSetting.enabled = 1;
    Mail.MailMinuteCount = 1000;
  }
  // A mail has come; the next tick announces it.
  static void MailComes() { Walk.mailState = 1; }
  // A file that was opened before.
  static void OpenFileBefore() {
    OpnSelectionSet("letter.txt", "C:\\data\\", "edit.exe", "C:\\tools\\");
    CommandSend(Command::OpenLaunch);
    ASSERT_EQ(ProcessesStarted().size(), 1U);
    commands.clear();
  }
};

TEST_F(MailWalkTest, AMailTakesTheFirstRowWithTheSameNumberAndClearsOnlyTheFirstTenFlags) {
  MailSetting.soundOn = 1;
  TextCopy(MailSetting.soundName, kMailSoundSize, "mail.wav");
  CharaTables.WalkCharas[3].number = 10;
  Character.CharaIndex = 3;
  Walk.WalkSlots[9].active = true;
  Walk.WalkSlots[10].active = true;
  EXPECT_EQ(WalkStartMail(), 0);
  EXPECT_TRUE(Walk.WalkSlots[0].active);
  EXPECT_FALSE(Walk.WalkSlots[3].active);
  EXPECT_FALSE(Walk.WalkSlots[9].active);
  EXPECT_TRUE(Walk.WalkSlots[10].active);
  EXPECT_EQ(SoundsPlayed(), (std::vector<std::string>{"C:\\mirrell\\サウンド\\mail.wav"}));
  MailSetting.animeOn = 0;
  EXPECT_EQ(WalkStartMail(), -1);
}

TEST_F(MailWalkTest, AMainCharacterBeyondTheSlotsStartsNoWalk) {
  for (const int index : {-1, 50, 1000000}) {
    Character.CharaIndex = index;
    EXPECT_EQ(WalkStartMail(), -1) << index;
    EXPECT_FALSE(Walk.WalkActive);
  }
}

TEST_F(MailWalkTest, AMailsWalkOpensTheNoticeAndNothingIsLaunched) {
  OpenFileBefore();
  MailComes();
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
  EXPECT_EQ(Walk.mailState, 2);
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.mailState, 0);
  EXPECT_EQ(ProcessesStarted().size(), 1U);
}

TEST_F(MailWalkTest, ANoticeThatIsClosedBeforeItsWalkHasEndedStartsNoFileEither) {
  OpenFileBefore();
  MailComes();
  ThenTicks(15);
  WalkTicks(1);
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Walk.mailState, 0);
  EXPECT_TRUE(Walk.WalkEndActive);
  WalkTicks(10);
  EXPECT_FALSE(Walk.WalkEndActive);
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2203, 2208}));
  EXPECT_EQ(ProcessesStarted().size(), 1U);
}

TEST_F(MailWalkTest, WhileTheNoticeStandsAFilesWalkOpensNothingAtItsEnd) {
  MailComes();
  ThenTicks(15);
  WalkTicks(3);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  ASSERT_FALSE(Walk.WalkEndActive);
  commands.clear();
  OpnHistory.animeOn = 1;
  OpnSelectionSet("letter.txt", "C:\\data\\", "edit.exe", "C:\\tools\\");
  CommandSend(Command::OpenWalk);
  EXPECT_EQ(Walk.OpeningState, 1);
  ThenTicks(15);
  WalkTicks(4);
  EXPECT_EQ(commands, (std::vector<std::uint32_t>{2004, 2203, 2208}));
  EXPECT_EQ(Walk.OpeningState, 0);
  EXPECT_TRUE(ProcessesStarted().empty());
}

TEST_F(MailWalkTest, WhileTheMailSettingsAreOpenAWalkEndsWithTheNotice) {
  Panel.FuncNo = 11;
  request.opening = kOpeningCheck;
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(15);
  WalkTicks(1);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.WalkSlots[0].balloonWindow, nullptr);
  EXPECT_EQ(PlaceOf(Mail.hMailNoticeWnd), (Place{0, 0, 300, 200}));
  const WindowHandle notice = Mail.hMailNoticeWnd;
  WalkAbort();
  ASSERT_EQ(WalkStart(request), 0);
  ThenTicks(15);
  WalkTicks(1);
  EXPECT_EQ(Mail.hMailNoticeWnd, notice);  // one that is up stays
  WalkAbort();
  Panel.FuncNo = 0;
}

}  // namespace
