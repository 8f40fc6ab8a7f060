#include "schedule/model/scl_exec.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "schedule/model/scl_dates.h"
#include "services/text.h"

namespace {

constexpr unsigned kBothDirty = kSclTableChanged | kSclSettingsChanged;

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

void ExecFileTake(const char* path) {
  TextCopy(Schedule.SclExecFile, sizeof Schedule.SclExecFile, path);
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

void SclExecChoose() {
  Schedule.SclExecMark = SclMark::Chosen;
  ExecFileTake(Schedule.SclCurrentFile);
  SclDirtyRaise(kBothDirty);
  CopyTake();
  // kept: what is finished is open again in the copy, and stays finished in the schedule.
  for (SclItemRec& item : Schedule.SclExecTable.items) item.doneState = 0;
  CopyDone();
  Schedule.SclExecActive = true;
}

void SclExecUnchoose() {
  Schedule.SclExecMark = SclMark::None;
  Schedule.SclExecActive = false;
  Schedule.SclExecFile[0] = '\0';
  Schedule.SclAlarmFlag = false;
  SclDirtyRaise(kBothDirty);
}

void SclExecSaved() {
  if (Schedule.SclExecMark != SclMark::Chosen) return;
  Schedule.SclExecMark = SclMark::Running;
  ExecFileTake(Schedule.SclCurrentFile);
}

void SclExecLoaded() {
  if (!Schedule.SclExecActive) return;
  const bool same = std::strcmp(Schedule.SclCurrentFile, Schedule.SclExecFile) == 0;
  Schedule.SclExecMark = same ? SclMark::Running : SclMark::None;
}
