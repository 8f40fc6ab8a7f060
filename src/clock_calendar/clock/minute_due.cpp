#include "clock_calendar/clock/minute_due.h"

#include "platform/time.h"
#include "services/tick_step.h"

namespace {

constexpr int kMinuteMilliseconds = 60000;

int TicksLeftOfMinute(const LocalTime& now) {
  const int left = kMinuteMilliseconds - now.second * 1000 - now.millisecond;
  return (left + kTickMilliseconds - 1) / kTickMilliseconds;
}

}  // namespace

int TicksToMinuteAfter(int hour, int minute) {
  LocalTime now;
  TimeGetLocal(&now);
  return now.hour != hour || now.minute != minute ? 1 : TicksLeftOfMinute(now);
}
