#include "schedule/schedule_run.h"

#include "platform/memory.h"
#include "shell/shell.h"

SclHours SclTableHours;
SclHours SclSubTableHours[kSclSubTables];
std::int32_t SclLineCount;
unsigned char* SclMapBlock;

void SclDefaults() {
  constexpr SclHours kDay{10, 8, 18};
  SclTableHours = kDay;
  for (SclHours& hours : SclSubTableHours) hours = kDay;
  SclLineCount = 31;
}

void SclTablesClear() {
  hSclTableWnd = nullptr;
  hPlanWnd = nullptr;
  hBgmWnd = nullptr;
}

// There is no schedule model yet: none can be named, and none runs.
void SclExecutionLoad() {}
bool SclIsRunning() {
  return false;
}
bool SclDueCheck() {
  return false;
}

void SclMapFree() {
  MemoryFree(SclMapBlock);
  SclMapBlock = nullptr;
}
