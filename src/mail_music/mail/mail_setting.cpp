#include "mail_music/mail/mail_setting.h"

MailSettingRec MailSetting;
