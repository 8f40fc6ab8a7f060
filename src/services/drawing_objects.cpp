// The shared brushes and pens.
#include "services/drawing_objects.h"

#include "platform/canvas.h"
#include "services/drawing_objects.h"

DrawingState Drawing;

namespace {

struct PenRow {
  PenStyle style;
  int width;
  Colour colour;
};
constexpr PenRow kPenRows[kPenCount] = {
    {PenStyle::Solid, 1, 0xF0F0F0}, {PenStyle::Solid, 1, 0x646464}, {PenStyle::Dot, 1, 0x646464},
    {PenStyle::Dot, 1, 0x6464F0},   {PenStyle::Dot, 1, 0xC8C800},   {PenStyle::Solid, 1, 0xE6E6E6},
    {PenStyle::Solid, 1, 0x646464}, {PenStyle::Solid, 1, 0xFFFFFF}, {PenStyle::Solid, 1, 0x0000FF},
    {PenStyle::Solid, 3, 0x000000}, {PenStyle::Solid, 3, 0x0000FF},
};

}  // namespace

void DrawingObjectsCreate() {
  for (int i = 0; i < kBrushCount; ++i) Drawing.Brushes[i] = BrushCreate(kBrushColours[i]);
  Drawing.FaceBrush = BrushFace();
  Drawing.FaceBrushColour = FaceColour();
  for (int i = 0; i < kPenCount; ++i) {
    Drawing.Pens[i] = PenCreate(kPenRows[i].style, kPenRows[i].width, kPenRows[i].colour);
  }
}

void DrawingObjectsDelete() {
  for (BrushHandle& brush : Drawing.Brushes) {
    BrushDelete(brush);
    brush = nullptr;
  }
  for (PenHandle& pen : Drawing.Pens) {
    PenDelete(pen);
    pen = nullptr;
  }
}
