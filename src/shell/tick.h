// The handler of the one timer.
#pragma once

#include <cstdint>

struct TickCountsState {
  // Ticks since the start, nested ones too.
  std::int32_t TickCount = 0;
};
extern TickCountsState TickCounts;

// Every periodic job of the program, in its fixed order. Re-entrant: a step may
// open a modal window from inside, and further ticks then run nested in it; the
// suspended tick goes on with its remaining steps when that window has closed.
// So no step keeps state in locals across a send.
void MainTick();

// How many ticks from now the first one falls that has more to do than to count: 1
// when the very next one may. What the steps count says so, and the machine's clock.
int TicksUntilDue();
