// The tables of the folder scope, which lie in the two work blocks of the shell: the
// entries of the two areas and the rows of the bar chart in ScopeBlock, the entries'
// order by size in CastBlock.
#pragma once

#include <cstdint>

inline constexpr int kScopeLimit = 3105;  // entries that fill one area
inline constexpr int kScopeNameSize = 256;

// The chosen folder's entries, and those of the drive's first level.
enum class ScopeArea { Folder, Drive };

// One entry of an area. A folder's size is the total of all files below it.
// kept: in the folder scope the times of an entry are copied, low word first, and not used
// further.
struct ScopeEntry {
  std::uint32_t attributes = 0;
  std::uint32_t creationTime[2] = {};
  std::uint32_t lastWriteTime[2] = {};
  std::uint32_t sizeHigh = 0;
  std::uint32_t sizeLow = 0;
  char name[kScopeNameSize] = {};
  unsigned char unused[360] = {};
};

// Row 0 of a bar chart is the chosen folder as a whole, row n + 1 belongs to entry n.
struct ScopeBarRow {
  std::uint32_t reserved = 0;
  float size = 0;
  std::int32_t unit = 0;
  std::int32_t valueInt = 0;
  std::int32_t valueFrac = 0;
  std::int32_t percentInt = 0;
  std::int32_t percentFrac = 0;
  std::int32_t barWidth = 0;  // pixels
};

// Entry `number`, 0 to 3104, of an area; beyond that, and without ScopeBlock, nothing
// is put and an empty entry is got.
void ScopeEntryPut(ScopeArea area, int number, const ScopeEntry& entry);
ScopeEntry ScopeEntryGet(ScopeArea area, int number);
std::uint64_t ScopeEntrySize(ScopeArea area, int number);

// The number of the entry of a rank, 0 the largest, among `count` entries; -1 for a
// rank that there is not.
int ScopeOrder(ScopeArea area, int rank, int count);

// Makes the order of an area's `count` entries, largest first; equal sizes keep the
// search's order.
void ScopeSort(ScopeArea area, int count);

// Row 0 to 3105; beyond that, and without ScopeBlock, nothing is put and an empty row
// is got. The rows lie over the drive's area, which a bar chart does not use.
void ScopeBarPut(int row, const ScopeBarRow& bar);
ScopeBarRow ScopeBarGet(int row);
