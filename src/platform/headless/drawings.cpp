#include "platform/headless/drawings.h"

#include <algorithm>

namespace {

std::vector<DrawCall> drawings;

// True if the call leaves nothing of what stood inside the rectangle.
bool Covers(const DrawCall& call, const Rect& rect) {
  switch (call.kind) {
    case DrawCall::Kind::Rectangle:
      if (!call.filled) return false;
      break;
    case DrawCall::Kind::Dib:
    case DrawCall::Kind::Copy:
    case DrawCall::Kind::Stretch:
      if (call.op != RasterOp::Copy) return false;
      break;
    default:
      return false;
  }
  const Rect bounds = DrawCallBounds(call);
  return RectHolds(call.clipped ? RectCommon(bounds, call.clip) : bounds, rect);
}

}  // namespace

std::vector<DrawCall>& WindowDrawings() {
  return drawings;
}

bool RectsMeet(const Rect& a, const Rect& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool RectHolds(const Rect& outer, const Rect& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

Rect RectCommon(const Rect& a, const Rect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

Rect DrawCallBounds(const DrawCall& call) {
  if (call.kind == DrawCall::Kind::Polygon) {
    if (call.points.empty()) return {};
    Rect bounds{call.points[0].x, call.points[0].y, call.points[0].x + 1, call.points[0].y + 1};
    for (const Point& point : call.points) {
      bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y),
                std::max(bounds.right, point.x + 1), std::max(bounds.bottom, point.y + 1)};
    }
    return bounds;
  }
  if (call.kind == DrawCall::Kind::Line) {
    return {std::min(call.x, call.x2), std::min(call.y, call.y2), std::max(call.x, call.x2) + 1,
            std::max(call.y, call.y2) + 1};
  }
  return {std::min(call.x, call.x2), std::min(call.y, call.y2), std::max(call.x, call.x2),
          std::max(call.y, call.y2)};
}

DrawCall DrawCallMoved(const DrawCall& call, const Rect& from, const Rect& to) {
  const int fromWidth = std::max(RectWidth(from), 1);
  const int fromHeight = std::max(RectHeight(from), 1);
  const auto moveX = [&](int x) { return to.left + (x - from.left) * RectWidth(to) / fromWidth; };
  const auto moveY = [&](int y) { return to.top + (y - from.top) * RectHeight(to) / fromHeight; };
  DrawCall moved = call;
  moved.x = moveX(call.x);
  moved.y = moveY(call.y);
  moved.x2 = moveX(call.x2);
  moved.y2 = moveY(call.y2);
  moved.ax = moveX(call.ax);
  moved.ay = moveY(call.ay);
  moved.bx = moveX(call.bx);
  moved.by = moveY(call.by);
  for (Point& point : moved.points) point = {moveX(point.x), moveY(point.y)};
  if (call.clipped) {
    moved.clip = {moveX(call.clip.left), moveY(call.clip.top), moveX(call.clip.right),
                  moveY(call.clip.bottom)};
  }
  return moved;
}

std::vector<DrawCall> Drawings(WindowHandle window) {
  std::vector<DrawCall> found;
  for (const DrawCall& call : drawings) {
    if (call.window == window) found.push_back(call);
  }
  return found;
}

void DrawingClear() {
  drawings.clear();
}

std::vector<DrawCall> DrawnTexts(WindowHandle window) {
  std::vector<DrawCall> found;
  for (const DrawCall& call : drawings) {
    if (call.window == window && call.kind == DrawCall::Kind::Text) found.push_back(call);
  }
  return found;
}

bool TextStands(WindowHandle window, const char* text, int x, int y) {
  bool stands = false;
  Rect place{};
  for (const DrawCall& call : drawings) {
    if (call.window != window) continue;
    if (call.kind == DrawCall::Kind::Text && call.x == x && call.y == y && call.text == text) {
      place = DrawCallBounds(call);
      stands = !call.clipped || RectsMeet(call.clip, place);
    } else if (stands && Covers(call, place)) {
      stands = false;
    }
  }
  return stands;
}
