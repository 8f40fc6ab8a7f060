#include "shell/tick_timer.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "filetools/back_up/back_up.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "mail_music/music/music.h"
#include "platform/time.h"
#include "platform/window.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/program.h"
#include "shell/panel.h"
#include "shell/tick.h"

namespace {

// A timer that fires a little early has still fired for its last tick.
constexpr std::uint64_t kEarly = 20;

bool running;
bool resting;
int ticksOfPeriod = 1;
std::uint64_t periodBegan;  // TimeMilliseconds
int ticksOwed;              // ticks that have passed and are still to run

void PeriodSet(int ticks) {
  periodBegan = TimeMilliseconds();
  if (ticks == ticksOfPeriod) return;
  ticksOfPeriod = ticks;
  TimerPeriodSet(Program.hMainWnd, kTickTimer, ticks * kTickMilliseconds);
}

// Ends the rest, if there is one. Returns the ticks that have passed in it.
int RestEnd() {
  if (!resting) return 0;
  resting = false;
  const auto passed = static_cast<int>((TimeMilliseconds() - periodBegan + kEarly) / kTickMilliseconds);
  return std::min(passed, ticksOfPeriod);
}

// A tick may open a modal window, and the timer then fires nested: what is still
// owed is shared with the nested ticks, so that each runs once.
void Run(int ticks) {
  ticksOwed += ticks;
  while (ticksOwed > 0) {
    --ticksOwed;
    MainTick();
  }
}

// With any window but the stage open, its handlers may change at any time what a
// tick has to do.
bool OnlyTheStageIsOpen() {
  for (const WindowHandle open :
       {Panel.hDiskMenu, Dialogs.hMenuDlg, Dialogs.hToolDlg, Dialogs.hSubDlg, Dialogs.hSnryDlg,
        Picker.hFilePickDlg, BackUpRun.hBackUpDlg, Stepped.hSearchDlg, Clock.hClockWnd, Calendar.hCalenWnd,
        Mail.hMailNoticeWnd, Notices.hSclNoticeWnd, ClockNotice.hClockNoticeWnd, SclTable.hSclTableWnd,
        SclTable.hPlanWnd, Music.hBgmWnd}) {
    if (open) return false;
  }
  return true;
}

}  // namespace

bool TickTimerStart() {
  ticksOfPeriod = 1;
  ticksOwed = 0;
  resting = false;
  running = TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  return running;
}

void TickTimerStop() {
  running = false;
  resting = false;
  ticksOwed = 0;
  TimerStop(Program.hMainWnd, kTickTimer);
}

void TickTimerFired() {
  Run(std::max(RestEnd(), 1));
  if (!running) return;
  const int ticks = OnlyTheStageIsOpen() ? TicksUntilDue() : 1;
  PeriodSet(ticks);
  resting = ticks > 1;
}

void TickTimerWake() {
  if (!resting) return;
  const int passed = RestEnd();
  PeriodSet(1);
  Run(passed);
}
