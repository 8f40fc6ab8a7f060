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
constexpr int kMagicSize = sizeof kMagic - 1;

void Path(char* buffer, int size) {
  RootPath(buffer, size, "\\mirrell_apli_list_file.ali");
}

bool EntriesAllocate(ApliEntry*& list, int count) {
  auto* block = static_cast<ApliEntry*>(MemoryAllocate(static_cast<std::size_t>(count) * sizeof(ApliEntry)));
  if (!block) return false;
  MemoryFree(list);
  list = block;
  return true;
}

// Room for `count` entries, with those that are there.
bool EntriesGrow(int count) {
  ApliEntry* old = Applications.entries;
  Applications.entries = nullptr;
  if (!EntriesAllocate(Applications.entries, count)) {
    Applications.entries = old;
    return false;
  }
  if (old) std::copy_n(old, Applications.ApliCount, Applications.entries);
  MemoryFree(old);
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
  char magic[kMagicSize];
  if (!DataRead(data, magic, kMagicSize)) return DataFailStatus(data);
  // kept: an application list that is something else counts as read.
  if (std::memcmp(magic, kMagic, kMagicSize) != 0) {
    DataClose(data);
    FileResult.FileStatus = -2;
    return 0;
  }
  ApliHead head;
  if (!RecordRead(data, head) || !IsList(head)) return DataFailStatus(data);
  if (!EntriesAllocate(Applications.entries, head.count + 1)) return DataFailStatus(data);
  Applications.ApliCount = head.count;
  Applications.ApliSecondCount = head.second;
  Applications.ApliSelected = head.selected >= 0 && head.selected <= head.count ? head.selected : 0;
  RecordsRead(data, Applications.entries, head.count);
  RecordRead(data, Applications.ApliSchedule);
  if (head.second > 0 && EntriesAllocate(Applications.secondList, head.second))
    RecordsRead(data, Applications.secondList, head.second);
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  return 0;
}

int ApliListSave() {
  char path[kRootSize + 64];
  Path(path, sizeof path);
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return -1;
  DataWrite(data, kMagic, kMagicSize);
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
  if (!Applications.entries && !EntriesAllocate(Applications.entries, 2)) return -1;
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
