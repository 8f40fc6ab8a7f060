#include "schedule/model/scl_exec.h"

#include <cstring>

#include "schedule/model/scl_file.h"
#include "services/text.h"

namespace {

constexpr unsigned kBothDirty = kSclTableChanged | kSclSettingsChanged;

void ExecFileTake(const char* path) {
  TextCopy(Schedule.SclExecFile, sizeof Schedule.SclExecFile, path);
}

}  // namespace

void SclExecChoose() {
  Schedule.SclExecMark = SclMark::Chosen;
  ExecFileTake(Schedule.SclCurrentFile);
  SclDirtyRaise(kBothDirty);
  SclExecCopyOpen();
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
  // kept: another schedule on display takes the mark off, while the one that is carried out
  // goes on.
  const bool same = std::strcmp(Schedule.SclCurrentFile, Schedule.SclExecFile) == 0;
  Schedule.SclExecMark = same ? SclMark::Running : SclMark::None;
}

int SclExecEdit() {
  const int status = SclLoadFile(Schedule.SclExecFile);
  if (status == 0) Schedule.SclExecMark = SclMark::Running;
  return status;
}

int SclExecLoad(const char* path) {
  const int status = SclLoadFile(path);
  // settled: a schedule that cannot be loaded leaves what is carried out as it is.
  if (status != 0) return status;
  Schedule.SclExecActive = true;
  Schedule.SclExecMark = SclMark::Running;
  // settled: the schedule of an application is the executing file too, so that it can be
  // opened for editing, and a save of it reaches the copy.
  ExecFileTake(path);
  SclExecRefresh();
  return status;
}
