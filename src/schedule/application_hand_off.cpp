// What an application has answered becomes the executing schedule.
#include "schedule/applications/hand_off.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/schedule_commands.h"

void CommandApplicationHandOff() {
  ApliSelectionTake();
  SclExecutionLoad();
  SclAlarmsForget();
}
