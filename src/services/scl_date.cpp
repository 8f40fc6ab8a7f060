#include "services/scl_date.h"

int SclDaysInMonth(int year, int month) {
  switch (month) {
    case 0:
    case 2:
    case 4:
    case 6:
    case 7:
    case 9:
    case 11:
      return 31;
    case 1:
      return SclIsLeapYear(year) ? 29 : 28;
    default:
      return 30;
  }
}

int SclFirstWeekday(int year, int month) {
  if (year < 0 || year > 99 || month < 0 || month >= kMonthsOfYear) return -1;
  constexpr int kDaysOfYear = 365;
  constexpr int kDaysBefore[kMonthsOfYear] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const int leapYears = (year + 3) / 4;  // before this one
  const int leapDay = month > 1 && SclIsLeapYear(year) ? 1 : 0;
  // 1 January 2000 was a Saturday.
  return (5 + year * kDaysOfYear + leapYears + kDaysBefore[month] + leapDay) % kDaysOfWeek;
}
