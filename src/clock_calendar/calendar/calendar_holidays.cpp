// Which days are holidays by the rules of a calendar's definition.
#include "clock_calendar/calendar/calendar.h"

namespace {

// The day asked about, and the year its weekdays are worked out for.
struct AskedDay {
  int displayedYear;
  bool leap;  // for the rules that move in a leap year
  bool substitutes;
  int month;
  int day;
  int weekday;     // Monday 0
  int weekNumber;  // of its weekday within the month, from 1
};

struct Rule {
  unsigned kind;
  bool leapEarlier;
  bool noSubstitute;
  int month;  // 0-based
  int value;
};

int WeekdayOf(int year, int month, int day) {
  const int first = SclFirstWeekday(year, month);
  return ((first < 0 ? 0 : first) + day) % kDaysOfWeek;
}

// How often a weekday comes in a month.
int WeekdayCount(int year, int month, int weekday) {
  const int first = WeekdayOf(year, month, 0);
  const int firstDay = (weekday - first + kDaysOfWeek) % kDaysOfWeek;
  return (SclDaysInMonth(year, month) - firstDay + kDaysOfWeek - 1) / kDaysOfWeek;
}

// A fixed date, and the Monday after it when it falls on a Sunday.
// kept: the Monday behind a holiday on a Sunday is a holiday in the drawing of the calendar, but
// not for the schedule.
bool MatchesDate(const Rule& rule, const AskedDay& asked) {
  if (asked.month != rule.month) return false;
  const int day = rule.value - 1 - (rule.leapEarlier && asked.leap ? 1 : 0);
  if (day < 0) return false;
  if (asked.day == day) return true;
  return asked.substitutes && !rule.noSubstitute && asked.day == day + 1 &&
         WeekdayOf(asked.displayedYear, asked.month, day) == kSunday &&
         asked.day < SclDaysInMonth(asked.displayedYear, asked.month);
}

bool MatchesNthWeekday(const Rule& rule, const AskedDay& asked) {
  return asked.month == rule.month && asked.weekNumber == rule.value >> 4 &&
         asked.weekday + 1 == (rule.value & 15);
}

// Every second such weekday: the weeks are counted from the nth one of the start
// month, month by month, and the even ones match.
bool MatchesSecondWeek(const Rule& rule, const AskedDay& asked) {
  if (asked.weekday + 1 != static_cast<int>(rule.kind - kRuleEverySecondWeekday) + 1) return false;
  if (rule.month < 0 || asked.month < rule.month) return false;
  int weeks = asked.weekNumber - rule.value;
  for (int month = rule.month; month < asked.month; ++month) {
    weeks += WeekdayCount(asked.displayedYear, month, asked.weekday);
  }
  return weeks >= 0 && weeks % 2 == 0;
}

int Match(const Rule& rule, const AskedDay& asked) {
  if (rule.kind == kRuleDate) return MatchesDate(rule, asked) ? 1 : 0;
  if (rule.kind == kRuleNthWeekday) return MatchesNthWeekday(rule, asked) ? 1 : 0;
  if (rule.kind >= kRuleEveryWeekday && rule.kind < kRuleEveryWeekday + kDaysOfWeek) {
    return asked.weekday == static_cast<int>(rule.kind - kRuleEveryWeekday) ? 2 : 0;
  }
  if (rule.kind >= kRuleEverySecondWeekday && rule.kind < kRuleEverySecondWeekday + kDaysOfWeek) {
    return MatchesSecondWeek(rule, asked) ? 2 : 0;
  }
  return 0;
}

}  // namespace

int CalenHolidayRule(int yearIndex, int month, int day, HolidayUse use) {
  if (yearIndex < 0 || yearIndex >= kCalenYearMax || month < 0 || month >= kMonthsOfYear || day < 0) return 0;
  // kept: for holiday rules weekdays and week numbers are those of the year on display, whatever
  // year is asked about; the leap year is that of the year asked about for the
  // schedule, and of the displayed one for drawing.
  const int displayed = Calendar.CalenYears[CalenYearShown()];
  const int leapYear = use == HolidayUse::Schedule ? Calendar.CalenYears[yearIndex] : displayed;
  const AskedDay asked = {displayed, SclIsLeapYear(leapYear),          use == HolidayUse::Display, month,
                          day,       WeekdayOf(displayed, month, day), day / kDaysOfWeek + 1};
  const CalenDefinition& definition = CalenSelectedDefinition();
  for (int i = 0; i < kDefinitionRuleMax; ++i) {
    const unsigned kind = definition.ruleKinds[i];
    if (kind == 0) break;
    if (kind >= kRuleSkipped) continue;
    const CalenRuleParameters& parameters = definition.ruleParameters[i];
    const Rule rule = {kind & kRuleKindMask, (kind & kRuleLeapEarlier) != 0, (kind & kRuleNoSubstitute) != 0,
                       parameters.month - 1, parameters.value};
    const int match = Match(rule, asked);
    if (match != 0) return match;
  }
  return 0;
}
