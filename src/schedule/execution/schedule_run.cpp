#include "schedule/execution/schedule_run.h"

#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/scl_exec.h"
#include "services/commands.h"
#include "services/today.h"

void SclExecutionLoad() {
  if (!ApliListHasSelected() || Applications.ApliSchedule.path[0] == '\0') return;
  SclExecLoad(Applications.ApliSchedule.path);
}

bool SclIsRunning() {
  return Schedule.SclAlarmFlag;
}

void SclRunTick() {
  const LocalTime& now = Today.SharedTime;
  if (SclAlarm.quietMinute != 0 && SclAlarm.quietMinute == SclMinuteOf(now)) return;
  if (SclTickCheck(now) == 0) return;
  CommandSend(Command::ScheduleNotice);
}

int SclRunDue() {
  if (!SclIsRunning()) return kTickNever;
  const LocalTime& now = Today.SharedTime;
  if (SclAlarm.quietMinute == 0 || SclAlarm.quietMinute != SclMinuteOf(now)) return 1;
  return TicksToNextMinute(now);
}
