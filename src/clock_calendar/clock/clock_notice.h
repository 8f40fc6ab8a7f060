// The clock alarm's notice, FlyingBat5.
#pragma once

#include "clock_calendar/clock/clock.h"
#include "platform/types.h"

struct ClockNoticeState {
  WindowHandle hClockNoticeWnd = nullptr;  // FlyingBat5
  char comment[kAlarmCommentSize] = {};    // of the alarm that is being told
};
extern ClockNoticeState ClockNotice;

// The alarms' part of a tick: opens the notice when one of them matches, and moves the
// performance of the open one on. It is due at the next minute, and at every tick of a
// performance that waits.
// settled: an alarm rings while the clock stands on the desktop, even if the calendar
// does not.
void ClockAlarmTick();
int ClockAlarmDue();

// True when the performance that the open notice plays is to take its next step
// (message 2258 to the notice). Called once a tick; SharedTime is the time.
bool ClockNoticeWaitIsOver();
