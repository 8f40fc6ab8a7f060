// The announcing of the calendar's notes, run by the tick.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "services/tick_step.h"

// Looks for a note that is to be announced, while the settings ask for it and no note is
// being announced, and has command 2294 open its notice. Due at once after a change of the
// day, and while a note may wait; else on the next day.
//
// settled: the notes of the calendar are announced by the tick, as the calendar's settings ask for
// it; the command that opens their notice has no other sender.
inline bool NoteCheckIsActive() {
  return Calendar.CalenNoteMode != 0;
}
void NoteCheckTick();
int NoteCheckDue();
inline constexpr TimedStep kNoteCheckStep{NoteCheckIsActive, {NoteCheckTick, NoteCheckDue}};
