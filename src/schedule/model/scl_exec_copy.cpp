#include "schedule/model/scl_exec_copy.h"

#include <algorithm>
#include <iterator>

#include "schedule/model/scl_dates.h"

namespace {

void CopyTake() {
  const SclHeaderState& from = Schedule.SclHeader;
  SclExecCopy& to = Schedule.SclExecTable;
  to.count = from.count;
  to.start = from.start;
  std::copy(std::begin(from.rows), std::end(from.rows), to.rows);
  std::copy(std::begin(from.title), std::end(from.title), to.title);
  std::copy(std::begin(Schedule.SclItemTable), std::end(Schedule.SclItemTable), to.items);
}

void CopyDone() {
  SclEvalAlarmFlag();
  SclExecShiftStarts();
}

}  // namespace

void SclEvalAlarmFlag() {
  const SclExecCopy& copy = Schedule.SclExecTable;
  Schedule.SclAlarmFlag = std::any_of(copy.items, copy.items + copy.count, [](const SclItemRec& item) {
    return item.hours != 0 && item.alarmOn != 0;
  });
}

void SclExecShiftStarts() {
  SclExecCopy& copy = Schedule.SclExecTable;
  for (int i = 0; i < copy.count; ++i) {
    SclItemRec& item = copy.items[i];
    if (item.hours != 0) item.start = SclItemDateOf(SclStartMoved(copy.rows, SclDateOf(item.start)));
  }
}

void SclExecRefresh() {
  CopyTake();
  CopyDone();
}

void SclExecCopyOpen() {
  CopyTake();
  // kept: finished items are open again in a schedule that is newly chosen to be carried out,
  // and stay finished in its table.
  for (SclItemRec& item : Schedule.SclExecTable.items) item.doneState = 0;
  CopyDone();
}
