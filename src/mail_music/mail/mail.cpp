#include "mail_music/mail/mail.h"

#include <initializer_list>

#include "platform/socket.h"

MailState Mail;

int MailSettingsRead() {
  return 0;
}

void MailSocketsClose() {
  for (int* socket : {&Mail.MailSocket, &Mail.MailSocketSecond, &Mail.MailSocketThird}) {
    SocketClose(*socket);
    *socket = kNoSocket;
  }
}
