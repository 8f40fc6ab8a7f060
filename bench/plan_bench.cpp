// How long the conversion of a plan into a schedule of (almost) 1000 items takes, beside
// the walk that looks at every hour by itself and counts each weekday through from the year
// 2000. Both have to give the same items.
//
//   plan_bench
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "schedule/model/schedule.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_convert.h"
#include "services/text.h"

namespace {

// --- The walk by the hour. Months and days count from 0.

namespace naive {

int DaysInMonth(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 1 && year % 4 == 0 ? 29 : kDays[month];
}

int FirstWeekday(int year, int month) {
  int weekday = 5;
  for (int y = 0; y < year; ++y) {
    for (int m = 0; m < 12; ++m) weekday = (weekday + DaysInMonth(y, m)) % 7;
  }
  for (int m = 0; m < month; ++m) weekday = (weekday + DaysInMonth(year, m)) % 7;
  return weekday;
}

int RowOf(SclDate& date, int offset) {
  while (date.day + offset >= DaysInMonth(date.year, date.month)) {
    offset = std::max(offset - (DaysInMonth(date.year, date.month) - 1 - date.day) - 1, 0);
    date.day = 0;
    if (++date.month == 12) {
      date.month = 0;
      ++date.year;
    }
  }
  date.day += offset;
  return (FirstWeekday(date.year, date.month) + date.day) % 7;
}

struct Converter {
  SclWorkDayRow rows[kSclRowCount];
  SclItemRec items[kSclItemMax];
  int count;
  SclDate base;
  SclDate now;
  int remaining[kScpLineMax];
  int last[kScpLineMax];
  int wait[kScpLineMax];

  SclDate Later(int hours, SclDate from) const {
    SclDate probe = from;
    int days = 0;
    int row = RowOf(probe, 0);
    if (probe.hour >= rows[row].end) {
      days = 1;
      row = RowOf(probe, 1);
      probe.hour = rows[row].begin;
    }
    while (probe.hour + hours > rows[row].end) {
      hours -= rows[row].end - probe.hour;
      row = RowOf(probe, ++days);
      probe.hour = rows[row].begin;
    }
    SclDate to = from;
    RowOf(to, days);
    to.hour = probe.hour + hours;
    return to;
  }

  static SclItemDate Stored(const SclDate& date) {
    return {static_cast<std::uint8_t>(date.year), static_cast<std::uint8_t>(date.month),
            static_cast<std::uint8_t>(date.day), static_cast<std::uint8_t>(date.hour)};
  }

  // The place of the rest that starts there, -1 for none.
  static int Rest(SclDate at, int& row) {
    row = RowOf(at, 0);
    for (int i = 0; i < kScpRestCount; ++i) {
      const ScpRestPeriod& rest = Plan.head.ScpRestTable[row][i];
      if (rest.length != 0 && rest.start == at.hour) return i;
    }
    return -1;
  }

  void AddRest(SclDate& at, int row, int rest) {
    constexpr const char* kDays[] = {"月", "火", "水", "木", "金", "土", "日"};
    SclItemRec& item = items[count++];
    item.start = Stored(at);
    item.hours = static_cast<std::uint32_t>(Plan.head.ScpRestTable[row][rest].length);
    at = Later(static_cast<int>(item.hours), at);
    item.end = Stored(at);
    TextFormat(item.text, sizeof item.text, "%s曜日 - 休憩%d", kDays[row], rest + 1);
  }

  void Close(const ScpPlanRec& line, const SclDate& at, std::uint32_t done) {
    SclItemRec& item = items[count++];
    item.end = Stored(at);
    item.hours = done;
    std::memcpy(item.text, line.text, sizeof item.text);
  }

  void AddLine(const ScpPlanRec& line) {
    int row = 0;
    for (int rest = Rest(now, row); rest >= 0; rest = Rest(now, row)) AddRest(now, row, rest);
    std::uint32_t done = 0;
    for (std::uint32_t left = line.hours; left > 0;) {
      const int rest = Rest(now, row);
      if (rest >= 0) {
        Close(line, now, done);
        AddRest(now, row, rest);
        done = 0;
        continue;
      }
      if (done == 0) items[count].start = Stored(now);
      now = Later(1, now);
      ++done;
      --left;
    }
    if (done > 0) Close(line, now, done);
  }

  int Today() const {
    if (base.year == now.year && base.month == now.month) return now.day - base.day;
    int days = now.day;
    SclDate at = base;
    while (at.year != now.year || at.month != now.month) {
      days += DaysInMonth(at.year, at.month) - at.day;
      at.day = 0;
      at.month = (at.month + 1) % 12;
      if (at.month == 0) ++at.year;
    }
    return days;
  }

  int Due(int day) const {
    for (int i = 0; i < kScpLineMax; ++i) {
      if (remaining[i] > 0 && wait[i] > 0 && wait[i] <= day - last[i]) return i;
    }
    for (int i = 0; i < kScpLineMax; ++i) {
      if (remaining[i] > 0 && wait[i] == 0) return i;
    }
    return -1;
  }

  bool Bridge(int day) {
    int due = 20000;
    for (int i = 0; i < kScpLineMax; ++i) {
      if (remaining[i] > 0) due = std::min(due, last[i] + wait[i]);
    }
    if (due == 20000) return false;
    SclDate at = now;
    int hours = std::max(0, rows[RowOf(at, 0)].end - now.hour);
    for (int i = day; i < due; ++i) hours += rows[RowOf(at, 1)].length;
    SclItemRec& item = items[count++];
    item.start = Stored(now);
    now = Later(hours, now);
    at = now;
    const int begin = rows[RowOf(at, 0)].begin;
    if (due != day && now.hour > begin) {
      hours -= now.hour - begin;
      now.hour = begin;
    }
    item.end = Stored(now);
    item.hours = static_cast<std::uint32_t>(hours);
    return true;
  }

  void Run() {
    std::memset(items, 0, sizeof items);
    count = 0;
    std::copy_n(Plan.head.rows, kSclRowCount, rows);
    base = now = Plan.head.start;
    for (int i = 0; i < kScpLineMax; ++i) {
      remaining[i] = Plan.ScpPlanTable[i].hours ? Plan.ScpPlanTable[i].repeat + 1 : 0;
      last[i] = wait[i] = 0;
    }
    for (;;) {
      const int day = Today();
      const int line = Due(day);
      if (line < 0) {
        if (!Bridge(day)) return;
        continue;
      }
      const ScpPlanRec& plan = Plan.ScpPlanTable[line];
      AddLine(plan);
      last[line] = Today();
      --remaining[line];
      if (remaining[line] > 0) wait[line] = Plan.head.ScpIntervalTable[plan.repeat - remaining[line]];
    }
  }
};

}  // namespace naive

naive::Converter walk;

// Lessons of 1 to 9 hours from 23 November 2026 on, with the waits and rests of a new plan:
// just short of a full table.
constexpr int kLessons = 74;
void MakePlan() {
  ScpStudyDefaults();
  Plan.head.start = {26, 10, 22, 8};
  for (int i = 0; i < kLessons; ++i) {
    ScpPlanRec& line = Plan.ScpPlanTable[i];
    line.hours = static_cast<std::uint32_t>(1 + i * 7 % 9);
    line.repeat = static_cast<std::uint8_t>(1 + i % 5);
    TextFormat(line.text, sizeof line.text, "lesson %d", i);
  }
}

void Compare() {
  MakePlan();
  const int result = ScpConvertToSchedule();
  walk.Run();
  bool same = result == 0 && walk.count == Schedule.SclHeader.count;
  for (int i = 0; same && i < walk.count; ++i) same = walk.items[i] == Schedule.SclItemTable[i];
  std::printf("%d items, result %d, the walk by the hour gives %s\n", Schedule.SclHeader.count, result,
              same ? "the same" : "others");
  if (!same) std::exit(1);
}

void ConvertPlan(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(ScpConvertToSchedule());
}
BENCHMARK(ConvertPlan)->Unit(benchmark::kMicrosecond);

void WalkByTheHour(benchmark::State& state) {
  for (auto _ : state) {
    walk.Run();
    benchmark::DoNotOptimize(walk.count);
  }
}
BENCHMARK(WalkByTheHour)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int count, char** words) {
  Compare();
  benchmark::Initialize(&count, words);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
