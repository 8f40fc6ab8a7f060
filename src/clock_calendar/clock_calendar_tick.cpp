#include "clock_calendar/clock_calendar_tick.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "platform/memory.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/today.h"

namespace {

constexpr int kMinuteMilliseconds = 60000;

unsigned char* previewImage;

// Ticks until the next minute begins.
int TicksOfMinute(const LocalTime& now) {
  const int left = kMinuteMilliseconds - now.second * 1000 - now.millisecond;
  return (left + kTickMilliseconds - 1) / kTickMilliseconds;
}

}  // namespace

// Neither the clock's window, nor the calendar's, nor a preview exists yet: there
// is nothing to step, to open or to delete.
void ClockPreviewStep() {}
void CalenTickerTick() {}
void ClockWindowOpen() {}
void CalenWindowOpen() {}
void CalenFontDelete() {}

void ClockPreviewFree() {
  MemoryFree(previewImage);
  previewImage = nullptr;
}

int ClockPreviewDue() {
  return TickDueIf(Dialogs.hToolDlg != nullptr);
}

bool ClockIsOpen() {
  return Clock.hClockWnd != nullptr;
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

bool CalendarStepIsActive() {
  return Calendar.hCalenWnd || ClockNotice.hClockNoticeWnd;
}

void CalendarTick() {
  if (CalenTickCheck() != 0) SendPaint(Calendar.hCalenWnd);
  if (ClockAlarmCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0)
    CommandSend(Command::ClockNoticeOpen);
  if (ClockNotice.hClockNoticeWnd && ClockNoticeWaitIsOver())
    CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
  if (Calendar.hCalenWnd) CalenTickerTick();
}
