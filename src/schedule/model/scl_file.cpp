#include "schedule/model/scl_file.h"

#include <algorithm>
#include <cstring>

#include "schedule/model/schedule.h"
#include "schedule/model/scl_exec_copy.h"
#include "services/record_file.h"
#include "services/text.h"

namespace {

constexpr char kMagic[] = "SCL Data File : ";

// The columns and rows of the map, as the file has them.
using MapPlaces = std::uint16_t[kSclItemMax];

struct MapRun {
  SclMapPlace places[kSclItemMax];
};

bool PlacesWrite(DataFile& data, const MapPlaces& places, int count) {
  MapRun run = {};
  for (int i = 0; i < count; ++i) run.places[i].place = places[i];
  return RecordsWrite(data, run.places, count);
}

bool PlacesRead(DataFile& data, MapPlaces& places, int count) {
  MapRun run = {};
  for (int i = 0; i < count; ++i) run.places[i].place = places[i];
  const bool read = RecordsRead(data, run.places, count);
  for (int i = 0; i < count; ++i) places[i] = run.places[i].place;
  return read;
}

// --- Writing

void HeaderWrite(DataFile& data) {
  SclHeaderState header = Schedule.SclHeader;
  header.kind = 1;  // kept: a schedule file says kind 1 whatever the kind is
  RecordWrite(data, header);
}

void MapWrite(DataFile& data) {
  if (Schedule.SclMapFile[0] == '\0') return;
  SclMapPath map = {};
  TextCopy(map.path, sizeof map.path, Schedule.SclMapFile);
  RecordWrite(data, map);
  PlacesWrite(data, Schedule.SclMapColumn, Schedule.SclHeader.count);
  PlacesWrite(data, Schedule.SclMapRow, Schedule.SclHeader.count);
}

// --- Reading

// bounded: a schedule's start that no calendar has is held at the nearest one.
void StartHold(SclDate& start) {
  start.year = std::clamp(start.year, 0, 255);
  start.month = std::clamp(start.month, 0, kMonthsOfYear - 1);
  start.day = std::clamp(start.day, 0, 30);
  start.hour = std::clamp(start.hour, 0, kSclDayHours);
}

// settled: a schedule of more items than the table holds is refused as bad content, and the
// count of items stays as it was.
bool HeaderRead(DataFile& data) {
  const std::int32_t before = Schedule.SclHeader.count;
  const bool whole = RecordRead(data, Schedule.SclHeader);
  StartHold(Schedule.SclHeader.start);
  const std::int32_t count = Schedule.SclHeader.count;
  if (count >= 0 && count <= kSclItemMax) return whole;
  Schedule.SclHeader.count = before;
  return false;
}

// kept: a schedule file that ends behind its items is whole; the map of the schedule before it
// stays in force.
bool MapRead(DataFile& data) {
  SclMapPath map = {};
  if (!RecordRead(data, map)) return true;
  TextCopy(Schedule.SclMapFile, sizeof Schedule.SclMapFile, map.path);
  return PlacesRead(data, Schedule.SclMapColumn, Schedule.SclHeader.count) &&
         PlacesRead(data, Schedule.SclMapRow, Schedule.SclHeader.count);
}

bool ContentRead(DataFile& data) {
  return DataMagicRead(data, kMagic) && HeaderRead(data) &&
         RecordsRead(data, Schedule.SclItemTable, Schedule.SclHeader.count) && MapRead(data);
}

}  // namespace

int SclSaveFile(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  DataWrite(data, kMagic, sizeof kMagic - 1);
  HeaderWrite(data);
  RecordsWrite(data, Schedule.SclItemTable, Schedule.SclHeader.count);
  MapWrite(data);
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  SclCurrentFileSet(path);
  if (Schedule.SclExecActive && std::strcmp(Schedule.SclCurrentFile, Schedule.SclExecFile) == 0) {
    SclExecRefresh();
  }
  return FileResult.FileStatus;
}

int SclLoadFile(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return FileResult.FileStatus;
  // kept: a schedule file that cannot be read whole has become the current one all the same, and
  // what came before its end is in the table.
  SclCurrentFileSet(path);
  if (!ContentRead(data)) return DataFailStatus(data);
  DataClose(data);
  return FileResult.FileStatus;
}
