// mirrell_ClcAlmPerFile.clc, the performances of the clock's alarms.
//
// offset  size         field
//      0    25         magic, no terminator
//     25     4         record count, big-endian
//     29     2008 each records as they stand in memory (clock.h)
#include <algorithm>
#include <cstring>

#include "clock_calendar/clock/clock.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

namespace {

constexpr char kMagic[] = "Mirrell Clock Alarm File:";
constexpr int kMagicSize = sizeof kMagic - 1;

struct DefaultRecord {
  std::int32_t figureMode;
  int durationCount;
  std::int32_t duration;
  const char* sound;
  const char* title;
};
constexpr DefaultRecord kDefaults[kPerformanceDefaultCount] = {
    {5, 20, 90, "kan.wav", "キャラクタ+音"},
    {5, 18, 1000, "", "キャラクタのみ"},
    {0, 18, 0, "kan.wav", "音のみ"},
};

// kept: what the file of performances holds never reaches the program; the default records
// stand in the table after every read and before every write.
void PutDefaults() {
  PerformanceTable.ClockPerformanceCount = kPerformanceDefaultCount;
  for (int i = 0; i < kPerformanceDefaultCount; ++i) {
    ClockPerformance& record = PerformanceTable.ClockPerformances[i];
    const DefaultRecord& value = kDefaults[i];
    record = ClockPerformance{};
    record.flags = kPerformanceCharacter;
    record.figureMode = value.figureMode;
    std::fill_n(record.durations, value.durationCount, value.duration);
    TextCopy(record.sound, sizeof record.sound, value.sound);
    TextCopy(record.title, sizeof record.title, value.title);
  }
}

}  // namespace

int ClockAlarmFilePath(char* buffer, int size) {
  return RootPath(buffer, size, "\\mirrell_ClcAlmPerFile.clc");
}

int ClockAlarmFileRead() {
  char path[kRootPathSize];
  ClockAlarmFilePath(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::ReadDenyWrite)) return FileResult.FileStatus;
  char magic[kMagicSize + 1] = {};
  std::int32_t count = 0;
  if (!DataRead(data, magic, kMagicSize) || std::strcmp(magic, kMagic) != 0 || !DataReadBE32(data, count) ||
      count < 0 || count > kPerformanceMax) {
    return DataFailStatus(data);
  }
  ClockPerformance passedOver;
  for (int i = 0; i < count; ++i) RecordRead(data, passedOver);
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  PutDefaults();
  return 0;
}

int ClockAlarmFileWrite() {
  PutDefaults();
  char path[kRootPathSize];
  ClockAlarmFilePath(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  DataWrite(data, kMagic, kMagicSize);
  DataWriteBE32(data, static_cast<std::uint32_t>(PerformanceTable.ClockPerformanceCount));
  if (!RecordsWrite(data, PerformanceTable.ClockPerformances, PerformanceTable.ClockPerformanceCount))
    return DataFailStatus(data);
  DataClose(data);
  return 0;
}

int ClockAlarmFileLoad() {
  const int result = ClockAlarmFileRead();
  return result == 0 ? 0 : ClockAlarmFileWrite();
}
