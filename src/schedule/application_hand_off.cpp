// What an application has answered becomes the executing schedule.
#include "schedule/applications/hand_off.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/schedule_commands.h"
#include "schedule/table/schedule_table.h"

void CommandApplicationHandOff() {
  ApliSelectionTake();
  SclExecutionLoad();
  SclAlarmsForget();
  // An open window has other rows now.
  if (SclTable.hSclTableWnd) ScheduleTableOpen();
}
