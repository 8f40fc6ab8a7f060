#include "schedule/rates/bup_scl_dir.h"

#include "services/data_file.h"
#include "services/program.h"
#include "services/record_file.h"

namespace {

constexpr char kName[] = "\\BupSclDir.bsd";

}  // namespace

int BupSclDirWrite(const BupSclDir& dirs) {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  if (!RecordWrite(data, dirs)) return DataFailStatus(data);
  DataClose(data);
  return 0;
}

int BupSclDirRead(BupSclDir& dirs) {
  char path[kRootPathSize];
  RootPath(path, sizeof path, kName);
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return -3;
  if (!RecordRead(data, dirs)) return DataFailStatus(data);
  DataClose(data);
  return 0;
}
