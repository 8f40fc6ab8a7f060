// A plan becomes a schedule: every placement of every line is put on the calendar, inside
// the work hours, around the rests, with a line without text where nothing is due. The
// items go into the schedule on display.
//
// Day numbers count calendar days from the start of the schedule. Lines and items count
// from 0, but for the answers that are 0 for none.
#pragma once

#include "schedule/plan/plan.h"

// How far each line has come.
struct ScpProgress {
  int lines = kScpLineMax;     // those behind have no hours
  int remaining[kScpLineMax];  // placements that are still to be made
  int lastDay[kScpLineMax];    // day number of the last one
  int wait[kScpLineMax];       // days to wait after it
};

// Converts the plan. 0, or below 0 when the table of items is full: what has been placed
// so far stays then.
int ScpConvertToSchedule();

// Row + 1 when a rest starts at this date's hour, else 0.
int ScpRestAt(const SclDate& date);

// Writes the rest that starts at `date` as an item; the date moves to its end.
void ScpAddRestLine(int item, int rowAndOne, SclDate& date);

// Writes the items of one placement from `current` on, which moves to its end. 0; -1 when
// the table is full at its end, -2 and -3 when before.
int ScpAddLine(SclDate& current, int line);

// The line that is to be placed on a day: line + 1, 0 for none. The first whose wait is
// over comes before the first that waits for nothing.
int ScpPickDueLine(const ScpProgress& progress, int day);

// Passes the time until a line is due, with an item without text: line + 1; 0 when no
// line is left, -1 when the table is full.
int ScpBridgeWait(SclDate& current, const ScpProgress& progress, int day);

// Takes one placement away from a line and gives its next wait.
void ScpNextRepeat(int line, int& remaining, int& wait);

// Calendar days from one date to another that is not before it.
int ScpDayDistance(const SclDate& from, const SclDate& to);
