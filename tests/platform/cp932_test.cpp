#include "platform/cp932.h"

#include <gtest/gtest.h>

namespace {

TEST(Cp932Test, ACutNeverFallsInsideADoubleBytePair) {
  const std::string text = "a\x95\x5C\xB1\xE0\x40z";  // a, a pair, a half-width letter, a pair, z
  const std::size_t expected[] = {0, 1, 1, 3, 4, 4, 6, 7, 7};
  for (std::size_t most = 0; most < std::size(expected); ++most) {
    EXPECT_EQ(Cp932Cut(text, most), expected[most]) << most;
  }
}

TEST(Cp932Test, ALoneLeadByteAtTheEndStaysWhereAllFits) {
  EXPECT_EQ(Cp932Cut("a\x95", 2), 2U);
  EXPECT_EQ(Cp932Cut("", 0), 0U);
}

}  // namespace
