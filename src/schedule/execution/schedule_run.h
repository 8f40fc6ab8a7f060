// The executing schedule, as the start, the tick and the shutdown meet it.
#pragma once

#include "services/tick_step.h"

// Loads the schedule of the executing application, if one is named. Whoever has carried out
// another one before forgets its alarms.
void SclExecutionLoad();

// A schedule is being carried out that has an alarm.
bool SclIsRunning();

// The running schedule's step of the tick: a due item sends command 2265. Between two
// minutes nothing can become due.
void SclRunTick();
int SclRunDue();
inline constexpr TimedStep kScheduleRunStep{SclIsRunning, {SclRunTick, SclRunDue}};
