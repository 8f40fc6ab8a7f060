#include "mail_music/mail/mail_talk.h"

#include <cstring>

#include "mail_music/mail/mail_setting.h"
#include "platform/socket.h"
#include "services/text.h"

MailTalkState MailTalks;

namespace {

constexpr int kPort = 110;
constexpr int kCommandSize = 128;  // a user or a password and what stands around it

MailTalk& Now() {
  return MailTalks.talks[MailTalks.count - 1];
}

bool IsSet() {
  return MailLive.liveServer[0] != '\0' && MailLive.liveUser[0] != '\0' && MailLive.livePassword[0] != '\0';
}

// kept: "0 message" anywhere in the reply to the password means that there is no mail, so
// "10 messages" is no mail; and every reply without it, the refusal of a password too, is mail.
bool ReadsAsMail() {
  return std::strstr(MailTalks.reply, "0 message") == nullptr;
}

}  // namespace

// bounded: of checks that wait in unanswered boxes, each begun inside a box of the one
// before, there are at most 16; the next one is left out.
bool MailTalkHasRoom() {
  return MailTalks.count < kMailTalkMax;
}

// kept: a mail server that is not found, a socket that is not to be had, and settings that are
// not there leave the network started.
int MailTalkBegin() {
  if (!SocketsStart()) return kMailNoNetwork;
  if (!IsSet()) return kMailUnset;
  const int socket = SocketConnect(MailLive.liveServer, kPort);
  if (socket == kMailNoConnection) SocketsEnd();
  if (socket < 0) return socket;
  MailTalks.talks[MailTalks.count++] = {socket, false};
  return 0;
}

void MailTalkSay(const char* format, const char* word) {
  char command[kCommandSize];
  SocketSend(Now().socket, command, TextFormat(command, sizeof command, format, word));
}

void MailTalkHear() {
  std::memset(MailTalks.reply, 0, sizeof MailTalks.reply);
  SocketReceive(Now().socket, MailTalks.reply, kMailReplySize);
  Now().mail = ReadsAsMail();
}

bool MailTalkHasMail() {
  return Now().mail;
}

// settled: the box about a server's reply shows at most 1000 bytes and 20 lines of it, and
// breaks what is longer than 120 bytes without a blank, so that a box of any reply fits on
// the screen and can be answered.
void MailReplyText(char (&text)[kMailBoxSize]) {
  const char* from = MailTalks.reply;
  const char* end = from + TextPrefix(from, kMailBoxBytes);
  char* to = text;
  int lines = 1;
  int run = 0;  // bytes since the last blank
  while (from < end) {
    const int step = IsSjisLead(*from) && from + 1 < end ? 2 : 1;
    const bool full = run + step > kMailBoxColumns;
    if ((full || *from == '\n') && ++lines > kMailBoxLines) break;
    if (full) *to++ = '\n';
    run = *from == ' ' || *from == '\n' ? 0 : (full ? 0 : run) + step;
    for (int i = 0; i < step; ++i) *to++ = *from++;
  }
  *to = '\0';
}

void MailTalkEnd() {
  SocketClose(Now().socket);
  SocketsEnd();
  --MailTalks.count;
}

void MailSocketsClose() {
  for (int i = 0; i < MailTalks.count; ++i) {
    SocketClose(MailTalks.talks[i].socket);
    MailTalks.talks[i].socket = kNoSocket;
  }
}
