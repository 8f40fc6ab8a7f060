// The outline of a figure as a polygon.
#pragma once

#include "newdata/polygon.h"

// What a character's outline file and the program's tables can hold.
inline constexpr int kOutlinePointsMax = 1024;

// The polygon around a figure, exact to the pixel whichever way its pixels are
// probed, with as few corners as dropping one after the other leaves. Throws
// std::runtime_error for a figure that has no pixel, is not in one piece (pixels
// that touch at a corner belong together), has a hole, or whose polygon would
// have more than kOutlinePointsMax corners.
Polygon TraceOutline(const PixelSet& figure);

// The polygon along the edges of the figure's pixels, before any corner is
// dropped. The figure is in one piece and has no hole.
Polygon TraceCracks(const PixelSet& figure);

// Drops corners as long as the polygon covers the same pixels.
Polygon DropCorners(Polygon polygon);
