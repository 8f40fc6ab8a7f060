// What the folder scope knows: Scope, written by the files of this folder. Sizes are in
// bytes.
#pragma once

#include <cstdint>

#include "platform/file.h"
#include "platform/types.h"
#include "services/folder_list.h"

inline constexpr int kScopePathSize = 256;
static_assert(kScopePathSize == kFolderSize);

inline constexpr int kScopePieRows = 9;
inline constexpr int kScopePieWanted = 6;  // rows of entries that a dialog asks for
inline constexpr int kScopePieRadius = 100;

inline constexpr std::uint8_t kPieListed = 1;
inline constexpr std::uint8_t kPieComputed = 3;

// Tags of the rows that are no entry of a list.
inline constexpr std::int32_t kTagOthers = -1;
inline constexpr std::int32_t kTagFree = -2;
inline constexpr std::int32_t kTagChosen = -4;  // the chosen folder inside its first-level parent

struct ScopePieRow {
  std::uint8_t kind;
  std::int32_t tag;  // n + 1 for the entry of rank n, or one of the above
  char name[256];
  std::uint32_t sizeLow;
  std::uint32_t sizeHigh;
  float size;
  float sweep;  // radians
  std::int32_t unit;
  std::int32_t valueInt;
  std::int32_t valueFrac;
  std::int32_t percentInt;
  std::int32_t percentFrac;
  std::int32_t x1, y1, x2, y2;  // end points of the arc, as CanvasPie takes them
};

struct ScopePie {
  ScopePieRow rows[kScopePieRows];
  int count;
  Point centre;
  int radius;
};

// What a step of a search has to know of the one before.
struct ScopeStepState {
  bool begun = false;
  SearchHandle search = kNoSearch;
  int count = 0;
  char back[600] = "";  // the folder that was current
};

struct ScopeState {
  char scopeFolder[kScopePathSize] = {};     // the folder in the tree list
  char driveRoot[16] = {};                   // such as "C:\"
  char firstLevelName[kScopePathSize] = {};  // name of the path's first folder
  char folderName[kScopePathSize] = {};      // the last part; empty with fewer than two levels
  int scopeFolderCount = 0;                  // entries of an area; negative: stopped or too many
  int scopeDriveCount = 0;
  int firstLevelIndex = -1;  // the path's first folder among the drive's entries, -1: not found
  // kept: the chosen folder's place is counted among the entries of its parent, and tells
  // no more than that it was found.
  int folderIndex = -1;   // the chosen folder in its parent, -1: not found
  float folderTotal = 0;  // sum of the chosen folder's entries
  float driveTotal = 0;
  float driveFree = 0;
  float firstLevelTotal = 1.0F;  // 1 until it is known
  float chosenTotal = 0;
  float areaTotal = 0;         // the running sum of ScopeFolderSize
  bool scopeOverflow = false;  // kept: that a search has met its limit is noted for nobody
  bool scopeBarChart = false;  // the bars are being made, not the pies
  // kept: folders and files are counted on every walk, and nobody asks how many they were.
  int walkedFolders = 0;
  int walkedFiles = 0;
  ScopeStepState step;
  ScopePie drivePie;
  ScopePie folderPie;
  FolderList folders;                 // of FolderScopeSetDlg
  WindowHandle hBarScroll = nullptr;  // of the bar chart; null while it is closed or still searching
  int firstBar = 0;                   // the row of the bar chart that stands at its top
};
extern ScopeState Scope;

// Makes Scope what it is in a fresh process; a search that is under way ends.
void ScopeReset();
