#include "mail_music/mail.h"

#include <initializer_list>

#include "platform/socket.h"

std::int32_t MailInterval;
int MailSocket = kNoSocket;
int MailSocketSecond = kNoSocket;
int MailSocketThird = kNoSocket;

int MailSettingsRead() {
  return 0;
}

void MailSocketsClose() {
  for (int* socket : {&MailSocket, &MailSocketSecond, &MailSocketThird}) {
    SocketClose(*socket);
    *socket = kNoSocket;
  }
}
