// Commands of the mail notification.
#pragma once

void MailSettingsCommand();  // 1918
void MailCheckCommand();     // 2079
