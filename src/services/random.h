// Random numbers for the idle behaviour of the characters. The same seed gives
// the same numbers on every system.
#pragma once

#include <cstdint>

struct RandomState {
  std::uint64_t state = 1;
};
extern RandomState Random;

void RandomSeed(std::uint32_t seed);

// A number from 0 to bound - 1; 0 when the bound is below 2.
int RandomBelow(int bound);
