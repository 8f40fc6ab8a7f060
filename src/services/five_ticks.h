// The five-tick step: what small figures in windows move by.
#pragma once

#include <cstdint>

#include "services/tick_step.h"

struct FiveTicksState {
  std::int32_t FrameDivider = 0;  // ticks until the next step; 0 is off
};
extern FiveTicksState FiveTicks;

// Turns the step on; the first one comes after that many ticks.
// kept: the five-tick step goes on when the window that wanted it has closed.
void FiveTicksStart(std::int32_t first);

// One tick. True when the step is due.
bool FiveTicksTick();

// In how many ticks the step is due; kTickNever while it is off.
int FiveTicksDue();
