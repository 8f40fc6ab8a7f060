// The executing schedule comes from its file: for display, or to be carried out.
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_file.h"
#include "services/text.h"

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
  TextCopy(Schedule.SclExecFile, sizeof Schedule.SclExecFile, path);
  SclExecRefresh();
  return status;
}
