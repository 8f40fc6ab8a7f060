// The cost of working out the dates of a full schedule: 1,000 items, with the years of a
// calendar of many holidays and outside of them.
//
//   build/native-release/bench/schedule_bench
#include <benchmark/benchmark.h>

#include "clock_calendar/calendar/calendar.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/schedule.h"
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_items.h"

namespace {

constexpr int kHoursOfDay = 10;

// Items of 1 to `most` hours from Monday, 23 November 2026 on.
void Fill(int most) {
  SclKindSet(1);
  SclNewDefaults(26, 10, 22);
  SclCountSet(kSclItemMax);
  for (int i = 0; i < kSclItemMax; ++i) {
    SclItem(i).hours = static_cast<std::uint32_t>(1 + i * 7 % most);
    SclItem(i).alarmOn = 1;
  }
}

// Three years with a rule for each of 20 holidays.
void CalendarFill() {
  CalenSpanSet(26, kCalenYearMax);
  CalenDefinition& definition = CalenSelectedDefinition();
  for (int rule = 0; rule < 20; ++rule) {
    definition.ruleKinds[rule] = static_cast<std::uint8_t>(kRuleDate);
    definition.ruleParameters[rule] = {static_cast<std::uint8_t>(1 + rule % kMonthsOfYear),
                                       static_cast<std::uint8_t>(1 + rule)};
  }
}

void Recalc(benchmark::State& state) {
  Fill(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    SclRecalcAll();
    benchmark::DoNotOptimize(SclItem(kSclItemMax - 1).end);
  }
}
BENCHMARK(Recalc)->Arg(kHoursOfDay)->Arg(100)->Arg(9999)->Unit(benchmark::kMicrosecond);

void RecalcWithHolidays(benchmark::State& state) {
  CalendarFill();
  Recalc(state);
  CalenSpanSet(26, 1);
}
BENCHMARK(RecalcWithHolidays)->Arg(kHoursOfDay)->Unit(benchmark::kMicrosecond);

void ExecutingCopy(benchmark::State& state) {
  Fill(kHoursOfDay);
  SclRecalcAll();
  for (auto _ : state) SclExecRefresh();
}
BENCHMARK(ExecutingCopy)->Unit(benchmark::kMicrosecond);

// The check of the tick with a list of 1,000 alarms of the day, none of them due. The
// running program makes it once a minute.
void AlarmCheck(benchmark::State& state) {
  Fill(kHoursOfDay);
  SclRecalcAll();
  for (int i = 0; i < kSclItemMax; ++i) {
    SclItem(i).start = {26, 10, 22, 17};
    SclItem(i).end = {26, 10, 23, 12};
  }
  SclExecRefresh();
  SclAlarmsForget();
  const LocalTime now{2026, 11, 23, 1, 9, 30, 0, 0};
  for (auto _ : state) benchmark::DoNotOptimize(SclTickCheck(now));
  if (SclAlarm.count != kSclItemMax) state.SkipWithError("the list is not full");
}
BENCHMARK(AlarmCheck);

}  // namespace
