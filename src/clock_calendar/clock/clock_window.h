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

// A clock preview that is playing goes on, drawn into the tool dialog at
// (10, 120); with no tool dialog it stops.
void ClockPreviewStep();
int ClockPreviewDue();
inline constexpr TickStep kClockPreviewStep{ClockPreviewStep, ClockPreviewDue};
void ClockPreviewFree();

// Opens the clock window, FlyingBat6.
void ClockWindowOpen();
