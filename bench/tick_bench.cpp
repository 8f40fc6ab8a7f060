// The cost of one idle tick: the program started on a data set, standing on an
// empty desktop in memory, nothing open.
//
//   MIRRELL_DATA=out/mirrell build/native-release/bench/tick_bench
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/headless/headless.h"
#include "platform/time.h"
#include "platform/window.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_exec.h"
#include "shell/main_window.h"
#include "shell/tick.h"

namespace {

// Starts the program on the data set, once for all rounds. False without one.
bool Start() {
  static const bool started = [] {
    const char* data = std::getenv("MIRRELL_DATA");
    if (!data || chdir(data) != 0) return false;
    HeadlessReset();
    const MainWindowClass mainClass{"bench", "bench", 0, 0, 0, MainWindowProc};
    return MainWindowCreate(mainClass, 500, 300, 120, 160) != nullptr;
  }();
  return started;
}

void IdleTick(benchmark::State& state) {
  if (!Start()) {
    state.SkipWithError("MIRRELL_DATA names no data set");
    return;
  }
  for (auto _ : state) MainTick();
}
BENCHMARK(IdleTick);

// The same while a schedule of 1,000 items is carried out, each with an alarm that is to
// come in this minute's hour, so that the whole list of the day is looked at.
void ScheduleTick(benchmark::State& state) {
  if (!Start()) {
    state.SkipWithError("MIRRELL_DATA names no data set");
    return;
  }
  LocalTime now{};
  TimeGetLocal(&now);
  SclKindSet(1);
  SclNewDefaults(now.year - 2000, now.month - 1, now.day - 1);
  for (SclWorkDayRow& row : SclRows()) row = {24, 0, 24};
  SclCountSet(kSclItemMax);
  for (int i = 0; i < kSclItemMax; ++i) {
    SclItemRec& item = SclItem(i);
    item.hours = 1;
    item.alarmOn = 1;
    item.start = SclItemDateOf(SclStart());
    item.start.hour = static_cast<std::uint8_t>((now.hour + 2) % 24);
    item.end = item.start;
    item.end.day = static_cast<std::uint8_t>(item.end.day + 1);
  }
  SclExecRefresh();
  for (auto _ : state) MainTick();
  Schedule.SclAlarmFlag = false;
}
BENCHMARK(ScheduleTick);

}  // namespace
