// Commands of the clock.
#pragma once

void CommandClockSelect();      // 1911
void CommandWatchListAdd();     // 2106
void CommandWatchListDelete();  // 2107
void CommandWatchListChange();  // 2108
void CommandClockOpen();        // 2254
void CommandClockAlarms();      // 2330
void CommandClockEvents();      // 2339
