// The step of the tick that clock and calendar share.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock_notice.h"
#include "services/tick_step.h"

// The calendar window or the clock notice is open: the day, the figures and the ticker.
inline bool CalendarIsLookedAt() {
  return Calendar.hCalenWnd || ClockNotice.hClockNoticeWnd;
}
// The alarms are looked at with them, and with the clock on the desktop; the performance
// of the notice goes on.
inline bool CalendarStepIsActive() {
  return CalendarIsLookedAt() || Clock.hClockWnd;
}
void CalendarTick();
int CalendarDue();
inline constexpr TimedStep kCalendarStep{CalendarStepIsActive, {CalendarTick, CalendarDue}};
