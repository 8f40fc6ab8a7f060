// When something that looks at the time once a minute has to look again.
#pragma once

// Ticks until the minute after the one that was looked at last begins: 1 when that is
// over already, at any date.
int TicksToMinuteAfter(int hour, int minute);
