#include "clock_calendar/clock/minute_due.h"

#include "platform/time.h"
#include "services/today.h"

int TicksToMinuteAfter(int hour, int minute) {
  LocalTime now;
  TimeGetLocal(&now);
  return now.hour != hour || now.minute != minute ? 1 : TicksToNextMinute(now);
}
