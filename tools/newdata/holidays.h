// Japan's public holidays: the dates of a year, and the rules that a calendar's
// definition holds for them.
#pragma once

#include <vector>

// Month and day from 1.
struct MonthDay {
  int month;
  int day;

  auto operator<=>(const MonthDay&) const = default;
};

// All public holidays of a year from 2022 to 2099 in their order, with the
// substitutes for those that fall on a Sunday and the days between two holidays.
std::vector<MonthDay> HolidaysOf(int year);

// A rule of a definition, as clock_calendar/calendar.h names its bytes.
struct HolidayRule {
  unsigned kind;
  int month;  // 0 for kinds without
  int value;
};

// The rules for a year and, as far as one rule can tell them, the years after it.
// Every date they give for that year is a holiday; the day between two holidays
// and a substitute that comes later than the next day are beyond rules. The last
// rule stands for the Sundays.
std::vector<HolidayRule> HolidayRulesFor(int year);
