// The check for mail, against a real server.
#include <memory>

#include "tests/mail_music/dovecot.h"
#include "tests/mail_music/mail_fixture.h"

namespace {

class MailServerTest : public MailTest {
 protected:
  static void SetUpTestSuite() {
    server = std::make_unique<Dovecot>(std::map<std::string, int>{{"empty", 0}, {"one", 1}, {"ten", 10}});
    trouble = server->Start();
  }
  static void TearDownTestSuite() { server.reset(); }
  void SetUp() override {
    MailTest::SetUp();
    ASSERT_EQ(trouble, "");
  }

  // One check of that user's box, which stays as it is.
  static void ExpectCheck(const char* user, const char* password, const char* answer) {
    const auto before = server->Mails(user);
    ConnectWith(server->Address().c_str(), user, password);
    ExpectServer(kDovecotGreeting);
    ExpectServer(kDovecotUser);
    ExpectServer(answer);
    Check();
    EXPECT_EQ(BoxesLeft(), 0);
    EXPECT_EQ(Walk.mailState, kMailSeen) << "a reply without a count reads as mail";
    EXPECT_FALSE(Mail.mailStopped);
    EXPECT_EQ(server->Mails(user), before);
    Walk.mailState = 0;
  }

  static inline std::unique_ptr<Dovecot> server;
  static inline std::string trouble;
};

TEST_F(MailServerTest, AnEmptyBoxOfAServerThatTellsNoCountReadsAsMail) {
  ExpectCheck("empty", "secret", kDovecotLogin);
  EXPECT_TRUE(server->Mails("empty").empty());
}

TEST_F(MailServerTest, ABoxWithOneMailReadsAsMailAndKeepsIt) {
  ExpectCheck("one", "secret", kDovecotLogin);
  EXPECT_EQ(server->Mails("one").size(), 1U);
}

TEST_F(MailServerTest, ABoxWithTenMailsReadsAsMailAndKeepsThem) {
  ExpectCheck("ten", "secret", kDovecotLogin);
  EXPECT_EQ(server->Mails("ten").size(), 10U);
}

TEST_F(MailServerTest, AWrongPasswordReadsAsMail) {
  ExpectCheck("one", "wrong", kDovecotRefusal);
}

TEST_F(MailServerTest, AnUnknownUserReadsAsMail) {
  ConnectWith(server->Address().c_str(), "nobody", "secret");
  ExpectServer(kDovecotGreeting);
  ExpectServer(kDovecotUser);
  ExpectServer(kDovecotRefusal);
  Check();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailServerTest, OneCheckAfterTheOtherFindsTheSameMails) {
  for (int round = 0; round < 5; ++round) ExpectCheck("ten", "secret", kDovecotLogin);
}

TEST_F(MailServerTest, FromTheSettingsToTheNotice) {
  const auto before = server->Mails("one");
  Then([] {
    Press(TopDialog(), IDC_MAIL_ENABLED);
    Press(TopDialog(), IDC_MAIL_ACCOUNT);
  });
  Then([] {
    Type(TopDialog(), IDC_POP_SERVER, server->Address().c_str());
    Type(TopDialog(), IDC_POP_USER, "one");
    Type(TopDialog(), IDC_POP_PASSWORD, "secret");
    Press(TopDialog(), 1);
  });
  ThenPress(1);
  ExpectServer(kDovecotGreeting);
  ExpectServer(kDovecotUser);
  ExpectServer(kDovecotLogin);
  CommandSend(Command::MailSettings);
  Ticks(1);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  Press(Mail.hMailNoticeWnd, 1);
  // A unit later the mail is there still.
  ExpectServer(kDovecotGreeting);
  ExpectServer(kDovecotUser);
  ExpectServer(kDovecotLogin);
  Ticks(kUnit);
  EXPECT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(server->Mails("one"), before);
}

}  // namespace
