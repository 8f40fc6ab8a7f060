// What a feature gives the tick to do: the shell puts the steps of all features in
// order.
#pragma once

#include <limits>

inline constexpr int kTickMilliseconds = 30;

struct TickStep {
  void (*run)();
  // In how many ticks the step may have more to do than to count: 1 when the very next
  // one may, kTickNever when nothing is under way. A step says so for its windows too,
  // as long as they are open.
  int (*due)();
};

// A step that needs the tick's time (SharedTime), which is read once for all of them
// while one of them is active.
struct TimedStep {
  bool (*active)();
  TickStep step;
};

inline constexpr int kTickNever = std::numeric_limits<int>::max();

constexpr int TickDueIf(bool active) {
  return active ? 1 : kTickNever;
}
