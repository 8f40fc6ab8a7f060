#include "services/five_ticks.h"

FiveTicksState FiveTicks;

namespace {
constexpr std::int32_t kPeriod = 5;
}

void FiveTicksStart(std::int32_t first) {
  FiveTicks.FrameDivider = first;
}

bool FiveTicksTick() {
  if (FiveTicks.FrameDivider <= 0 || --FiveTicks.FrameDivider != 0) return false;
  FiveTicks.FrameDivider = kPeriod;
  return true;
}

int FiveTicksDue() {
  return FiveTicks.FrameDivider > 0 ? FiveTicks.FrameDivider : kTickNever;
}
