// The step of the tick that clock and calendar share.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock_notice.h"
#include "services/tick_step.h"

// The calendar window or the clock notice is open: the day, the figures and the ticker
// of the one, the alarms, and the performance of the other.
inline bool CalendarStepIsActive() {
  return Calendar.hCalenWnd || ClockNotice.hClockNoticeWnd;
}
void CalendarTick();
int CalendarDue();
inline constexpr TimedStep kCalendarStep{CalendarStepIsActive, {CalendarTick, CalendarDue}};
