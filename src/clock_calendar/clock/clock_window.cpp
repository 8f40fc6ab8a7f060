#include "clock_calendar/clock/clock_window.h"

#include "clock_calendar/clock/clock.h"
#include "platform/memory.h"
#include "platform/time.h"
#include "platform/window.h"
#include "services/dialog_family.h"
#include "services/today.h"

namespace {

constexpr int kMinuteMilliseconds = 60000;

// Ticks until the next minute begins.
int TicksOfMinute(const LocalTime& now) {
  const int left = kMinuteMilliseconds - now.second * 1000 - now.millisecond;
  return (left + kTickMilliseconds - 1) / kTickMilliseconds;
}

}  // namespace

// Neither the clock's window nor a preview exists yet: there is nothing to step or to
// open.
void ClockPreviewStep() {}
void ClockWindowOpen() {}

void ClockPreviewFree() {
  MemoryFree(Clock.previewImage);
  Clock.previewImage = nullptr;
}

int ClockPreviewDue() {
  return TickDueIf(Dialogs.hToolDlg != nullptr);
}

void ClockTick() {
  if (ClockTickCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0) SendPaint(Clock.hClockWnd);
}

int ClockDue() {
  if (!ClockIsOpen()) return kTickNever;
  LocalTime now;
  TimeGetLocal(&now);
  if (Clock.ClockStrikeOn || now.minute != Clock.ClockMinute || now.hour != Clock.ClockHour) return 1;
  return TicksOfMinute(now);
}
