#include "platform/canvas.h"

#include <cstring>

#include "platform/headless/drawing_objects.h"
#include "platform/headless/drawings.h"
#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"

namespace {

struct HeadlessCanvas {
  WindowHandle window = nullptr;  // null: a bitmap in memory
  int width = 0, height = 0;      // of the bitmap
  std::vector<DrawCall> calls;    // of the bitmap
  std::vector<Rect> bare;         // what of the bitmap nothing was drawn upon yet
  BrushHandle brush = nullptr;    // null: the fresh canvas's white
  PenHandle pen = nullptr;        // null: the fresh canvas's black
  FontHandle font = nullptr;      // null: the fixed text font
  Colour textColour = 0;
  Colour backColour = 0xFFFFFF;
  bool transparent = false;
  bool clipped = false;
  Rect clip{};
};

HandleTable<Canvas, HeadlessCanvas> canvases;

using CanvasPointer = std::shared_ptr<HeadlessCanvas>;

// A canvas that could not be had is no canvas: nobody may draw on null.
CanvasPointer Use(Canvas* canvas, const char* call) {
  CanvasPointer found = canvases.Find(canvas);
  if (!found) {
    Failure(std::string(call) + (canvas ? ": the canvas is released" : ": the canvas is null"));
  } else if (found->window && !Windows().Find(found->window)) {
    Failure(std::string(call) + ": the canvas's window is no more");
  }
  return found;
}

HeadlessFont FontOf(const HeadlessCanvas& canvas) {
  const auto font = FontUse(canvas.font, "drawing");
  return font ? *font : HeadlessFont{};
}

// A call with everything that is in force.
DrawCall CallOn(const HeadlessCanvas& canvas, DrawCall::Kind kind, int x, int y, int x2, int y2) {
  DrawCall call{};
  call.kind = kind;
  call.window = canvas.window;
  call.x = x;
  call.y = y;
  call.x2 = x2;
  call.y2 = y2;
  call.textColour = canvas.textColour;
  call.backColour = canvas.backColour;
  call.transparent = canvas.transparent;
  const auto brush = BrushUse(canvas.brush, "drawing");
  call.brush = brush ? brush->colour : 0xFFFFFF;
  call.filled = !brush || brush->fills;
  const auto pen = PenUse(canvas.pen, "drawing");
  call.pen = pen ? pen->colour : 0;
  call.penWidth = pen ? pen->width : 1;
  call.dotted = pen && pen->style == PenStyle::Dot;
  call.edged = !pen || pen->draws;
  call.clipped = canvas.clipped;
  call.clip = canvas.clip;
  return call;
}

// What a call leaves no pixel of as it was; empty for all that is not a filled rectangle or
// an opaque picture.
Rect Covered(const DrawCall& call) {
  Rect area{};
  if (call.kind == DrawCall::Kind::Rectangle && call.filled) {
    const int edge = call.edged ? 0 : 1;  // without a pen the last row and column are left out
    area = {call.x, call.y, call.x2 - edge, call.y2 - edge};
  } else if (call.kind == DrawCall::Kind::Copy || call.kind == DrawCall::Kind::Stretch ||
             (call.kind == DrawCall::Kind::Dib && call.op == RasterOp::Copy)) {
    area = {call.x, call.y, call.x2, call.y2};
  }
  return call.clipped ? RectCommon(area, call.clip) : area;
}

// What is left of the areas, as rectangles above, below, left and right of the cover.
std::vector<Rect> Without(const std::vector<Rect>& areas, const Rect& cover) {
  if (cover.left >= cover.right || cover.top >= cover.bottom) return areas;
  std::vector<Rect> left;
  for (const Rect& area : areas) {
    if (!RectsMeet(area, cover)) {
      left.push_back(area);
      continue;
    }
    const Rect common = RectCommon(area, cover);
    for (const Rect& rest : {Rect{area.left, area.top, area.right, common.top},
                             Rect{area.left, common.bottom, area.right, area.bottom},
                             Rect{area.left, common.top, common.left, common.bottom},
                             Rect{common.right, common.top, area.right, common.bottom}}) {
      if (rest.left < rest.right && rest.top < rest.bottom) left.push_back(rest);
    }
  }
  return left;
}

void Record(HeadlessCanvas& canvas, const DrawCall& call) {
  if (!canvas.window) canvas.bare = Without(canvas.bare, Covered(call));
  (canvas.window ? WindowDrawings() : canvas.calls).push_back(call);
}

// A bitmap in memory holds anything at first.
void DrawnCheck(const HeadlessCanvas& from, const Rect& area) {
  for (const Rect& bare : from.bare) {
    if (!RectsMeet(bare, area)) continue;
    Failure("what is copied from memory was not drawn at " + std::to_string(bare.left) + ", " +
            std::to_string(bare.top) + " to " + std::to_string(bare.right) + ", " +
            std::to_string(bare.bottom));
    return;
  }
}

int TextBytes(const char* text, int length) {
  return length >= 0 ? length : static_cast<int>(std::strlen(text));
}

// What `from` holds inside its rectangle goes to `to`.
void Pass(HeadlessCanvas& to, const Rect& toRect, const HeadlessCanvas& from, const Rect& fromRect,
          DrawCall::Kind kind) {
  DrawnCheck(from, fromRect);
  const std::vector<DrawCall> source = from.window ? Drawings(from.window) : from.calls;
  Record(to, CallOn(to, kind, toRect.left, toRect.top, toRect.right, toRect.bottom));
  for (const DrawCall& call : source) {
    const Rect bounds = DrawCallBounds(call);
    if (!RectsMeet(bounds, fromRect)) continue;
    DrawCall moved = DrawCallMoved(call, fromRect, toRect);
    moved.window = to.window;
    if (!RectHolds(fromRect, bounds)) {
      moved.clip = moved.clipped ? RectCommon(moved.clip, toRect) : toRect;
      moved.clipped = true;
    }
    if (to.clipped) {
      moved.clip = moved.clipped ? RectCommon(moved.clip, to.clip) : to.clip;
      moved.clipped = true;
    }
    Record(to, moved);
  }
}

std::uint32_t Number(const unsigned char* at, int bytes) {
  std::uint32_t value = 0;
  for (int i = bytes - 1; i >= 0; --i) value = (value << 8U) | at[i];
  return value;
}

// Reads what the system would read of a bitmap, so that the sanitizer sees a
// caller who has not checked it. Returns a sum of it.
unsigned TouchDib(const void* header, const void* bits) {
  const auto* at = static_cast<const unsigned char*>(header);
  const std::uint32_t size = Number(at, 4);
  constexpr std::uint32_t kCoreSize = 12;
  constexpr std::uint32_t kInfoSize = 40;
  if (size != kCoreSize && size < kInfoSize) {
    Failure("a bitmap with a header of " + std::to_string(size) + " bytes");
    return 0;
  }
  const bool core = size == kCoreSize;
  const auto width = static_cast<std::int64_t>(core ? static_cast<std::int32_t>(Number(at + 4, 2))
                                                    : static_cast<std::int32_t>(Number(at + 4, 4)));
  const auto height = static_cast<std::int64_t>(core ? static_cast<std::int32_t>(Number(at + 6, 2))
                                                     : static_cast<std::int32_t>(Number(at + 8, 4)));
  const std::uint32_t depth = Number(at + (core ? 10 : 14), 2);
  const std::uint32_t compression = core ? 0 : Number(at + 16, 4);
  const std::uint32_t used = core ? 0 : Number(at + 32, 4);
  std::uint64_t colours = 0;
  if (depth <= 8) colours = used != 0 ? used : std::uint64_t{1} << depth;
  const std::uint64_t headerSize = size + colours * (core ? 3 : 4);
  std::uint64_t bitsSize = 0;
  if (compression == 0) {
    const std::uint64_t row = (static_cast<std::uint64_t>(width < 0 ? -width : width) * depth + 31) / 32 * 4;
    bitsSize = row * static_cast<std::uint64_t>(height < 0 ? -height : height);
  } else {
    bitsSize = Number(at + 20, 4);
  }
  constexpr std::uint64_t kMost = 64U << 20U;
  if (colours > 256 || bitsSize > kMost || width <= 0) {
    Failure("a bitmap of absurd size is drawn");
    return 0;
  }
  unsigned sum = 0;
  for (std::uint64_t i = 0; i < headerSize; ++i) sum += at[i];
  const auto* pixel = static_cast<const unsigned char*>(bits);
  for (std::uint64_t i = 0; i < bitsSize; ++i) sum += pixel[i];
  return sum;
}

}  // namespace

Canvas* CanvasGet(WindowHandle window) {
  if (!WindowUse(window, "CanvasGet")) return nullptr;
  auto canvas = std::make_shared<HeadlessCanvas>();
  canvas->window = window;
  ++PosixLive().canvases;
  return canvases.Add(canvas);
}

Canvas* CanvasMemory(Canvas* like, int width, int height) {
  if (FaultMeets(FaultKind::Bitmap)) return nullptr;
  if (!like || !Use(like, "CanvasMemory") || width < 0 || height < 0) return nullptr;
  auto canvas = std::make_shared<HeadlessCanvas>();
  canvas->width = width;
  canvas->height = height;
  canvas->bare = {{0, 0, width, height}};
  ++PosixLive().canvases;
  ++PosixLive().bitmaps;
  return canvases.Add(canvas);
}

void CanvasRelease(Canvas* canvas) {
  if (!canvas) return;
  const CanvasPointer found = canvases.Find(canvas);
  if (!found) {
    Failure("CanvasRelease: the canvas is released already");
    return;
  }
  if (!found->window) --PosixLive().bitmaps;
  --PosixLive().canvases;
  canvases.Remove(canvas);
}

bool CanvasHolds(const void* object) {
  for (const auto& [number, canvas] : canvases.All()) {
    if (canvas->brush == object || canvas->pen == object || canvas->font == object) return true;
  }
  return false;
}

void CanvasBrush(Canvas* canvas, BrushHandle brush) {
  const CanvasPointer found = Use(canvas, "CanvasBrush");
  if (found && BrushUse(brush, "CanvasBrush")) found->brush = brush;
}

void CanvasPen(Canvas* canvas, PenHandle pen) {
  const CanvasPointer found = Use(canvas, "CanvasPen");
  if (found && PenUse(pen, "CanvasPen")) found->pen = pen;
}

void CanvasFont(Canvas* canvas, FontHandle font) {
  const CanvasPointer found = Use(canvas, "CanvasFont");
  if (found && (!font || FontUse(font, "CanvasFont"))) found->font = font;
}

void CanvasTextColour(Canvas* canvas, Colour colour) {
  if (const CanvasPointer found = Use(canvas, "CanvasTextColour"); found) found->textColour = colour;
}

void CanvasBackColour(Canvas* canvas, Colour colour) {
  if (const CanvasPointer found = Use(canvas, "CanvasBackColour"); found) found->backColour = colour;
}

void CanvasBackTransparent(Canvas* canvas, bool transparent) {
  if (const CanvasPointer found = Use(canvas, "CanvasBackTransparent"); found)
    found->transparent = transparent;
}

void CanvasRectangle(Canvas* canvas, int left, int top, int right, int bottom) {
  const CanvasPointer found = Use(canvas, "CanvasRectangle");
  if (found) Record(*found, CallOn(*found, DrawCall::Kind::Rectangle, left, top, right, bottom));
}

void CanvasEllipse(Canvas* canvas, int left, int top, int right, int bottom) {
  const CanvasPointer found = Use(canvas, "CanvasEllipse");
  if (found) Record(*found, CallOn(*found, DrawCall::Kind::Ellipse, left, top, right, bottom));
}

void CanvasPie(Canvas* canvas, int left, int top, int right, int bottom, int x1, int y1, int x2, int y2) {
  const CanvasPointer found = Use(canvas, "CanvasPie");
  if (!found) return;
  DrawCall call = CallOn(*found, DrawCall::Kind::Pie, left, top, right, bottom);
  call.ax = x1;
  call.ay = y1;
  call.bx = x2;
  call.by = y2;
  Record(*found, call);
}

void CanvasPolygon(Canvas* canvas, const Point* points, int count) {
  const CanvasPointer found = Use(canvas, "CanvasPolygon");
  if (!found || !points || count <= 0) return;
  DrawCall call = CallOn(*found, DrawCall::Kind::Polygon, 0, 0, 0, 0);
  call.points.assign(points, points + count);
  const Rect bounds = DrawCallBounds(call);
  call.x = bounds.left;
  call.y = bounds.top;
  call.x2 = bounds.right;
  call.y2 = bounds.bottom;
  Record(*found, call);
}

void CanvasLine(Canvas* canvas, int x1, int y1, int x2, int y2) {
  const CanvasPointer found = Use(canvas, "CanvasLine");
  if (found) Record(*found, CallOn(*found, DrawCall::Kind::Line, x1, y1, x2, y2));
}

void CanvasText(Canvas* canvas, int x, int y, const char* text, int length) {
  const CanvasPointer found = Use(canvas, "CanvasText");
  if (!found) return;
  const int bytes = TextBytes(text, length);
  const HeadlessFont font = FontOf(*found);
  DrawCall call = CallOn(*found, DrawCall::Kind::Text, x, y, x + bytes * font.width, y + font.height);
  call.text.assign(text, static_cast<std::size_t>(bytes));
  call.fontWidth = font.width;
  call.fontHeight = font.height;
  Record(*found, call);
}

int CanvasTextWidth(Canvas* canvas, const char* text, int length) {
  const CanvasPointer found = Use(canvas, "CanvasTextWidth");
  return found ? TextBytes(text, length) * FontOf(*found).width : 0;
}

TextMetrics CanvasTextMetrics(Canvas* canvas) {
  const CanvasPointer found = Use(canvas, "CanvasTextMetrics");
  const HeadlessFont font = found ? FontOf(*found) : HeadlessFont{};
  return {font.width, font.height, 0};
}

void CanvasClip(Canvas* canvas, const Rect& rect) {
  const CanvasPointer found = Use(canvas, "CanvasClip");
  if (!found) return;
  found->clipped = true;
  found->clip = rect;
}

void CanvasClipNone(Canvas* canvas) {
  if (const CanvasPointer found = Use(canvas, "CanvasClipNone"); found) found->clipped = false;
}

void CanvasCopy(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY) {
  const CanvasPointer target = Use(to, "CanvasCopy");
  const CanvasPointer source = Use(from, "CanvasCopy");
  if (!target || !source) return;
  Pass(*target, {x, y, x + width, y + height}, *source, {fromX, fromY, fromX + width, fromY + height},
       DrawCall::Kind::Copy);
}

void CanvasStretch(Canvas* to, int x, int y, int width, int height, Canvas* from, int fromX, int fromY,
                   int fromWidth, int fromHeight) {
  const CanvasPointer target = Use(to, "CanvasStretch");
  const CanvasPointer source = Use(from, "CanvasStretch");
  if (!target || !source) return;
  Pass(*target, {x, y, x + width, y + height}, *source, {fromX, fromY, fromX + fromWidth, fromY + fromHeight},
       DrawCall::Kind::Stretch);
}

void CanvasDib(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits) {
  CanvasDibOp(canvas, x, y, width, height, header, bits, RasterOp::Copy);
}

void CanvasDibOp(Canvas* canvas, int x, int y, int width, int height, const void* header, const void* bits,
                 RasterOp op) {
  const CanvasPointer found = Use(canvas, "CanvasDib");
  if (!found) return;
  DrawCall call = CallOn(*found, DrawCall::Kind::Dib, x, y, x + width, y + height);
  call.dib = header;
  call.dibSum = TouchDib(header, bits);
  call.op = op;
  Record(*found, call);
}

void CanvasReset() {
  canvases.Clear();
  PosixLive().canvases = 0;
  PosixLive().bitmaps = 0;
  DrawingObjectsReset();
  DrawingClear();
}
