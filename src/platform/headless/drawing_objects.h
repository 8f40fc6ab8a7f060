// Brushes, pens, fonts and regions of the headless backend.
#pragma once

#include "platform/headless/state.h"

struct HeadlessBrush {
  Colour colour = 0;
  bool fills = true;
  bool borrowed = false;
};
struct HeadlessPen {
  PenStyle style = PenStyle::Solid;
  int width = 1;
  Colour colour = 0;
  bool draws = true;
  bool borrowed = false;
};
struct HeadlessFont {
  int width = 8;
  int height = 16;
};
struct HeadlessRegion {
  RegionKind kind = RegionKind::Polygon;
  std::vector<Point> points;
  bool owned = false;  // by a window: nobody deletes or sets it again
};

// The object, or null with a failure when the handle is no more; null for null.
std::shared_ptr<HeadlessBrush> BrushUse(BrushHandle brush, const char* call);
std::shared_ptr<HeadlessPen> PenUse(PenHandle pen, const char* call);
std::shared_ptr<HeadlessFont> FontUse(FontHandle font, const char* call);

// True if a live canvas has the object selected.
bool CanvasHolds(const void* object);

void DrawingObjectsReset();
