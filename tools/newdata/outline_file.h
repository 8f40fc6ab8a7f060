// The outline file of a character (Chara<number>.dwc), numbers big-endian:
//
//   offset  size
//        0     1  frame count, always 20 here
//   then for each frame
//              4  point count, 0 for a frame without outline
//          4 * n  points, x then y, 16 bits each; y counts upward
//
// A window shaped by an outline is larger than its picture by its border, and
// the program knows each kind of window by a fixed rule: it turns a stored point
// (x, y) into the window's coordinates by adding a margin to x and taking y from
// the picture's height. The border that the window really has stands on the
// other side of the sum. What is stored is what makes the two meet at the edge
// of the picture's pixels:
//
//   kind     the program's rule (H picture height)    picture's place in the window
//   stage    x, menu + H - y - 1                      1, menu + 1
//   walker   x + 4, 4 + H - y - 1                     kWalkerFrame, kWalkerFrame
//   bare     x, H - y - 1                             0, 0
#pragma once

#include <array>

#include "newdata/bytes.h"
#include "newdata/polygon.h"

inline constexpr int kFrameSlots = 20;

// The frame of a walking character's window, in pixels: that of a popup dialog
// with a dialog frame.
inline constexpr int kWalkerFrame = 3;

enum class OutlineKind {
  Stage,   // the main window: a thin border and a menu bar
  Walker,  // a walking character's window
  Bare,    // a window without border: clocks, and notices, which use no outline
};

// How a corner (cx, cy) of the picture is stored: x = cx + right,
// y = H + up - cy.
struct OutlineRule {
  int right;
  int up;
};

constexpr OutlineRule OutlineRuleOf(OutlineKind kind) {
  switch (kind) {
    case OutlineKind::Stage:
      return {1, -2};
    case OutlineKind::Walker:
      return {kWalkerFrame - 4, 3 - kWalkerFrame};
    default:
      return {0, -1};
  }
}

// The outlines of all frames as corners of the picture's pixels; empty for none.
struct OutlineFrame {
  Polygon corners;
  int pictureHeight = 0;
};
using Outlines = std::array<OutlineFrame, kFrameSlots>;

// The whole file. Throws std::runtime_error when a point would not fit its
// field, which means that the picture lacks empty rows at its bottom or empty
// columns at its left.
Bytes OutlineFile(const Outlines& outlines, OutlineKind kind);

// The corner of the picture that a stored point stands for.
Corner CornerOfPoint(int x, int y, int pictureHeight, OutlineKind kind);
