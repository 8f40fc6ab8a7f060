#include "newdata/trace.h"

#include <stdexcept>
#include <string>

namespace {

// Marks everything that can be reached from (x, y) over pixels of the same kind
// and returns how many pixels that were. Inside pixels hang together over edges
// and corners, outside pixels over edges only.
int Flood(const PixelSet& figure, int x, int y, PixelSet& reached) {
  const bool kind = figure.At(x, y);
  std::vector<Corner> open{{x, y}};
  reached.Set(x, y, true);
  int count = 0;
  while (!open.empty()) {
    const Corner at = open.back();
    open.pop_back();
    ++count;
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        if (!kind && dx != 0 && dy != 0) continue;
        const Corner next{at.x + dx, at.y + dy};
        if (next.x < 0 || next.y < 0 || next.x >= figure.width || next.y >= figure.height) continue;
        if (figure.At(next.x, next.y) != kind || reached.At(next.x, next.y)) continue;
        reached.Set(next.x, next.y, true);
        open.push_back(next);
      }
    }
  }
  return count;
}

std::string PlaceText(const Corner& place) {
  return std::to_string(place.x) + "," + std::to_string(place.y);
}

// The first pixel of a kind that is not marked, row by row; false: none is left.
bool FirstLeft(const PixelSet& figure, bool kind, const PixelSet& reached, Corner* place) {
  for (int y = 0; y < figure.height; ++y) {
    for (int x = 0; x < figure.width; ++x) {
      if (figure.At(x, y) == kind && !reached.At(x, y)) {
        *place = {x, y};
        return true;
      }
    }
  }
  return false;
}

void CheckShape(const PixelSet& figure) {
  PixelSet reached(figure.width, figure.height);
  Corner place{};
  if (!FirstLeft(figure, true, reached, &place)) throw std::runtime_error("the figure has no pixel");
  const Corner first = place;
  const int pixels = Flood(figure, place.x, place.y, reached);
  if (FirstLeft(figure, true, reached, &place)) {
    const int others = Flood(figure, place.x, place.y, reached);
    throw std::runtime_error("the figure is in pieces: " + std::to_string(pixels) + " pixels from " +
                             PlaceText(first) + ", " + std::to_string(others) + " pixels from " +
                             PlaceText(place));
  }
  // With a frame of outside pixels around it, all the outside hangs together
  // unless there is a hole.
  PixelSet framed(figure.width + 2, figure.height + 2);
  for (int y = 0; y < figure.height; ++y) {
    for (int x = 0; x < figure.width; ++x) framed.Set(x + 1, y + 1, figure.At(x, y));
  }
  PixelSet outside(framed.width, framed.height);
  Flood(framed, 0, 0, outside);
  if (FirstLeft(framed, false, outside, &place)) {
    const int size = Flood(framed, place.x, place.y, outside);
    throw std::runtime_error("the figure has a hole of " + std::to_string(size) + " pixels at " +
                             PlaceText({place.x - 1, place.y - 1}));
  }
}

// Without this corner the polygon covers the same pixels.
bool IsIdle(const Corner& before, const Corner& corner, const Corner& after) {
  const Polygon triangle{before, corner, after};
  return PolygonWindsNothing(triangle, Probe::Corner) && PolygonWindsNothing(triangle, Probe::Middle);
}

}  // namespace

Polygon TraceCracks(const PixelSet& figure) {
  Corner start{};
  if (!FirstLeft(figure, true, PixelSet(figure.width, figure.height), &start)) return {};
  // Walks clockwise with the figure at the right hand, from the top left corner
  // of the first pixel along its upper edge. Directions: 0 right, 1 down, 2 left,
  // 3 up.
  constexpr int kStepX[4] = {1, 0, -1, 0};
  constexpr int kStepY[4] = {0, 1, 0, -1};
  // The pixel ahead of a corner at the left and at the right hand, as seen when
  // walking in each direction.
  constexpr Corner kLeft[4] = {{0, -1}, {0, 0}, {-1, 0}, {-1, -1}};
  constexpr Corner kRight[4] = {{0, 0}, {-1, 0}, {-1, -1}, {0, -1}};
  Polygon polygon{start};
  Corner at = start;
  int direction = 0;
  do {
    at = {at.x + kStepX[direction], at.y + kStepY[direction]};
    int next = direction;
    // Where two pixels touch at a corner only, the walk goes over to the other:
    // they belong together.
    if (figure.At(at.x + kLeft[direction].x, at.y + kLeft[direction].y)) {
      next = (direction + 3) % 4;
    } else if (!figure.At(at.x + kRight[direction].x, at.y + kRight[direction].y)) {
      next = (direction + 1) % 4;
    }
    if (next != direction) polygon.push_back(at);
    direction = next;
  } while (!(at == start && direction == 0));
  polygon.pop_back();  // the start has come again
  return polygon;
}

Polygon DropCorners(Polygon polygon) {
  // A triangle that winds no pixel leaves every winding count as it is, so each
  // step can be judged by itself.
  bool dropped = true;
  while (dropped && polygon.size() > 3) {
    dropped = false;
    for (std::size_t i = 0; i < polygon.size() && polygon.size() > 3;) {
      const Corner& before = polygon[(i + polygon.size() - 1) % polygon.size()];
      const Corner& after = polygon[(i + 1) % polygon.size()];
      if (IsIdle(before, polygon[i], after)) {
        polygon.erase(polygon.begin() + static_cast<std::ptrdiff_t>(i));
        dropped = true;
      } else {
        ++i;
      }
    }
  }
  return polygon;
}

Polygon TraceOutline(const PixelSet& figure) {
  CheckShape(figure);
  Polygon polygon = DropCorners(TraceCracks(figure));
  for (const Probe probe : {Probe::Corner, Probe::Middle}) {
    if (PolygonPixels(polygon, figure.width, figure.height, probe) != figure) {
      throw std::runtime_error("the outline does not cover the figure exactly");
    }
  }
  if (polygon.size() > kOutlinePointsMax) {
    throw std::runtime_error("the outline has " + std::to_string(polygon.size()) + " corners, at most " +
                             std::to_string(kOutlinePointsMax) + " are possible");
  }
  return polygon;
}
