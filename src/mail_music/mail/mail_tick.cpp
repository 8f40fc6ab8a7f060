#include "mail_music/mail/mail_tick.h"

#include "services/commands.h"

namespace {
constexpr std::int32_t kUnitTicks = 6000;
}

void MailTick() {
  if (!Mail.MailCheckOn) return;
  if (++Mail.MailTickCount >= kUnitTicks) {
    Mail.MailTickCount = 0;
    if (Mail.MailMinuteCount != 0) --Mail.MailMinuteCount;
  }
  if (Mail.MailMinuteCount == 0) {
    Mail.MailMinuteCount = Mail.MailInterval;
    CommandSend(Command::MailCheck);
  }
  if (Mail.MailNoticeFlag == 1) MailNoticeStart();
}

int MailDue() {
  if (!Mail.MailCheckOn) return kTickNever;
  if (Mail.MailMinuteCount == 0 || Mail.MailNoticeFlag == 1) return 1;
  return kUnitTicks - Mail.MailTickCount;
}

int MailNoticeFrameDue() {
  return TickDueIf(Mail.hMailNoticeWnd != nullptr);
}
