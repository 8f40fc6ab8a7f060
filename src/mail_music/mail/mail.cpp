#include "mail_music/mail/mail.h"

#include <initializer_list>

#include "platform/socket.h"

MailState Mail;

// kept: the mail's settings are written and never read: after a start they are empty.
int MailSettingsRead() {
  return 0;
}

void MailSocketsClose() {
  for (int* socket : {&Mail.MailSocket, &Mail.MailSocketSecond, &Mail.MailSocketThird}) {
    SocketClose(*socket);
    *socket = kNoSocket;
  }
}
