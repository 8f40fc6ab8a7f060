#include "filetools/divide/div_key_block.h"

#include "filetools/divide/divide_state.h"
#include "services/random.h"

namespace {

constexpr int kSegmentSize = 20;
constexpr int kSegmentCount = 8;
static_assert(kSegmentSize * kSegmentCount == kDivTableSize);

constexpr std::uint8_t DivPattern[10][kSegmentSize] = {
    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5},
    {0, 2, 4, 6, 8, 1, 3, 5, 7, 9, 9, 0, 1, 2, 3, 8, 6, 7, 4, 1},
    {1, 1, 1, 2, 2, 2, 4, 5, 6, 8, 2, 1, 3, 1, 3, 3, 7, 4, 6, 5},
    {3, 1, 5, 7, 2, 4, 8, 6, 2, 3, 9, 0, 1, 2, 4, 3, 4, 3, 5, 7},
    {3, 1, 5, 7, 2, 4, 8, 6, 2, 3, 7, 8, 1, 2, 5, 3, 6, 4, 7, 0},
    {2, 4, 6, 8, 6, 6, 8, 2, 2, 1, 5, 1, 5, 2, 5, 5, 4, 4, 2, 9},
    {1, 1, 1, 1, 9, 9, 9, 3, 3, 5, 0, 1, 0, 2, 0, 3, 0, 4, 0, 5},
    {0, 1, 0, 1, 2, 3, 0, 9, 3, 7, 2, 2, 2, 2, 2, 4, 4, 4, 4, 4},
    {9, 9, 3, 3, 5, 5, 2, 2, 1, 8, 1, 1, 2, 3, 3, 7, 4, 6, 5, 4},
    {8, 8, 7, 7, 4, 3, 1, 0, 0, 4, 9, 1, 9, 0, 0, 0, 1, 3, 5, 7},
};

// Lengths of the random runs; a data run stands between each two of them.
constexpr int kRandomRuns[kSegmentCount + 1] = {7, 7, 6, 5, 4, 3, 2, 3, 3};
constexpr int kDataRun = 7;
constexpr int kPlaceA = 4;
constexpr int kPlaceB = 6;

std::uint8_t RandomByte() {
  return static_cast<std::uint8_t>(DivRandom(255));
}

void FillSegment(int segment, std::uint8_t a, std::uint8_t b) {
  for (int i = 0; i < kSegmentSize; ++i) {
    FileDivide.scrambleTable[segment * kSegmentSize + i] =
        static_cast<std::uint8_t>(DivPattern[b % 10][i] + a);
  }
}

}  // namespace

std::int32_t DivRandom(std::int32_t n) {
  return n < 2 ? 0 : RandomBelow(n);
}

// kept: the last 4 bytes of the key block of a joining file are never drawn and go out as
// they stand, and no drawn byte of it is 255.
void DivBuildKeyBlock() {
  std::uint8_t* at = FileDivide.keyBlock;
  for (int run = 0;; ++run) {
    for (int i = 0; i < kRandomRuns[run]; ++i) *at++ = RandomByte();
    if (run == kSegmentCount) break;
    // A and B are drawn before the bytes around them.
    at[kPlaceA] = RandomByte();
    at[kPlaceB] = RandomByte();
    for (int i = 0; i < kDataRun; ++i) {
      if (i != kPlaceA && i != kPlaceB) at[i] = RandomByte();
    }
    FillSegment(run, at[kPlaceA], at[kPlaceB]);
    at += kDataRun;
  }
}

void DivLoadKeyBlock() {
  const std::uint8_t* at = FileDivide.keyBlock;
  for (int segment = 0; segment < kSegmentCount; ++segment) {
    at += kRandomRuns[segment];
    FillSegment(segment, at[kPlaceA], at[kPlaceB]);
    at += kDataRun;
  }
}
