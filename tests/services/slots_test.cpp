#include "services/slots.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <vector>

namespace {

struct Entry {
  std::uint8_t used;
  int value;
};

const std::uint16_t kIds[] = {0, 7, 0, 9, 8};
const Entry kEntries[] = {{1, 10}, {0, 20}, {2, 30}};

TEST(Slots, NumbersAreInUseWhenTheyAreNotZero) {
  EXPECT_EQ(SlotsUsed(kIds), 3);
  EXPECT_EQ(SlotFree(kIds), 0);
  EXPECT_EQ(SlotOfRow(kIds, 0), 1);
  EXPECT_EQ(SlotOfRow(kIds, 1), 3);
  EXPECT_EQ(SlotOfRow(kIds, 2), 4);
}

TEST(Slots, RecordsAreInUseAsTheirMemberSays) {
  EXPECT_EQ(SlotsUsed(kEntries, &Entry::used), 2);
  EXPECT_EQ(SlotFree(kEntries, &Entry::used), 1);
  EXPECT_EQ(SlotOfRow(kEntries, 1, &Entry::used), 2);
}

TEST(Slots, OrAsAFunctionSays) {
  const auto isHigh = [](const Entry& entry) { return entry.value > 15; };
  EXPECT_EQ(SlotsUsed(kEntries, isHigh), 2);
  EXPECT_EQ(SlotFree(kEntries, isHigh), 0);
  EXPECT_EQ(SlotOfRow(kEntries, 1, isHigh), 2);
}

TEST(Slots, ARowThatThereIsNotHasNoSlot) {
  EXPECT_EQ(SlotOfRow(kIds, -1), -1);
  EXPECT_EQ(SlotOfRow(kIds, 3), -1);
  EXPECT_EQ(SlotOfRow(kEntries, 2, &Entry::used), -1);
}

TEST(Slots, AFullTableHasNoFreeSlot) {
  const int full[] = {1, 2};
  EXPECT_EQ(SlotFree(full), -1);
}

TEST(Slots, OfATableTheFirstOnesAlone) {
  const std::span<const std::uint16_t> part(kIds, 4);
  EXPECT_EQ(SlotsUsed(part), 2);
  EXPECT_EQ(SlotOfRow(part, 2), -1);
  EXPECT_EQ(SlotFree(part.subspan(1, 1)), -1);
}

TEST(Slots, WhatStandsBehindADroppedSlotComesDown) {
  Entry entries[] = {{1, 10}, {1, 20}, {1, 30}};
  SlotDrop(entries, 0);
  EXPECT_EQ(entries[0].value, 20);
  EXPECT_EQ(entries[1].value, 30);
  EXPECT_EQ(entries[2].used, 0);
  EXPECT_EQ(entries[2].value, 0);
}

TEST(Slots, TheLastSlotIsDroppedAlone) {
  int numbers[] = {1, 2, 3};
  SlotDrop(numbers, 2);
  EXPECT_EQ(std::vector(std::begin(numbers), std::end(numbers)), (std::vector{1, 2, 0}));
}

TEST(Slots, PairsOfNumbersComeDownToo) {
  std::uint16_t pairs[][2] = {{1, 2}, {3, 4}};
  SlotDrop(pairs, 0);
  EXPECT_EQ(pairs[0][0], 3);
  EXPECT_EQ(pairs[0][1], 4);
  EXPECT_EQ(pairs[1][0], 0);
  EXPECT_EQ(pairs[1][1], 0);
}

TEST(Slots, ASlotThatThereIsNotIsNotDropped) {
  int numbers[] = {1, 2};
  SlotDrop(numbers, -1);
  SlotDrop(numbers, 2);
  EXPECT_EQ(numbers[0], 1);
  EXPECT_EQ(numbers[1], 2);
}

}  // namespace
