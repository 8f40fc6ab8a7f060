// A picture in a box: at its own size where it fits, else scaled down, with its scale
// beside it.
#pragma once

#include "platform/canvas.h"
#include "services/dib.h"

struct PictureFit {
  int width;
  int height;
  double scale;  // 1 for a picture that fits
};

// How a picture of that size is drawn in a box, all in pixels.
PictureFit PictureFitOf(int width, int height, int boxWidth, int boxHeight);

inline constexpr int kPictureFitGap = 20;     // pixels from the picture to its scale
inline constexpr int kPictureFitWords = 160;  // pixels that the words of a scale need

// Draws a picture into a box at x, y. With a mask its white lets the background through,
// which is the system's face colour; the mask may be null. A picture that cannot be scaled
// for want of memory is left out.
void PictureFitDraw(Canvas* canvas, const Rect& box, ImageHandle picture, ImageHandle mask);
