#include "mail_music/mail/mail.h"

MailState Mail;

// kept: the mail's settings are written and never read: after a start they are empty.
int MailSettingsRead() {
  return 0;
}
