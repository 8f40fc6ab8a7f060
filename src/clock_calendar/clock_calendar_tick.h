// What the tick, the start and the shutdown ask of the windows of the clock and
// the calendar.
#pragma once

#include "services/tick_step.h"

// WatchAdustDlg is open: draws the shared time into it when the second has changed.
bool WatchAdustIsOpen();
void WatchAdustTimeDraw();
inline constexpr TimedStep kWatchAdustStep{
    WatchAdustIsOpen, {WatchAdustTimeDraw, [] { return TickDueIf(WatchAdustIsOpen()); }}};

// The clock window is open: it is painted when what it shows has changed. It is due at
// the next minute, and at every tick of a performance.
bool ClockIsOpen();
void ClockTick();
int ClockDue();
inline constexpr TimedStep kClockStep{ClockIsOpen, {ClockTick, ClockDue}};

// The calendar window or the clock notice is open: the day, the figures and the ticker
// of the one, the alarms, and the performance of the other.
bool CalendarStepIsActive();
void CalendarTick();
inline constexpr TimedStep kCalendarStep{CalendarStepIsActive,
                                         {CalendarTick, [] { return TickDueIf(CalendarStepIsActive()); }}};

// A clock preview that is playing goes on, drawn into the tool dialog at
// (10, 120); with no tool dialog it stops.
void ClockPreviewStep();
int ClockPreviewDue();
inline constexpr TickStep kClockPreviewStep{ClockPreviewStep, ClockPreviewDue};
void ClockPreviewFree();

// Steps the ticker of the calendar window.
void CalenTickerTick();

// Open the clock window, FlyingBat6, and the calendar window, FlyingBat3.
void ClockWindowOpen();
void CalenWindowOpen();

void CalenFontDelete();
// Frees the pictures of the stickers and of the month on display.
void CalenStickersFree();
