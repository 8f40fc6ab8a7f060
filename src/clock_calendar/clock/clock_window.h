// What the tick, the start, the shutdown and the layout ask of the clock's windows.
#pragma once

#include "clock_calendar/clock/clock.h"
#include "services/dialog_family.h"
#include "services/tick_step.h"

// WatchAdustDlg is open: draws the shared time into it when the second has changed.
inline bool WatchAdustIsOpen() {
  return Dialogs.hToolDlg && Dialogs.DlgIdTool == ToolDialog::WatchAdustDlg;
}
void WatchAdustTimeDraw();
// The next drawing is made whatever the second.
void WatchAdustTimeForget();
inline constexpr TimedStep kWatchAdustStep{
    WatchAdustIsOpen, {WatchAdustTimeDraw, [] { return TickDueIf(WatchAdustIsOpen()); }}};

// The clock window is open: it is painted when what it shows has changed. It is due at
// the next minute, and at every tick of a performance.
inline bool ClockIsOpen() {
  return Clock.hClockWnd != nullptr;
}
void ClockTick();
int ClockDue();
inline constexpr TimedStep kClockStep{ClockIsOpen, {ClockTick, ClockDue}};

// Opens the clock window, FlyingBat6, with the time that it is.
void ClockWindowOpen();

// Cuts the open window to what it shows now, and draws it.
void ClockWindowShow();
