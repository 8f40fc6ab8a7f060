// What several windows do when they draw.
#pragma once

#include "platform/canvas.h"

// The colour of a record's three bytes: red, green, blue.
inline Colour ColourOf(const unsigned char (&rgb)[3]) {
  return MakeColour(rgb[0], rgb[1], rgb[2]);
}

// Fills an area without an edge.
void FillArea(Canvas* canvas, BrushHandle brush, const Rect& area);
// The same around a part of the area that is drawn upon anyway.
void FillAround(Canvas* canvas, BrushHandle brush, const Rect& area, const Rect& part);
// Fills with a colour that no shared brush has.
void FillColour(Canvas* canvas, Colour colour, const Rect& area);

// Draws an area of the screen in memory first, so that it does not flicker; straight
// onto the screen, cut to the area, if the memory is not to be had. `draw` is given
// the canvas and where the area lies on it.
template <class Draw>
void DrawSteady(Canvas* screen, const Rect& area, Draw draw) {
  const int width = RectWidth(area);
  const int height = RectHeight(area);
  Canvas* memory = CanvasMemory(screen, width, height);
  if (memory) {
    draw(memory, Rect{0, 0, width, height});
    CanvasCopy(screen, area.left, area.top, width, height, memory, 0, 0);
  } else {
    CanvasClip(screen, area);
    draw(screen, area);
    CanvasClipNone(screen);
  }
  CanvasRelease(memory);
}
