// Where the stage, the clock and the calendar stand on the screen, and the small
// image of the screen on which the user arranges them.
#pragma once

#include <cstdint>

#include "platform/types.h"

enum LayoutItem { kLayoutStageItem, kLayoutClockItem, kLayoutCalendarItem, kLayoutItemCount };

// Bits of LayoutChange: what has a new place and is to be moved.
inline constexpr std::int32_t kLayoutStage = 1;
inline constexpr std::int32_t kLayoutClock = 2;
inline constexpr std::int32_t kLayoutCalendar = 4;
inline constexpr std::int32_t kLayoutAll = 7;

// --- The image. Its values are the true ones divided by LayoutDiv.

struct LayoutExtent {
  int width;
  int height;
};

struct LayoutState {
  std::int32_t LayoutChange = 0;
  std::int32_t LayoutDiv = 3;  // 3, 4 or 5
  Point LayoutPos[kLayoutItemCount] = {};
  LayoutExtent LayoutSize[kLayoutItemCount] = {};
  LayoutExtent LayoutScreen = {};
  bool LayoutDrag[kLayoutItemCount] = {};  // at most one is set
  Point dragFrom = {};                     // where the pointer was last
};
extern LayoutState Layout;

// Takes places and sizes of the windows and of the screen into the image.
void LayoutTake();

// The first item whose rectangle, with its edges, holds a point of the image; -1
// for none.
int LayoutItemAt(int x, int y);

// Gives the windows' places those of the image where they differ, and sets
// LayoutChange to what does.
// kept: the image of the layout dialog has lost the remainder of the division, so an item
// whose place is no multiple of LayoutDiv differs even if nobody dragged it.
void LayoutPut();

// --- The screen

// Computes the places of a new machine: everything at the top right, as far as the
// screen has room. The windows do not move yet.
void LayoutDefault();
