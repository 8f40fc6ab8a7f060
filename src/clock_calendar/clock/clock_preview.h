// A design's performance, tried out in AlarmChkDialog.
#pragma once

#include "character/frames.h"
#include "clock_calendar/clock/clock_strike.h"
#include "platform/types.h"
#include "services/tick_step.h"

struct ClockPreviewState {
  ClockStrikePlay play;
  ClockStrikeSettings settings = {};
  int design = 0;  // place of the design
  int frame = 0;   // on show, from 0; 0 is the dial's own
  Rect box = {};   // that the frames are drawn in
  MaskedFrame shown = {};
};
extern ClockPreviewState ClockPreview;

// Plays the performance that a design has at this hour, with those settings, until the
// dialog is closed.
void ClockPreviewRun(WindowHandle owner, int design, const ClockStrikeSettings& settings);

// A preview that is playing goes on, drawn into the tool dialog at (10, 120); with no
// tool dialog it stops.
void ClockPreviewStep();
int ClockPreviewDue();
inline constexpr TickStep kClockPreviewStep{ClockPreviewStep, ClockPreviewDue};

// Ends the preview and frees its picture.
void ClockPreviewFree();
