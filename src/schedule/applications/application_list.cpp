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

#include <cstring>

#include "platform/memory.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"

ApplicationsState Applications;

namespace {

constexpr char kMagic[] = "Mirrell ApliCation List:";
constexpr int kMagicSize = sizeof kMagic - 1;

char* entries;  // room for ApliCount + 1 and more
char* secondList;

void Path(char* buffer, int size) {
  RootPath(buffer, size, "\\mirrell_apli_list_file.ali");
}

bool EntriesAllocate(char*& list, int count) {
  auto* block = static_cast<char*>(MemoryAllocate(static_cast<std::size_t>(count) * kApliPathSize));
  if (!block) return false;
  MemoryFree(list);
  list = block;
  return true;
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
  if (std::memcmp(magic, kMagic, kMagicSize) != 0) {
    DataClose(data);
    FileResult.FileStatus = -2;
    return 0;
  }
  std::int32_t count = 0;
  std::int32_t second = 0;
  std::int32_t selected = 0;
  DataReadBE32(data, count);
  DataReadBE32(data, second);
  DataReadBE32(data, selected);
  // bounded: a list longer than the program ever writes is bad content.
  if (data.failed || count < 0 || count > kApliMax || second < 0 || second > kApliMax)
    return DataFailStatus(data);
  if (!EntriesAllocate(entries, count + 1)) return DataFailStatus(data);
  Applications.ApliCount = count;
  Applications.ApliSecondCount = second;
  Applications.ApliSelected = selected >= 0 && selected <= count ? selected : 0;
  for (int i = 0; i < count; ++i) {
    char* entry = entries + i * kApliPathSize;
    DataRead(data, entry, kApliPathSize);
    entry[kApliPathSize - 1] = '\0';
  }
  DataRead(data, Applications.ApliSchedulePath, kApliPathSize);
  Applications.ApliSchedulePath[kApliPathSize - 1] = '\0';
  if (second > 0 && EntriesAllocate(secondList, second)) DataRead(data, secondList, second * kApliPathSize);
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
  DataWriteBE32(data, static_cast<std::uint32_t>(Applications.ApliCount));
  DataWriteBE32(data, static_cast<std::uint32_t>(Applications.ApliSecondCount));
  DataWriteBE32(data, static_cast<std::uint32_t>(Applications.ApliSelected));
  if (Applications.ApliCount > 0) DataWrite(data, entries, Applications.ApliCount * kApliPathSize);
  DataWrite(data, Applications.ApliSchedulePath, kApliPathSize);
  // kept: the second list is counted but not written; its count is 0.
  if (data.failed) return DataFailStatus(data);
  DataClose(data);
  return 0;
}

const char* ApliPath(int entry) {
  return entries && entry >= 0 && entry < Applications.ApliCount ? entries + entry * kApliPathSize : "";
}

int ApliListSetFirst(const char* path) {
  if (!entries && !EntriesAllocate(entries, 2)) return -1;
  TextCopy(entries, kApliPathSize, path);
  if (Applications.ApliCount < 1) Applications.ApliCount = 1;
  return 0;
}

bool ApliListHasSelected() {
  return Applications.ApliSelected != 0;
}

bool ApliSelectedIsRunning() {
  return Applications.ApliSelected != 0 && Applications.ApliStarted == Applications.ApliSelected;
}

void ApliListFree() {
  MemoryFree(entries);
  entries = nullptr;
  MemoryFree(secondList);
  secondList = nullptr;
}
