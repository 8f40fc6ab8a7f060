#include "clock_calendar/clock_calendar_tick.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/today.h"

void CalendarTick() {
  if (CalenTickCheck() != 0) SendPaint(Calendar.hCalenWnd);
  if (ClockAlarmCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0)
    CommandSend(Command::ClockNoticeOpen);
  if (ClockNotice.hClockNoticeWnd && ClockNoticeWaitIsOver())
    CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
  if (Calendar.hCalenWnd) CalenTickerTick();
}

int CalendarDue() {
  if (ClockNotice.hClockNoticeWnd) return 1;
  return Calendar.hCalenWnd ? CalenWindowDue() : kTickNever;
}
