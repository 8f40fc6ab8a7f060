#include "mail_music/mail/mail_tick.h"

#include <algorithm>
#include <iterator>

#include "character/walk_state.h"
#include "mail_music/mail/mail_interval.h"
#include "mail_music/mail/mail_setting.h"
#include "services/commands.h"

namespace {

// kept: a unit of the mail interval is 6000 ticks, some three minutes, whatever the list of the
// intervals calls it.
constexpr std::int32_t kUnitTicks = 6000;
constexpr auto kLastInterval = static_cast<std::int32_t>(std::size(kMailIntervals)) - 1;

bool NotifyIsWanted() {
  return Walk.mailState == kMailSeen;
}

}  // namespace

void MailResetInterval() {
  Mail.MailMinuteCount = kMailIntervals[std::clamp(MailSetting.intervalIndex, 0, kLastInterval)].units;
  Mail.MailTickCount = 0;
}

void MailTick() {
  if (MailSetting.enabled == 0) return;
  if (++Mail.MailTickCount >= kUnitTicks) {
    Mail.MailTickCount = 0;
    if (Mail.MailMinuteCount > 0) --Mail.MailMinuteCount;
  }
  if (Mail.MailMinuteCount == 0) {
    MailResetInterval();
    CommandSend(Command::MailCheck);
  }
  if (NotifyIsWanted()) MailNotifyStart();
}

int MailDue() {
  if (MailSetting.enabled == 0) return kTickNever;
  if (Mail.MailMinuteCount == 0 || NotifyIsWanted()) return 1;
  return kUnitTicks - Mail.MailTickCount;
}

int MailNoticeFrameDue() {
  return TickDueIf(Mail.hMailNoticeWnd != nullptr);
}
