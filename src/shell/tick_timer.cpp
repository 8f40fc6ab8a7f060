#include "shell/tick_timer.h"

#include <algorithm>

#include "mail_music/music/music.h"
#include "platform/dialog.h"
#include "platform/time.h"
#include "platform/window.h"
#include "services/modal.h"
#include "services/program.h"
#include "services/tick_step.h"
#include "shell/tick.h"

TickTimerState TickTimer;

namespace {

// A timer that fires a little early has still fired for its last tick.
constexpr std::uint64_t kEarly = 20;

void PeriodSet(int ticks) {
  TickTimer.periodBegan = TimeMilliseconds();
  if (ticks == TickTimer.ticksOfPeriod) return;
  TickTimer.ticksOfPeriod = ticks;
  TimerPeriodSet(Program.hMainWnd, kTickTimer, ticks * kTickMilliseconds);
}

// Ends the rest, if there is one: from here on the timer fires for every tick, in the
// loops too that one of the ticks may open. Returns the ticks that have passed in it.
int RestEnd() {
  if (!TickTimer.resting) return 0;
  TickTimer.resting = false;
  const auto passed =
      static_cast<int>((TimeMilliseconds() - TickTimer.periodBegan + kEarly) / kTickMilliseconds);
  const int ticks = std::min(passed, TickTimer.ticksOfPeriod);
  PeriodSet(1);
  return ticks;
}

// A tick may open a modal window, and the timer then fires nested: what is still
// owed is shared with the nested ticks, so that each runs once.
void Run(int ticks) {
  TickTimer.ticksOwed += ticks;
  while (TickTimer.ticksOwed > 0) {
    --TickTimer.ticksOwed;
    MainTick();
  }
}

// The handlers of these dialogs may change at any time what a tick has to do. Other
// windows belong to a step of the tick, which says when it is due.
bool DialogIsUp() {
  return ModalIsUp() || Music.hBgmWnd;
}

}  // namespace

bool TickTimerStart() {
  TickTimer = {};
  TickTimer.running = TimerStart(Program.hMainWnd, kTickTimer, kTickMilliseconds);
  return TickTimer.running;
}

void TickTimerStop() {
  TickTimer = {};
  TimerStop(Program.hMainWnd, kTickTimer);
}

void TickTimerFired() {
  // The timer may have rested again in a loop that one of the ticks opened: what has
  // passed in that rest is run too.
  for (int ticks = std::max(RestEnd(), 1); ticks > 0; ticks = RestEnd()) Run(ticks);
  if (!TickTimer.running) return;
  const int ticks = DialogIsUp() ? 1 : TicksUntilDue();
  PeriodSet(ticks);
  TickTimer.resting = ticks > 1;
}

void TickTimerWake() {
  if (TickTimer.resting) Run(RestEnd());
}
