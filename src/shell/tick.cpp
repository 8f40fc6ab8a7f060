#include "shell/tick.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "character/motion.h"
#include "character/options.h"
#include "character/walk.h"
#include "clock_calendar/clock/clock_preview.h"
#include "clock_calendar/clock/clock_window.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "filetools/back_up/back_up.h"
#include "filetools/open/group_open.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail_tick.h"
#include "schedule/applications/hand_off.h"
#include "schedule/execution/note_check.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_tick.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/tick_step.h"
#include "services/today.h"
#include "shell/command_line.h"
#include "shell/file_watch.h"
#include "shell/panel.h"

TickCountsState TickCounts;

namespace {

// What needs the time: it is read once for all of them.
constexpr TimedStep kTimedSteps[] = {kWatchAdustStep, kClockStep, kScheduleRunStep, kCalendarStep,
                                     kNoteCheckStep};

// What moves every five ticks.
constexpr TickStep kFiveTickSteps[] = {kMailNoticeFrames, kSclNoticeFrames, kAlarmCheckFrames};

// After a shutdown from inside a step, what is left to do stays undone.
template <typename Steps>
void RunAll(const Steps& steps) {
  for (const TickStep& step : steps) {
    if (Program.Quitting) return;
    step.run();
  }
}

template <typename Steps>
int FirstDue(const Steps& steps) {
  int first = kTickNever;
  for (const TickStep& step : steps) first = std::min(first, step.due());
  return first;
}

// Written out step by step by the compiler, as it runs in every tick and mostly finds
// nothing open.
template <std::size_t... Step>
bool AnyIsActive(std::index_sequence<Step...>) {
  return (kTimedSteps[Step].active() || ...);
}

void TimedTick() {
  if (!AnyIsActive(std::make_index_sequence<std::size(kTimedSteps)>())) return;
  SharedTimeTake();
  for (const TimedStep& timed : kTimedSteps) {
    if (Program.Quitting) return;
    if (timed.active()) timed.step.run();
  }
}

int TimedDue() {
  int first = kTickNever;
  for (const TimedStep& timed : kTimedSteps) first = std::min(first, timed.step.due());
  return first;
}

void FiveTicksRun() {
  if (FiveTicksTick()) RunAll(kFiveTickSteps);
}

// The divider goes on running when the last figure has gone, for nobody.
int FiveTicksRunDue() {
  return FirstDue(kFiveTickSteps) == kTickNever ? kTickNever : FiveTicksDue();
}

// The order is part of the design: alarms and clock checks use the time that the
// timed steps read, and the character moves after the alarms, so that a menu or
// an alarm that began in this tick draws first.
constexpr TickStep kSteps[] = {
    kCommandLineStep,      kBackUpStep,     kSteppedWorkStep,   kHandOffStep,
    kPanelGuardStep,       kPanelCountStep, kPanelPointerStep,  kMailStep,
    kGroupOpenStep,        kWalkStep,       kWalkEndStep,       kClockPreviewStep,
    {TimedTick, TimedDue}, kMotionStep,     kMotionPreviewStep, {FiveTicksRun, FiveTicksRunDue},
    kTableScrollStep,      kFileWatchStep,
};

}  // namespace

void MainTick() {
  ++TickCounts.TickCount;
  RunAll(kSteps);
}

int TicksUntilDue() {
  return std::max(FirstDue(kSteps), 1);
}
