// The walk that brings the mail notice, and its settings.
#pragma once

#include "platform/types.h"

// Starts the walk of a mail arrival with its sound. Returns 0, or -1 when nobody walks;
// the caller sets the mail's state.
int WalkStartMail();

// SetMailAnimeDlg on animeOn, soundOn and soundName of MailSetting. True when the user
// has set them; the file is left to the caller.
bool SetMailAnimeDlgRun(WindowHandle owner);
