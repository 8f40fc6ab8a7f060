// The shared brushes and pens.
#include "platform/canvas.h"
#include "shell/shell.h"
#include "shell/start.h"

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
  for (int i = 0; i < kBrushCount; ++i) Brushes[i] = BrushCreate(kBrushColours[i]);
  FaceBrush = BrushFace();
  FaceBrushColour = FaceColour();
  for (int i = 0; i < kPenCount; ++i) {
    Pens[i] = PenCreate(kPenRows[i].style, kPenRows[i].width, kPenRows[i].colour);
  }
}

void DrawingObjectsDelete() {
  for (BrushHandle& brush : Brushes) {
    BrushDelete(brush);
    brush = nullptr;
  }
  for (PenHandle& pen : Pens) {
    PenDelete(pen);
    pen = nullptr;
  }
}
