// mirrell_calen_file.dcd, all calendars and the list of the clock designs.
//
// offset  size            field
//      0  22              magic, no terminator
//     22  4               calendar count, big-endian
//     26  30 x 129        names
//   3896  30              page kinds
//   3926  30              reserved
//   3956  30              picture switches
//   3986  count x 56064   sheets: 12 month blocks of 4672
//   then  count x 120     12 records of 10 bytes for each sheet
//   then  count x 26728   definitions
//   then  302             stickers
//   then  4               count of clock design records, big-endian
//   then  count x 104     clock design records
//
// Older files end somewhere behind the records of 10 bytes; what they lack is
// zero.
#include <algorithm>
#include <cstring>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "services/data_file.h"
#include "services/program.h"

namespace {

constexpr char kMagic[] = "Mirrell Calender File:";
constexpr int kMagicSize = sizeof kMagic - 1;

// What must be whole before any of it is taken over.
struct Calendars {
  std::int32_t count;
  char names[kCalenMax][kCalenNameSize];
  unsigned char kinds[kCalenMax];
  unsigned char parts[kCalenMax];
  unsigned char pictures[kCalenMax];
  unsigned char sheets[kCalenMax][kMonthsOfYear][kMonthBlockSize];
  unsigned char flags[kCalenMax][kMonthsOfYear][kMonthFlagsSize];
};
Calendars incoming;

bool ReadCalendars(DataFile& data) {
  if (!DataReadBE32(data, incoming.count) || incoming.count < 0 || incoming.count > kCalenMax) return false;
  for (char(&name)[kCalenNameSize] : incoming.names) {
    DataRead(data, name, kCalenNameSize);
    name[kCalenNameSize - 1] = '\0';
  }
  DataRead(data, incoming.kinds, kCalenMax);
  DataRead(data, incoming.parts, kCalenMax);
  DataRead(data, incoming.pictures, kCalenMax);
  for (int i = 0; i < incoming.count; ++i) {
    for (unsigned char(&month)[kMonthBlockSize] : incoming.sheets[i]) DataRead(data, month, kMonthBlockSize);
  }
  for (int i = 0; i < incoming.count; ++i) {
    for (unsigned char(&month)[kMonthFlagsSize] : incoming.flags[i]) DataRead(data, month, kMonthFlagsSize);
  }
  return !data.failed;
}

void TakeCalendars() {
  Calendar.CalenCount = incoming.count;
  std::memcpy(Calendar.CalenNames, incoming.names, sizeof Calendar.CalenNames);
  std::memcpy(Calendar.CalenKinds, incoming.kinds, sizeof Calendar.CalenKinds);
  std::memcpy(Calendar.CalenParts, incoming.parts, sizeof Calendar.CalenParts);
  std::memcpy(Calendar.CalenPictures, incoming.pictures, sizeof Calendar.CalenPictures);
  const auto count = static_cast<std::size_t>(incoming.count);
  std::memcpy(Calendar.CalenSheets, incoming.sheets, count * sizeof Calendar.CalenSheets[0]);
  std::memcpy(Calendar.CalenSheetFlags, incoming.flags, count * sizeof Calendar.CalenSheetFlags[0]);
}

// Reads a block; a short one becomes zero, and the reading goes on.
void ReadOrZero(DataFile& data, void* to, int size) {
  if (DataRead(data, to, size)) return;
  std::memset(to, 0, static_cast<std::size_t>(size));
  data.failed = false;
}

void ReadTail(DataFile& data) {
  for (int i = 0; i < Calendar.CalenCount; ++i)
    ReadOrZero(data, Calendar.CalenDefinitions[i], kDefinitionSize);
  ReadOrZero(data, Calendar.CalenStickers, kStickerListSize);
  unsigned char count[4];
  ReadOrZero(data, count, sizeof count);
  // bounded: a list that counts more designs than there can be is no list.
  const std::uint32_t designs = GetBE32(count);
  Clock.ClockListCount = designs <= kClockDesignMax ? static_cast<std::int32_t>(designs) : 0;
  for (int i = 0; i < Clock.ClockListCount; ++i) ReadOrZero(data, Clock.ClockList[i], kClockListSize);
}

}  // namespace

int CalenFilePath(char* buffer, int size) {
  return RootPath(buffer, size, "\\mirrell_calen_file.dcd");
}

int CalenFileRead() {
  char path[kRootPathSize];
  CalenFilePath(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::ReadDenyWrite)) return FileResult.FileStatus;
  char magic[kMagicSize + 1] = {};
  if (!DataRead(data, magic, kMagicSize)) return DataFailShort(data);
  if (std::strcmp(magic, kMagic) != 0 || !ReadCalendars(data)) return DataFailStatus(data);
  TakeCalendars();
  ReadTail(data);
  DataClose(data);
  CalenTakeDefinition();
  return 0;
}

int CalenFileWrite() {
  const int sel = CalenSelected();
  std::memcpy(Calendar.CalenSheets[sel], Calendar.CalenMonths[0], sizeof Calendar.CalenSheets[sel]);
  std::memcpy(Calendar.CalenSheetFlags[sel], Calendar.CalenMonthFlags[0],
              sizeof Calendar.CalenSheetFlags[sel]);
  Calendar.CalenPictures[0] = 1;

  char path[kRootPathSize];
  CalenFilePath(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  // bounded: the settings file has its own copy of the count.
  const int count = std::clamp<std::int32_t>(Calendar.CalenCount, 0, kCalenMax);
  DataWrite(data, kMagic, kMagicSize);
  DataWriteBE32(data, static_cast<std::uint32_t>(count));
  for (const char(&name)[kCalenNameSize] : Calendar.CalenNames) DataWrite(data, name, kCalenNameSize);
  DataWrite(data, Calendar.CalenKinds, kCalenMax);
  DataWrite(data, Calendar.CalenParts, kCalenMax);
  DataWrite(data, Calendar.CalenPictures, kCalenMax);
  for (int i = 0; i < count; ++i) {
    for (const unsigned char(&month)[kMonthBlockSize] : Calendar.CalenSheets[i])
      DataWrite(data, month, kMonthBlockSize);
  }
  for (int i = 0; i < count; ++i) {
    for (const unsigned char(&month)[kMonthFlagsSize] : Calendar.CalenSheetFlags[i]) {
      DataWrite(data, month, kMonthFlagsSize);
    }
  }
  for (int i = 0; i < count; ++i) DataWrite(data, Calendar.CalenDefinitions[i], kDefinitionSize);
  DataWrite(data, Calendar.CalenStickers, kStickerListSize);
  DataWriteBE32(data, static_cast<std::uint32_t>(Clock.ClockListCount));
  for (int i = 0; i < Clock.ClockListCount; ++i) DataWrite(data, Clock.ClockList[i], kClockListSize);
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  return 0;
}
