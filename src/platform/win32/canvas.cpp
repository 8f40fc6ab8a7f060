#include <windows.h>

#include "platform/canvas.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/win32/border.h"

struct Canvas {
  HDC dc;
  HWND window;     // of a window's canvas
  HBITMAP bitmap;  // of a canvas in memory
  int width;       // of the bitmap
  int height;
  bool hasFont;  // one has been selected
};

namespace {

HGDIOBJ Object(const void* handle) {
  return const_cast<HGDIOBJ>(handle);
}

template <typename Handle, typename Made>
Handle Counted(Made made, int& count) {
  if (made) ++count;
  return reinterpret_cast<Handle>(made);
}

template <typename Handle>
void Drop(Handle handle, int& count) {
  if (!handle) return;
  DeleteObject(Object(handle));
  --count;
}

Canvas* Begin(const Canvas& canvas) {
  SaveDC(canvas.dc);
  ++Live().canvases;
  return new Canvas(canvas);
}

void FontSelect(Canvas* canvas, HGDIOBJ font) {
  SelectObject(canvas->dc, font);
  canvas->hasFont = true;
}

// The text font is there until another is chosen. It is selected at the first need:
// most canvases show pictures only, and a font costs more than a picture.
void NeedFont(Canvas* canvas) {
  if (!canvas->hasFont) FontSelect(canvas, TextFont());
}

// The canvas in memory that was released last, null without one. The next one is most often
// of the same size, for the same window; a new one is slow to make.
Canvas& Kept() {
  static Canvas kept{};
  return kept;
}

void Keep(const Canvas& canvas) {
  Canvas& kept = Kept();
  if (kept.dc) DeleteDC(kept.dc);
  if (kept.bitmap) DeleteObject(kept.bitmap);
  kept = canvas;
}

Canvas NewMemory(const Canvas& like, int width, int height) {
  HDC dc = CreateCompatibleDC(like.dc);
  HBITMAP bitmap = dc ? CreateCompatibleBitmap(like.dc, width, height) : nullptr;
  if (bitmap && SelectObject(dc, bitmap)) return {dc, nullptr, bitmap, width, height, false};
  if (bitmap) DeleteObject(bitmap);
  if (dc) DeleteDC(dc);
  return {};
}

int LengthOf(const char* text, int length) {
  return length < 0 ? static_cast<int>(std::strlen(text)) : length;
}

}  // namespace

BrushHandle BrushCreate(Colour colour) {
  return Counted<BrushHandle>(CreateSolidBrush(colour), Live().brushes);
}
void BrushDelete(BrushHandle brush) {
  Drop(brush, Live().brushes);
}

PenHandle PenCreate(PenStyle style, int width, Colour colour) {
  return Counted<PenHandle>(CreatePen(style == PenStyle::Dot ? PS_DOT : PS_SOLID, width, colour),
                            Live().pens);
}
void PenDelete(PenHandle pen) {
  Drop(pen, Live().pens);
}

FontHandle FontCreate(int width, int height, int weight, bool italic, const char* face) {
  return Counted<FontHandle>(CreateFontW(height, width, 0, 0, weight, italic ? TRUE : FALSE, FALSE, FALSE,
                                         SHIFTJIS_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                         DEFAULT_QUALITY, DEFAULT_PITCH, Wide(face).c_str()),
                             Live().fonts);
}
void FontDelete(FontHandle font) {
  Drop(font, Live().fonts);
}

BrushHandle BrushFace() {
  return reinterpret_cast<BrushHandle>(GetSysColorBrush(COLOR_BTNFACE));
}
BrushHandle BrushNothing() {
  return reinterpret_cast<BrushHandle>(GetStockObject(NULL_BRUSH));
}
PenHandle PenNothing() {
  return reinterpret_cast<PenHandle>(GetStockObject(NULL_PEN));
}
Colour FaceColour() {
  return GetSysColor(COLOR_BTNFACE);
}

RegionHandle RegionPolygon(const Point* points, int count) {
  if (count <= 0) return nullptr;
  std::vector<POINT> corners(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) corners[static_cast<std::size_t>(i)] = {points[i].x, points[i].y};
  return Counted<RegionHandle>(CreatePolygonRgn(corners.data(), count, WINDING), Live().regions);
}
RegionHandle RegionEllipse(const Rect& bounds) {
  return Counted<RegionHandle>(CreateEllipticRgn(bounds.left, bounds.top, bounds.right, bounds.bottom),
                               Live().regions);
}
RegionHandle RegionRect(const Rect& bounds) {
  return Counted<RegionHandle>(CreateRectRgn(bounds.left, bounds.top, bounds.right, bounds.bottom),
                               Live().regions);
}
void RegionDelete(RegionHandle region) {
  Drop(region, Live().regions);
}

Canvas* CanvasGet(WindowHandle window) {
  HDC dc = window ? GetDC(Hwnd(window)) : nullptr;
  return dc ? Begin({dc, Hwnd(window), nullptr, 0, 0, false}) : nullptr;
}

Canvas* CanvasMemory(Canvas* like, int width, int height) {
  if (!like) return nullptr;
  const Canvas& kept = Kept();
  const bool fits = kept.dc && kept.width == width && kept.height == height;
  const Canvas made = fits ? std::exchange(Kept(), {}) : NewMemory(*like, width, height);
  if (!made.dc) return nullptr;
  ++Live().bitmaps;
  return Begin(made);
}

void CanvasRelease(Canvas* canvas) {
  if (!canvas) return;
  RestoreDC(canvas->dc, -1);
  if (canvas->bitmap) {
    canvas->hasFont = false;
    Keep(*canvas);
    --Live().bitmaps;
  } else {
    ReleaseDC(canvas->window, canvas->dc);
  }
  --Live().canvases;
  delete canvas;
}

void CanvasBrush(Canvas* canvas, BrushHandle brush) {
  SelectObject(canvas->dc, Object(brush));
}
void CanvasPen(Canvas* canvas, PenHandle pen) {
  SelectObject(canvas->dc, Object(pen));
}
void CanvasFont(Canvas* canvas, FontHandle font) {
  FontSelect(canvas, font ? Object(font) : static_cast<HGDIOBJ>(TextFont()));
}
void CanvasTextColour(Canvas* canvas, Colour colour) {
  SetTextColor(canvas->dc, colour);
}
void CanvasBackColour(Canvas* canvas, Colour colour) {
  SetBkColor(canvas->dc, colour);
}
void CanvasBackTransparent(Canvas* canvas, bool transparent) {
  SetBkMode(canvas->dc, transparent ? TRANSPARENT : OPAQUE);
}

void CanvasRectangle(Canvas* canvas, int left, int top, int right, int bottom) {
  Rectangle(canvas->dc, left, top, right, bottom);
}
void CanvasEllipse(Canvas* canvas, int left, int top, int right, int bottom) {
  Ellipse(canvas->dc, left, top, right, bottom);
}
void CanvasPie(Canvas* canvas, int left, int top, int right, int bottom, int x1, int y1, int x2, int y2) {
  // Pie may take two rays that meet the ellipse in one pixel for the same ray, and
  // draw all of the ellipse. So a slice of a pixel or two is drawn by its corners.
  constexpr int kThin = 2;
  const POINT centre = {(left + right) / 2, (top + bottom) / 2};
  const bool meet = std::abs(x1 - x2) <= kThin && std::abs(y1 - y2) <= kThin;
  const auto turn = static_cast<std::int64_t>(x1 - centre.x) * (y2 - centre.y) -
                    static_cast<std::int64_t>(y1 - centre.y) * (x2 - centre.x);
  if (meet && turn < 0) {  // else the slice is nearly the whole
    const POINT corners[] = {centre, {x1, y1}, {x2, y2}};
    Polygon(canvas->dc, corners, 3);
    return;
  }
  Pie(canvas->dc, left, top, right, bottom, x1, y1, x2, y2);
}
void CanvasPolygon(Canvas* canvas, const Point* points, int count) {
  if (count <= 0) return;
  std::vector<POINT> corners(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) corners[static_cast<std::size_t>(i)] = {points[i].x, points[i].y};
  Polygon(canvas->dc, corners.data(), count);
}
void CanvasLine(Canvas* canvas, int x1, int y1, int x2, int y2) {
  MoveToEx(canvas->dc, x1, y1, nullptr);
  LineTo(canvas->dc, x2, y2);
}

void CanvasText(Canvas* canvas, int x, int y, const char* text, int length) {
  NeedFont(canvas);
  const std::wstring wide = Wide(text, LengthOf(text, length));
  TextOutW(canvas->dc, x, y, wide.c_str(), static_cast<int>(wide.size()));
}

int CanvasTextWidth(Canvas* canvas, const char* text, int length) {
  NeedFont(canvas);
  const std::wstring wide = Wide(text, LengthOf(text, length));
  SIZE size{};
  GetTextExtentPoint32W(canvas->dc, wide.c_str(), static_cast<int>(wide.size()), &size);
  return static_cast<int>(size.cx);
}

TextMetrics CanvasTextMetrics(Canvas* canvas) {
  NeedFont(canvas);
  TEXTMETRICW metrics{};
  GetTextMetricsW(canvas->dc, &metrics);
  return {static_cast<int>(metrics.tmAveCharWidth), static_cast<int>(metrics.tmHeight),
          static_cast<int>(metrics.tmExternalLeading)};
}

void CanvasClip(Canvas* canvas, const Rect& rect) {
  HRGN region = CreateRectRgn(rect.left, rect.top, rect.right, rect.bottom);
  SelectClipRgn(canvas->dc, region);
  DeleteObject(region);  // the canvas keeps a copy
}
void CanvasClipNone(Canvas* canvas) {
  SelectClipRgn(canvas->dc, nullptr);
}

void CanvasCopy(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY) {
  BitBlt(to->dc, x, y, width, height, from->dc, fromX, fromY, SRCCOPY);
}

void CanvasStretch(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY,
                   int fromWidth, int fromHeight) {
  SetStretchBltMode(to->dc, COLORONCOLOR);
  StretchBlt(to->dc, x, y, width, height, from->dc, fromX, fromY, fromWidth, fromHeight, SRCCOPY);
}

void CanvasDib(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits) {
  SetStretchBltMode(canvas->dc, COLORONCOLOR);
  SetDIBitsToDevice(canvas->dc, x, y, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                    static_cast<UINT>(height), bits, static_cast<const BITMAPINFO*>(header), DIB_RGB_COLORS);
}

void CanvasDibOp(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits,
                 RasterOp op) {
  SetStretchBltMode(canvas->dc, COLORONCOLOR);
  StretchDIBits(canvas->dc, x, y, width, height, 0, 0, width, height, bits,
                static_cast<const BITMAPINFO*>(header), DIB_RGB_COLORS, static_cast<DWORD>(op));
}
