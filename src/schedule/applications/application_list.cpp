// mirrell_apli_list_file.ali, numbers big-endian:
//
//   0        24           magic "Mirrell ApliCation List:"
//   24        4           entry count
//   28        4           second count
//   32        4           selected entry
//   36      600 an entry  full path of a program
//   then    600           path of the executing schedule
//   then    600 each      second list: read, never written
#include "schedule/applications/application_list.h"

#include <algorithm>
#include <cstring>

#include "platform/memory.h"
#include "services/path.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"

ApliListState Applications;

namespace {

constexpr char kMagic[] = "Mirrell ApliCation List:";

void Path(char* buffer, int size) {
  RootPath(buffer, size, "\\mirrell_apli_list_file.ali");
}

// Room for `count` entries; null when there is none.
ApliEntry* EntriesMake(int count) {
  return static_cast<ApliEntry*>(MemoryAllocate(static_cast<std::size_t>(count) * sizeof(ApliEntry)));
}

// Room for `count` entries, with those that are there.
bool EntriesGrow(int count) {
  ApliEntry* entries = EntriesMake(count);
  if (!entries) return false;
  if (Applications.entries) std::copy_n(Applications.entries, Applications.ApliCount, entries);
  MemoryFree(Applications.entries);
  Applications.entries = entries;
  return true;
}

// The number, from 1, of an entry when the one from 0 has been removed; 0 for that itself.
std::int32_t NumberBehind(std::int32_t number, int removed) {
  if (number == removed + 1) return 0;
  return number > removed + 1 ? number - 1 : number;
}

// bounded: an application list longer than the program ever writes is bad content.
bool IsList(const ApliHead& head) {
  return head.count >= 0 && head.count <= kApliMax && head.second >= 0 && head.second <= kApliMax;
}

// A list as its file has it.
struct ListRead {
  ApliHead head = {};
  ApliEntry* entries = nullptr;
  ApliEntry schedule = {};
  ApliEntry* second = nullptr;
};

// Room for so many entries, read from the file.
bool EntriesRead(DataFile& data, ApliEntry*& entries, int count, int room) {
  entries = EntriesMake(room);
  return entries && RecordsRead(data, entries, count);
}

bool ListTake(DataFile& data, ListRead& list) {
  if (!RecordRead(data, list.head) || !IsList(list.head)) return false;
  return EntriesRead(data, list.entries, list.head.count, list.head.count + 1) &&
         RecordRead(data, list.schedule) &&
         (list.head.second == 0 || EntriesRead(data, list.second, list.head.second, list.head.second));
}

// settled: a program or a schedule whose path in the list of applications names no drive lies
// below the program folder, so that a data set can be made before its place is known.
void PathComplete(ApliEntry& entry) {
  if (entry.path[0] == '\0' || PathIsFull(entry.path)) return;
  const ApliEntry below = entry;
  RootPath(entry.path, kApliPathSize, "\\");
  TextAppend(entry.path, kApliPathSize, below.path);
}

void ListKeep(const ListRead& list) {
  ApliListFree();
  const ApliHead& head = list.head;
  Applications.ApliCount = head.count;
  Applications.ApliSecondCount = head.second;
  Applications.ApliSelected = head.selected >= 0 && head.selected <= head.count ? head.selected : 0;
  Applications.ApliSchedule = list.schedule;
  Applications.entries = list.entries;
  Applications.secondList = list.second;
  for (int entry = 0; entry < head.count; ++entry) PathComplete(Applications.entries[entry]);
  PathComplete(Applications.ApliSchedule);
}

}  // namespace

int ApliListOpen() {
  char path[kRootSize + 64];
  Path(path, sizeof path);
  const int file = FileOpen(path, OpenMode::Read);
  if (file != kNoFile) {
    FileClose(file);
    return 0;
  }
  Applications.ApliCount = 0;
  Applications.ApliSecondCount = 0;
  Applications.ApliSelected = 0;
  return ApliListSave();
}

int ApliListRead() {
  char path[kRootSize + 64];
  Path(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::Read)) return -1;
  if (!DataMagicRead(data, kMagic)) {
    if (data.failed) return DataFailStatus(data);
    // kept: an application list that is something else counts as read.
    DataFailStatus(data);
    return 0;
  }
  ListRead list;
  if (!ListTake(data, list)) {
    MemoryFree(list.entries);
    MemoryFree(list.second);
    return DataFailStatus(data);
  }
  DataClose(data);
  ListKeep(list);
  return 0;
}

int ApliListSave() {
  char path[kRootSize + 64];
  Path(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  DataWrite(data, kMagic, sizeof kMagic - 1);
  RecordWrite(data,
              ApliHead{Applications.ApliCount, Applications.ApliSecondCount, Applications.ApliSelected});
  RecordsWrite(data, Applications.entries, Applications.ApliCount);
  RecordWrite(data, Applications.ApliSchedule);
  // kept: the second list of an application list is counted but not written; its count is 0.
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  return 0;
}

const char* ApliPath(int entry) {
  return Applications.entries && entry >= 0 && entry < Applications.ApliCount
             ? Applications.entries[entry].path
             : "";
}

bool ApliListHasRoom() {
  return Applications.ApliCount < kApliMax;
}

int ApliListAdd(const char* path) {
  if (!ApliListHasRoom() || !EntriesGrow(Applications.ApliCount + 2)) return -1;
  TextCopy(Applications.entries[Applications.ApliCount++].path, kApliPathSize, path);
  ApliListSave();
  return 0;
}

void ApliListRemove(int entry) {
  if (!Applications.entries || entry < 0 || entry >= Applications.ApliCount) return;
  // kept: with the selected application its entry goes, but not the path of its schedule.
  Applications.ApliSelected = NumberBehind(Applications.ApliSelected, entry);
  // settled: the program whose hand-off file is watched keeps its entry too; without one it is watched no
  // more.
  Applications.ApliStarted = NumberBehind(Applications.ApliStarted, entry);
  std::copy(Applications.entries + entry + 1, Applications.entries + Applications.ApliCount,
            Applications.entries + entry);
  --Applications.ApliCount;
  ApliListSave();
}

void ApliRowText(int entry, char* text, int size) {
  PathSplit(ApliPath(entry));
  char name[kPathSplitSize + 1];
  TextCopy(name, sizeof name, PathParts.PathName);
  char* dot = std::strrchr(name, '.');
  if (dot) *dot = '\0';
  // settled: an application that is both selected and started is shown as started.
  const char* format = Applications.ApliStarted == entry + 1    ? "%s (起動中)"
                       : Applications.ApliSelected == entry + 1 ? "%s (実行指定)"
                                                                : "%s";
  TextFormat(text, static_cast<std::size_t>(size), format, name);
}

int ApliListSetFirst(const char* path) {
  if (!Applications.entries && !EntriesGrow(2)) return -1;
  TextCopy(Applications.entries[0].path, kApliPathSize, path);
  if (Applications.ApliCount < 1) Applications.ApliCount = 1;
  return 0;
}

bool ApliListHasSelected() {
  return Applications.ApliSelected != 0;
}

bool ApliSelectedIsRunning() {
  return Applications.ApliSelected != 0 && Applications.ApliStarted == Applications.ApliSelected;
}

void ApliToStartSet(std::int32_t entry, std::uint8_t mode) {
  Applications.ApliToStart = entry;
  Applications.ApliMode = mode;
}

void ApliListFree() {
  MemoryFree(Applications.entries);
  Applications.entries = nullptr;
  MemoryFree(Applications.secondList);
  Applications.secondList = nullptr;
}
