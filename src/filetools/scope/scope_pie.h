// The two pies of the folder scope: what is in them and where it is drawn.
#pragma once

#include "filetools/scope/scope_state.h"
#include "platform/types.h"

// Makes the rows of a pie: at most `wanted` of entries, and as many as the table holds,
// then the computed ones. With a bar chart there is no geometry.
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
