#include "schedule/model/scl_dates.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "clock_calendar/calendar/calendar.h"
#include "schedule/model/schedule.h"

namespace {

constexpr int kMonthsWalked = 2400;
// In four years every month has come as often as in any other four.
constexpr int kCycleYears = 4;
constexpr int kCycleMonths = kCycleYears * kMonthsOfYear;
constexpr int kCycleDays = 1461;

void NextMonth(SclDate& date) {
  date.day = 0;
  if (++date.month < kMonthsOfYear) return;
  date.month = 0;
  ++date.year;
}

// Moves a date over whole months, at most 2400, as long as the day `offset` days on lies
// behind its month: it is the first of that day's month then. Returns the days that are
// left.
std::int64_t OverMonths(SclDate& date, std::int64_t offset) {
  int walked = 0;
  if (offset >= kCycleDays && date.month >= 0 && date.month < kMonthsOfYear) {
    const auto cycles =
        static_cast<int>(std::min<std::int64_t>(offset / kCycleDays, kMonthsWalked / kCycleMonths - 1));
    offset += date.day - std::int64_t{cycles} * kCycleDays;
    date.day = 0;
    date.year += cycles * kCycleYears;
    walked = cycles * kCycleMonths;
  }
  for (; walked < kMonthsWalked; ++walked) {
    const int last = SclDaysInMonth(date.year, date.month) - 1;
    if (date.day + offset <= last) break;
    offset = std::max<std::int64_t>(offset - (last - date.day) - 1, 0);
    NextMonth(date);
  }
  return offset;
}

void OverDays(SclDate& date, std::int64_t days) {
  date.day += static_cast<std::int32_t>(OverMonths(date, days));
}

enum class Holidays { Flags, FlagsAndRules };

int PlainWeekday(const SclDate& date, int day) {
  return (SclFirstWeekday(date.year, date.month) + day) % kDaysOfWeek;
}

// The row of a day of the date's month.
int RowOf(const SclDate& date, int day, Holidays holidays) {
  const int year = CalenSpanIndex(date.year);
  if (year < 0) return PlainWeekday(date, day);
  const int weekday = (std::max(SclFirstWeekday(date.year, date.month), 0) + day) % kDaysOfWeek;
  // kept: a Sunday has the work row of Sundays, whether it is a holiday or not.
  if (weekday == kSunday) return weekday;
  if (CalenHolidayFlag(year, date.month, day)) return kSclHolidayRow;
  const bool byRule = holidays == Holidays::FlagsAndRules &&
                      CalenHolidayRule(year, date.month, day, HolidayUse::Schedule) != 0;
  return byRule ? kSclHolidayRow : weekday;
}

const SclWorkDayRow& LiveRow(const SclDate& date) {
  return SclRowOfDay(Schedule.SclHeader.rows, date);
}

// --- Adding hours

// settled: work that has no end within 73000 days is given none: the end is the start. So
// it is with work rows of no hours, and with rows that the walk never meets.
constexpr int kDaysWalked = 73000;

bool AnyWork() {
  return std::any_of(std::begin(Schedule.SclHeader.rows), std::end(Schedule.SclHeader.rows),
                     [](const SclWorkDayRow& row) { return row.end > row.begin; });
}

// Where the hours end: days on from the start, and the hour there. False for no end.
struct WorkEnd {
  int days;
  std::int64_t hour;
};
bool WorkEndFind(std::int64_t hours, const SclDate& start, WorkEnd& end) {
  SclDate probe = start;
  const SclWorkDayRow* row = &SclRowAt(Schedule.SclHeader.rows, SclDayRowOf(probe, 0));
  end = {0, start.hour};
  const auto nextDay = [&] {
    // kept: in adding work hours the count of days is handed to the walk, which goes on from
    // where it stands, so that the rows looked at are those 1, 3, 6, 10 days from the start.
    row = &SclRowAt(Schedule.SclHeader.rows, SclDayRowOf(probe, ++end.days));
    end.hour = row->begin;
  };
  if (end.hour >= row->end) nextDay();
  while (end.hour + hours > row->end) {
    if (end.days >= kDaysWalked) return false;
    hours -= std::max<std::int64_t>(row->end - end.hour, 0);
    nextDay();
  }
  end.hour += hours;
  return true;
}

// --- Hours between

// What is left of a day's work at an hour.
std::int64_t FirstDay(const SclDate& date) {
  const SclWorkDayRow& row = LiveRow(date);
  const std::int64_t length = row.length;
  // kept: between two dates a start before the begin of work counts the first day as no hours.
  if (date.hour < row.begin) return 0;
  return length - std::min<std::int64_t>(std::int64_t{date.hour} - row.begin, length);
}

// What has been done of a day's work at an hour.
std::int64_t LastDay(const SclDate& date) {
  const SclWorkDayRow& row = LiveRow(date);
  if (date.hour < row.begin) return 0;
  return std::min<std::int64_t>(std::int64_t{date.hour} - row.begin, row.length);
}

std::int64_t DaysBetween(const SclDate& earlier, const SclDate& later) {
  const std::int64_t first = FirstDay(earlier);
  std::int64_t total = first + LastDay(later);
  std::int32_t days = SclDayDistance(earlier, later);
  // kept: between two dates the last day is taken off the days that are counted whole only when
  // it or the first one has given hours.
  if (total != 0 && days != 0) --days;
  // settled: between two dates a first day that has given no hours is looked at once more as a
  // whole day.
  int offset = first != 0 ? 1 : 0;
  SclDate date = earlier;
  for (; days > 0; --days, ++offset) {
    total += SclRowAt(Schedule.SclHeader.rows, SclDayRowCount(date, offset)).length;
  }
  return total;
}

// -2 to -5 by the first field that is before; 0 for none.
int Refusal(const SclDate& earlier, const SclDate& later) {
  if (later.year != earlier.year) return later.year < earlier.year ? -2 : 0;
  if (later.month != earlier.month) return later.month < earlier.month ? -3 : 0;
  if (later.day != earlier.day) return later.day < earlier.day ? -4 : 0;
  return later.hour < earlier.hour ? -5 : 0;
}

}  // namespace

int SclDayRowOf(SclDate& date, int offset) {
  OverDays(date, offset);
  return RowOf(date, date.day, Holidays::FlagsAndRules);
}

int SclPlainWeekdayOf(SclDate& date, int offset) {
  const auto left = static_cast<int>(OverMonths(date, offset));
  return PlainWeekday(date, date.day + left);
}

int SclDayRowCount(SclDate& date, int& offset) {
  const SclDate from = date;
  const auto left = static_cast<int>(OverMonths(date, offset));
  if (date.month != from.month || date.year != from.year) offset = 0;
  return RowOf(date, date.day + left, Holidays::Flags);
}

const SclWorkDayRow& SclRowAt(const SclWorkDayRow (&rows)[kSclRowCount], int row) {
  // bounded: the first of a month from 2100 on has the row -1; it works like a Monday.
  return rows[row >= 0 && row < kSclRowCount ? row : 0];
}

const SclWorkDayRow& SclRowOfDay(const SclWorkDayRow (&rows)[kSclRowCount], SclDate date) {
  return SclRowAt(rows, SclDayRowOf(date, 0));
}

SclDate SclNextDay(SclDate date) {
  OverDays(date, 1);
  return date;
}

SclDate SclStartMoved(const SclWorkDayRow (&rows)[kSclRowCount], const SclDate& start) {
  // kept: only a start that is exactly the end of its day's work moves to the next day; a later
  // one stays.
  if (start.hour != SclRowOfDay(rows, start).end) return start;
  SclDate next = SclNextDay(start);
  next.hour = SclRowOfDay(rows, next).begin;
  return next;
}

void SclAddWorkHours(std::uint32_t hours, const SclDate& start, SclDate& result) {
  WorkEnd end = {};
  const bool found =
      AnyWork() && hours <= std::uint32_t{kDaysWalked} * kSclDayHours && WorkEndFind(hours, start, end);
  result = start;
  if (!found) return;
  OverDays(result, end.days);
  result.hour = static_cast<std::int32_t>(end.hour);
}

std::int32_t SclWorkHoursBetween(const SclDate& earlier, const SclDate& later) {
  const int refusal = Refusal(earlier, later);
  if (refusal != 0) return refusal;
  const std::int64_t hours =
      SclSameDay(earlier, later)
          ? std::min<std::int64_t>(std::int64_t{later.hour} - earlier.hour, LiveRow(earlier).length)
          : DaysBetween(earlier, later);
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(hours, 0, std::numeric_limits<std::int32_t>::max()));
}

std::int32_t SclDayDistance(const SclDate& from, const SclDate& to) {
  if (from.year == to.year && from.month == to.month) return to.day - from.day;
  std::int64_t days = to.day;
  SclDate at = from;
  while (at.year < to.year || (at.year == to.year && at.month < to.month)) {
    days += SclDaysInMonth(at.year, at.month) - at.day;
    NextMonth(at);
  }
  return static_cast<std::int32_t>(days);
}

int SclDateCompare(const SclDate& a, const SclDate& b) {
  return Refusal(a, b) != 0 ? 1 : Refusal(b, a) != 0 ? -1 : 0;
}

SclDate SclDateOf(const SclItemDate& date) {
  return {date.year, date.month, date.day, date.hour};
}

SclItemDate SclItemDateOf(const SclDate& date) {
  return {static_cast<std::uint8_t>(date.year), static_cast<std::uint8_t>(date.month),
          static_cast<std::uint8_t>(date.day), static_cast<std::uint8_t>(date.hour)};
}
