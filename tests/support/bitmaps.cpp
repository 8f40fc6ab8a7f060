#include "tests/support/bitmaps.h"

namespace {

std::string Low(std::size_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, value >>= 8U) text += static_cast<char>(value);
  return text;
}

}  // namespace

std::string BitmapOf(int width, int height, const std::vector<int>& pixels) {
  const auto across = static_cast<std::size_t>(width) * 3;
  std::string rows;
  for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
    for (std::size_t x = 0; x < across; ++x) rows += static_cast<char>(pixels.at(y * across + x));
    rows.resize((rows.size() + 3) / 4 * 4);
  }
  const std::string info = Low(40, 4) + Low(static_cast<std::size_t>(width), 4) +
                           Low(static_cast<std::size_t>(height), 4) + Low(1, 2) + Low(24, 2) +
                           std::string(24, '\0');
  return "BM" + Low(14 + info.size() + rows.size(), 4) + Low(0, 4) + Low(14 + info.size(), 4) + info + rows;
}
