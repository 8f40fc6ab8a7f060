// The executing schedule, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

#include "services/tick_step.h"

struct SclRunState {
  unsigned char* SclMapBlock = nullptr;  // 1,000,000 bytes once a map is shown
};
extern SclRunState SclRun;

// Loads the schedule of the executing application, if one is named, and begins its alarms
// anew.
void SclExecutionLoad();

// A schedule is being carried out that has an alarm.
bool SclIsRunning();

void SclMapFree();

// The running schedule's step of the tick: a due item sends command 2265. Between two
// minutes nothing can become due.
void SclRunTick();
int SclRunDue();
inline constexpr TimedStep kScheduleRunStep{SclIsRunning, {SclRunTick, SclRunDue}};
