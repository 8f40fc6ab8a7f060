// WatchAdustDlg, where the clock is set in detail.
#pragma once

#include "clock_calendar/clock/clock_strike.h"
#include "platform/types.h"

struct WatchAdustState {
  int design = 0;         // place of the design whose defaults and performance are meant
  std::int32_t hour = 0;  // the time that the machine's clock is to be set to
  std::int32_t minute = 0;
  std::int32_t second = 0;
};
extern WatchAdustState WatchAdust;

// Runs the dialog; what it has changed is stored and saved when the call returns.
void WatchAdustRun(WindowHandle owner, int design);
