// The executing schedule, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

#include "services/tick_step.h"

// Hours of a table: how many are on show, and where the day begins and ends.
struct SclHours {
  std::int32_t span;
  std::int32_t start;
  std::int32_t end;
};

inline constexpr int kSclSubTables = 8;
struct SclRunState {
  SclHours SclTableHours = {};
  SclHours SclSubTableHours[kSclSubTables] = {};
  std::int32_t SclLineCount = 0;
  unsigned char* SclMapBlock = nullptr;  // 1,000,000 bytes once a map is shown
};
extern SclRunState SclRun;

// Hours 8 to 18 and 31 lines, which files may overwrite.
void SclDefaults();

// Loads the schedule of the executing application, if one is named.
void SclExecutionLoad();

// A schedule is being carried out.
bool SclIsRunning();

// True when an item of the running schedule is due.
bool SclDueCheck();

void SclMapFree();

// The running schedule's step of the tick: a due item sends command 2265.
void SclRunTick();
int SclRunDue();
inline constexpr TimedStep kScheduleRunStep{SclIsRunning, {SclRunTick, SclRunDue}};
