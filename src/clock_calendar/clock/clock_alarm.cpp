// The five alarms, looked at once in every minute.
#include "clock_calendar/clock/clock.h"

namespace {
constexpr int kNone = -1;
std::int32_t comparedHour = kNone;
std::int32_t comparedMinute = kNone;
int firedLast = kNone;
}  // namespace

int ClockAlarmCheck(int hour, int minute) {
  if (hour == comparedHour && minute == comparedMinute) return 0;
  comparedHour = hour;
  comparedMinute = minute;
  for (int slot = 0; slot < kAlarmSlotCount; ++slot) {
    const AlarmSlot& alarm = Clock.ClockEvents[slot];
    // kept: a slot is passed over only until another one has fired, so of two
    // alarms at one time each has every second day.
    if (alarm.enabled == 0 || slot == firedLast || alarm.hour != hour || alarm.minute != minute) continue;
    firedLast = slot;
    Clock.ClockAlarmSlot = slot;
    return 1;
  }
  return 0;
}

void ClockAlarmCheckReset() {
  comparedHour = comparedMinute = kNone;
}

void ClockAlarmForget() {
  firedLast = kNone;
}
