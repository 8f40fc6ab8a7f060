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

extern char scopeFolder[kScopePathSize];     // the folder in the tree list
extern char driveRoot[16];                   // such as "C:\"
extern char firstLevelName[kScopePathSize];  // name of the path's first folder
extern char folderName[kScopePathSize];      // the last part; empty with fewer than two levels

// Fills the three from scopeFolder.
void ScopeSplitPath();

// --- What a run has found. Sizes in bytes.

extern int scopeFolderCount;  // entries of an area; negative: stopped or too many
extern int scopeDriveCount;
extern int firstLevelIndex;  // the path's first folder among the drive's entries, -1: not found
extern int folderIndex;      // the chosen folder in its parent, -1: not found
extern float folderTotal;    // sum of the chosen folder's entries
extern float driveTotal;
extern float driveFree;
extern float firstLevelTotal;  // 1 until it is known
extern float chosenTotal;
extern float areaTotal;     // the running sum of ScopeFolderSize
extern bool scopeOverflow;  // a search has met the limit
extern bool scopeBarChart;  // the bars are being made, not the pies

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
