#include "clock_calendar/calendar/calendar_window.h"

// The calendar's window does not exist yet: there is nothing to step, to open or to
// delete.
void CalenTickerTick() {}
void CalenWindowOpen() {}
void CalenFontDelete() {}
