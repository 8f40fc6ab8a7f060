#include "schedule/plan/plan_convert.h"

#include <algorithm>
#include <cstring>

#include "schedule/model/schedule.h"
#include "schedule/model/scl_dates.h"
#include "services/text.h"

namespace {

constexpr int kWaitBound = 20000;  // days; a line that waits as long is not waited for

// settled: a plan's line of more hours than can be typed, which only a file can hold, is placed
// with the most that can be typed.
constexpr std::uint32_t kHoursMost = 15 * 1111;

constexpr const char* kDayLabels[kDaysOfWeek] = {"月", "火", "水", "木", "金", "土", "日"};

// settled: a rest of a plan file that is shorter than no hour or longer than a day is taken for
// none, or for a day.
int RestLength(const ScpRestPeriod& rest) {
  return std::clamp(rest.length, std::int32_t{0}, std::int32_t{kSclDayHours});
}

void RestText(char (&text)[kSclItemTextSize], int row, int number) {
  if (row == kSclHolidayRow) {
    TextFormat(text, sizeof text, "休日 - 休憩%d", number);
  } else {
    TextFormat(text, sizeof text, "%s曜日 - 休憩%d", kDayLabels[row], number);
  }
}

// The place of a row's rest that starts at an hour, -1 for none.
int RestOf(int row, int hour) {
  for (int rest = 0; rest < kScpRestCount; ++rest) {
    const ScpRestPeriod& period = Plan.head.ScpRestTable[row][rest];
    if (RestLength(period) != 0 && period.start == hour) return rest;
  }
  return -1;
}

int RowOf(SclDate date) {
  return std::clamp(SclDayRowOf(date, 0), 0, kSclRowCount - 1);
}

const SclWorkDayRow& HoursOf(const SclDate& date) {
  return Schedule.SclHeader.rows[RowOf(date)];
}

void WorkHoursPass(std::uint32_t hours, SclDate& date) {
  const SclDate start = date;
  SclAddWorkHours(hours, start, date);
}

bool DayIsOver(const SclDate& date) {
  return date.hour >= HoursOf(date).end;
}

// kept: a conversion whose last item fills the table to the brim counts as one that did not fit;
// what has been placed stays.
bool TableIsFull(int items) {
  return items >= kSclItemMax;
}

// The hours from `hour` on, where no rest begins, that lie in a day before a rest begins and
// before the day ends; at most `most`.
std::uint32_t HoursInDay(int row, int hour, std::uint32_t most) {
  const int end = Schedule.SclHeader.rows[row].end;
  std::uint32_t hours = 0;
  while (hours < most && hour < end && (hours == 0 || RestOf(row, hour) < 0)) {
    ++hours;
    ++hour;
  }
  return hours;
}

// One placement as it grows.
struct Placement {
  const ScpPlanRec& plan;
  int item;            // the one that is being filled
  SclDate at;          // the end of what is placed
  std::uint32_t left;  // hours still to be placed
  std::uint32_t done;  // hours of this item
};

void ItemClose(const Placement& placement) {
  SclItemRec& item = SclItem(placement.item);
  item.end = SclItemDateOf(placement.at);
  item.hours = placement.done;
  std::memcpy(item.text, placement.plan.text, sizeof item.text);
}

bool EndsTheDay(const Placement& placement) {
  return Plan.head.ScpPlanKind == kScpTraining && DayIsOver(placement.at);
}

void HoursCount(Placement& placement, std::uint32_t hours) {
  placement.done += hours;
  placement.left -= hours;
}

// The next hour lies in another day.
void HourPlaceBeyond(Placement& placement) {
  const SclDate before = placement.at;
  WorkHoursPass(1, placement.at);
  const bool found = SclDateCompare(before, placement.at) != 0;
  // Where there is no work to be found, there is none for the hours behind this one either.
  HoursCount(placement, found || EndsTheDay(placement) ? 1 : placement.left);
}

void HoursPlace(Placement& placement, int row) {
  if (placement.done == 0) SclItem(placement.item).start = SclItemDateOf(placement.at);
  const std::uint32_t hours = HoursInDay(row, placement.at.hour, placement.left);
  placement.at.hour += static_cast<int>(hours);
  HoursCount(placement, hours);
  if (hours == 0) HourPlaceBeyond(placement);
}

// Puts a rest behind the item that is being filled. False when the table is full.
// kept: two rests of a plan that follow each other have an item of no hours between them,
// which starts nowhere.
bool RestPlace(Placement& placement, int rowAndOne) {
  ItemClose(placement);
  if (TableIsFull(++placement.item)) return false;
  ScpAddRestLine(placement.item, rowAndOne, placement.at);
  placement.done = 0;
  return !TableIsFull(++placement.item);
}

// A workout never runs past the end of the day: the rest of its hours is dropped.
void WorkoutEnd(Placement& placement) {
  if (placement.done == 0 || !EndsTheDay(placement)) return;
  ItemClose(placement);
  placement.left = 0;
  placement.done = 0;
}

// The rests that begin where the placement does. False when the table is full.
bool RestsBefore(Placement& placement) {
  while (const int row = ScpRestAt(placement.at)) {
    ScpAddRestLine(placement.item, row, placement.at);
    if (TableIsFull(++placement.item)) return false;
  }
  return true;
}

// The hours and the rests between them. False when the table is full.
bool HoursPlaceAll(Placement& placement) {
  while (placement.left != 0) {
    const int row = RowOf(placement.at);
    const bool rests = RestOf(row, placement.at.hour) >= 0;
    if (rests && !RestPlace(placement, row + 1)) return false;
    if (!rests) HoursPlace(placement, row);
    WorkoutEnd(placement);
  }
  return true;
}

// What is left of a day, and the days to come.
std::uint32_t HoursUntil(const SclDate& current, std::int64_t days) {
  std::int64_t hours = std::max(HoursOf(current).end - current.hour, 0);
  SclDate day = current;
  for (; days > 0; --days) hours += SclRowAt(Plan.head.rows, SclDayRowOf(day, 1)).length;
  return static_cast<std::uint32_t>(hours);
}

std::int64_t DueDay(const ScpProgress& progress, int line) {
  return std::int64_t{progress.lastDay[line]} + progress.wait[line];
}

// The line that is due first, -1 for none.
int FirstDue(const ScpProgress& progress) {
  int first = -1;
  std::int64_t day = kWaitBound;
  for (int line = 0; line < progress.lines; ++line) {
    if (progress.remaining[line] <= 0 || DueDay(progress, line) >= day) continue;
    first = line;
    day = DueDay(progress, line);
  }
  return first;
}

template <class Fits>
int FirstLine(const ScpProgress& progress, Fits fits) {
  for (int line = 0; line < progress.lines; ++line) {
    if (progress.remaining[line] > 0 && fits(line)) return line + 1;
  }
  return 0;
}

// settled: a plan's start that is no date, which only a file can hold, is the nearest one
// that the items can hold.
SclDate StartHeld() {
  SclDate date = Plan.head.start;
  date.year = std::clamp(date.year, std::int32_t{0}, std::int32_t{UINT8_MAX});
  date.month = std::clamp(date.month, std::int32_t{0}, std::int32_t{kMonthsOfYear - 1});
  date.day = std::clamp(date.day, std::int32_t{0}, SclDaysInMonth(date.year, date.month) - 1);
  date.hour = std::clamp(date.hour, std::int32_t{0}, std::int32_t{kSclDayHours});
  return date;
}

// The plan's start, or the begin of the next day when that day is over.
SclDate FirstHour() {
  SclDate date = StartHeld();
  if (DayIsOver(date)) {
    const int row = SclDayRowOf(date, 1);
    date.hour = SclRowAt(Schedule.SclHeader.rows, row).begin;
  }
  return date;
}

// False when no line has hours.
bool ProgressBegin(ScpProgress& progress) {
  progress = {};
  progress.lines = 0;
  for (int line = 0; line < kScpLineMax; ++line) {
    const ScpPlanRec& plan = Plan.ScpPlanTable[line];
    if (plan.hours == 0) continue;
    progress.remaining[line] = plan.repeat + 1;
    progress.lines = line + 1;
  }
  return progress.lines > 0;
}

int LinePlace(ScpProgress& progress, int line, SclDate& current) {
  const int result = ScpAddLine(current, line);
  ScpNextRepeat(line, progress.remaining[line], progress.wait[line]);
  progress.lastDay[line] = ScpDayDistance(Schedule.SclHeader.start, current);
  return result;
}

int PlaceAll(ScpProgress& progress) {
  SclDate current = Schedule.SclHeader.start;
  for (int day = 0;; day = ScpDayDistance(Schedule.SclHeader.start, current)) {
    const int due = ScpPickDueLine(progress, day);
    const int result =
        due != 0 ? LinePlace(progress, due - 1, current) : ScpBridgeWait(current, progress, day);
    if (result < 0 || (due == 0 && result == 0)) return result;
  }
}

}  // namespace

int ScpRestAt(const SclDate& date) {
  const int row = RowOf(date);
  return RestOf(row, date.hour) < 0 ? 0 : row + 1;
}

void ScpAddRestLine(int item, int rowAndOne, SclDate& date) {
  const int row = rowAndOne - 1;
  const int rest = RestOf(row, date.hour);
  if (rest < 0) return;
  SclItemRec& record = SclItem(item);
  record.hours = static_cast<std::uint32_t>(RestLength(Plan.head.ScpRestTable[row][rest]));
  record.start = SclItemDateOf(date);
  WorkHoursPass(record.hours, date);
  record.end = SclItemDateOf(date);
  RestText(record.text, row, rest + 1);
}

int ScpAddLine(SclDate& current, int line) {
  const ScpPlanRec& plan = Plan.ScpPlanTable[line];
  Placement placement{plan, Schedule.SclHeader.count, current, std::min(plan.hours, kHoursMost), 0};
  if (!RestsBefore(placement)) return -3;
  if (!HoursPlaceAll(placement)) return -2;
  if (placement.done > 0) ItemClose(placement);
  SclCountSet(placement.item + 1);
  current = placement.at;
  return TableIsFull(Schedule.SclHeader.count) ? -1 : 0;
}

int ScpPickDueLine(const ScpProgress& progress, int day) {
  const int due = FirstLine(progress, [&](int line) {
    return progress.wait[line] > 0 && progress.wait[line] <= day - progress.lastDay[line];
  });
  return due != 0 ? due : FirstLine(progress, [&](int line) { return progress.wait[line] == 0; });
}

int ScpBridgeWait(SclDate& current, const ScpProgress& progress, int day) {
  const int line = FirstDue(progress);
  if (line < 0) return 0;
  const std::int64_t gap = DueDay(progress, line) - day;
  std::uint32_t hours = HoursUntil(current, gap);
  SclItemRec& item = SclItem(Schedule.SclHeader.count);
  item.start = SclItemDateOf(current);
  WorkHoursPass(hours, current);
  const int begin = HoursOf(current).begin;
  if (gap != 0 && current.hour > begin) {
    // kept: where the hours of the weekdays differ, more can be taken off those of a wait than
    // there were.
    hours -= static_cast<std::uint32_t>(current.hour - begin);
    current.hour = begin;
  }
  item.end = SclItemDateOf(current);
  item.hours = hours;
  SclCountSet(Schedule.SclHeader.count + 1);
  return TableIsFull(Schedule.SclHeader.count) ? -1 : line + 1;
}

void ScpNextRepeat(int line, int& remaining, int& wait) {
  const ScpPlanRec& plan = Plan.ScpPlanTable[line];
  if (remaining == 0 || plan.repeat == 0) {
    wait = 0;
    remaining = 0;
    return;
  }
  const std::uint32_t place = Plan.head.ScpPlanKind == kScpTraining
                                  ? plan.load
                                  : static_cast<std::uint32_t>(plan.repeat - (remaining - 1));
  // bounded: a plan's wait behind the tenth, and that of a load which is none, is the tenth.
  wait = Plan.head.ScpIntervalTable[std::min(place, std::uint32_t{kScpIntervalCount - 1})];
  --remaining;
}

int ScpDayDistance(const SclDate& from, const SclDate& to) {
  return SclDayDistance(from, to);
}

int ScpConvertToSchedule() {
  SclConversionBegin(Plan.head.title, Plan.head.rows);
  SclStart() = FirstHour();
  ScpProgress progress;
  const int result = ProgressBegin(progress) ? PlaceAll(progress) : 0;
  if (result == 0) SclConversionEnd();
  return result;
}
