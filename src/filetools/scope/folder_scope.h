// The folder scope: how much room a folder and its neighbours take.
//
// Two areas of the shell's ScopeBlock hold entries: the chosen folder's at the
// block's start, the drive's first level from 2,000,000 on. Two tables in
// CastBlock hold their order by size. The scenario's cast records live in that
// block too; a statistics run overwrites them.
#pragma once

#include <cstdint>

#include "platform/types.h"

inline constexpr int kScopeLimit = 3105;          // entries that fill one area
inline constexpr int kScopeSecondArea = 2000000;  // in ScopeBlock: the drive's entries, or the bars
inline constexpr int kScopeSecondOrder = 500000;  // in CastBlock: the drive's order
inline constexpr int kScopePathSize = 256;
inline constexpr int kScopeNameSize = 256;

enum class ScopeArea { Folder, Drive };

// One entry of an area. A folder's size is the total of all files below it.
struct ScopeEntry {
  std::uint32_t attributes;
  std::uint64_t creationTime;
  std::uint64_t lastWriteTime;
  std::uint32_t sizeHigh;
  std::uint32_t sizeLow;
  char name[kScopeNameSize];
};

// Entry `number`, 0 to 3104, of an area; beyond that, and without
// ScopeBlock, nothing is put and an empty entry is got.
void ScopeEntryPut(ScopeArea area, int number, const ScopeEntry& entry);
ScopeEntry ScopeEntryGet(ScopeArea area, int number);
std::uint64_t ScopeEntrySize(ScopeArea area, int number);

// The number of the entry of a rank, 0 the largest; -1 for a rank that there is
// not.
int ScopeOrder(ScopeArea area, int rank);

// A 64-bit size as the charts count it.
float ScopeFloat(std::uint64_t size);
// And back, cut to whole bytes; never beyond 64 bits.
std::uint64_t ScopeBytes(float size);

// --- The path in work.

// Fills the three from scopeFolder.
void ScopeSplitPath();

// --- What a run has found. Sizes in bytes.

struct ScopeState {
  char scopeFolder[kScopePathSize] = {};     // the folder in the tree list
  char driveRoot[16] = {};                   // such as "C:\"
  char firstLevelName[kScopePathSize] = {};  // name of the path's first folder
  char folderName[kScopePathSize] = {};      // the last part; empty with fewer than two levels
  int scopeFolderCount = 0;                  // entries of an area; negative: stopped or too many
  int scopeDriveCount = 0;
  int firstLevelIndex = -1;  // the path's first folder among the drive's entries, -1: not found
  int folderIndex = -1;      // the chosen folder in its parent, -1: not found
  float folderTotal = 0;     // sum of the chosen folder's entries
  float driveTotal = 0;
  float driveFree = 0;
  float firstLevelTotal = 1.0F;  // 1 until it is known
  float chosenTotal = 0;
  float areaTotal = 0;         // the running sum of ScopeFolderSize
  bool scopeOverflow = false;  // a search has met the limit
  bool scopeBarChart = false;  // the bars are being made, not the pies
};
extern ScopeState Scope;

// --- Searching.

// Adds the sizes of all files below a folder to areaTotal, in the order of the
// search. Names that begin with a full stop count as nothing.
void ScopeFolderSize(const char* path);

// Makes the next step call begin a new search.
void ScopeStepReset();

// One step of a search: the first call begins it, every call takes one entry.
// 0: there may be more; the number of entries + 1: done; -1: there are 3105 or
// more, which is more than is shown.
int ScopeDriveStep();   // the drive's first level
int ScopeFolderStep();  // scopeFolder

// Ends a search before its time.
void ScopeStepStop();

// Looks for the chosen folder in its parent: folderIndex and chosenTotal.
void ScopeFindFolder();

// Fill the order tables, largest first; equal sizes keep the search's order.
void ScopeSortFolder();
void ScopeSortDrive();

// driveTotal and driveFree; zeros when the drive does not tell.
void ScopeDiskSpace();
