#include "clock_calendar/clock/clock_window.h"

#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/minute_due.h"
#include "services/today.h"

void ClockTick() {
  if (ClockTickCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0) ClockWindowShow();
}

int ClockDue() {
  if (!ClockIsOpen()) return kTickNever;
  return Clock.strike.on ? 1 : TicksToMinuteAfter(Clock.ClockHour, Clock.ClockMinute);
}
