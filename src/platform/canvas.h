// Drawing.
//
// A canvas is what a window's client area or a memory bitmap is drawn through.
// Fresh canvases draw with a black pen, a white brush, black text on an opaque
// white background, and the fixed text font.
#pragma once

#include "platform/types.h"

// --- Drawing objects. Who creates one deletes it; null is accepted.

enum class PenStyle { Solid, Dot };

BrushHandle BrushCreate(Colour colour);
void BrushDelete(BrushHandle brush);
PenHandle PenCreate(PenStyle style, int width, Colour colour);
void PenDelete(PenHandle pen);
// A font by cell width and height in pixels; width 0: the font's own.
FontHandle FontCreate(int width, int height, int weight, bool italic, const char* face);
void FontDelete(FontHandle font);

// Borrowed objects, never deleted.
BrushHandle BrushFace();     // the system's face colour
BrushHandle BrushNothing();  // no filling
PenHandle PenNothing();      // no edge
Colour FaceColour();

// --- Regions

// The inside of a polygon by winding count. Null on failure or with no points.
RegionHandle RegionPolygon(const Point* points, int count);
RegionHandle RegionEllipse(const Rect& bounds);
RegionHandle RegionRect(const Rect& bounds);
void RegionDelete(RegionHandle region);

// --- Canvases

// A window's client area; give it back with CanvasRelease. Null on failure.
Canvas* CanvasGet(WindowHandle window);
// A bitmap in memory like `like`'s; ends with CanvasRelease. It holds anything at first.
// Null if the memory is not to be had: callers then draw straight on the screen.
Canvas* CanvasMemory(Canvas* like, int width, int height);
void CanvasRelease(Canvas* canvas);  // null is accepted

// Selects; the canvas takes its old objects back by itself at its release.
void CanvasBrush(Canvas* canvas, BrushHandle brush);
void CanvasPen(Canvas* canvas, PenHandle pen);
void CanvasFont(Canvas* canvas, FontHandle font);  // null: the fixed text font
void CanvasTextColour(Canvas* canvas, Colour colour);
void CanvasBackColour(Canvas* canvas, Colour colour);
void CanvasBackTransparent(Canvas* canvas, bool transparent);

// Filled by the brush, edged by the pen; right and bottom are one past the edge.
void CanvasRectangle(Canvas* canvas, int left, int top, int right, int bottom);
void CanvasEllipse(Canvas* canvas, int left, int top, int right, int bottom);
// The slice counter-clockwise from the ray to (x1, y1) to the ray to (x2, y2).
void CanvasPie(Canvas* canvas, int left, int top, int right, int bottom, int x1, int y1, int x2, int y2);
void CanvasPolygon(Canvas* canvas, const Point* points, int count);
void CanvasLine(Canvas* canvas, int x1, int y1, int x2, int y2);

// Code page 932 text; `length` -1: up to the terminator.
void CanvasText(Canvas* canvas, int x, int y, const char* text, int length = -1);
int CanvasTextWidth(Canvas* canvas, const char* text, int length = -1);

struct TextMetrics {
  int averageWidth;
  int height;
  int externalLeading;
};
TextMetrics CanvasTextMetrics(Canvas* canvas);

// Everything drawn from here on is cut to the rectangle; none: no cut.
void CanvasClip(Canvas* canvas, const Rect& rect);
void CanvasClipNone(Canvas* canvas);

// How pixels meet what is there already.
enum class RasterOp : std::uint32_t {
  Copy = 0x00CC0020,
  And = 0x008800C6,
  Or = 0x00EE0086,
};

void CanvasCopy(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY);
void CanvasStretch(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY,
                   int fromWidth, int fromHeight);

// A device-independent bitmap: header with colour table, and its pixel rows.
// The caller has checked that both are whole.
void CanvasDib(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits);
void CanvasDibOp(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits,
                 RasterOp op);
