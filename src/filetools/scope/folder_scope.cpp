#include "filetools/scope/folder_scope.h"

#include <cstring>

#include "filetools/scope/scope_tables.h"
#include "platform/file.h"
#include "services/path.h"
#include "services/state.h"
#include "services/text.h"
#include "services/work_blocks.h"

namespace {

constexpr int kWalkPathSize = 4096;
constexpr std::size_t kColonWithin = 10;

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
// what stands behind `length`. kept: a folder that cannot be searched adds nothing to its
// parent's size, and nobody is told. bounded: in the folder scope a path longer than 4,096 bytes is not
// followed.
void Walk(char* path, std::size_t length) {
  constexpr char kEverything[] = "\\*.*";
  if (length + sizeof kEverything > kWalkPathSize) return;
  std::memcpy(path + length, kEverything, sizeof kEverything);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(path, &entry);
  if (search == kNoSearch) return;
  do {
    // kept: names that begin with a full stop count as nothing in the folder scope.
    if (entry.name[0] == '.') continue;
    if ((entry.attributes & kAttributeFolder) == 0) {
      ++Scope.walkedFiles;
      // kept: sizes are summed in single precision; a large tree loses its small files, and
      // the figures on show depend on it.
      Scope.areaTotal += ScopeFloat(Whole(entry.sizeHigh, entry.sizeLow));
      continue;
    }
    ++Scope.walkedFolders;
    const std::size_t name = std::strlen(entry.name);
    if (length + 1 + name >= kWalkPathSize) continue;
    path[length] = '\\';
    std::memcpy(path + length + 1, entry.name, name);
    Walk(path, length + 1 + name);
  } while (SearchNext(search, &entry));
  SearchClose(search);
}

// settled: a search that is stopped or meets its limit puts the current folder back too, as
// its end does.
void EndStep() {
  SearchClose(Scope.step.search);
  Scope.step.search = kNoSearch;
  if (Scope.step.back[0] != '\0') FolderSetCurrent(Scope.step.back);
  Scope.step.back[0] = '\0';
}

bool FirstEntry(const char* folder, SearchEntry* entry) {
  FolderGetCurrent(Scope.step.back, sizeof Scope.step.back);
  // settled: a drive that is not there has no entries; it does not show those of the folder
  // that is current.
  if (FolderSetCurrent(folder)) Scope.step.search = SearchFirst("*.*", entry);
  return Scope.step.search != kNoSearch;
}

void PutTime(std::uint32_t (&to)[2], std::uint64_t time) {
  to[0] = static_cast<std::uint32_t>(time);
  to[1] = static_cast<std::uint32_t>(time >> 32U);
}

// Puts an entry into its area, with the total of all below if it is a folder.
void Take(ScopeArea area, const char* folder, const SearchEntry& found) {
  ScopeEntry entry;
  entry.attributes = found.attributes;
  PutTime(entry.creationTime, found.creationTime);
  PutTime(entry.lastWriteTime, found.lastWriteTime);
  entry.sizeHigh = found.sizeHigh;
  entry.sizeLow = found.sizeLow;
  TextCopy(entry.name, sizeof entry.name, found.name);
  float size = ScopeFloat(Whole(found.sizeHigh, found.sizeLow));
  if ((found.attributes & kAttributeFolder) != 0) {
    if (area == ScopeArea::Drive && std::strcmp(entry.name, Scope.firstLevelName) == 0)
      Scope.firstLevelIndex = Scope.step.count;
    size = TotalBelow(folder, entry.name);
    const std::uint64_t bytes = ScopeBytes(size);
    entry.sizeHigh = static_cast<std::uint32_t>(bytes >> 32U);
    entry.sizeLow = static_cast<std::uint32_t>(bytes);
  }
  ScopeEntryPut(area, Scope.step.count, entry);
  if (area == ScopeArea::Folder && Scope.scopeBarChart) {
    Scope.folderTotal += size;
    ScopeBarRow bar;
    bar.size = size;
    ScopeBarPut(Scope.step.count + 1, bar);
  }
}

int Step(ScopeArea area, const char* folder) {
  if (!WorkBlocks.ScopeBlock) return -1;
  SearchEntry entry;
  const bool first = !Scope.step.begun;
  Scope.step.begun = true;
  if (!(first ? FirstEntry(folder, &entry) : SearchNext(Scope.step.search, &entry))) {
    EndStep();
    return Scope.step.count + 1;
  }
  if (entry.name[0] == '.') return 0;
  Take(area, folder, entry);
  if (++Scope.step.count < kScopeLimit) return 0;
  Scope.scopeOverflow = true;
  EndStep();
  return -1;
}

}  // namespace

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
  // kept: the colon of a drive is looked for in the first 10 bytes of a path.
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
  StateReset(Scope.step);
}

int ScopeDriveStep() {
  return Step(ScopeArea::Drive, Scope.driveRoot);
}

int ScopeFolderStep() {
  if (!Scope.step.begun) Scope.folderTotal = 0.0F;
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
  ScopeSort(ScopeArea::Folder, Scope.scopeFolderCount);
}

void ScopeSortDrive() {
  ScopeSort(ScopeArea::Drive, Scope.scopeDriveCount);
}

void ScopeDiskSpace() {
  std::uint64_t total = 0;
  std::uint64_t free = 0;
  DiskSpace(Scope.driveRoot, &total, &free);
  Scope.driveTotal = ScopeFloat(total);
  Scope.driveFree = ScopeFloat(free);
}
