// mirrell_calen_file.dcd, all calendars and the list of the clock designs.
//
// offset  size            field
//      0  22              magic, no terminator
//     22  3964            head: count, names, kinds, parts, pictures
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
#include "services/record_file.h"

namespace {

constexpr char kMagic[] = "Mirrell Calender File:";
constexpr int kMagicSize = sizeof kMagic - 1;

// What must be whole before any of it is taken over.
struct Calendars {
  CalenHead head;
  CalenMonth sheets[kCalenMax][kMonthsOfYear];
  CalenMonthChoices flags[kCalenMax][kMonthsOfYear];
};
Calendars incoming;

bool ReadCalendars(DataFile& data) {
  if (!RecordRead(data, incoming.head)) return false;
  const int count = incoming.head.count;
  if (count < 0 || count > kCalenMax) return false;
  for (int i = 0; i < count; ++i) RecordsRead(data, incoming.sheets[i]);
  for (int i = 0; i < count; ++i) RecordsRead(data, incoming.flags[i]);
  return !data.failed;
}

void TakeHead(const CalenHead& head) {
  Calendar.CalenCount = head.count;
  std::memcpy(Calendar.CalenNames, head.names, sizeof Calendar.CalenNames);
  std::memcpy(Calendar.CalenKinds, head.kinds, sizeof Calendar.CalenKinds);
  std::memcpy(Calendar.CalenParts, head.parts, sizeof Calendar.CalenParts);
  std::memcpy(Calendar.CalenPictures, head.pictures, sizeof Calendar.CalenPictures);
}

void TakeCalendars() {
  TakeHead(incoming.head);
  const auto count = static_cast<std::size_t>(incoming.head.count);
  std::memcpy(Calendar.CalenSheets, incoming.sheets, count * sizeof Calendar.CalenSheets[0]);
  std::memcpy(Calendar.CalenSheetFlags, incoming.flags, count * sizeof Calendar.CalenSheetFlags[0]);
}

// Reads a record; a short one becomes zero, and the reading goes on.
template <class T>
void ReadOrZero(DataFile& data, T& record) {
  if (RecordRead(data, record)) return;
  record = T{};
  data.failed = false;
}

// bounded: a list of the calendar file that counts more clock designs than there can be is no
// list.
std::int32_t ReadListCount(DataFile& data) {
  std::uint32_t designs = 0;
  DataReadBE32(data, designs);
  data.failed = false;
  return designs <= kClockDesignMax ? static_cast<std::int32_t>(designs) : 0;
}

void ReadTail(DataFile& data) {
  for (int i = 0; i < Calendar.CalenCount; ++i) ReadOrZero(data, Calendar.CalenDefinitions[i]);
  ReadOrZero(data, Calendar.CalenStickers);
  ClockListCountSet(ReadListCount(data));
  for (int i = 0; i < Clock.ClockListCount; ++i) ReadOrZero(data, Clock.ClockList[i]);
}

// bounded: the number of calendars may come from the settings file; no more are written than
// there can be.
CalenHead HeadToWrite() {
  CalenHead head;
  head.count = std::clamp<std::int32_t>(Calendar.CalenCount, 0, kCalenMax);
  std::memcpy(head.names, Calendar.CalenNames, sizeof head.names);
  std::memcpy(head.kinds, Calendar.CalenKinds, sizeof head.kinds);
  std::memcpy(head.parts, Calendar.CalenParts, sizeof head.parts);
  std::memcpy(head.pictures, Calendar.CalenPictures, sizeof head.pictures);
  return head;
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
  // kept: every save switches the picture of the first calendar on.
  Calendar.CalenPictures[0] = 1;

  char path[kRootPathSize];
  CalenFilePath(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  const CalenHead head = HeadToWrite();
  DataWrite(data, kMagic, kMagicSize);
  RecordWrite(data, head);
  for (int i = 0; i < head.count; ++i) RecordsWrite(data, Calendar.CalenSheets[i]);
  for (int i = 0; i < head.count; ++i) RecordsWrite(data, Calendar.CalenSheetFlags[i]);
  RecordsWrite(data, Calendar.CalenDefinitions, head.count);
  RecordWrite(data, Calendar.CalenStickers);
  DataWriteBE32(data, static_cast<std::uint32_t>(Clock.ClockListCount));
  RecordsWrite(data, Clock.ClockList, Clock.ClockListCount);
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  return 0;
}
