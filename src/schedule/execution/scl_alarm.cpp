#include "schedule/execution/scl_alarm.h"

#include <algorithm>

#include "schedule/model/scl_dates.h"
#include "services/today.h"

SclAlarmState SclAlarm;

namespace {

bool IsCached(const LocalTime& now) {
  return SclAlarm.year == now.year && SclAlarm.month == now.month && SclAlarm.day == now.day;
}

std::uint8_t ByteOf(int number) {
  return static_cast<std::uint8_t>(std::clamp(number, 0, 255));
}

// --- The list of a day

bool IsAnnounced(const SclItemRec& item) {
  return (item.hours != 0 || item.mirrorHours != 0) && item.alarmOn != 0 && item.doneState == 0;
}

// Whether a new entry fires at once.
// kept: when a day's list of alarms is made, one that has begun earlier in this hour waits for
// the check of the next tick, and one that begins later in this hour fires now.
bool FiresAtOnce(const SclAlarmEntry& entry, const LocalTime& now) {
  if (entry.startHour > now.hour) return false;
  if (entry.startHour == now.hour && entry.startMinute < now.minute) return false;
  if (entry.endHour < now.hour) return false;
  return entry.endHour != now.hour || now.minute < entry.endMinute;
}

void EntryAdd(int item, const SclDayTimes& times, const LocalTime& now) {
  SclAlarmEntry& entry = SclAlarm.entries[SclAlarm.count++];
  entry = {static_cast<std::int16_t>(item), ByteOf(times.startHour), ByteOf(times.startMinute),
           ByteOf(times.endHour),           ByteOf(times.endMinute), false};
  if (!FiresAtOnce(entry, now)) return;
  entry.fired = true;
  // kept: of the alarms that fire together when a day's list is made, the last one is announced.
  SclAlarm.announce = item + 1;
}

// The answer of the check: whether something fired.
int ListBuild(const LocalTime& now) {
  const SclExecCopy& copy = Schedule.SclExecTable;
  const SclDate day = SclDateOf(now);
  const int count = std::clamp(copy.count, 0, kSclItemMax);
  bool fired = false;
  for (int item = 0; item < count; ++item) {
    SclDayTimes times{};
    if (!IsAnnounced(copy.items[item]) || !SclDayTimesOf(copy.items[item], day, SclAlarm.row, times))
      continue;
    EntryAdd(item, times, now);
    fired = fired || SclAlarm.entries[SclAlarm.count - 1].fired;
  }
  return fired ? 1 : 0;
}

int NothingUntilNextMinute(const LocalTime& now) {
  SclAlarm.quietMinute = SclMinuteOf(now);
  return 0;
}

// Another day than the one that the list is of.
int DayBegin(const LocalTime& now) {
  SclAlarm.year = now.year;
  SclAlarm.month = now.month;
  SclAlarm.day = now.day;
  SclAlarm.count = 0;
  SclAlarm.row = SclRowOfDay(Schedule.SclExecTable.rows, SclDateOf(now));
  if (now.hour >= SclAlarm.row.begin && now.hour < SclAlarm.row.end) return ListBuild(now);
  SclAlarm.year = 0;
  return NothingUntilNextMinute(now);
}

// The day that the list is of goes on.
int DayGoesOn(const LocalTime& now) {
  if (SclAlarm.row.end <= now.hour) {
    SclAlarm.count = 0;
    return NothingUntilNextMinute(now);
  }
  for (int i = 0; i < SclAlarm.count; ++i) {
    SclAlarmEntry& entry = SclAlarm.entries[i];
    // kept: once an hour has begun, all alarms of its minutes up to this one are due, however
    // many minutes ago that was.
    if (entry.fired || entry.startHour != now.hour || entry.startMinute > now.minute) continue;
    entry.fired = true;
    SclAlarm.announce = entry.item + 1;
    return 1;
  }
  return NothingUntilNextMinute(now);
}

// --- The times of one day

void StartTake(const SclItemRec& item, SclDayTimes& times) {
  times.startHour = item.start.hour;
  times.startMinute = item.mirrorStart.minute;
}

void EndTake(const SclItemRec& item, SclDayTimes& times) {
  times.endHour = item.end.hour;
  times.endMinute = item.mirrorEnd.minute;
}

// An item within the one day.
bool OnlyDayTimes(const SclItemRec& item, const SclDate& day, const SclWorkDayRow& row, SclDayTimes& times) {
  if (row.end <= item.start.hour || row.begin > item.end.hour) return false;
  const SclDate start = SclDateOf(item.start);
  const SclDate end = SclDateOf(item.end);
  if (SclSameDay(start, day) && row.begin <= start.hour) StartTake(item, times);
  if (SclSameDay(end, day)) EndTake(item, times);
  return !SclSameDay(start, end) || times.startHour != times.endHour || times.startMinute != times.endMinute;
}

}  // namespace

DaySpan SclDaySpan(const SclItemRec& item, const SclDate& day) {
  // kept: the number of a date, in which a year is 12 times 365, is for putting dates in order
  // only.
  constexpr int kYear = 4380;
  constexpr int kMonth = 31;
  const auto number = [](int year, int month, int date) { return year * kYear + month * kMonth + date; };
  const int start = number(item.start.year, item.start.month, item.start.day);
  const int end = number(item.end.year, item.end.month, item.end.day);
  const int at = number(day.year, day.month, day.day);
  if (at < start || at > end) return DaySpan::Outside;
  if (start == end) return DaySpan::Only;
  if (at == start) return DaySpan::First;
  return at == end ? DaySpan::Last : DaySpan::Inside;
}

bool SclDayTimesOf(const SclItemRec& item, const SclDate& day, const SclWorkDayRow& row, SclDayTimes& times) {
  times = {row.begin, 0, row.end, 0};
  switch (SclDaySpan(item, day)) {
    case DaySpan::Outside:
      return false;
    case DaySpan::Inside:
      break;
    case DaySpan::First:
      if (row.begin <= item.start.hour) StartTake(item, times);
      break;
    case DaySpan::Last:
      if (row.end > item.end.hour) EndTake(item, times);
      break;
    case DaySpan::Only:
      return OnlyDayTimes(item, day, row, times);
  }
  return true;
}

std::int64_t SclMinuteOf(const LocalTime& now) {
  constexpr int kMonths = 13;
  constexpr int kDays = 32;
  constexpr int kHours = 24;
  constexpr int kMinutes = 60;
  const std::int64_t day = (std::int64_t{now.year} * kMonths + now.month) * kDays + now.day;
  return (day * kHours + now.hour) * kMinutes + now.minute;
}

int SclTickCheck(const LocalTime& now) {
  SclAlarm.quietMinute = 0;
  return IsCached(now) ? DayGoesOn(now) : DayBegin(now);
}

void SclAlarmsForget() {
  SclAlarm.count = 0;
  SclAlarm.year = 0;
  SclAlarm.announce = 0;
  SclAlarm.quietMinute = 0;
}
