#include "mail_music/mail/mail_commands.h"

#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_check.h"
#include "mail_music/mail/mail_dialogs.h"
#include "mail_music/mail/mail_setting.h"
#include "services/feature_dialog.h"

namespace {

int Run() {
  if (!MailSettingMenuDlgRun()) return 0;
  MailSettingSave();
  if (MailSetting.enabled == 1) MailBegin();
  return 0;
}

}  // namespace

void MailSettingsCommand() {
  FeatureDialogRun(Feature::MailSettings, Run);
}

void MailCheckCommand() {
  MailCheck();
}
