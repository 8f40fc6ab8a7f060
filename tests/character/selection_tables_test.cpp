#include "character/selection_tables.h"

#include <gtest/gtest.h>

#include <set>

#include "services/random.h"

namespace {

struct Delay {
  int hours;
  int minutes;
};
Delay DelayOf(int selection) {
  Delay delay{-1, -1};
  BoredDelayValue(selection, &delay.hours, &delay.minutes);
  return delay;
}

TEST(SelectionTables, BoredDelayHasTenRows) {
  const struct {
    const char* label;
    int hours;
    int minutes;
  } kRows[] = {{"5分", 0, 5},   {"10分", 0, 10}, {"30分", 0, 30}, {"1時間", 1, 0}, {"1時間30分", 1, 30},
               {"2時間", 2, 0}, {"3時間", 3, 0}, {"4時間", 4, 0}, {"5h", 5, 0}};
  for (int i = 0; i < 9; ++i) {
    EXPECT_STREQ(kBoredDelayLabels[i], kRows[i].label);
    EXPECT_EQ(DelayOf(i).hours, kRows[i].hours) << i;
    EXPECT_EQ(DelayOf(i).minutes, kRows[i].minutes) << i;
  }
  EXPECT_STREQ(kBoredDelayLabels[9], "ランダム");
}

TEST(SelectionTables, TheLastBoredDelayIsBelow2HoursAnd60Minutes) {
  RandomSeed(5);
  std::set<int> hours;
  std::set<int> minutes;
  for (int i = 0; i < 2000; ++i) {
    hours.insert(DelayOf(9).hours);
    minutes.insert(DelayOf(9).minutes);
  }
  EXPECT_EQ(hours, (std::set<int>{0, 1}));
  EXPECT_EQ(minutes.size(), 60U);
  EXPECT_EQ(*minutes.begin(), 0);
  EXPECT_EQ(*minutes.rbegin(), 59);
}

TEST(SelectionTables, AnIndexBeyondBoredDelaySel9Gives30MinutesAndBeyondBlinkSpeedSel9Gives0Steps) {
  for (const int selection : {10, 11, 1000, -1, -2147483647 - 1, 2147483647}) {
    EXPECT_EQ(DelayOf(selection).hours, 0) << selection;
    EXPECT_EQ(DelayOf(selection).minutes, 30) << selection;
    EXPECT_EQ(BlinkSpeedValue(selection), 0) << selection;
    EXPECT_EQ(BoredSpeedValue(selection), 0) << selection;
    EXPECT_EQ(BoredRepeatValue(selection), 0) << selection;
  }
}

TEST(SelectionTables, BoredSpeedHasEightLabelsAndNineValues) {
  const char* const kLabels[] = {"0秒", "30ﾐﾘ秒", "40ﾐﾘ秒", "50ﾐﾘ秒", "1秒", "2秒", "10秒", "10秒"};
  static_assert(std::size(kBoredSpeedLabels) == 8);
  for (int i = 0; i < 8; ++i) EXPECT_STREQ(kBoredSpeedLabels[i], kLabels[i]);
  const int kSteps[] = {0, 1, 2, 3, 4, 5, 6, 10, 20};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(BoredSpeedValue(i), kSteps[i]) << i;
  EXPECT_EQ(BoredSpeedValue(9), 0);
}

TEST(SelectionTables, BoredRepeatHasTenRowsAndTheLastNeverEnds) {
  const char* const kLabels[] = {"0", "2", "3", "4", "5", "10", "50", "100", "500", "無限"};
  const int kRepeats[] = {0, 2, 3, 4, 5, 10, 50, 100, 500, -1};
  for (int i = 0; i < 10; ++i) {
    EXPECT_STREQ(kBoredRepeatLabels[i], kLabels[i]);
    EXPECT_EQ(BoredRepeatValue(i), kRepeats[i]) << i;
  }
}

TEST(SelectionTables, BlinkSpeedHasTenRowsAndTheLastIs20AndUpTo79More) {
  const char* const kLabels[] = {"10秒", "20秒", "30秒", "40秒", "1分",
                                 "2分",  "5分",  "10分", "30分", "ランダム"};
  const int kSteps[] = {20, 40, 60, 80, 120, 240, 600, 1200, 3600};
  for (int i = 0; i < 10; ++i) EXPECT_STREQ(kBlinkSpeedLabels[i], kLabels[i]);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(BlinkSpeedValue(i), kSteps[i]) << i;
  std::set<int> seen;
  for (int i = 0; i < 4000; ++i) seen.insert(BlinkSpeedValue(9));
  EXPECT_EQ(seen.size(), 80U);
  EXPECT_EQ(*seen.begin(), 20);
  EXPECT_EQ(*seen.rbegin(), 99);
}

TEST(Random, ABoundBelow2Gives0) {
  for (const int bound : {1, 0, -1, -2147483647 - 1}) EXPECT_EQ(RandomBelow(bound), 0) << bound;
}

TEST(Random, EveryNumberBelowTheBoundComes) {
  RandomSeed(1);
  for (const int bound : {2, 3, 7, 50}) {
    std::set<int> seen;
    for (int i = 0; i < 5000; ++i) seen.insert(RandomBelow(bound));
    EXPECT_EQ(static_cast<int>(seen.size()), bound);
    EXPECT_EQ(*seen.begin(), 0);
    EXPECT_EQ(*seen.rbegin(), bound - 1);
  }
  for (int i = 0; i < 1000; ++i) EXPECT_GE(RandomBelow(2147483647), 0);
}

TEST(Random, TheSameSeedGivesTheSameNumbersAndAnotherOneOthers) {
  const auto draw = [](std::uint32_t seed) {
    RandomSeed(seed);
    std::vector<int> numbers;
    for (int i = 0; i < 20; ++i) numbers.push_back(RandomBelow(1000));
    return numbers;
  };
  EXPECT_EQ(draw(7), draw(7));
  EXPECT_NE(draw(7), draw(8));
  EXPECT_NE(draw(0), draw(1));
}

}  // namespace
