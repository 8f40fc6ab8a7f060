// The performances that are in use: what the dialogs list.
#include <algorithm>

#include "clock_calendar/clock/clock.h"

namespace {

int Count() {
  return std::min<int>(PerformanceTable.ClockPerformanceCount, kPerformanceMax);
}

bool IsInUse(int number) {
  return number >= 1 && number <= Count() && PerformanceTable.ClockPerformances[number - 1].flags != 0;
}

}  // namespace

int PerformancesInUse() {
  int used = 0;
  for (int number = 1; number <= Count(); ++number) used += IsInUse(number) ? 1 : 0;
  return used;
}

int PerformanceAt(int place) {
  for (int number = 1; number <= Count(); ++number) {
    if (IsInUse(number) && place-- == 0) return number;
  }
  return 0;
}

int PerformancePlace(int number) {
  if (!IsInUse(number)) return -1;
  int place = 0;
  for (int before = 1; before < number; ++before) place += IsInUse(before) ? 1 : 0;
  return place;
}
