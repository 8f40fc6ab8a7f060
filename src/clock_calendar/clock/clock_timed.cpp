// The timed events of the clock.
#include "clock_calendar/clock/clock.h"

TimedState Timed;

namespace {

bool ComesBefore(const TimedEvent& event, const TimedEvent& other) {
  if (event.hour != other.hour) return event.hour < other.hour;
  if (event.minute != other.minute) return event.minute < other.minute;
  // kept: in the order of the clock's events the new row's minute is held against the other's
  // second, so those of one minute do not stand in the order of their seconds.
  return event.minute < other.second;
}

void Sort() {
  for (int row = 0; row < Timed.TimedCount; ++row) {
    const TimedEvent event = TimedGet(row);
    int place = 0;
    while (place < row && !ComesBefore(event, TimedGet(Timed.TimedOrder[place]))) ++place;
    for (int i = row; i > place; --i) Timed.TimedOrder[i] = Timed.TimedOrder[i - 1];
    Timed.TimedOrder[place] = row;
  }
}

void Put(int row, const TimedEvent& event) {
  Timed.TimedRows[row] = event;
  // bounded: the comment of a clock event ends inside its field.
  Timed.TimedRows[row].comment[kTimedCommentSize - 1] = '\0';
}

bool IsRow(int row) {
  return row >= 0 && row < Timed.TimedCount;
}

}  // namespace

TimedEvent TimedGet(int row) {
  return IsRow(row) ? Timed.TimedRows[row] : TimedEvent{};
}

int TimedAdd(const TimedEvent& event) {
  if (Timed.TimedCount >= kTimedMax) return -1;
  Put(Timed.TimedCount++, event);
  Sort();
  return Timed.TimedCount - 1;
}

bool TimedChange(int row, const TimedEvent& event) {
  if (!IsRow(row)) return false;
  Put(row, event);
  Sort();
  return true;
}

bool TimedDelete(int row) {
  if (!IsRow(row)) return false;
  for (int i = row; i + 1 < Timed.TimedCount; ++i) Timed.TimedRows[i] = Timed.TimedRows[i + 1];
  --Timed.TimedCount;
  Sort();
  return true;
}
