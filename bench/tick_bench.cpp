// The cost of one idle tick: the program started on a data set, standing on an
// empty desktop in memory, nothing open.
//
//   MIRRELL_DATA=out/mirrell build/native-release/bench/tick_bench
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/headless/headless.h"
#include "platform/window.h"
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

}  // namespace
