#include "mail_music/mail/mail_commands.h"

#include "mail_music/mail/mail_check.h"
#include "mail_music/mail/mail_dialogs.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_tick.h"
#include "services/commands.h"
#include "services/feature_dialog.h"

namespace {

// Checks may run again, and the first one does at once.
void Begin() {
  Mail.mailStopped = false;
  MailResetInterval();
  CommandSend(Command::MailCheck);
}

constexpr int kConfirmed = 1;

int Run() {
  if (!MailSettingMenuDlgRun()) return 0;
  MailSettingSave();
  return kConfirmed;
}

}  // namespace

void MailSettingsCommand() {
  const bool confirmed = FeatureDialogRun(Feature::MailSettings, Run) == kConfirmed;
  if (confirmed && MailSetting.enabled == 1) Begin();
}

void MailCheckCommand() {
  MailCheck();
}
