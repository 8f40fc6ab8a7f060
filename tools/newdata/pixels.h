// What one frame of a drawing is made of while the tool works on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Which pixels of a picture belong to the figure. (0, 0) is the top left pixel;
// everything beyond the edges is outside.
struct PixelSet {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> inside;  // row by row, 0 or 1

  PixelSet() = default;
  PixelSet(int w, int h) : width(w), height(h), inside(static_cast<std::size_t>(w) * h) {}

  bool At(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height &&
           inside[static_cast<std::size_t>(y) * width + x] != 0;
  }
  void Set(int x, int y, bool value) { inside[static_cast<std::size_t>(y) * width + x] = value ? 1 : 0; }

  bool operator==(const PixelSet&) const = default;
};

struct Rgb {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;

  bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kBlack{0, 0, 0};

// A picture of whole pixels, row by row from the top.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<Rgb> pixels;

  Picture() = default;
  Picture(int w, int h, Rgb colour) : width(w), height(h), pixels(static_cast<std::size_t>(w) * h, colour) {}

  const Rgb& At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
  Rgb& At(int x, int y) { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

// A frame: its picture, white outside the figure, and the figure's pixels.
struct Frame {
  Picture picture;
  PixelSet figure;
};
