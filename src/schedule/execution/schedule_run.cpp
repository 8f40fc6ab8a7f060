#include "schedule/execution/schedule_run.h"

#include "platform/memory.h"
#include "services/commands.h"

SclRunState SclRun;

// There is no schedule model yet: none can be named, and none runs.
void SclExecutionLoad() {}
bool SclIsRunning() {
  return false;
}
bool SclDueCheck() {
  return false;
}

void SclMapFree() {
  MemoryFree(SclRun.SclMapBlock);
  SclRun.SclMapBlock = nullptr;
}

void SclRunTick() {
  if (SclDueCheck()) CommandSend(Command::ScheduleNotice);
}

int SclRunDue() {
  return TickDueIf(SclIsRunning());
}
