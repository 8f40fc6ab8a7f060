// The tick's step of the tables: while the user drags past an edge, they scroll on.
#pragma once

#include "services/tick_step.h"

// One step, called on every tick. Uses the schedule table if it is open, else the
// plan chart.
void TableScrollTick();
int TableScrollDue();
inline constexpr TickStep kTableScrollStep{TableScrollTick, TableScrollDue};
