// What the settings file keeps of the clock, and what a new data set holds.
//
// offset  size  field, behind the character's
//      0     4  ClockStrikeMode
//      4     4  ClockStrikeSel
//      8     4  ClockSoundOn
//     12   300  ClockSoundName
//    312     1  ClockShow
//    313     1  ClockDesign
//    314     8  ClockX, ClockY
//    322    12  reserved
#pragma once

#include "clock_calendar/clock/clock.h"
#include "services/record.h"

struct ClockSettings {};

template <class Io>
constexpr void Fields(Io& io, ClockSettings&) {
  io.BE32(Clock.ClockStrikeMode);
  io.BE32(Clock.ClockStrikeSel);
  io.BE32(Clock.ClockSoundOn);
  io.Text(Clock.ClockSoundName);
  io.U8(Clock.ClockShow);
  io.U8(Clock.ClockDesign);
  io.BE32(Clock.ClockX);
  io.BE32(Clock.ClockY);
  io.BE32(Clock.ClockReserved);
  io.At(334);
}

// The five alarms, near the end of the file.
struct ClockAlarmSettings {};

template <class Io>
constexpr void Fields(Io& io, ClockAlarmSettings&) {
  io.Record(Clock.ClockEvents);
  io.At(720);
}

// They have been read: they are what the dialogs want, and the design is taken afresh.
void ClockSettingsTaken();

// Puts what a new data set holds into them and into the designs.
void ClockSettingsFactory();
