#include "filetools/scope/scope_unit.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

std::string Shown(float size) {
  const ScopeAmount amount = ScopeUnit(size);
  return std::to_string(amount.valueInt) + "." + std::to_string(amount.valueFrac) + " " +
         ScopeUnitText(amount.unit);
}

std::string Percent(float size, float total) {
  const ScopeShare share = ScopePercent(size, total);
  return std::to_string(share.percentInt) + "." + std::to_string(share.percentFrac);
}

TEST(ScopeUnitTest, ASizeOfNothingIsZeroPointZeroKilobytes) {
  EXPECT_EQ(Shown(0), "0.0 K B");
}

TEST(ScopeUnitTest, EachBoundaryBelongsToTheUnitBelow) {
  EXPECT_EQ(Shown(1048576.0F), "1024.0 K B");
  EXPECT_EQ(Shown(1048704.0F), "1.0 M B");
  EXPECT_EQ(Shown(1073741824.0F), "1024.0 M B");
  EXPECT_EQ(Shown(1073741952.0F), "1.0 G B");
  EXPECT_EQ(Shown(1099511627776.0F), "1024.0 G B");
  EXPECT_EQ(Shown(1099511758848.0F), "1.0 T B");
}

TEST(ScopeUnitTest, OneAndFiveHundredthsReadsAsOnePointFive) {
  EXPECT_EQ(Shown(1076.0F), "1.5 K B");   // 1.0507
  EXPECT_EQ(Shown(1536.0F), "1.50 K B");  // 1.5
  EXPECT_EQ(Percent(105.5F, 10000.0F), "1.5");
}

TEST(ScopeUnitTest, HundredthsAreCutAndNotRounded) {
  EXPECT_EQ(Shown(2047.0F), "1.99 K B");  // 1.99902
  EXPECT_EQ(Percent(2.0F, 3.0F), "66.66");
}

TEST(ScopeUnitTest, AShareOfNothingIsNothing) {
  EXPECT_EQ(Percent(5.0F, 0.0F), "0.0");
  EXPECT_EQ(Percent(0.0F, 0.0F), "0.0");
  EXPECT_EQ(ScopeRatio(5.0F, 0.0F), 0.0F);
  EXPECT_EQ(ScopeRatio(1.0F, 4.0F), 0.25F);
}

TEST(ScopeUnitTest, NumbersOfAnySizeStayInsideAWord) {
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(ScopeWhole(2147483520.0F), 2147483520);
  EXPECT_EQ(ScopeWhole(2147483648.0F), kMost);
  EXPECT_EQ(ScopeWhole(-2147483648.0F), std::numeric_limits<int>::min());
  EXPECT_EQ(ScopeWhole(-1e30F), std::numeric_limits<int>::min());
  EXPECT_EQ(ScopeWhole(std::numeric_limits<float>::quiet_NaN()), 0);
  EXPECT_EQ(ScopeWhole(-1.9F), -1);
  EXPECT_EQ(Percent(1e30F, 1.0F), std::to_string(kMost) + "." + std::to_string(kMost));
}

TEST(ScopeUnitTest, UnitsAreWrittenApart) {
  EXPECT_STREQ(ScopeUnitText(0), "K B");
  EXPECT_STREQ(ScopeUnitText(1), "M B");
  EXPECT_STREQ(ScopeUnitText(2), "G B");
  EXPECT_STREQ(ScopeUnitText(3), "T B");
  EXPECT_STREQ(ScopeUnitText(4), "");
  EXPECT_STREQ(ScopeUnitText(-1), "");
}

}  // namespace
