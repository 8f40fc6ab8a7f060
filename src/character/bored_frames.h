// The two bored patterns of a main character.
#pragma once

#include <cstdint>

#include "character/character.h"

// Frames of a bored pattern that are played; a fifth one is kept and never used.
inline constexpr int kBoredLenMax = 4;

// Usable frames of a pattern: up to the first negative entry.
inline int BoredLength(const std::int32_t (&frames)[kBoredFrameCount]) {
  int count = 0;
  while (count < kBoredLenMax && frames[count] >= 0) ++count;
  return count;
}
