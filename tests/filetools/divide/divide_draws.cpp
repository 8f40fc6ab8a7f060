#include "tests/filetools/divide/divide_draws.h"

#include "services/random.h"

namespace {

char Draw(int bound) {
  return static_cast<char>(RandomBelow(bound));
}

std::string KeyBlock() {
  std::string block;
  for (int run = 0; run < kModelRunCount; ++run) {
    if (run % 2 == 1) {
      const char a = Draw(255);
      const char b = Draw(255);
      std::string four;
      for (int i = 0; i < 4; ++i) four += Draw(255);
      const char between = Draw(255);
      block += four + a + between + b;
    } else {
      for (int i = 0; i < kModelRuns[run]; ++i) block += Draw(255);
    }
  }
  return block + std::string(4, '\0');
}

}  // namespace

ModelChance ModelDraw(const ModelDivision& division) {
  RandomSeed(division.seed);
  ModelChance chance{KeyBlock(), {}};
  std::vector<bool> used(100);
  const int total = division.count < 1 ? 2 : division.count;
  for (int number = 1; number <= total; ++number) {
    int drawn = number;
    if (!division.keyword.empty() && number <= 100) {
      do drawn = RandomBelow(100) + 1;
      while (used[static_cast<std::size_t>(drawn - 1)]);
      used[static_cast<std::size_t>(drawn - 1)] = true;
    }
    chance.numbers.push_back(drawn);
  }
  return chance;
}
