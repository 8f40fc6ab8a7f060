// Announcing the notes of the coming days, once for each day.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "clock_calendar/calendar/calendar.h"
#include "services/today.h"

namespace {

enum NoteMode { kNoteNever, kNoteThatDay, kNoteDayBefore, kNoteTwoDaysBefore };

// A day of the working array. The year index may leave the span.
struct Day {
  int yearIndex;
  int month;
  int day;
};

// The day after, by the length of the month given.
Day NextDay(Day day, int daysOfMonth) {
  if (++day.day < daysOfMonth) return day;
  day.day = 0;
  if (++day.month < kMonthsOfYear) return day;
  day.month = 0;
  ++day.yearIndex;
  return day;
}

// Puts a day's note into its slot, or marks the slot as done where there is none.
// True if there is one.
bool Announce(int slot, const Day& day) {
  CalenNote& note = Calendar.CalenNotes[slot];
  char text[kNoteSize + 1] = "";
  const bool inSpan = day.yearIndex < kCalenYearMax && day.yearIndex < Calendar.CalenYearCount;
  if (inSpan) CalenNoteGet(day.yearIndex, day.month, day.day, text);
  if (text[0] == '\0') {
    Calendar.notesDone[slot] = true;
    return false;
  }
  note.due = true;
  note.year = Calendar.CalenFirstYear + day.yearIndex;
  note.monthAndDay = day.day;
  std::memcpy(note.text, text, sizeof note.text);
  return true;
}

bool LookedAt(const SclDate& day) {
  return day.year == Calendar.notesLookedAt.year && day.month == Calendar.notesLookedAt.month &&
         day.day == Calendar.notesLookedAt.day;
}

// The marks that the mode asks for: of today, of tomorrow, of the day after it.
int MarksAskedFor() {
  return std::clamp<int>(Calendar.CalenNoteMode, 0, kNoteDays);
}

}  // namespace

int CalenNoteCheck() {
  if (Calendar.CalenNoteMode <= kNoteNever) return 0;
  const LocalTime& now = Today.SharedTime;
  const SclDate today = {now.year - 2000, now.month - 1, now.day - 1, 0};
  const int yearIndex = CalenSpanIndex(today.year);
  if (yearIndex < 0) return 0;
  if (!LookedAt(today)) {
    Calendar.notesLookedAt = today;
    for (bool& mark : Calendar.notesDone) mark = false;
  }
  const Day first = {yearIndex, today.month, today.day};
  if (!Calendar.notesDone[0] && Announce(0, first)) return 1;
  if (Calendar.CalenNoteMode == kNoteThatDay) return 0;
  const int daysOfMonth = Calendar.CalenMonths[yearIndex][today.month].days;
  const Day second = NextDay(first, daysOfMonth);
  if (!Calendar.notesDone[1] && Announce(1, second)) return 1;
  if (Calendar.CalenNoteMode != kNoteTwoDaysBefore || Calendar.notesDone[2]) return 0;
  Calendar.notesDone[2] = true;
  // kept: the day after tomorrow is found by the length of today's month alone, though tomorrow
  // may lie in the next one.
  return Announce(2, NextDay(second, daysOfMonth)) ? 1 : 0;
}

bool CalenNoteWaits() {
  return std::any_of(std::begin(Calendar.CalenNotes), std::end(Calendar.CalenNotes),
                     [](const CalenNote& note) { return note.due; });
}

int CalenNoteTake() {
  for (int slot = 0; slot < kNoteDays; ++slot) {
    if (!Calendar.CalenNotes[slot].due) continue;
    Calendar.CalenNotes[slot].due = false;
    Calendar.notesDone[slot] = true;
    return slot;
  }
  return -1;
}

bool CalenNotesAreDone(const LocalTime& now) {
  const SclDate today = {now.year - 2000, now.month - 1, now.day - 1, 0};
  if (CalenSpanIndex(today.year) < 0) return true;
  return LookedAt(today) && !CalenNoteWaits() &&
         std::all_of(Calendar.notesDone, Calendar.notesDone + MarksAskedFor(),
                     [](bool done) { return done; });
}
