#include "filetools/scope/folder_scope.h"

#include <cstring>

#include "filetools/scope/scope_bars.h"
#include "platform/file.h"
#include "services/big_endian.h"
#include "services/path.h"
#include "services/text.h"
#include "services/work_blocks.h"

ScopeState Scope;

// An entry in memory, numbers little-endian. 3105 of them fill the 2,000,000
// bytes of an area:
//
//   offset  size  field
//        0     4  attributes
//        4     8  creationTime
//       12     8  lastWriteTime
//       20     4  sizeHigh
//       24     4  sizeLow
//       28   256  name
//      284   360  not used
//
// An order table is a row of 32-bit entry numbers, little-endian.
namespace {

constexpr int kAttributesAt = 0;
constexpr int kCreationAt = 4;
constexpr int kLastWriteAt = 12;
constexpr int kSizeHighAt = 20;
constexpr int kSizeLowAt = 24;
constexpr int kNameAt = 28;
constexpr int kEntrySize = 644;
static_assert(kNameAt + kScopeNameSize <= kEntrySize);
static_assert(kEntrySize * kScopeLimit <= kScopeSecondArea);
static_assert(kEntrySize * (kScopeLimit + 1) > kScopeSecondArea);
static_assert(kScopeSecondArea + kEntrySize * kScopeLimit <= kScopeBlockSize);
static_assert(kScopeLimit * 4 <= kScopeSecondOrder && kScopeSecondOrder + kScopeLimit * 4 <= kCastBlockSize);

constexpr int kWalkPathSize = 4096;
constexpr std::size_t kColonWithin = 10;

// What a step call has to know of the one before.
struct StepState {
  bool begun = false;
  SearchHandle search = kNoSearch;
  int count = 0;
  char back[600] = "";  // the folder that was current
};
StepState step;

// Written by every walk for whoever looks with a debugger.
int walkedFolders;
int walkedFiles;

unsigned char* EntryAt(ScopeArea area, int number) {
  if (!WorkBlocks.ScopeBlock || number < 0 || number >= kScopeLimit) return nullptr;
  return WorkBlocks.ScopeBlock + (area == ScopeArea::Drive ? kScopeSecondArea : 0) + number * kEntrySize;
}

unsigned char* OrderAt(ScopeArea area, int rank) {
  return WorkBlocks.CastBlock + (area == ScopeArea::Drive ? kScopeSecondOrder : 0) + rank * 4;
}

int CountOf(ScopeArea area) {
  return area == ScopeArea::Drive ? Scope.scopeDriveCount : Scope.scopeFolderCount;
}

std::uint64_t GetLE64(const unsigned char* from) {
  return GetLE32(from) | (std::uint64_t{GetLE32(from + 4)} << 32U);
}

void PutLE64(unsigned char* to, std::uint64_t value) {
  PutLE32(to, static_cast<std::uint32_t>(value));
  PutLE32(to + 4, static_cast<std::uint32_t>(value >> 32U));
}

std::uint64_t Whole(std::uint32_t high, std::uint32_t low) {
  return (std::uint64_t{high} << 32U) | low;
}

// The total of a folder given as a folder and a name in it.
float TotalBelow(const char* folder, const char* name) {
  char path[kScopePathSize + kScopeNameSize];
  TextCopy(path, sizeof path, folder);
  Scope.areaTotal = 0.0F;
  if (PathGoDown(path, sizeof path, name) == 0) ScopeFolderSize(path);
  return Scope.areaTotal;
}

// `path` has kWalkPathSize bytes and is as it was when the call returns, but for
// what stands behind `length`. bounded: a path longer than the buffer is not
// followed.
void Walk(char* path, std::size_t length) {
  constexpr char kEverything[] = "\\*.*";
  if (length + sizeof kEverything > kWalkPathSize) return;
  std::memcpy(path + length, kEverything, sizeof kEverything);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(path, &entry);
  if (search == kNoSearch) return;
  do {
    if (entry.name[0] == '.') continue;
    if ((entry.attributes & kAttributeFolder) == 0) {
      ++walkedFiles;
      // kept: single precision. A large tree loses its small files, and the
      // figures on show depend on it.
      Scope.areaTotal += ScopeFloat(Whole(entry.sizeHigh, entry.sizeLow));
      continue;
    }
    ++walkedFolders;
    const std::size_t name = std::strlen(entry.name);
    if (length + 1 + name >= kWalkPathSize) continue;
    path[length] = '\\';
    std::memcpy(path + length + 1, entry.name, name);
    Walk(path, length + 1 + name);
  } while (SearchNext(search, &entry));
  SearchClose(search);
}

void EndStep() {
  SearchClose(step.search);
  step.search = kNoSearch;
  if (step.back[0] != '\0') FolderSetCurrent(step.back);
  step.back[0] = '\0';
}

bool FirstEntry(const char* folder, SearchEntry* entry) {
  FolderGetCurrent(step.back, sizeof step.back);
  // A drive that is not there must not show what lies in the current folder.
  if (FolderSetCurrent(folder)) step.search = SearchFirst("*.*", entry);
  return step.search != kNoSearch;
}

// Puts an entry into its area, with the total of all below if it is a folder.
void Take(ScopeArea area, const char* folder, const SearchEntry& found) {
  ScopeEntry entry{found.attributes, found.creationTime, found.lastWriteTime,
                   found.sizeHigh,   found.sizeLow,      ""};
  TextCopy(entry.name, sizeof entry.name, found.name);
  float size = ScopeFloat(Whole(found.sizeHigh, found.sizeLow));
  if ((found.attributes & kAttributeFolder) != 0) {
    if (area == ScopeArea::Drive && std::strcmp(entry.name, Scope.firstLevelName) == 0)
      Scope.firstLevelIndex = step.count;
    size = TotalBelow(folder, entry.name);
    const std::uint64_t bytes = ScopeBytes(size);
    entry.sizeHigh = static_cast<std::uint32_t>(bytes >> 32U);
    entry.sizeLow = static_cast<std::uint32_t>(bytes);
  }
  ScopeEntryPut(area, step.count, entry);
  if (area == ScopeArea::Folder && Scope.scopeBarChart) {
    Scope.folderTotal += size;
    ScopeBarSizePut(step.count + 1, size);
  }
}

int Step(ScopeArea area, const char* folder) {
  if (!WorkBlocks.ScopeBlock) return -1;
  SearchEntry entry;
  const bool first = !step.begun;
  step.begun = true;
  if (!(first ? FirstEntry(folder, &entry) : SearchNext(step.search, &entry))) {
    EndStep();
    return step.count + 1;
  }
  if (entry.name[0] == '.') return 0;
  Take(area, folder, entry);
  if (++step.count < kScopeLimit) return 0;
  Scope.scopeOverflow = true;
  EndStep();
  return -1;
}

void Sort(ScopeArea area) {
  if (!WorkBlocks.ScopeBlock || !WorkBlocks.CastBlock) return;
  for (int n = 0; n < CountOf(area); ++n) {
    const std::uint64_t size = ScopeEntrySize(area, n);
    int rank = n;
    while (rank > 0 && ScopeEntrySize(area, ScopeOrder(area, rank - 1)) < size) {
      std::memcpy(OrderAt(area, rank), OrderAt(area, rank - 1), 4);
      --rank;
    }
    PutLE32(OrderAt(area, rank), static_cast<std::uint32_t>(n));
  }
}

}  // namespace

void ScopeEntryPut(ScopeArea area, int number, const ScopeEntry& entry) {
  unsigned char* at = EntryAt(area, number);
  if (!at) return;
  PutLE32(at + kAttributesAt, entry.attributes);
  PutLE64(at + kCreationAt, entry.creationTime);
  PutLE64(at + kLastWriteAt, entry.lastWriteTime);
  PutLE32(at + kSizeHighAt, entry.sizeHigh);
  PutLE32(at + kSizeLowAt, entry.sizeLow);
  std::memcpy(at + kNameAt, entry.name, kScopeNameSize);
}

ScopeEntry ScopeEntryGet(ScopeArea area, int number) {
  const unsigned char* at = EntryAt(area, number);
  if (!at) return {};
  ScopeEntry entry{GetLE32(at + kAttributesAt), GetLE64(at + kCreationAt), GetLE64(at + kLastWriteAt),
                   GetLE32(at + kSizeHighAt),   GetLE32(at + kSizeLowAt),  ""};
  std::memcpy(entry.name, at + kNameAt, kScopeNameSize);
  entry.name[kScopeNameSize - 1] = '\0';
  return entry;
}

std::uint64_t ScopeEntrySize(ScopeArea area, int number) {
  const unsigned char* at = EntryAt(area, number);
  return at ? Whole(GetLE32(at + kSizeHighAt), GetLE32(at + kSizeLowAt)) : 0;
}

int ScopeOrder(ScopeArea area, int rank) {
  if (!WorkBlocks.CastBlock || rank < 0 || rank >= kScopeLimit || rank >= CountOf(area)) return -1;
  // bounded: the block is shared, so a number may be anything.
  const std::uint32_t number = GetLE32(OrderAt(area, rank));
  return number < kScopeLimit ? static_cast<int>(number) : -1;
}

float ScopeFloat(std::uint64_t size) {
  return static_cast<float>(size);
}

std::uint64_t ScopeBytes(float size) {
  constexpr float kWord = 4294967296.0F;
  if (!(size > 0.0F)) return 0;
  if (size >= kWord * kWord) return ~std::uint64_t{0};
  const auto high = static_cast<std::uint32_t>(size / kWord);
  return Whole(high, static_cast<std::uint32_t>(size - static_cast<float>(high) * kWord));
}

void ScopeSplitPath() {
  const void* colon = std::memchr(Scope.scopeFolder, ':', TextLength(Scope.scopeFolder, kColonWithin));
  const std::size_t drive =
      colon ? static_cast<std::size_t>(static_cast<const char*>(colon) - Scope.scopeFolder) + 1 : 0;
  std::memcpy(Scope.driveRoot, Scope.scopeFolder, drive);
  std::memcpy(Scope.driveRoot + drive, "\\", 2);

  int separators = 0;
  std::size_t firstAt = 0;
  Scope.firstLevelName[0] = '\0';
  Scope.folderName[0] = '\0';
  for (std::size_t at = 0; Scope.scopeFolder[at] != '\0'; ++at) {
    if (Scope.scopeFolder[at] == '\\') {
      const char* rest = Scope.scopeFolder + at + 1;
      ++separators;
      if (separators == 1) {
        firstAt = at + 1;
        TextCopy(Scope.firstLevelName, sizeof Scope.firstLevelName, rest);
      } else {
        if (separators == 2) Scope.firstLevelName[at - firstAt] = '\0';
        TextCopy(Scope.folderName, sizeof Scope.folderName, rest);
      }
    } else if (IsSjisLead(Scope.scopeFolder[at]) && Scope.scopeFolder[at + 1] != '\0') {
      ++at;
    }
  }
}

void ScopeFolderSize(const char* path) {
  char walked[kWalkPathSize];
  Walk(walked, TextCopy(walked, sizeof walked, path));
}

void ScopeStepReset() {
  ScopeStepStop();
  step = StepState{};
}

int ScopeDriveStep() {
  return Step(ScopeArea::Drive, Scope.driveRoot);
}

int ScopeFolderStep() {
  if (!step.begun) Scope.folderTotal = 0.0F;
  return Step(ScopeArea::Folder, Scope.scopeFolder);
}

void ScopeStepStop() {
  EndStep();
}

void ScopeFindFolder() {
  if (Scope.folderName[0] == '\0') return;
  char pattern[kScopePathSize + 8];
  TextCopy(pattern, sizeof pattern, Scope.scopeFolder);
  PathGoUp(pattern);
  PathGoDown(pattern, sizeof pattern, "*.*");
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  if (search == kNoSearch) return;
  int count = 0;
  do {
    if (entry.name[0] == '.') continue;
    if ((entry.attributes & kAttributeFolder) != 0 && std::strcmp(entry.name, Scope.folderName) == 0) {
      Scope.folderIndex = count;
      break;
    }
    ++count;
  } while (SearchNext(search, &entry));
  SearchClose(search);
  if (Scope.folderIndex < 0) return;
  Scope.areaTotal = 0.0F;
  ScopeFolderSize(Scope.scopeFolder);
  Scope.chosenTotal = Scope.areaTotal;
}

void ScopeSortFolder() {
  Sort(ScopeArea::Folder);
}

void ScopeSortDrive() {
  Sort(ScopeArea::Drive);
}

void ScopeDiskSpace() {
  std::uint64_t total = 0;
  std::uint64_t free = 0;
  DiskSpace(Scope.driveRoot, &total, &free);
  Scope.driveTotal = ScopeFloat(total);
  Scope.driveFree = ScopeFloat(free);
}
