#include "clock_calendar/clock_calendar_tick.h"

#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock_notice.h"
#include "platform/window.h"

void CalendarTick() {
  if (CalendarIsLookedAt() && CalenTickCheck() != 0) SendPaint(Calendar.hCalenWnd);
  ClockAlarmTick();
  if (Calendar.hCalenWnd) CalenTickerTick();
}

int CalendarDue() {
  if (!CalendarStepIsActive()) return kTickNever;
  return std::min(Calendar.hCalenWnd ? CalenWindowDue() : kTickNever, ClockAlarmDue());
}
