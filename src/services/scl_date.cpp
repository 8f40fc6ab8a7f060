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
  const int leapYears = (year + 3) / 4;           // before this one
  int days = 5 + year * kDaysOfYear + leapYears;  // 1 January 2000 was a Saturday
  for (int m = 0; m < month; ++m) days += SclDaysInMonth(year, m);
  return days % kDaysOfWeek;
}
