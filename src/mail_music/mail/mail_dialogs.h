// The dialogs of the mail notification.
#pragma once

#include "platform/types.h"

// MailSettingMenuDlg on MailSetting. True when the user has confirmed it: the settings are
// committed, and saving them is left to the caller.
bool MailSettingMenuDlgRun();

// MYPOPDLG on MailLive.
void MYPOPDLGRun(WindowHandle owner);
