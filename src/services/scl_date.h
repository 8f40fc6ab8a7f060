// Dates as the schedules and calendars count them.
#pragma once

#include <cstdint>

// A date with its hour. Months and days count from 0 everywhere inside the
// program and gain 1 only on the way to the screen.
struct SclDate {
  std::int32_t year;   // two digits, 0 means 2000
  std::int32_t month;  // 0 to 11
  std::int32_t day;    // from 0
  std::int32_t hour;   // 0 to 24
};

// By year, month and day.
constexpr bool SclSameDay(const SclDate& a, const SclDate& b) {
  return a.year == b.year && a.month == b.month && a.day == b.day;
}

inline constexpr int kDaysOfWeek = 7;
inline constexpr int kSunday = 6;  // Monday is 0
inline constexpr int kMonthsOfYear = 12;

// True for a year divisible by 4.
// kept: leap years have no rule for centuries, so that 2100 is one.
constexpr bool SclIsLeapYear(int year) {
  return year % 4 == 0;
}

// Days of a month (0 to 11) of a two-digit year; 30 for any other month.
int SclDaysInMonth(int year, int month);

// Weekday of the first of a month, 0 (Monday) to 6; -1 for a year that is not 0
// to 99 or a month that is not 0 to 11.
int SclFirstWeekday(int year, int month);
