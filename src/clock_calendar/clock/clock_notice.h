// The clock alarm's notice, FlyingBat5.
#pragma once

#include "platform/types.h"

struct ClockNoticeState {
  WindowHandle hClockNoticeWnd = nullptr;  // FlyingBat5
};
extern ClockNoticeState ClockNotice;

// True when the performance that the open notice plays is to take its next step
// (message 2258 to the notice). Called once a tick; SharedTime is the time.
bool ClockNoticeWaitIsOver();
