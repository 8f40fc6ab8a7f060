#include "schedule/plan/plan_file.h"

#include "schedule/plan/plan.h"
#include "services/record_file.h"

namespace {

constexpr char kMagic[] = "SCP Data File : ";

// settled: a plan file that counts more than 300 lines, or fewer than none, is refused like
// one that is cut, and the plan then has the 300 lines that there is room for.
bool HeadRead(DataFile& data) {
  const bool whole = RecordRead(data, Plan.head);
  if (Plan.head.count >= 0 && Plan.head.count <= kScpLineMax) return whole;
  Plan.head.count = kScpLineMax;
  return false;
}

// settled: the lines behind the last one of a plan file become empty, so that nothing of
// the plan before is converted with it.
void LinesBehindClear() {
  for (int line = Plan.head.count; line < kScpLineMax; ++line) Plan.ScpPlanTable[line] = ScpNewLine();
}

bool Read(DataFile& data) {
  if (!DataMagicRead(data, kMagic) || !HeadRead(data)) return false;
  LinesBehindClear();
  return RecordsRead(data, Plan.ScpPlanTable, Plan.head.count);
}

bool Write(DataFile& data) {
  return DataWrite(data, kMagic, sizeof kMagic - 1) && RecordWrite(data, Plan.head) &&
         RecordsWrite(data, Plan.ScpPlanTable, Plan.head.count);
}

int Finish(DataFile& data, bool done) {
  if (!done) return DataFailStatus(data);
  DataClose(data);
  Plan.dirty = false;
  return 0;
}

}  // namespace

int ScpSaveFile(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  return Finish(data, Write(data));
}

int ScpLoadFile(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return FileResult.FileStatus;
  return Finish(data, Read(data));
}
