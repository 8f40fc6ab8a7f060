#include "mail_music/mail/mail_check.h"

#include "character/walk.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_talk.h"
#include "services/boxes.h"
#include "services/program.h"
#include "services/text.h"

namespace {

struct Failure {
  int reason;
  BoxWords words;
};
constexpr char kCaption[] = "メール受信連絡エラー";
constexpr Failure kFailures[] = {
    {kMailNoNetwork, {"通信エラーです", "メール受信エラー"}},
    {kMailUnset, {"通信設定がされていません", "通信設定エラー"}},
    {kMailHostUnknown, {"POP3サーバ %sが見つかりません", kCaption}},
    {kMailNoSocket, {"ソケットをオープンできません", kCaption}},
    {kMailNoConnection, {"サーバーソケットに接続失敗", kCaption}},
};

// settled: checks are stopped before the box of a failure is up, so that one unanswered
// box stays the only one.
void Fail(int reason) {
  Mail.mailStopped = true;
  for (const Failure& failure : kFailures) {
    if (failure.reason != reason) continue;
    char text[kMailServerSize + 100];
    TextFormat(text, sizeof text, failure.words.text, MailLive.liveServer);
    BoxTell(Program.hMainWnd, text, failure.words.caption);
  }
}

// False when the program has ended inside the box.
// kept: every reply of the mail server is shown in a box that the check waits for.
bool ReplyComes() {
  MailTalkHear();
  char text[kMailBoxSize];
  MailReplyText(text);
  BoxTell(Program.hMainWnd, text, "Server");
  return !Program.Quitting;
}

bool Answers(const char* command, const char* word) {
  MailTalkSay(command, word);
  return ReplyComes();
}

bool LoggedIn() {
  return ReplyComes() && Answers("USER %s\r\n", MailLive.liveUser) &&
         Answers("PASS %s\r\n", MailLive.livePassword);
}

void Converse() {
  if (!LoggedIn()) return;
  if (MailTalkHasMail()) {
    WalkMailStateSet(kMailSeen);
  } else {
    Answers("QUIT\r\n", "");
  }
}

}  // namespace

// kept: mail that is still there is announced anew by every check.
void MailCheck() {
  if (Mail.mailStopped || !MailTalkHasRoom()) return;
  const int reason = MailTalkBegin();
  if (reason != 0) {
    Fail(reason);
    return;
  }
  Converse();
  MailTalkEnd();
}
