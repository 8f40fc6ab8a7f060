#include "newdata/holidays.h"

#include <algorithm>
#include <set>

#include "clock_calendar/calendar/calendar.h"

namespace {

struct FixedDay {
  int month;
  int day;
};
constexpr FixedDay kFixedDays[] = {
    {1, 1},    // 元日
    {2, 11},   // 建国記念の日
    {2, 23},   // 天皇誕生日
    {4, 29},   // 昭和の日
    {5, 3},    // 憲法記念日
    {5, 4},    // みどりの日
    {5, 5},    // こどもの日
    {8, 11},   // 山の日
    {11, 3},   // 文化の日
    {11, 23},  // 勤労感謝の日
};

struct MondayOf {
  int month;
  int week;
};
constexpr MondayOf kMondays[] = {
    {1, 2},   // 成人の日
    {7, 3},   // 海の日
    {9, 3},   // 敬老の日
    {10, 2},  // スポーツの日
};

// The equinoxes by the customary formula, good from 1980 to 2099.
constexpr int kEquinoxBase = 1980;
constexpr double kEquinoxYear = 0.242194;
struct Equinox {
  int month;
  double first;
};
constexpr Equinox kSpring = {3, 20.8431};  // 春分の日
constexpr Equinox kAutumn = {9, 23.2488};  // 秋分の日

int EquinoxDay(const Equinox& equinox, int year) {
  const int years = year - kEquinoxBase;
  return static_cast<int>(equinox.first + kEquinoxYear * years) - years / 4;
}

// A day of a year, counted from 0.
int DayOfYear(int year, int month, int day) {
  int days = day - 1;
  for (int m = 1; m < month; ++m) days += SclDaysInMonth(year - 2000, m - 1);
  return days;
}

MonthDay MonthDayOf(int year, int dayOfYear) {
  int month = 0;
  while (dayOfYear >= SclDaysInMonth(year - 2000, month)) dayOfYear -= SclDaysInMonth(year - 2000, month++);
  return {month + 1, dayOfYear + 1};
}

bool IsSunday(int year, int dayOfYear) {
  return (SclFirstWeekday(year - 2000, 0) + dayOfYear) % kDaysOfWeek == kSunday;
}

int MondayDay(int year, const MondayOf& monday) {
  const int first = SclFirstWeekday(year - 2000, monday.month - 1);
  const int firstMonday = 1 + (kDaysOfWeek - first) % kDaysOfWeek;
  return firstMonday + kDaysOfWeek * (monday.week - 1);
}

// The rule that is right for the year and for the most years in a row after it.
HolidayRule EquinoxRule(const Equinox& equinox, int year) {
  const auto rightYears = [&](int d, bool earlier) {
    int right = 0;
    while (year + right < 2100 &&
           EquinoxDay(equinox, year + right) == d - (earlier && SclIsLeapYear(year + right) ? 1 : 0)) {
      ++right;
    }
    return right;
  };
  const int today = EquinoxDay(equinox, year);
  HolidayRule best{kRuleDate, equinox.month, today};
  int most = rightYears(today, false);
  for (const int d : {today, today + 1}) {
    if (const int right = rightYears(d, true); right > most) {
      most = right;
      best = {kRuleDate | kRuleLeapEarlier, equinox.month, d};
    }
  }
  return best;
}

}  // namespace

std::vector<MonthDay> HolidaysOf(int year) {
  std::set<int> named;  // days of the year
  for (const FixedDay& fixed : kFixedDays) named.insert(DayOfYear(year, fixed.month, fixed.day));
  for (const MondayOf& monday : kMondays) {
    named.insert(DayOfYear(year, monday.month, MondayDay(year, monday)));
  }
  for (const Equinox& equinox : {kSpring, kAutumn}) {
    named.insert(DayOfYear(year, equinox.month, EquinoxDay(equinox, year)));
  }
  std::set<int> all = named;
  for (const int day : named) {
    // A holiday on a Sunday is made up for on the next day that is none.
    if (IsSunday(year, day)) {
      int substitute = day + 1;
      while (named.contains(substitute)) ++substitute;
      all.insert(substitute);
    }
    // The one day between two holidays is a holiday too.
    if (!named.contains(day + 1) && named.contains(day + 2) && !IsSunday(year, day + 1)) all.insert(day + 1);
  }
  std::vector<MonthDay> result;
  for (const int day : all) result.push_back(MonthDayOf(year, day));
  return result;
}

std::vector<HolidayRule> HolidayRulesFor(int year) {
  std::vector<HolidayRule> rules;
  for (const FixedDay& fixed : kFixedDays) rules.push_back({kRuleDate, fixed.month, fixed.day});
  for (const MondayOf& monday : kMondays) {
    constexpr int kMondayNumber = 1;
    rules.push_back({kRuleNthWeekday, monday.month, monday.week * 16 + kMondayNumber});
  }
  rules.push_back(EquinoxRule(kSpring, year));
  rules.push_back(EquinoxRule(kAutumn, year));
  std::stable_sort(rules.begin(), rules.end(),
                   [](const HolidayRule& a, const HolidayRule& b) { return a.month < b.month; });
  rules.push_back({kRuleEveryWeekday + kSunday, 0, 0});
  return rules;
}
