// The step of the tick that clock and calendar share.
#pragma once

#include "services/tick_step.h"

// The calendar window or the clock notice is open: the day, the figures and the ticker
// of the one, the alarms, and the performance of the other.
bool CalendarStepIsActive();
void CalendarTick();
inline constexpr TimedStep kCalendarStep{CalendarStepIsActive,
                                         {CalendarTick, [] { return TickDueIf(CalendarStepIsActive()); }}};
