#include "newdata/bmp.h"

#include <gtest/gtest.h>

TEST(BmpFile, HeaderAndRowsFromTheBottom) {
  Picture picture(2, 2, kWhite);
  picture.At(0, 0) = {1, 2, 3};
  picture.At(1, 0) = {4, 5, 6};
  picture.At(0, 1) = {7, 8, 9};
  picture.At(1, 1) = {10, 11, 12};
  const Bytes expected{
      'B', 'M', 70, 0, 0,  0, 0, 0, 0, 0, 54, 0,  0,  0,          // file header: 54 + 2 rows of 8
      40,  0,   0,  0, 2,  0, 0, 0, 2, 0, 0,  0,  1,  0,  24, 0,  // 2 x 2, one plane, 24 bits
      0,   0,   0,  0, 16, 0, 0, 0, 0, 0, 0,  0,  0,  0,  0,  0,
      0,   0,   0,  0, 0,  0, 0, 0, 9, 8, 7,  12, 11, 10, 0,  0,  // lower row, blue first, padded
      3,   2,   1,  6, 5,  4, 0, 0,
  };
  EXPECT_EQ(BmpFile(picture), expected);
}

TEST(BmpFile, RowsArePaddedToFourBytes) {
  for (int width = 1; width <= 8; ++width) {
    const int row = (width * 3 + 3) / 4 * 4;
    EXPECT_EQ(BmpFile(Picture(width, 3, kBlack)).size(), 54U + 3U * static_cast<unsigned>(row)) << width;
  }
}

TEST(MaskPicture, FigureIsBlackOnWhite) {
  PixelSet figure(2, 1);
  figure.Set(1, 0, true);
  const Picture mask = MaskPicture(figure);
  EXPECT_EQ(mask.At(0, 0), kWhite);
  EXPECT_EQ(mask.At(1, 0), kBlack);
}
