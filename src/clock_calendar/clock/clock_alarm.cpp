// The five alarms, looked at once in every minute.
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/minute_due.h"
#include "clock_calendar/clock/performance.h"
#include "services/commands.h"
#include "services/today.h"

namespace {
constexpr int kNone = -1;
}  // namespace

int ClockAlarmCheck(int hour, int minute) {
  if (hour == Clock.comparedHour && minute == Clock.comparedMinute) return 0;
  Clock.comparedHour = hour;
  Clock.comparedMinute = minute;
  for (int slot = 0; slot < kAlarmSlotCount; ++slot) {
    const AlarmSlot& alarm = Clock.ClockEvents[slot];
    // kept: an alarm that has fired is passed over until another one has fired or the alarms
    // are set anew, so of two alarms at one time each has every second day.
    if (alarm.enabled == 0 || slot == Clock.firedLast || alarm.hour != hour || alarm.minute != minute)
      continue;
    Clock.firedLast = slot;
    Clock.ClockAlarmSlot = slot;
    return 1;
  }
  return 0;
}

void ClockAlarmTick() {
  if (ClockAlarmCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0)
    CommandSend(Command::ClockNoticeOpen);
  if (ClockNotice.hClockNoticeWnd && ClockNoticeWaitIsOver())
    CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
}

int ClockAlarmDue() {
  const bool waits = ClockNotice.hClockNoticeWnd && Performance.wait != PerformanceWait::None;
  return waits ? 1 : TicksToMinuteAfter(Clock.comparedHour, Clock.comparedMinute);
}

void ClockAlarmCheckReset() {
  Clock.comparedHour = Clock.comparedMinute = kNone;
}

void ClockEventChoose(int number) {
  Clock.ClockAlarmSlot = -1;
  Performance.PerformanceActive = number;
}
