#include "services/today.h"

#include <algorithm>

#include "services/tick_step.h"

TodayState Today;

void TodaySet(const LocalTime& now) {
  const SclDate today = SclDateOf(now);
  Today.TodayYear = today.year;
  Today.TodayMonth = today.month;
  Today.TodayDay = today.day;
}

SclDate SclDateOf(const LocalTime& time) {
  return {time.year - 2000, time.month - 1, time.day - 1, time.hour};
}

SclDate SclDateNow() {
  LocalTime now{};
  TimeGetLocal(&now);
  return SclDateOf(now);
}

void SharedTimeTake() {
  TimeGetLocal(&Today.SharedTime);
}

int TicksToNextMinute(const LocalTime& now) {
  constexpr int kMinuteMilliseconds = 60000;
  const int left = kMinuteMilliseconds - now.second * 1000 - now.millisecond;
  return std::max((left + kTickMilliseconds - 1) / kTickMilliseconds, 1);
}

int TicksToMidnight(const LocalTime& now) {
  constexpr int kMinutesOfDay = 24 * 60;
  constexpr int kTicksOfMinute = 60000 / kTickMilliseconds;
  return TicksToNextMinute(now) + (kMinutesOfDay - 1 - now.hour * 60 - now.minute) * kTicksOfMinute;
}
