// The rows of the schedule on display, for the commands of its table.
#include <algorithm>
#include <cstring>

#include "schedule/model/schedule.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_items.h"
#include "schedule/table/schedule_table.h"

namespace {

int Count() {
  return Schedule.SclHeader.count;
}

SclMirrorDate MirrorOf(const SclItemDate& date) {
  // kept: the hour of an inserted item goes where the alarms look for minutes too.
  return {date.year, date.month, date.day, date.hour};
}

// An empty row begins and ends where the one above it ends.
SclItemRec Empty(int row) {
  SclItemRec item{};
  item.start = row > 0 ? Schedule.SclItemTable[row - 1].end : SclItemDateOf(Schedule.SclHeader.start);
  item.end = item.start;
  item.mirrorStart = MirrorOf(item.start);
  item.mirrorEnd = item.mirrorStart;
  return item;
}

// kept: when an item is inserted, the places on the map do not move with the rows, nor are
// later dates worked out.
void Insert(int row) {
  const int count = Count();
  if (count >= kSclItemMax) return;
  for (int i = count; i > row; --i) SclItem(i) = Schedule.SclItemTable[i - 1];
  SclItem(row) = Empty(row);
  SclCountSet(count + 1);
}

void Remove(int row, int rows) {
  const int count = Count();
  for (int i = row; i + rows < count; ++i) SclItem(i) = Schedule.SclItemTable[i + rows];
  SclCountSet(count - rows);
}

void Copy(int to, int from) {
  SclItem(to) = Schedule.SclItemTable[from];
}

constexpr RowTable kRows{CopyMark::InSchedule, kSclItemMax, kSclItemMax, Count, Insert, Remove, Copy,
                         SclRecalcAll};

}  // namespace

const RowTable& SclRowTable() {
  return kRows;
}
