#include "newdata/polygon.h"

#include <algorithm>
#include <cstdint>

namespace {

// Coordinates are doubled, so that the middle of a pixel is a whole number.

std::int64_t CeilDivide(std::int64_t a, std::int64_t b) {  // b > 0
  return a >= 0 ? (a + b - 1) / b : -(-a / b);
}

// Adds the winding of every edge to the row `y`: delta[x - left] holds the change
// of the count at pixel x. Pixels left of `left` count into its first place.
void WindRow(const Polygon& polygon, int y, Probe probe, int left, std::vector<int>& delta) {
  std::fill(delta.begin(), delta.end(), 0);
  const int shift = probe == Probe::Middle ? 1 : 0;
  const std::int64_t line = 2 * std::int64_t{y} + shift;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    Corner from = polygon[i];
    Corner to = polygon[(i + 1) % polygon.size()];
    const int direction = from.y < to.y ? 1 : -1;
    if (direction < 0) std::swap(from, to);
    if (line < 2 * std::int64_t{from.y} || line >= 2 * std::int64_t{to.y}) continue;
    // The first pixel whose probe lies on the edge or right of it.
    const std::int64_t height = 2 * (std::int64_t{to.y} - from.y);
    const std::int64_t run = (line - 2 * std::int64_t{from.y}) * (2 * (std::int64_t{to.x} - from.x));
    const std::int64_t first = CeilDivide(run + (2 * std::int64_t{from.x} - shift) * height, 2 * height);
    const std::int64_t place = std::max<std::int64_t>(first - left, 0);
    if (place < static_cast<std::int64_t>(delta.size())) delta[static_cast<std::size_t>(place)] += direction;
  }
}

}  // namespace

PixelSet PolygonPixels(const Polygon& polygon, int width, int height, Probe probe) {
  PixelSet result(width, height);
  std::vector<int> delta(static_cast<std::size_t>(width));
  for (int y = 0; y < height; ++y) {
    WindRow(polygon, y, probe, 0, delta);
    int count = 0;
    for (int x = 0; x < width; ++x) {
      count += delta[static_cast<std::size_t>(x)];
      result.Set(x, y, count != 0);
    }
  }
  return result;
}

bool PolygonWindsNothing(const Polygon& polygon, Probe probe) {
  if (polygon.empty()) return true;
  const auto [left, right] = std::minmax_element(polygon.begin(), polygon.end(),
                                                 [](const Corner& a, const Corner& b) { return a.x < b.x; });
  const auto [top, bottom] = std::minmax_element(polygon.begin(), polygon.end(),
                                                 [](const Corner& a, const Corner& b) { return a.y < b.y; });
  std::vector<int> delta(static_cast<std::size_t>(right->x - left->x) + 2);
  for (int y = top->y; y <= bottom->y; ++y) {
    WindRow(polygon, y, probe, left->x, delta);
    int count = 0;
    for (const int change : delta) {
      count += change;
      if (count != 0) return false;
    }
  }
  return true;
}
