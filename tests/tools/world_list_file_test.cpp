#include "newdata/world_list_file.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

const std::vector<CastMember> kTwo = {{1, Role::Main, "A", {"walk", "sit"}}, {3, Role::Dial, "C", {"sit"}}};

std::string TextAt(const Bytes& file, std::size_t place) {
  return reinterpret_cast<const char*>(&file[place]);
}

unsigned NumberAt(const Bytes& file, std::size_t place) {
  return file[place] * 16777216U + file[place + 1] * 65536U + file[place + 2] * 256U + file[place + 3];
}
// Of a record: low byte first.
unsigned LowFirstAt(const Bytes& file, std::size_t place) {
  return file[place] + file[place + 1] * 256U + file[place + 2] * 65536U + file[place + 3] * 16777216U;
}

}  // namespace

TEST(WorldFlagFile, CountsCharactersAndFigures) {
  const Bytes file = WorldFlagFile(kTwo);
  ASSERT_EQ(file.size(), 12U + 2U * 142U);
  EXPECT_EQ(NumberAt(file, 4), 3U);
  EXPECT_EQ(NumberAt(file, 8), 2U);
  EXPECT_EQ(file[12], 1);
  EXPECT_EQ(TextAt(file, 13), "walk");
  EXPECT_EQ(TextAt(file, 12 + 142 + 1), "sit");
}

TEST(WorldDataFile, HoldsNamesFramesAndFigures) {
  const Bytes file = WorldDataFile(kTwo);
  ASSERT_EQ(file.size(), 3U * 1520U);
  EXPECT_EQ(TextAt(file, 1), "A");
  EXPECT_EQ(TextAt(file, 77), "walk");
  EXPECT_EQ(TextAt(file, 77 + 64), "sit");
  EXPECT_EQ(LowFirstAt(file, 1440), 1U);
  EXPECT_EQ(LowFirstAt(file, 1444), 2U);
  EXPECT_EQ(LowFirstAt(file, 1448), 0U);
  EXPECT_EQ(TextAt(file, 2 * 1520 + 1), "C");
  EXPECT_EQ(LowFirstAt(file, 2 * 1520 + 1440), 2U);
}

TEST(WorldDataFile, NumberWithoutCharacterIsEmpty) {
  const Bytes file = WorldDataFile(kTwo);
  for (std::size_t i = 1520; i < 2 * 1520; ++i) ASSERT_EQ(file[i], 0) << i;
}

TEST(WorldDataFile, FrameNamesOfMoreThan24BytesAreRefused) {
  const std::string fits(24, 'n');
  const std::string tooLong(25, 'n');
  EXPECT_EQ(TextAt(WorldDataFile({{1, Role::Main, "A", {fits.c_str()}}}), 77), fits);
  EXPECT_THROW(WorldDataFile({{1, Role::Main, "A", {tooLong.c_str()}}}), std::runtime_error);
}
