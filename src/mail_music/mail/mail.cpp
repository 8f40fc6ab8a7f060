#include "mail_music/mail/mail.h"

#include "mail_music/mail/mail_tick.h"
#include "services/commands.h"

MailState Mail;

// kept: the mail's settings are written and never read: after a start they are empty.
int MailSettingsRead() {
  return 0;
}

void MailBegin() {
  Mail.mailStopped = false;
  MailResetInterval();
  CommandSend(Command::MailCheck);
}
