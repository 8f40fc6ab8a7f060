#include "services/painting.h"

void FillArea(Canvas* canvas, BrushHandle brush, const Rect& area) {
  CanvasPen(canvas, PenNothing());
  CanvasBrush(canvas, brush);
  // Without a pen the last row and column are left out.
  CanvasRectangle(canvas, area.left, area.top, area.right + 1, area.bottom + 1);
}

void FillColour(Canvas* canvas, Colour colour, const Rect& area) {
  const BrushHandle brush = BrushCreate(colour);
  FillArea(canvas, brush, area);
  CanvasBrush(canvas, BrushNothing());
  BrushDelete(brush);
}
