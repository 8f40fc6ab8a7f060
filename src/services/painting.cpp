#include "services/painting.h"

#include <algorithm>

void FillArea(Canvas* canvas, BrushHandle brush, const Rect& area) {
  CanvasPen(canvas, PenNothing());
  CanvasBrush(canvas, brush);
  // Without a pen the last row and column are left out.
  CanvasRectangle(canvas, area.left, area.top, area.right + 1, area.bottom + 1);
}

void FillAround(Canvas* canvas, BrushHandle brush, const Rect& area, const Rect& part) {
  const int left = std::clamp(part.left, area.left, area.right);
  const int top = std::clamp(part.top, area.top, area.bottom);
  const int right = std::clamp(part.right, left, area.right);
  const int bottom = std::clamp(part.bottom, top, area.bottom);
  FillArea(canvas, brush, {area.left, area.top, area.right, top});
  FillArea(canvas, brush, {area.left, bottom, area.right, area.bottom});
  FillArea(canvas, brush, {area.left, top, left, bottom});
  FillArea(canvas, brush, {right, top, area.right, bottom});
}

void FillColour(Canvas* canvas, Colour colour, const Rect& area) {
  const BrushHandle brush = BrushCreate(colour);
  FillArea(canvas, brush, area);
  CanvasBrush(canvas, BrushNothing());
  BrushDelete(brush);
}
