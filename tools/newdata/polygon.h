// The pixels that a polygon covers, worked out exactly as windows shaped by a
// polygon are.
#pragma once

#include <vector>

#include "newdata/pixels.h"

// A corner between pixels: (x, y) is the top left corner of the pixel (x, y).
struct Corner {
  int x;
  int y;

  bool operator==(const Corner&) const = default;
};

using Polygon = std::vector<Corner>;

// Where a pixel is probed. The region makers of the desktop put the middle of
// the pixel (x, y) on the whole coordinates (x, y), which is the corner of the
// pixel as counted here; others probe its real middle. The two agree on upright
// and level edges and differ on slanted ones.
enum class Probe { Corner, Middle };

// The pixels of a width x height picture whose probed point has a winding count
// other than 0. A point on a left or upper edge is in, on a right or lower one
// out. An empty polygon covers nothing.
PixelSet PolygonPixels(const Polygon& polygon, int width, int height, Probe probe);

// True if no pixel anywhere is wound by the polygon.
bool PolygonWindsNothing(const Polygon& polygon, Probe probe);
