#include "schedule/execution/schedule_run.h"

#include "platform/memory.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/model/scl_exec.h"
#include "services/commands.h"
#include "services/today.h"

SclRunState SclRun;

namespace {

constexpr int kLastSecond = 59;
constexpr int kSecond = 1000;

}  // namespace

void SclExecutionLoad() {
  if (!ApliListHasSelected() || Applications.ApliSchedule.path[0] == '\0') return;
  if (SclExecLoad(Applications.ApliSchedule.path) == 0) SclAlarmsForget();
}

bool SclIsRunning() {
  return Schedule.SclAlarmFlag;
}

void SclMapFree() {
  MemoryFree(SclRun.SclMapBlock);
  SclRun.SclMapBlock = nullptr;
}

void SclRunTick() {
  const LocalTime& now = Today.SharedTime;
  if (SclAlarm.quietMinute != 0 && SclAlarm.quietMinute == SclMinuteOf(now)) return;
  if (SclTickCheck(now) == 0) return;
  SclNoticeTake();
  CommandSend(Command::ScheduleNotice);
}

int SclRunDue() {
  if (!SclIsRunning()) return kTickNever;
  const LocalTime& now = Today.SharedTime;
  if (SclAlarm.quietMinute == 0 || SclAlarm.quietMinute != SclMinuteOf(now)) return 1;
  const int left = (kLastSecond - now.second) * kSecond + kSecond - now.millisecond;
  return left / kTickMilliseconds + 1;
}
