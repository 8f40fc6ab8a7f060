// The machine's clock.
#pragma once

#include <cstdint>

// A local date and time: year in full, month 1 to 12, day 1 to 31, weekday
// 0 (Sunday) to 6.
struct LocalTime {
  int year;
  int month;
  int day;
  int weekday;
  int hour;
  int minute;
  int second;
  int millisecond;
};

void TimeGetLocal(LocalTime* time);

// Sets the machine's clock. False when the user may not.
bool TimeSetLocal(const LocalTime* time);

// A file time (100 ns since 1601, UTC) as local time. False on failure.
bool TimeFromFileTime(std::uint64_t fileTime, LocalTime* time);

// Milliseconds since some moment before the start. Setting the machine's clock does
// not change it.
std::uint64_t TimeMilliseconds();

// Seconds since 1970, for seeding the random generator.
std::int64_t TimeSeconds();
