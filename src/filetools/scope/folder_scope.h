// The folder scope: how much room a folder and its neighbours take.
//
// What is found goes into the tables of scope_tables.h and into Scope.
#pragma once

#include <cstdint>

#include "filetools/scope/scope_state.h"

// A 64-bit size as the charts count it.
float ScopeFloat(std::uint64_t size);
// And back, cut to whole bytes; never beyond 64 bits.
std::uint64_t ScopeBytes(float size);

// --- The path in work.

// Fills the three from scopeFolder.
void ScopeSplitPath();

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
