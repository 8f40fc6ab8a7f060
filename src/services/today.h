// Date and time that many ask for.
#pragma once

#include <cstdint>

#include "platform/time.h"
#include "services/scl_date.h"

struct TodayState {
  // Today: year minus 2000, month minus 1, day minus 1.
  std::int32_t TodayYear = 0;
  std::int32_t TodayMonth = 0;
  std::int32_t TodayDay = 0;
  // The local time of the tick in progress, read once for all that ask for it.
  LocalTime SharedTime = {};
};
extern TodayState Today;

// Sets today's date.
void TodaySet(const LocalTime& now);

// A local time as the schedules and calendars count; that of the machine's clock.
SclDate SclDateOf(const LocalTime& time);
SclDate SclDateNow();

// Reads the local time into SharedTime.
void SharedTimeTake();

// How many ticks are left of the minute, and of the day: at least 1.
int TicksToNextMinute(const LocalTime& now);
int TicksToMidnight(const LocalTime& now);
