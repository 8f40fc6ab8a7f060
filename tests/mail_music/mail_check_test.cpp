// The check for mail, against servers that do what a script says.
#include "mail_music/mail/mail_check.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <memory>

#include "tests/mail_music/mail_fixture.h"
#include "tests/support/scripted_server.h"

namespace {

class MailCheckTest : public MailTest {
 protected:
  void SetUp() override {
    MailTest::SetUp();
    ConnectWith("127.0.0.1", "mirrell", "secret");
    server_ = std::make_unique<ScriptedServer>();
  }
  void TearDown() override {
    server_.reset();
    MailTest::TearDown();
  }

  // The script is written: the client finds this server, and the check runs.
  void Serve(ScriptedServer& server) {
    TestPortSet(110, server.Port());
    server.Begin();
  }
  void CheckServed() {
    Serve(*server_);
    Check();
    EXPECT_EQ(server_->End(), "");
    EXPECT_EQ(BoxesLeft(), 0);
    EXPECT_FALSE(Mail.mailStopped);
  }
  // A whole conversation up to the reply to PASS.
  void ScriptLogin(ScriptedServer& server, const std::string& reply) {
    server.Send("+OK ready\r\n");
    server.ExpectLine("USER mirrell");
    server.Send("+OK\r\n");
    server.ExpectLine("PASS secret");
    server.Send(reply);
    ExpectServer("+OK ready\r\n");
    ExpectServer("+OK\r\n");
  }
  void ScriptLogin(const std::string& reply) { ScriptLogin(*server_, reply); }
  void ScriptQuit() {
    server_->ExpectLine("QUIT");
    server_->Send("+OK bye\r\n");
    ExpectServer("+OK bye\r\n");
  }
  // The PASS reply, and what it comes to.
  void ExpectMail(const std::string& reply) {
    ScriptLogin(reply);
    ExpectServer(reply);
    server_->ExpectLine("");  // the end, without QUIT
    CheckServed();
    EXPECT_EQ(Walk.mailState, kMailSeen);
  }
  void ExpectNoMail(const std::string& reply) {
    ScriptLogin(reply);
    ExpectServer(reply);
    ScriptQuit();
    CheckServed();
    EXPECT_EQ(Walk.mailState, 0);
  }

  std::unique_ptr<ScriptedServer> server_;
};

// Waits until that many bytes have arrived and nobody has received them.
void AwaitBytes(int wanted) {
  int there = 0;
  for (int i = 0; i < 10000 && there < wanted; ++i) {
    ioctl(MailTalks.talks[MailTalks.count - 1].socket, FIONREAD, &there);
    if (there < wanted) usleep(1000);
  }
  EXPECT_GE(there, wanted);
}

// A text without blanks, as a box shows it.
std::string Broken(const std::string& text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); i += 120) lines += (i > 0 ? "\n" : "") + text.substr(i, 120);
  return lines;
}

// The calls of the network in a check, counted from 1.
enum Call { kStart = 1, kHost, kSocket, kConnect, kHearGreeting, kSayUser, kHearUser, kSayPass, kHearPass };

// --- What the reply to PASS says

TEST_F(MailCheckTest, APassReplyThatSays0MessagesIsNoMailAndQuitIsSent) {
  ExpectNoMail("+OK 0 messages\r\n");
}

TEST_F(MailCheckTest, AReplyThatSays10MessagesIsNoMail) {
  ExpectNoMail("+OK 10 messages\r\n");
}

TEST_F(MailCheckTest, AReplyThatSays20MessagesInAnyPlaceIsNoMail) {
  ExpectNoMail("-ERR you had 20 messages, once\r\n");
}

TEST_F(MailCheckTest, AReplyThatSays1MessageIsMail) {
  ExpectMail("+OK 1 message\r\n");
}

TEST_F(MailCheckTest, APositiveReplyWithoutACountIsMail) {
  ExpectMail("+OK Logged in.\r\n");
}

TEST_F(MailCheckTest, ANegativeReplyToABadPasswordIsMail) {
  ExpectMail("-ERR bad password\r\n");
}

TEST_F(MailCheckTest, TheWordsAreSearchedForLetterByLetter) {
  ExpectMail("+OK 0 Messages, 0  messages\r\n");
}

TEST_F(MailCheckTest, AMailIsAnnouncedByTheNextTick) {
  MailSetting.enabled = 1;
  Mail.MailMinuteCount = 5;
  ExpectMail("+OK 2 messages\r\n");
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  Ticks(1);
  EXPECT_NE(Mail.hMailNoticeWnd, nullptr);
}

TEST_F(MailCheckTest, ACheckOfTheTickAnnouncesInTheSameTick) {
  MailSetting.enabled = 1;
  Mail.MailMinuteCount = 1;
  Mail.MailTickCount = kUnit - 1;
  ScriptLogin("+OK\r\n");
  ExpectServer("+OK\r\n");
  Serve(*server_);
  Ticks(1);
  EXPECT_EQ(server_->End(), "");
  EXPECT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.mailState, kMailAlone);
}

TEST_F(MailCheckTest, EveryBoxIsOneOfOkAndAnExclamationMark) {
  ExpectNoMail("+OK 0 messages\r\n");
  ASSERT_EQ(BoxesShown().size(), 4U);
  for (const Box& box : BoxesShown()) {
    EXPECT_EQ(box.buttons, BoxButtons::Ok);
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.owner, Program.hMainWnd);
  }
}

// --- Failures

TEST_F(MailCheckTest, EveryFailureUpToTheConnectionIsToldAndStopsTheChecks) {
  constexpr const char* kCaption = "メール受信連絡エラー";
  constexpr const char* kBoxes[][2] = {
      {"通信エラーです", "メール受信エラー"},
      {"POP3サーバ 127.0.0.1が見つかりません", kCaption},
      {"ソケットをオープンできません", kCaption},
      {"サーバーソケットに接続失敗", kCaption},
  };
  for (int call = kStart; call <= kConnect; ++call) {
    Mail.mailStopped = false;
    FaultArm(FaultKind::Socket, call);
    ExpectBox(kBoxes[call - 1][0], kBoxes[call - 1][1], BoxAnswer::Ok,
              [] { EXPECT_TRUE(Mail.mailStopped) << "before the box is answered"; });
    Check();
    EXPECT_TRUE(FaultWasMet()) << call;
    EXPECT_EQ(FaultCalls(FaultKind::Socket), call) << "the check ends there";
    FaultClear();
    Check();  // nothing happens any more
    EXPECT_EQ(FaultCalls(FaultKind::Socket), 0);
    EXPECT_EQ(Walk.mailState, 0);
  }
}

TEST_F(MailCheckTest, AHostThatIsNotThereIsToldByItsName) {
  const std::string host(255, 's');
  ConnectWith(host.c_str(), "u", "p");
  ExpectBox(("POP3サーバ " + host + "が見つかりません").c_str(), "メール受信連絡エラー");
  Check();
  EXPECT_TRUE(Mail.mailStopped);
}

TEST_F(MailCheckTest, AServerThatNobodyRunsIsToldAsAFailedConnection) {
  TestPortSet(110, server_->Port());
  server_.reset();
  ExpectBox("サーバーソケットに接続失敗", "メール受信連絡エラー");
  Check();
  EXPECT_TRUE(Mail.mailStopped);
}

TEST_F(MailCheckTest, EmptyFieldsAreToldBeforeAnythingIsLookedUp) {
  ConnectWith("127.0.0.1", "", "secret");
  FaultArm(FaultKind::Socket, kHost);
  ExpectUnset();
  Check();
  EXPECT_FALSE(FaultWasMet());
  EXPECT_TRUE(Mail.mailStopped);
}

TEST_F(MailCheckTest, ANetworkThatDoesNotStartIsToldBeforeEmptyFields) {
  ConnectWith("", "", "");
  FaultArm(FaultKind::Socket, kStart);
  ExpectBox("通信エラーです", "メール受信エラー");
  Check();
}

// A send or receive that fails is not looked at: the box is empty, and the replies come one
// step late.
struct FailedCall {
  int call;
  std::vector<std::string> sent;   // by the server, a piece for each receive
  std::vector<std::string> boxes;  // then
  bool mail;
};
TEST_F(MailCheckTest, EverySendAndReceiveMayFail) {
  const std::string hello = "+OK hello\r\n";
  const std::string user = "+OK user\r\n";
  const std::string none = "+OK 0 messages\r\n";
  const std::string bye = "+OK bye\r\n";
  const FailedCall calls[] = {
      {kHearGreeting, {hello, user}, {"", hello, user}, true},
      {kSayUser, {hello, user, none, bye}, {hello, user, none, bye}, false},
      {kHearUser, {hello, user}, {hello, "", user}, true},
      {kSayPass, {hello, user, none, bye}, {hello, user, none, bye}, false},
      {kHearPass, {hello, user}, {hello, user, ""}, true},
      {kHearPass + 1, {hello, user, none, bye}, {hello, user, none, bye}, false},
      {kHearPass + 2, {hello, user, none}, {hello, user, none, ""}, false},
      {kHearPass + 3, {hello, user, none, bye}, {hello, user, none, bye}, false},
  };
  for (const FailedCall& row : calls) {
    ScriptedServer server;
    server.SendPieces(row.sent);
    for (const std::string& box : row.boxes) ExpectServer(box);
    Serve(server);
    FaultArm(FaultKind::Socket, row.call);
    Check();
    EXPECT_EQ(FaultWasMet(), row.call <= kHearPass + 2) << row.call;
    FaultClear();
    EXPECT_EQ(server.End(), "") << row.call;
    EXPECT_EQ(Walk.mailState, row.mail ? kMailSeen : 0) << row.call;
    EXPECT_FALSE(Mail.mailStopped);
    Walk.mailState = 0;
  }
}

// --- Servers that close, one step later each time

TEST_F(MailCheckTest, AServerThatSendsNothingAndClosesGivesThreeEmptyBoxesAndReadsAsMail) {
  for (int box = 0; box < 3; ++box) ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AServerThatClosesBehindItsGreetingReadsAsMail) {
  server_->Send("+OK ready\r\n");
  ExpectServer("+OK ready\r\n");
  ExpectServer("");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AServerThatClosesInsteadOfAnsweringUserReadsAsMail) {
  server_->Send("+OK ready\r\n");
  server_->ExpectLine("USER mirrell");
  ExpectServer("+OK ready\r\n");
  ExpectServer("");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AServerThatClosesBehindItsAnswerToUserReadsAsMail) {
  server_->Send("+OK ready\r\n");
  server_->ExpectLine("USER mirrell");
  server_->Send("+OK\r\n");
  ExpectServer("+OK ready\r\n");
  ExpectServer("+OK\r\n");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AServerThatClosesInsteadOfAnsweringPassReadsAsMail) {
  ScriptLogin("");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AServerThatClosesBehindItsAnswerToPassLeavesAnEmptyLastBox) {
  ScriptLogin("+OK 0 messages\r\n");
  ExpectServer("+OK 0 messages\r\n");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, 0);
}

TEST_F(MailCheckTest, AServerThatClosesInsteadOfAnsweringQuitLeavesAnEmptyLastBox) {
  ScriptLogin("+OK 0 messages\r\n");
  ExpectServer("+OK 0 messages\r\n");
  server_->ExpectLine("QUIT");
  ExpectServer("");
  CheckServed();
  EXPECT_EQ(Walk.mailState, 0);
}

// --- Any bytes

TEST_F(MailCheckTest, AReplyAsLongAsTheBufferIsTakenWholeAndItsBoxIsCut) {
  server_->SendMany('a', 51200);
  server_->ExpectLine("USER mirrell");
  server_->Send("+OK\r\n");
  server_->ExpectLine("PASS secret");
  server_->Send("+OK 0 messages\r\n");
  ExpectServer(Broken(std::string(1000, 'a')), [] {
    EXPECT_EQ(MailTalks.reply[51199], 'a');
    EXPECT_EQ(MailTalks.reply[51200], '\0');
  });
  ExpectServer("+OK\r\n");
  ExpectServer("+OK 0 messages\r\n");
  ScriptQuit();
  FaultMeanwhile(FaultKind::Socket, kHearGreeting, [] { AwaitBytes(51200); });
  CheckServed();
  EXPECT_EQ(Walk.mailState, 0);
}

TEST_F(MailCheckTest, WhatIsLongerThanTheBufferIsTheNextReply) {
  server_->SendMany('a', 51300);
  server_->ExpectLine("USER mirrell");
  server_->ExpectLine("PASS secret");
  server_->Send("+OK\r\n");
  ExpectServer(Broken(std::string(1000, 'a')));
  ExpectServer(std::string(100, 'a'));
  ExpectServer("+OK\r\n");
  FaultMeanwhile(FaultKind::Socket, kHearGreeting, [] { AwaitBytes(51300); });
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, TheWordsAreFoundAtTheEndOfAReplyOfTheWholeBuffer) {
  server_->Send("+OK ready\r\n");
  server_->ExpectLine("USER mirrell");
  server_->Send("+OK\r\n");
  server_->ExpectLine("PASS secret");
  server_->SendMany('a', 51200 - 9);
  server_->Send("0 message");
  ExpectServer("+OK ready\r\n");
  ExpectServer("+OK\r\n");
  ExpectServer(Broken(std::string(1000, 'a')));
  ScriptQuit();
  FaultMeanwhile(FaultKind::Socket, kHearPass, [] { AwaitBytes(51200); });
  CheckServed();
  EXPECT_EQ(Walk.mailState, 0);
}

TEST_F(MailCheckTest, ABoxShowsWhatArrivedUpToTheFirstZeroByteAndNothingBehindItCounts) {
  const std::string zero("+OK 1\0 0 messages", 17);
  server_->Send(std::string("\0+OK", 4));
  server_->ExpectLine("USER mirrell");
  server_->Send(std::string("+O\0K", 4));
  server_->ExpectLine("PASS secret");
  server_->Send(zero);
  ExpectServer("");
  ExpectServer("+O");
  ExpectServer("+OK 1");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, EveryByteButZeroStandsInTheBox) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  ScriptLogin(all);
  // 95 bytes behind the blank, and twelve pairs: another pair is too much for a line.
  ExpectServer(all.substr(0, 151) + "\n" + all.substr(151));
  CheckServed();
}

TEST_F(MailCheckTest, ABoxHasNoMoreThanTwentyLinesAndSplitsNoPair) {
  std::string lines;
  for (int i = 1; i <= 25; ++i) lines += std::to_string(i) + "\n";
  const std::string pairs = "a" + std::string(998, 'b') + "漢字";
  server_->Send(lines);
  server_->ExpectLine("USER mirrell");
  server_->Send(pairs);
  server_->ExpectLine("PASS secret");
  server_->Send("+OK\r\n");
  ExpectServer(lines.substr(0, lines.find("\n21")));
  ExpectServer(Broken(pairs.substr(0, 999)));
  ExpectServer("+OK\r\n");
  CheckServed();
}

TEST_F(MailCheckTest, OneByteAtATimeIsOneReplyEach) {
  server_->SendPieces({"+"});
  server_->ExpectLine("USER mirrell");
  server_->SendPieces({"O"});
  server_->ExpectLine("PASS secret");
  server_->SendPieces({"K"});
  ExpectServer("+");
  ExpectServer("O");
  ExpectServer("K");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, AReplyInTwoSegmentsIsTwoReplies) {
  server_->SendPieces({"+OK PO", "P3 ready\r\n"});
  server_->ExpectLine("USER mirrell");
  server_->ExpectLine("PASS secret");
  server_->SendPieces({"+OK 1"});
  server_->ExpectLine("");  // the end: the second half comes too late
  server_->Send("0 messages\r\n");
  ExpectServer("+OK PO");
  ExpectServer("P3 ready\r\n");
  ExpectServer("+OK 1");
  CheckServed();
  EXPECT_EQ(Walk.mailState, kMailSeen);
}

TEST_F(MailCheckTest, NoiseInEveryReplyIsStood) {
  unsigned seed = 20261122;
  for (int round = 0; round < 30; ++round) {
    const int shownBefore = static_cast<int>(BoxesShown().size());
    ScriptedServer server;
    std::vector<std::string> replies;
    for (int i = 0; i < 4; ++i) {
      std::string reply;
      for (int n = 0; n < 1 + round * 4; ++n) {
        seed = seed * 1664525U + 1013904223U;
        reply += static_cast<char>(seed >> 24);
      }
      replies.push_back(reply);
    }
    // Noise does not say that there is no mail, so there are three boxes.
    for (int i = 0; i < 3; ++i) ExpectServer(replies[static_cast<std::size_t>(i)].c_str());
    server.SendPieces({replies[0], replies[1], replies[2]});
    Serve(server);
    Check();
    EXPECT_EQ(server.End(), "");
    EXPECT_EQ(BoxesShown().size(), static_cast<std::size_t>(shownBefore + 3));
    Walk.mailState = 0;
  }
}

// --- Boxes that stand

TEST_F(MailCheckTest, TheTickGoesOnWhileABoxIsUp) {
  MailSetting.enabled = 1;
  Mail.MailMinuteCount = 5;
  ScriptLogin("+OK\r\n");
  ExpectServer("+OK\r\n", [] {
    Ticks(100);
    EXPECT_EQ(Mail.MailTickCount, 100);
    EXPECT_EQ(Walk.mailState, 0);
  });
  CheckServed();
}

// A box stays up for a whole interval: the next check begins inside it, ends first, and has
// a conversation of its own.
TEST_F(MailCheckTest, ASecondCheckNestsInABoxOfTheFirst) {
  ScriptedServer second;
  MailSetting.enabled = 1;
  Mail.MailMinuteCount = 1;
  Mail.MailTickCount = 0;
  ScriptLogin(*server_, "+OK 0 messages\r\n");
  ExpectServer("+OK 0 messages\r\n", [&] {
    Serve(second);
    Ticks(kUnit - 1);
    EXPECT_EQ(MailTalks.count, 1);
    Ticks(1);
    EXPECT_EQ(MailTalks.count, 1);
    EXPECT_NE(Mail.hMailNoticeWnd, nullptr) << "the inner one has found mail";
  });
  ScriptLogin(second, "+OK 3 messages\r\n");
  ExpectServer("+OK 3 messages\r\n", [] { EXPECT_EQ(MailTalks.count, 2); });
  ScriptQuit();  // the outer one goes on by its own reply
  CheckServed();
  EXPECT_EQ(second.End(), "");
}

TEST_F(MailCheckTest, ASecondCheckThatFailsLeavesTheFirstAlone) {
  ScriptLogin("+OK 0 messages\r\n");
  ExpectServer("+OK 0 messages\r\n", [] {
    ConnectWith("", "", "");
    ExpectServer("+OK bye\r\n");  // behind the box that comes now
    Check();
  });
  // The first box that the inner check expects stands before the last one of the outer.
  ExpectUnset();
  server_->ExpectLine("QUIT");
  server_->Send("+OK bye\r\n");
  Serve(*server_);
  Check();
  EXPECT_EQ(server_->End(), "");
  EXPECT_EQ(BoxesLeft(), 0);
  EXPECT_TRUE(Mail.mailStopped);
}

TEST_F(MailCheckTest, SixteenChecksInsideEachOtherAreTheMost) {
  MailTalks.count = kMailTalkMax;
  for (MailTalk& talk : MailTalks.talks) talk.socket = -1;
  FaultArm(FaultKind::Socket, 1);
  Check();
  EXPECT_FALSE(FaultWasMet());
  MailTalks.count = 0;
}

TEST_F(MailCheckTest, AProgramThatEndsInsideABoxEndsTheCheck) {
  for (int box = 1; box <= 4; ++box) {
    if (box > 1) {
      MainWindowDrop();
      StartProgram();
      ConnectWith("127.0.0.1", "mirrell", "secret");
    }
    ScriptedServer server;
    server.SendPieces({"+OK 1\r\n"});
    if (box > 1) server.SendPieces({"+OK 2\r\n"});
    if (box > 2) server.SendPieces({"+OK 0 messages\r\n"});
    if (box > 3) server.SendPieces({"+OK 4\r\n"});
    const char* const texts[] = {"+OK 1\r\n", "+OK 2\r\n", "+OK 0 messages\r\n", "+OK 4\r\n"};
    for (int i = 0; i < box; ++i) {
      ExpectServer(
          texts[i], i + 1 < box ? std::function<void()>() : [] {
            SendClose(Program.hMainWnd);
            EXPECT_EQ(MailTalks.talks[0].socket, -1) << "closed with the program";
          });
    }
    Serve(server);
    Check();
    EXPECT_EQ(server.End(), "");
    EXPECT_EQ(MailTalks.count, 0);
    EXPECT_EQ(Walk.mailState, 0);
    EXPECT_EQ(BoxesLeft(), 0);
  }
}

// --- From the settings to the notice

TEST_F(MailCheckTest, ConfirmedSettingsLeadToTheNotice) {
  Then([] {
    Press(TopDialog(), IDC_MAIL_ENABLED);
    Type(TopDialog(), IDC_MAIL_COMMENT, "お便りです");
    Press(TopDialog(), IDC_MAIL_ACCOUNT);
  });
  Then([] {
    Type(TopDialog(), IDC_POP_SERVER, "localhost");
    Type(TopDialog(), IDC_POP_USER, "mirrell");
    Type(TopDialog(), IDC_POP_PASSWORD, "secret");
    Press(TopDialog(), 1);
  });
  ThenPress(1);
  ScriptLogin("+OK 1 message\r\n");
  ExpectServer("+OK 1 message\r\n");
  Serve(*server_);
  CommandSend(Command::MailSettings);
  EXPECT_EQ(server_->End(), "");
  Ticks(1);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  SendPaint(Mail.hMailNoticeWnd);
  EXPECT_TRUE(TextStands(Mail.hMailNoticeWnd, "お便りです", 10, 100));
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Walk.mailState, 0);
}

}  // namespace
