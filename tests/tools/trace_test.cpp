#include "newdata/trace.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>

namespace {

// A figure from rows of text, "#" inside.
PixelSet FigureOf(const std::vector<std::string>& rows) {
  PixelSet figure(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
  for (int y = 0; y < figure.height; ++y) {
    for (int x = 0; x < figure.width; ++x) figure.Set(x, y, rows[y][x] == '#');
  }
  return figure;
}

std::string ErrorOf(const PixelSet& figure) {
  try {
    TraceOutline(figure);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "";
}

void ExpectExact(const PixelSet& figure) {
  const Polygon polygon = TraceOutline(figure);
  EXPECT_EQ(PolygonPixels(polygon, figure.width, figure.height, Probe::Corner), figure);
  EXPECT_EQ(PolygonPixels(polygon, figure.width, figure.height, Probe::Middle), figure);
}

// Twice the area inside, by the sum over the edges.
int TwiceArea(const Polygon& polygon) {
  int area = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Corner& a = polygon[i];
    const Corner& b = polygon[(i + 1) % polygon.size()];
    area += a.x * b.y - b.x * a.y;
  }
  return area;
}

}  // namespace

TEST(PolygonPixels, SquareCoversItsPixelsAndNotTheRightAndLowerEdge) {
  const Polygon square{{1, 1}, {3, 1}, {3, 3}, {1, 3}};
  const PixelSet expected = FigureOf({".....", ".##..", ".##..", ".....", "....."});
  EXPECT_EQ(PolygonPixels(square, 5, 5, Probe::Corner), expected);
  EXPECT_EQ(PolygonPixels(square, 5, 5, Probe::Middle), expected);
}

TEST(PolygonPixels, SlantedEdgeIsProbedAtTheCornerOrAtTheMiddle) {
  // The edge from (4,0) to (0,4) passes through the points (4-y, y). Corner: the
  // pixel (x, y) is in when x < 4 - y. Middle: when x + 0.5 < 4 - (y + 0.5), a
  // point on this right edge being out.
  const Polygon triangle{{0, 0}, {4, 0}, {0, 4}};
  EXPECT_EQ(PolygonPixels(triangle, 4, 4, Probe::Corner), FigureOf({"####", "###.", "##..", "#..."}));
  EXPECT_EQ(PolygonPixels(triangle, 4, 4, Probe::Middle), FigureOf({"###.", "##..", "#...", "...."}));
}

TEST(PolygonPixels, ShallowEdgeIsRoundedExactly) {
  // From (0,0) to (5,2) as a left edge: at y = 1 it stands at x = 2.5, so the
  // corner probe begins at 3; the middle probes at y = 0.5 and 1.5 meet it at 1.25
  // and 3.75, so the pixels begin at 1 (middle 1.5) and 4 (middle 4.5).
  const Polygon triangle{{0, 0}, {5, 0}, {5, 2}};
  EXPECT_EQ(PolygonPixels(triangle, 5, 2, Probe::Corner), FigureOf({"#####", "...##"}));
  EXPECT_EQ(PolygonPixels(triangle, 5, 2, Probe::Middle), FigureOf({".####", "....#"}));
}

TEST(PolygonPixels, OverlapIsInsideByWindingCount) {
  // Round the square twice: the count is 2 inside, which is not 0.
  const Polygon twice{{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}, {2, 0}, {2, 2}, {0, 2}};
  EXPECT_EQ(PolygonPixels(twice, 3, 3, Probe::Corner), FigureOf({"##.", "##.", "..."}));
}

TEST(PolygonPixels, PartsBeyondThePictureAreCutOff) {
  const Polygon square{{-5, -5}, {2, -5}, {2, 20}, {-5, 20}};
  EXPECT_EQ(PolygonPixels(square, 4, 2, Probe::Corner), FigureOf({"##..", "##.."}));
}

TEST(PolygonPixels, NoCornersCoverNothing) {
  EXPECT_EQ(PolygonPixels({}, 2, 2, Probe::Corner), PixelSet(2, 2));
  EXPECT_TRUE(PolygonWindsNothing({}, Probe::Corner));
}

TEST(TraceCracks, OnePixelGivesItsFourCornersClockwise) {
  const Polygon expected{{1, 1}, {2, 1}, {2, 2}, {1, 2}};
  EXPECT_EQ(TraceCracks(FigureOf({"...", ".#.", "..."})), expected);
}

TEST(TraceCracks, CornerShapeGivesSixCorners) {
  const Polygon expected{{0, 0}, {1, 0}, {1, 2}, {3, 2}, {3, 3}, {0, 3}};
  EXPECT_EQ(TraceCracks(FigureOf({"#..", "#..", "###"})), expected);
}

TEST(TraceCracks, PixelsThatTouchAtACornerAreOneLoop) {
  for (const auto& rows : {std::vector<std::string>{"#.", ".#"}, std::vector<std::string>{".#", "#."}}) {
    const PixelSet figure = FigureOf(rows);
    const Polygon polygon = TraceCracks(figure);
    EXPECT_EQ(polygon.size(), 8U);
    EXPECT_EQ(TwiceArea(polygon), 4);  // two pixels
    EXPECT_EQ(PolygonPixels(polygon, 2, 2, Probe::Corner), figure);
  }
}

TEST(TraceOutline, SquareHasFourCorners) {
  const PixelSet figure = FigureOf({"......", ".####.", ".####.", ".####.", "......"});
  const Polygon expected{{1, 1}, {5, 1}, {5, 4}, {1, 4}};
  EXPECT_EQ(TraceOutline(figure), expected);
  ExpectExact(figure);
}

TEST(TraceOutline, FigureAtTheEdgesOfThePictureIsExact) {
  ExpectExact(FigureOf({"####", "####"}));
  ExpectExact(FigureOf({"#"}));
}

TEST(TraceOutline, DiamondIsExact) {
  ExpectExact(FigureOf({"....#....", "...###...", "..#####..", ".#######.", "#########", ".#######.",
                        "..#####..", "...###...", "....#...."}));
}

TEST(TraceOutline, CornerShapeIsExact) {
  const PixelSet figure = FigureOf({"##...", "##...", "##...", "#####", "#####"});
  EXPECT_EQ(TraceOutline(figure).size(), 6U);
  ExpectExact(figure);
}

TEST(TraceOutline, EvenStaircaseLosesItsSteps) {
  // A staircase that goes down by one pixel a column: its edge runs along the
  // diagonal, on which both probes of a pixel lie.
  PixelSet figure(40, 40);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x <= y; ++x) figure.Set(x, y, true);
  }
  EXPECT_EQ(TraceCracks(figure).size(), 82U);
  EXPECT_LE(TraceOutline(figure).size(), 5U);
  ExpectExact(figure);
}

TEST(TraceOutline, RandomFiguresAreExact) {
  std::mt19937 random(7);
  int traced = 0;
  for (int round = 0; round < 200; ++round) {
    // Columns of random height from the bottom never have a hole.
    PixelSet figure(24, 24);
    int height = 12;
    for (int x = 2; x < 22; ++x) {
      height = std::clamp(height + static_cast<int>(random() % 7) - 3, 1, 22);
      for (int y = 24 - height; y < 24; ++y) figure.Set(x, y, true);
    }
    ExpectExact(figure);
    ++traced;
  }
  EXPECT_EQ(traced, 200);
}

TEST(TraceOutline, EmptyFigureIsAnError) {
  EXPECT_EQ(ErrorOf(PixelSet(4, 4)), "the figure has no pixel");
}

TEST(TraceOutline, TwoPiecesAreAnErrorThatTellsTheirPlaces) {
  EXPECT_EQ(ErrorOf(FigureOf({"##..", "....", "...#"})),
            "the figure is in pieces: 2 pixels from 0,0, 1 pixels from 3,2");
}

TEST(TraceOutline, PixelsThatTouchAtACornerAreOnePiece) {
  ExpectExact(FigureOf({"....", ".#..", "..#.", "...."}));
}

TEST(TraceOutline, HoleIsAnErrorThatTellsItsPlace) {
  EXPECT_EQ(ErrorOf(FigureOf({"#####", "#...#", "#####"})), "the figure has a hole of 3 pixels at 1,1");
}

TEST(TraceOutline, HoleThatOpensAtACornerOnlyIsAHole) {
  EXPECT_EQ(ErrorOf(FigureOf({"##.", "#.#", "###"})), "the figure has a hole of 1 pixels at 1,1");
}

TEST(TraceOutline, MoreThan1024CornersAreAnError) {
  // A comb: every tooth has four corners that cannot be spared.
  const int teeth = 300;
  PixelSet figure(teeth * 6, 8);
  for (int x = 0; x < figure.width; ++x) {
    for (int y = (x % 6 < 3) ? 0 : 6; y < 8; ++y) figure.Set(x, y, true);
  }
  // 300 teeth with 4 corners each, 2 corners at the bottom; the last tooth's foot
  // goes on to the right, which takes no corner more.
  EXPECT_EQ(ErrorOf(figure), "the outline has 1202 corners, at most 1024 are possible");
}

TEST(TraceOutline, Exactly1024CornersArePossible) {
  // 255 teeth with 4 corners each, the right half of the last one's foot cut
  // away: 4 * 255 + 2 at the bottom; a step in the first tooth makes it 1024.
  PixelSet figure(255 * 6, 12);
  for (int x = 0; x < figure.width; ++x) {
    for (int y = (x % 6 < 3) ? 0 : 8; y < 12; ++y) figure.Set(x, y, true);
  }
  for (int y = 0; y < 4; ++y) figure.Set(0, y, false);
  EXPECT_EQ(TraceOutline(figure).size(), 1024U);
}
