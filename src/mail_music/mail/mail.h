// The mail notification, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

#include "platform/types.h"

struct MailState {
  WindowHandle hMailNoticeWnd = nullptr;  // FlyingBat2X
  bool mailStopped = false;          // a check has failed: none runs until the settings are confirmed again
  std::int32_t MailTickCount = 0;    // up to 6000: one unit of the mail interval
  std::int32_t MailMinuteCount = 0;  // units until the next check
  int MailFrame = 0;                 // the picture of the notice
};
extern MailState Mail;

// The settings file is written and never read: at the start there is nothing to
// read. Returns 0.
int MailSettingsRead();

// A mail has come: the walking character brings the notice, or it opens at once. Sets
// the mail's state.
void MailNotifyStart();

// The next picture of the mail notice, and its repaint; nothing while it is closed.
void MailNoticeFrameStep();
