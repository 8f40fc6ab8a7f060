// What windows share when they draw: the filled area, the area around a part, and the
// drawing that passes through memory.
#include "services/painting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "tests/support/desktop.h"

namespace {

constexpr int kSide = 8;

class PaintingTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    window_ = MainWindowCreate({"w", "w", 0, 0, 0, [](const Event&) { return true; }}, 0, 0, 100, 100);
    WindowShowFirst(window_, 1);
    screen_ = CanvasGet(window_);
    DrawingClear();
  }
  void TearDown() override {
    CanvasRelease(screen_);
    WindowDestroy(window_);
    DesktopTest::TearDown();
  }

  // How often each pixel of the window's corner is filled, a digit each, row by row.
  std::vector<std::string> Fillings() const {
    std::vector<std::string> rows(kSide, std::string(kSide, '0'));
    for (const DrawCall& call : Drawings(window_)) {
      EXPECT_EQ(call.kind, DrawCall::Kind::Rectangle);
      EXPECT_EQ(call.brush, FaceColour());
      EXPECT_FALSE(call.edged);
      for (int y = std::max(call.y, 0); y < std::min(call.y2 - 1, kSide); ++y) {
        for (int x = std::max(call.x, 0); x < std::min(call.x2 - 1, kSide); ++x) {
          ++rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
        }
      }
    }
    return rows;
  }

  WindowHandle window_ = nullptr;
  Canvas* screen_ = nullptr;
};

using Rows = std::vector<std::string>;

TEST_F(PaintingTest, AnAreaIsFilledToItsLastPixelAndNotBeyond) {
  FillArea(screen_, BrushFace(), {1, 2, 4, 5});
  EXPECT_EQ(Fillings(), (Rows{"00000000", "00000000", "01110000", "01110000", "01110000", "00000000",
                              "00000000", "00000000"}));
}

TEST_F(PaintingTest, AroundAPartEachPixelIsFilledOnce) {
  FillAround(screen_, BrushFace(), {0, 0, 7, 6}, {2, 1, 5, 4});
  EXPECT_EQ(Fillings(), (Rows{"11111110", "11000110", "11000110", "11000110", "11111110", "11111110",
                              "00000000", "00000000"}));
}

TEST_F(PaintingTest, APartThatReachesBeyondItsAreaLeavesNothingOutsideFilled) {
  FillAround(screen_, BrushFace(), {1, 1, 6, 6}, {3, 4, 20, 20});
  EXPECT_EQ(Fillings(), (Rows{"00000000", "01111100", "01111100", "01111100", "01100000", "01100000",
                              "00000000", "00000000"}));
}

TEST_F(PaintingTest, APartThatLiesOutsideLeavesTheAreaWhole) {
  FillAround(screen_, BrushFace(), {1, 1, 4, 4}, {6, 0, 7, 9});
  EXPECT_EQ(Fillings(), (Rows{"00000000", "01110000", "01110000", "01110000", "00000000", "00000000",
                              "00000000", "00000000"}));
}

TEST_F(PaintingTest, WithoutMemoryTheAreaIsDrawnOnTheScreenCutToItself) {
  FaultArm(FaultKind::Bitmap, 1);
  DrawSteady(screen_, {1, 2, 4, 5},
             [](Canvas* canvas, const Rect& area) { FillArea(canvas, BrushFace(), area); });
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].x, 1);
  EXPECT_TRUE(calls[0].clipped);
  EXPECT_EQ(calls[0].clip.right, 4);
  EXPECT_EQ(calls[0].clip.bottom, 5);
}

}  // namespace
