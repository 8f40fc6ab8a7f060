// The two pies of the folder scope: what is in them and where it is drawn.
#pragma once

#include <cstdint>

#include "platform/types.h"

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

extern ScopePie ScopePieDrive;   // the drive
extern ScopePie ScopePieFolder;  // the chosen folder

// Makes the rows of a pie: at most `wanted` of entries (bounded: as many as the
// table holds), then the computed ones. With a bar chart there is no geometry.
// The searches, their sorting and ScopeDiskSpace come before.
void ScopeBuildPieDrive(int wanted, int cx, int cy, int radius);
// Nothing to draw when the chosen folder is a drive root.
void ScopeBuildPieFolder(int wanted, int cx, int cy, int radius);

// A leader line with the row's number: a level line at `y` from `x` to `endX`.
struct ScopeLeader {
  int x;
  int y;
  int endX;
  Point number;  // where the number is written
};

// How the two pies differ in their leader lines.
struct ScopeLeaderRule {
  int rightRows;        // so many first rows have their line on the right side
  bool leftFromInside;  // a line to the left that would begin right of the centre begins left of it
};
inline constexpr ScopeLeaderRule kDriveLeaders{2, false};
inline constexpr ScopeLeaderRule kFolderLeaders{1, true};

// The leader lines of a pie, one a row, in order. A later row has its line on the
// right side only if its end points both lie right of the centre.
void ScopePieLeaders(const ScopePie& pie, const ScopeLeaderRule& rule, ScopeLeader (&leaders)[kScopePieRows]);
