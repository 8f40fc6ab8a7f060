// The clock alarm's notice, FlyingBat5.
#pragma once

#include "clock_calendar/clock/clock.h"
#include "platform/types.h"

struct ClockNoticeState {
  WindowHandle hClockNoticeWnd = nullptr;  // FlyingBat5
  char comment[kAlarmCommentSize] = {};    // of the alarm that is being told
};
extern ClockNoticeState ClockNotice;

// True when the performance that the open notice plays is to take its next step
// (message 2258 to the notice). Called once a tick; SharedTime is the time.
bool ClockNoticeWaitIsOver();
