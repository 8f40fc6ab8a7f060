#include "newdata/holidays.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "newdata/tables.h"

namespace {

using Dates = std::vector<MonthDay>;

// 2026: New Year's Day is a Thursday. 3 May is a Sunday, made up for on the 6th,
// as the 4th and 5th are holidays too; 22 September lies between two holidays.
const Dates kHolidays2026 = {{1, 1},  {1, 12}, {2, 11}, {2, 23},  {3, 20}, {4, 29},
                             {5, 3},  {5, 4},  {5, 5},  {5, 6},   {7, 20}, {8, 11},
                             {9, 21}, {9, 22}, {9, 23}, {10, 12}, {11, 3}, {11, 23}};
// 2027: New Year's Day is a Friday. 21 March is a Sunday, made up for on the 22nd.
const Dates kHolidays2027 = {{1, 1}, {1, 11}, {2, 11}, {2, 23}, {3, 21}, {3, 22},  {4, 29}, {5, 3},  {5, 4},
                             {5, 5}, {7, 19}, {8, 11}, {9, 20}, {9, 23}, {10, 11}, {11, 3}, {11, 23}};

// The days as published for 2024 and 2025.
const Dates kHolidays2024 = {{1, 1},  {1, 8},  {2, 11}, {2, 12},  {2, 23}, {3, 20}, {4, 29},
                             {5, 3},  {5, 4},  {5, 5},  {5, 6},   {7, 15}, {8, 11}, {8, 12},
                             {9, 16}, {9, 22}, {9, 23}, {10, 14}, {11, 3}, {11, 4}, {11, 23}};
const Dates kHolidays2025 = {{1, 1},  {1, 13},  {2, 11}, {2, 23},  {2, 24}, {3, 20}, {4, 29},
                             {5, 3},  {5, 4},   {5, 5},  {5, 6},   {7, 21}, {8, 11}, {9, 15},
                             {9, 23}, {10, 13}, {11, 3}, {11, 23}, {11, 24}};

// Fills the calendars for a year and returns what they show as holidays in the
// year at a place of the working array: by flag or by a rule of the first kind,
// without plain Sundays.
Dates ShownHolidays(int year, int place) {
  CalenStartDefaults();
  FillCalendars(year);
  Calendar.CalenYearPos = place;
  Dates shown;
  for (int month = 0; month < kMonthsOfYear; ++month) {
    for (int day = 0; day < Calendar.CalenMonths[place][month].days; ++day) {
      const int weekday = (Calendar.CalenMonths[place][month].firstWeekday + day) % kDaysOfWeek;
      const int rule = CalenHolidayRule(place, month, day, HolidayUse::Display);
      const bool flagged = CalenHolidayFlag(place, month, day) && weekday != kSunday;
      if (rule == 1 || flagged) shown.push_back({month + 1, day + 1});
    }
  }
  Calendar.CalenYearPos = 0;
  return shown;
}

const HolidayRule* RuleOf(const std::vector<HolidayRule>& rules, int month, int value) {
  for (const HolidayRule& rule : rules) {
    if (rule.month == month && rule.value == value) return &rule;
  }
  return nullptr;
}

}  // namespace

TEST(Holidays, DatesOf2024And2025) {
  EXPECT_EQ(HolidaysOf(2024), kHolidays2024);
  EXPECT_EQ(HolidaysOf(2025), kHolidays2025);
  EXPECT_EQ(ShownHolidays(2024, 0), kHolidays2024);
  EXPECT_EQ(ShownHolidays(2025, 0), kHolidays2025);
}

TEST(Holidays, DatesOf2026) {
  EXPECT_EQ(HolidaysOf(2026), kHolidays2026);
}

TEST(Holidays, DatesOf2027) {
  EXPECT_EQ(HolidaysOf(2027), kHolidays2027);
}

TEST(Holidays, EquinoxesMoveThroughTheYears) {
  // Spring: the 20th but for every fourth year, which has the 21st. Autumn: the
  // 23rd, in leap years the 22nd.
  const int springDays[8] = {20, 20, 20, 21, 20, 20, 20, 21};  // 2024 to 2031
  const int autumnDays[8] = {22, 23, 23, 23, 22, 23, 23, 23};
  for (int i = 0; i < 8; ++i) {
    const Dates dates = HolidaysOf(2024 + i);
    EXPECT_TRUE(std::find(dates.begin(), dates.end(), MonthDay{3, springDays[i]}) != dates.end()) << 2024 + i;
    EXPECT_TRUE(std::find(dates.begin(), dates.end(), MonthDay{9, autumnDays[i]}) != dates.end()) << 2024 + i;
  }
}

TEST(Holidays, RulesAndFlagsOf2026GiveItsDates) {
  EXPECT_EQ(ShownHolidays(2026, 0), kHolidays2026);
}

TEST(Holidays, RulesAndFlagsOf2027GiveItsDates) {
  EXPECT_EQ(ShownHolidays(2027, 0), kHolidays2027);
}

TEST(Holidays, EveryYearShowsItsOwnDatesWhenItIsTheFirst) {
  for (int year = 2022; year <= 2099; ++year) EXPECT_EQ(ShownHolidays(year, 0), HolidaysOf(year)) << year;
}

TEST(Holidays, LaterYearsOfTheWorkingArrayMissNone) {
  for (const int place : {1, 2}) {
    ShownHolidays(2026, place);
    Calendar.CalenYearPos = place;
    for (const MonthDay& date : HolidaysOf(2026 + place)) {
      const bool byRule = CalenHolidayRule(place, date.month - 1, date.day - 1, HolidayUse::Display) != 0;
      EXPECT_TRUE(byRule || CalenHolidayFlag(place, date.month - 1, date.day - 1))
          << 2026 + place << " " << date.month << "/" << date.day;
    }
  }
  Calendar.CalenYearPos = 0;
}

TEST(Holidays, SundaysAreHolidaysByWeekdayInTheLastRule) {
  const std::vector<HolidayRule> rules = HolidayRulesFor(2026);
  EXPECT_EQ(rules.back().kind, 9U);  // every Sunday
  CalenStartDefaults();
  FillCalendars(2026);
  EXPECT_EQ(CalenHolidayRule(0, 5, 6, HolidayUse::Display), 2);  // Sunday, 7 June 2026
  EXPECT_EQ(CalenHolidayRule(0, 4, 2, HolidayUse::Display), 1);  // Sunday, 3 May 2026: by date first
  EXPECT_EQ(CalenHolidayRule(0, 5, 7, HolidayUse::Display), 0);
}

TEST(Holidays, RulesNameTheirKinds) {
  const std::vector<HolidayRule> rules = HolidayRulesFor(2026);
  ASSERT_NE(RuleOf(rules, 1, 1), nullptr);
  EXPECT_EQ(RuleOf(rules, 1, 1)->kind, 1U);  // New Year's Day, with a substitute
  ASSERT_NE(RuleOf(rules, 1, 0x21), nullptr);
  EXPECT_EQ(RuleOf(rules, 1, 0x21)->kind, 2U);  // second Monday of January
  ASSERT_NE(RuleOf(rules, 7, 0x31), nullptr);   // third Monday of July
  ASSERT_NE(RuleOf(rules, 9, 0x31), nullptr);
  ASSERT_NE(RuleOf(rules, 10, 0x21), nullptr);
  ASSERT_NE(RuleOf(rules, 9, 23), nullptr);
  EXPECT_EQ(RuleOf(rules, 9, 23)->kind, 1U + 32U);  // a day earlier in leap years
  EXPECT_EQ(rules.size(), 17U);
}

TEST(Holidays, SpringRuleIsTheOneThatHoldsLongest) {
  // From 2027 on: the 21st, in the leap year 2028 the 20th.
  const std::vector<HolidayRule> from2027 = HolidayRulesFor(2027);
  ASSERT_NE(RuleOf(from2027, 3, 21), nullptr);
  EXPECT_EQ(RuleOf(from2027, 3, 21)->kind, 1U + 32U);
  // From 2028 on: the 20th for three years, which a plain rule tells.
  const std::vector<HolidayRule> from2028 = HolidayRulesFor(2028);
  ASSERT_NE(RuleOf(from2028, 3, 20), nullptr);
  EXPECT_EQ(RuleOf(from2028, 3, 20)->kind, 1U);
}

TEST(Holidays, SubstituteIsForTheDrawingOnly) {
  ShownHolidays(2027, 0);
  EXPECT_EQ(CalenHolidayRule(0, 2, 21, HolidayUse::Display), 1);  // Monday, 22 March 2027
  EXPECT_EQ(CalenHolidayRule(0, 2, 21, HolidayUse::Schedule), 0);
}

TEST(FillCalendars, YearsOutsideAreRefused) {
  EXPECT_THROW(FillCalendars(2021), std::runtime_error);
  EXPECT_THROW(FillCalendars(2100), std::runtime_error);
}
