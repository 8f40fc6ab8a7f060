#include "services/random.h"

RandomState Random;

void RandomSeed(std::uint32_t seed) {
  Random.state = seed;
}

// A sum in steps of an odd constant, whose bits are then stirred (splitmix64).
int RandomBelow(int bound) {
  if (bound < 2) return 0;
  Random.state += 0x9E3779B97F4A7C15ULL;
  std::uint64_t z = Random.state;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
  z ^= z >> 31U;
  return static_cast<int>((z >> 32U) * static_cast<std::uint64_t>(bound) >> 32U);
}
