#include "newdata/ico.h"

#include <gtest/gtest.h>

#include "newdata/host_file.h"
#include "tests/support/byte_order.h"
#include "tests/support/places.h"

TEST(IcoFile, DirectoryPicturesAndMasks) {
  // One pixel, half clear, and one clear pixel beside it would not be square: two
  // pictures of one pixel each.
  const IconImage solid = PlainIcon(AlphaPicture{1, 1, {10, 20, 30, 128}});
  const IconImage clear = PlainIcon(AlphaPicture{1, 1, {0, 0, 0, 0}});
  const Bytes file = IcoFile({solid, clear});
  const Bytes expected{
      0,  0,  1,  0,   2, 0,                                   // an icon with two pictures
      1,  1,  0,  0,   1, 0, 32, 0, 48, 0, 0, 0, 38, 0, 0, 0,  // 40 + 4 + 4 bytes after the directory
      1,  1,  0,  0,   1, 0, 32, 0, 48, 0, 0, 0, 86, 0, 0, 0, 40, 0, 0, 0, 1, 0, 0,  0, 2,   0, 0, 0,
      1,  0,  32, 0,   0, 0, 0,  0, 8,  0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0, 0,  0, 0,   0, 0, 0,
      30, 20, 10, 128, 0, 0, 0,  0, 40, 0, 0, 0, 1,  0, 0, 0, 2,  0, 0, 0, 1, 0, 32, 0, 0,   0, 0, 0,
      8,  0,  0,  0,   0, 0, 0,  0, 0,  0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0, 0, 0,  0, 128, 0, 0, 0,
  };
  EXPECT_EQ(file, expected);
}

TEST(IcoFile, SideOf256IsWrittenAsZero) {
  const Bytes file = IcoFile({IconImage{256, {1, 2, 3}}});
  EXPECT_EQ(file[6], 0);
  EXPECT_EQ(file[7], 0);
}

TEST(ProgramIcon, HoldsFiveSizesAndThePngOfTheLargest) {
  const Bytes file = ProgramIcon(MIRRELL_ASSETS_DIR "/icon/mirrell.svg");
  ASSERT_GT(file.size(), 6U + 5U * 16U);
  EXPECT_EQ(file[4], 5);
  const int sides[5] = {0, 48, 32, 24, 16};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(file[6 + 16 * i], sides[i]);
  const Bytes png(file.begin() + 86, file.begin() + 94);
  EXPECT_EQ(png, (Bytes{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}));
}

TEST(ProgramIcon, CommittedFileHoldsItsFivePicturesWhole) {
  const Bytes file = ReadHostFile(SourcePath("src/resources/mirrell.ico"));
  ASSERT_GT(file.size(), 6U + 5U * 16U);
  ASSERT_EQ(GetLE16(&file[4]), 5);
  std::size_t end = 6 + 5 * 16;
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(GetLE32(&file[6 + 16 * i + 12]), end);
    end += GetLE32(&file[6 + 16 * i + 8]);
  }
  EXPECT_EQ(file.size(), end);
}
