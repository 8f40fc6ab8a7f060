// The records of a world edit file (*.wef), which the world's editors leave beside an
// application. Numbers that stand alone are big-endian.
#pragma once

#include "services/record.h"

inline constexpr int kWefBackgroundSize = 257;

// What stands before the scene counts of the areas, 412 bytes behind the magic
//
// offset  size    field
//      0     8    not used here
//      8     4    areaCount
//     12  100x4   not used here
struct WefHead {
  std::uint32_t areaCount;
};

template <class Io>
constexpr void Fields(Io& io, WefHead& head) {
  io.At(8);
  io.BE32(head.areaCount);
  io.At(412);
}
static_assert(RecordSize<WefHead>() == 412);

inline constexpr int kWefBlockSize = 6874;  // not used here
inline constexpr int kWefAreaSize = 842;    // of an area, not used here

// A scene, 2356 bytes
//
// offset  size  field
//      0  1780  not used here
//   1780   257  background, name of a file
//   2037     3  fallback: red, green, blue
//   2040   316  not used here
struct WefScene {
  char background[kWefBackgroundSize + 1];
  std::uint8_t fallback[3];
};

template <class Io>
constexpr void Fields(Io& io, WefScene& scene) {
  io.At(1780);
  io.Text(scene.background, kWefBackgroundSize);
  io.U8(scene.fallback);
  io.At(2356);
}
static_assert(RecordSize<WefScene>() == 2356);
