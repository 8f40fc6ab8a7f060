#include "newdata/outline_file.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// One frame with one corner, in a picture 100 pixels high.
Outlines OneCorner(int x, int y) {
  Outlines outlines;
  outlines[0].corners = {{x, y}};
  outlines[0].pictureHeight = 100;
  return outlines;
}

// The first stored point.
Corner StoredPoint(const Bytes& file) {
  return {file[5] * 256 + file[6], file[7] * 256 + file[8]};
}

}  // namespace

TEST(OutlineFile, AlwaysHoldsTwentyFrames) {
  Outlines outlines;
  outlines[1].corners = {{3, 5}, {300, 5}};
  outlines[1].pictureHeight = 10;
  const Bytes file = OutlineFile(outlines, OutlineKind::Bare);
  ASSERT_EQ(file.size(), 1U + 20U * 4U + 2U * 4U);
  EXPECT_EQ(file[0], 20);
  const Bytes begin(file.begin(), file.begin() + 17);
  // No point in frame 1; two in frame 2: (3, 10 - 1 - 5) and (300, 4).
  const Bytes expected{20, 0, 0, 0, 0, 0, 0, 0, 2, 0, 3, 0, 4, 1, 44, 0, 4};
  EXPECT_EQ(begin, expected);
}

TEST(OutlineFile, StagePointMeetsThePictureBehindBorderAndMenu) {
  const int menu = 19;
  const Corner stored = StoredPoint(OutlineFile(OneCorner(7, 30), OutlineKind::Stage));
  // The program: x stays, y becomes menu + height - y - 1. The picture begins at
  // (1, menu + 1) of the window.
  EXPECT_EQ(stored.x, 7 + 1);
  EXPECT_EQ(menu + 100 - stored.y - 1, menu + 1 + 30);
}

TEST(OutlineFile, WalkerPointMeetsThePictureInsideTheFrame) {
  const Corner stored = StoredPoint(OutlineFile(OneCorner(7, 30), OutlineKind::Walker));
  EXPECT_EQ(stored.x + 4, kWalkerFrame + 7);
  EXPECT_EQ(4 + 100 - stored.y - 1, kWalkerFrame + 30);
}

TEST(OutlineFile, BarePointMeetsThePicture) {
  const Corner stored = StoredPoint(OutlineFile(OneCorner(7, 30), OutlineKind::Bare));
  EXPECT_EQ(stored.x, 7);
  EXPECT_EQ(100 - stored.y - 1, 30);
}

TEST(OutlineFile, PointsThatDoNotFitTheirFieldAreRefused) {
  EXPECT_NO_THROW(OutlineFile(OneCorner(7, 98), OutlineKind::Stage));
  EXPECT_THROW(OutlineFile(OneCorner(7, 99), OutlineKind::Stage), std::runtime_error);
  EXPECT_NO_THROW(OutlineFile(OneCorner(0, 99), OutlineKind::Bare));
  EXPECT_THROW(OutlineFile(OneCorner(0, 100), OutlineKind::Bare), std::runtime_error);
  EXPECT_NO_THROW(OutlineFile(OneCorner(1, 100), OutlineKind::Walker));
  EXPECT_THROW(OutlineFile(OneCorner(0, 50), OutlineKind::Walker), std::runtime_error);
}

TEST(CornerOfPoint, IsTheReverse) {
  for (const OutlineKind kind : {OutlineKind::Stage, OutlineKind::Walker, OutlineKind::Bare}) {
    const Corner stored = StoredPoint(OutlineFile(OneCorner(12, 34), kind));
    EXPECT_EQ(CornerOfPoint(stored.x, stored.y, 100, kind), (Corner{12, 34}));
  }
}
