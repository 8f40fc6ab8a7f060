#include "mail_music/mail_setting.h"

MailSettingRec MailSetting;
