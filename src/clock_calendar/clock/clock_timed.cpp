// The timed events of the clock.
#include <cstring>

#include "clock_calendar/clock/clock.h"
#include "services/text.h"

TimedState Timed;

namespace {

bool ComesBefore(const TimedEvent& event, const TimedEvent& other) {
  if (event.hour != other.hour) return event.hour < other.hour;
  if (event.minute != other.minute) return event.minute < other.minute;
  // kept: the new row's minute is held against the other's second, so events of
  // one minute do not stand in the order of their seconds.
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
  unsigned char* record = Timed.TimedRows[row];
  std::memset(record, 0, kTimedSize);
  record[kTimedEnabled] = event.enabled ? 1 : 0;
  PutLE16(record + kTimedHour, static_cast<std::uint16_t>(event.hour));
  PutLE16(record + kTimedMinute, static_cast<std::uint16_t>(event.minute));
  PutLE16(record + kTimedSecond, static_cast<std::uint16_t>(event.second));
  std::memcpy(record + kTimedComment, event.comment, TextLength(event.comment, kTimedCommentSize - 1));
}

bool IsRow(int row) {
  return row >= 0 && row < Timed.TimedCount;
}

}  // namespace

TimedEvent TimedGet(int row) {
  if (!IsRow(row)) return {};
  const unsigned char* record = Timed.TimedRows[row];
  TimedEvent event{record[kTimedEnabled] != 0,
                   GetLE16(record + kTimedHour),
                   GetLE16(record + kTimedMinute),
                   GetLE16(record + kTimedSecond),
                   {}};
  std::memcpy(event.comment, record + kTimedComment, kTimedCommentSize - 1);
  return event;
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
  for (int i = row; i + 1 < Timed.TimedCount; ++i)
    std::memcpy(Timed.TimedRows[i], Timed.TimedRows[i + 1], kTimedSize);
  --Timed.TimedCount;
  Sort();
  return true;
}
