// Drawing: what is recorded, and what misuse is told.
#include "platform/canvas.h"

#include <memory>

#include "platform/posix/faults.h"
#include "platform/window.h"
#include "tests/platform/machinery.h"
#include "tests/support/test_dialogs.h"

namespace {

using Kind = DrawCall::Kind;

class CanvasTest : public MachineryTest {
 protected:
  void SetUp() override {
    MachineryTest::SetUp();
    window_ = DialogOpen(IDD_TestPanel, nullptr, Listen);
    canvas_ = CanvasGet(window_);
  }
  void TearDown() override {
    CanvasRelease(canvas_);
    WindowDestroy(window_);
    MachineryTest::TearDown();
  }

  // A white bitmap in memory; the filling is the first of its calls.
  Canvas* WhiteMemory(int width, int height) {
    Canvas* memory = CanvasMemory(canvas_, width, height);
    CanvasRectangle(memory, 0, 0, width, height);
    return memory;
  }

  WindowHandle window_ = nullptr;
  Canvas* canvas_ = nullptr;
};

TEST_F(CanvasTest, FreshCanvasIsBlackOnWhite) {
  CanvasRectangle(canvas_, 1, 2, 3, 4);
  CanvasText(canvas_, 5, 6, "文字");
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(calls[0].kind, Kind::Rectangle);
  EXPECT_EQ(calls[0].window, window_);
  EXPECT_EQ(calls[0].x, 1);
  EXPECT_EQ(calls[0].y, 2);
  EXPECT_EQ(calls[0].x2, 3);
  EXPECT_EQ(calls[0].y2, 4);
  EXPECT_EQ(calls[0].brush, 0xFFFFFFU);
  EXPECT_TRUE(calls[0].filled);
  EXPECT_EQ(calls[0].pen, 0U);
  EXPECT_TRUE(calls[0].edged);
  EXPECT_EQ(calls[0].penWidth, 1);
  EXPECT_FALSE(calls[0].clipped);
  EXPECT_EQ(calls[1].kind, Kind::Text);
  EXPECT_EQ(calls[1].text, "文字");
  EXPECT_EQ(calls[1].textColour, 0U);
  EXPECT_EQ(calls[1].backColour, 0xFFFFFFU);
  EXPECT_FALSE(calls[1].transparent);
  EXPECT_EQ(calls[1].x2, 5 + 4 * 8);
  EXPECT_EQ(calls[1].y2, 6 + 16);
}

TEST_F(CanvasTest, EverythingInForceIsRecorded) {
  const BrushHandle brush = BrushCreate(0x010203);
  const PenHandle pen = PenCreate(PenStyle::Dot, 3, 0x040506);
  CanvasBrush(canvas_, brush);
  CanvasPen(canvas_, pen);
  CanvasTextColour(canvas_, 0x070809);
  CanvasBackColour(canvas_, 0x0A0B0C);
  CanvasBackTransparent(canvas_, true);
  CanvasClip(canvas_, {1, 1, 9, 9});
  CanvasEllipse(canvas_, 0, 0, 10, 20);
  CanvasClipNone(canvas_);
  CanvasPie(canvas_, 0, 0, 10, 20, 1, 2, 3, 4);
  const Point points[] = {{5, 6}, {1, 9}, {7, 2}};
  CanvasPolygon(canvas_, points, 3);
  CanvasLine(canvas_, 9, 8, 7, 6);
  CanvasBrush(canvas_, BrushNothing());
  CanvasPen(canvas_, PenNothing());
  CanvasRectangle(canvas_, 0, 0, 1, 1);
  CanvasBrush(canvas_, BrushFace());
  CanvasRectangle(canvas_, 0, 0, 1, 1);
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 6U);
  EXPECT_EQ(calls[0].kind, Kind::Ellipse);
  EXPECT_EQ(calls[0].brush, 0x010203U);
  EXPECT_EQ(calls[0].pen, 0x040506U);
  EXPECT_EQ(calls[0].penWidth, 3);
  EXPECT_TRUE(calls[0].dotted);
  EXPECT_EQ(calls[0].textColour, 0x070809U);
  EXPECT_EQ(calls[0].backColour, 0x0A0B0CU);
  EXPECT_TRUE(calls[0].transparent);
  EXPECT_TRUE(calls[0].clipped);
  EXPECT_EQ(calls[0].clip.right, 9);
  EXPECT_EQ(calls[1].kind, Kind::Pie);
  EXPECT_FALSE(calls[1].clipped);
  EXPECT_EQ(calls[1].ax, 1);
  EXPECT_EQ(calls[1].by, 4);
  EXPECT_EQ(calls[2].kind, Kind::Polygon);
  ASSERT_EQ(calls[2].points.size(), 3U);
  EXPECT_EQ(calls[2].points[1].y, 9);
  EXPECT_EQ(calls[3].kind, Kind::Line);
  EXPECT_EQ(calls[3].x, 9);
  EXPECT_EQ(calls[3].y2, 6);
  EXPECT_FALSE(calls[4].filled);
  EXPECT_FALSE(calls[4].edged);
  EXPECT_TRUE(calls[5].filled);
  EXPECT_EQ(calls[5].brush, FaceColour());
  CanvasRelease(canvas_);
  canvas_ = nullptr;
  BrushDelete(brush);
  PenDelete(pen);
}

TEST_F(CanvasTest, TextMetricsAreEightBySixteen) {
  const TextMetrics metrics = CanvasTextMetrics(canvas_);
  EXPECT_EQ(metrics.averageWidth, 8);
  EXPECT_EQ(metrics.height, 16);
  EXPECT_EQ(metrics.externalLeading, 0);
  EXPECT_EQ(CanvasTextWidth(canvas_, "ab字"), 32);
  EXPECT_EQ(CanvasTextWidth(canvas_, "abcdef", 2), 16);
}

TEST_F(CanvasTest, FontGivesTextItsSize) {
  const FontHandle font = FontCreate(10, 30, 400, false, "MS Gothic");
  CanvasFont(canvas_, font);
  EXPECT_EQ(CanvasTextWidth(canvas_, "abc"), 30);
  EXPECT_EQ(CanvasTextMetrics(canvas_).height, 30);
  CanvasText(canvas_, 0, 0, "abc", 2);
  EXPECT_EQ(DrawnTexts(window_)[0].text, "ab");
  EXPECT_EQ(DrawnTexts(window_)[0].fontWidth, 10);
  EXPECT_EQ(DrawnTexts(window_)[0].x2, 20);
  CanvasFont(canvas_, nullptr);
  EXPECT_EQ(CanvasTextWidth(canvas_, "abc"), 24);
  FontDelete(font);
}

TEST_F(CanvasTest, MemoryReachesTheWindowWhenItIsCopied) {
  Canvas* memory = WhiteMemory(100, 50);
  CanvasText(memory, 10, 20, "in");
  CanvasText(memory, 90, 45, "across");
  CanvasText(memory, 10, 60, "below");
  CanvasRectangle(memory, 60, 20, 70, 30);
  EXPECT_TRUE(Drawings(window_).empty());
  CanvasCopy(canvas_, 200, 300, 100, 50, memory, 0, 0);
  CanvasRelease(memory);
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 5U);
  EXPECT_EQ(calls[0].kind, Kind::Copy);
  EXPECT_EQ(calls[0].x2, 300);
  EXPECT_EQ(calls[2].text, "in");
  EXPECT_EQ(calls[2].x, 210);
  EXPECT_EQ(calls[2].y, 320);
  EXPECT_FALSE(calls[2].clipped);
  EXPECT_EQ(calls[3].text, "across");
  EXPECT_TRUE(calls[3].clipped);
  EXPECT_EQ(calls[3].clip.right, 300);
  EXPECT_EQ(calls[4].kind, Kind::Rectangle);
  EXPECT_EQ(calls[4].x2, 270);
  EXPECT_EQ(calls[4].window, window_);
}

TEST_F(CanvasTest, PartOfAMemoryBitmapIsMovedByItsOwnCorner) {
  Canvas* memory = WhiteMemory(100, 100);
  CanvasText(memory, 50, 40, "x");
  CanvasText(memory, 0, 0, "y");
  CanvasCopy(canvas_, 5, 6, 20, 20, memory, 48, 40);
  CanvasRelease(memory);
  EXPECT_TRUE(TextStands(window_, "x", 7, 6));
  EXPECT_EQ(DrawnTexts(window_).size(), 1U);
}

TEST_F(CanvasTest, MemoryMayPassThroughMemory) {
  Canvas* first = WhiteMemory(100, 100);
  Canvas* second = CanvasMemory(first, 100, 100);
  CanvasRectangle(second, 0, 0, 100, 100);
  CanvasText(first, 1, 2, "x");
  CanvasCopy(second, 10, 10, 50, 50, first, 0, 0);
  CanvasCopy(canvas_, 100, 100, 100, 100, second, 0, 0);
  CanvasRelease(first);
  CanvasRelease(second);
  EXPECT_TRUE(TextStands(window_, "x", 111, 112));
}

TEST_F(CanvasTest, StretchScalesPlaces) {
  Canvas* memory = WhiteMemory(100, 100);
  CanvasRectangle(memory, 10, 20, 30, 40);
  CanvasStretch(canvas_, 0, 0, 200, 50, memory, 0, 0, 100, 100);
  CanvasRelease(memory);
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 3U);
  EXPECT_EQ(calls[0].kind, Kind::Stretch);
  EXPECT_EQ(calls[2].x, 20);
  EXPECT_EQ(calls[2].y, 10);
  EXPECT_EQ(calls[2].x2, 60);
  EXPECT_EQ(calls[2].y2, 20);
}

TEST_F(CanvasTest, CopyingWhatWasNeverDrawnIsAFailure) {
  Canvas* memory = CanvasMemory(canvas_, 100, 100);
  CanvasPen(memory, PenNothing());
  CanvasRectangle(memory, 0, 0, 101, 51);
  CanvasRectangle(memory, 0, 50, 41, 101);
  CanvasCopy(canvas_, 0, 0, 100, 50, memory, 0, 0);
  CanvasCopy(canvas_, 0, 0, 40, 100, memory, 0, 0);
  CanvasText(memory, 50, 60, "x");
  CanvasBrush(memory, BrushNothing());
  CanvasRectangle(memory, 0, 0, 101, 101);
  CanvasCopy(canvas_, 0, 0, 41, 100, memory, 0, 0);
  EXPECT_EQ(TheFailure(), "what is copied from memory was not drawn at 40, 50 to 100, 100");
  CanvasBrush(memory, BrushFace());
  CanvasClip(memory, {40, 0, 100, 99});
  CanvasRectangle(memory, 0, 0, 101, 101);
  CanvasStretch(canvas_, 0, 0, 10, 10, memory, 0, 0, 100, 100);
  EXPECT_EQ(TheFailure(), "what is copied from memory was not drawn at 40, 99 to 100, 100");
  CanvasRelease(memory);
}

TEST_F(CanvasTest, WindowMayBeCopiedOntoItself) {
  CanvasText(canvas_, 0, 0, "x");
  CanvasCopy(canvas_, 0, 40, 50, 20, canvas_, 0, 0);
  EXPECT_TRUE(TextStands(window_, "x", 0, 0));
  EXPECT_TRUE(TextStands(window_, "x", 0, 40));
}

TEST_F(CanvasTest, TextStandsUntilItIsCovered) {
  CanvasText(canvas_, 10, 10, "ab");  // to (26, 26)
  EXPECT_TRUE(TextStands(window_, "ab", 10, 10));
  EXPECT_FALSE(TextStands(window_, "ab", 10, 11));
  EXPECT_FALSE(TextStands(window_, "a", 10, 10));
  CanvasBrush(canvas_, BrushNothing());
  CanvasRectangle(canvas_, 0, 0, 100, 100);  // a frame covers nothing
  EXPECT_TRUE(TextStands(window_, "ab", 10, 10));
  CanvasBrush(canvas_, BrushFace());
  CanvasRectangle(canvas_, 0, 0, 25, 100);
  EXPECT_TRUE(TextStands(window_, "ab", 10, 10));
  CanvasClip(canvas_, {0, 0, 20, 20});
  CanvasRectangle(canvas_, 0, 0, 100, 100);
  EXPECT_TRUE(TextStands(window_, "ab", 10, 10));
  CanvasClipNone(canvas_);
  CanvasRectangle(canvas_, 0, 0, 26, 26);
  EXPECT_FALSE(TextStands(window_, "ab", 10, 10));
  CanvasText(canvas_, 10, 10, "ab");
  EXPECT_TRUE(TextStands(window_, "ab", 10, 10));
  DrawingClear();
  EXPECT_FALSE(TextStands(window_, "ab", 10, 10));
}

TEST_F(CanvasTest, TextOutsideTheCutDoesNotStand) {
  CanvasClip(canvas_, {0, 0, 10, 10});
  CanvasText(canvas_, 50, 50, "ab");
  EXPECT_EQ(DrawnTexts(window_).size(), 1U);
  EXPECT_FALSE(TextStands(window_, "ab", 50, 50));
}

// A bitmap of 2 x 2 pixels of 24 bits: rows of 8 bytes.
struct SmallDib {
  std::unique_ptr<unsigned char[]> header{new unsigned char[40]()};
  std::unique_ptr<unsigned char[]> bits{new unsigned char[16]()};
  SmallDib() {
    header[0] = 40;
    header[4] = 2;
    header[8] = 2;
    header[12] = 1;
    header[14] = 24;
    bits[0] = 100;
  }
};

TEST_F(CanvasTest, BitmapIsRecordedWithWhatWasDrawn) {
  const SmallDib dib;
  CanvasDib(canvas_, 3, 4, 2, 2, dib.header.get(), dib.bits.get());
  CanvasDibOp(canvas_, 3, 4, 20, 10, dib.header.get(), dib.bits.get(), RasterOp::And);
  const std::vector<DrawCall> calls = Drawings(window_);
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(calls[0].kind, Kind::Dib);
  EXPECT_EQ(calls[0].dib, dib.header.get());
  EXPECT_EQ(calls[0].x2, 5);
  EXPECT_EQ(calls[0].op, RasterOp::Copy);
  EXPECT_EQ(calls[0].dibSum, 40U + 2 + 2 + 1 + 24 + 100);
  EXPECT_EQ(calls[1].op, RasterOp::And);
  EXPECT_EQ(calls[1].y2, 14);
}

TEST_F(CanvasTest, BitmapWithAnAbsurdHeaderIsAFailure) {
  const SmallDib dib;
  dib.header[7] = 0x7F;  // 2,130,706,434 wide
  CanvasDib(canvas_, 0, 0, 2, 2, dib.header.get(), dib.bits.get());
  EXPECT_EQ(TheFailure(), "a bitmap of absurd size is drawn");
  dib.header[0] = 39;
  CanvasDib(canvas_, 0, 0, 2, 2, dib.header.get(), dib.bits.get());
  EXPECT_EQ(TheFailure(), "a bitmap with a header of 39 bytes");
}

TEST_F(CanvasTest, ObjectsAreCounted) {
  const BrushHandle brush = BrushCreate(0);
  const PenHandle pen = PenCreate(PenStyle::Solid, 1, 0);
  const FontHandle font = FontCreate(0, 20, 400, false, "");
  Canvas* memory = CanvasMemory(canvas_, 1, 1);
  const LiveObjects live = DiagnosticsLive();
  EXPECT_EQ(live.brushes, 1);
  EXPECT_EQ(live.pens, 1);
  EXPECT_EQ(live.fonts, 1);
  EXPECT_EQ(live.bitmaps, 1);
  EXPECT_EQ(live.canvases, 2);
  BrushDelete(brush);
  PenDelete(pen);
  FontDelete(font);
  CanvasRelease(memory);
  EXPECT_EQ(DiagnosticsLive().canvases, 1);
  EXPECT_EQ(DiagnosticsLive().bitmaps, 0);
}

TEST_F(CanvasTest, UseOfADeletedObjectIsAFailureAndNoCrash) {
  const BrushHandle brush = BrushCreate(0);
  BrushDelete(brush);
  CanvasBrush(canvas_, brush);
  EXPECT_EQ(TheFailure(), "CanvasBrush: the brush is deleted");
  BrushDelete(brush);
  EXPECT_EQ(TheFailure(), "BrushDelete: the brush is deleted");
  const PenHandle pen = PenCreate(PenStyle::Solid, 1, 0);
  PenDelete(pen);
  CanvasPen(canvas_, pen);
  EXPECT_EQ(TheFailure(), "CanvasPen: the pen is deleted");
  const FontHandle font = FontCreate(1, 1, 1, false, "");
  FontDelete(font);
  CanvasFont(canvas_, font);
  EXPECT_EQ(TheFailure(), "CanvasFont: the font is deleted");
  BrushDelete(nullptr);
  PenDelete(nullptr);
  FontDelete(nullptr);
}

TEST_F(CanvasTest, DeletingWhatACanvasHoldsIsAFailure) {
  const BrushHandle brush = BrushCreate(0);
  CanvasBrush(canvas_, brush);
  BrushDelete(brush);
  EXPECT_EQ(TheFailure(), "BrushDelete: a canvas still holds the brush");
  CanvasRectangle(canvas_, 0, 0, 1, 1);
  EXPECT_EQ(TheFailure(), "drawing: the brush is deleted");
}

TEST_F(CanvasTest, DeletingABorrowedObjectIsAFailure) {
  BrushDelete(BrushFace());
  EXPECT_EQ(TheFailure(), "BrushDelete: the brush is the system's");
  PenDelete(PenNothing());
  EXPECT_EQ(TheFailure(), "PenDelete: the pen is the system's");
}

TEST_F(CanvasTest, ReleasedCanvasIsAFailureAndNoCrash) {
  Canvas* memory = CanvasMemory(canvas_, 1, 1);
  CanvasRelease(memory);
  CanvasText(memory, 0, 0, "a");
  EXPECT_EQ(TheFailure(), "CanvasText: the canvas is released");
  CanvasRelease(memory);
  EXPECT_EQ(TheFailure(), "CanvasRelease: the canvas is released already");
  CanvasRelease(nullptr);
}

TEST_F(CanvasTest, DrawingOnACanvasThatCouldNotBeHadIsAFailure) {
  FaultArm(FaultKind::Bitmap, 1);
  Canvas* memory = CanvasMemory(canvas_, 1, 1);
  EXPECT_EQ(memory, nullptr);
  CanvasRectangle(memory, 0, 0, 1, 1);
  EXPECT_EQ(TheFailure(), "CanvasRectangle: the canvas is null");
  EXPECT_EQ(CanvasMemory(nullptr, 1, 1), nullptr);
}

TEST_F(CanvasTest, CanvasOfAWindowThatIsNoMoreIsAFailure) {
  const WindowHandle other = DialogOpen(IDD_TestPanel, nullptr, Listen);
  Canvas* canvas = CanvasGet(other);
  WindowDestroy(other);
  CanvasText(canvas, 0, 0, "a");
  EXPECT_EQ(TheFailure(), "CanvasText: the canvas's window is no more");
  CanvasRelease(canvas);
  EXPECT_EQ(CanvasGet(other), nullptr);
  EXPECT_EQ(TheFailure(), "CanvasGet: the window is no more");
}

}  // namespace
