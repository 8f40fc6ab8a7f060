// Handles and small value types of the platform layer.
//
// Every handle is an opaque pointer; the null pointer means "none" or
// "closed". The logic only compares, stores and passes them on.
#pragma once

#include <cstddef>
#include <cstdint>

struct WindowTag;
struct BrushTag;
struct PenTag;
struct FontTag;
struct RegionTag;
struct Canvas;

using WindowHandle = WindowTag*;
using BrushHandle = BrushTag*;
using PenHandle = PenTag*;
using FontHandle = FontTag*;
using RegionHandle = RegionTag*;

// A colour as 0xBBGGRR, red in the lowest byte.
using Colour = std::uint32_t;

// A colour from its three channels, each 0 to 255.
constexpr Colour MakeColour(unsigned red, unsigned green, unsigned blue) {
  return (red & 255U) | ((green & 255U) << 8U) | ((blue & 255U) << 16U);
}

struct Point {
  int x;
  int y;
};

// Right and bottom lie one past the last pixel.
struct Rect {
  int left;
  int top;
  int right;
  int bottom;
};

inline int RectWidth(const Rect& r) {
  return r.right - r.left;
}
inline int RectHeight(const Rect& r) {
  return r.bottom - r.top;
}
inline bool RectHas(const Rect& r, int x, int y) {
  return x >= r.left && x < r.right && y >= r.top && y < r.bottom;
}
