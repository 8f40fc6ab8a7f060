// Opening a group of files one after the other from the tick.
#pragma once

// Called on every tick: while a group is pending and its walk is over, opens the
// next file every 50 ticks.
void OpnGroupTick();
