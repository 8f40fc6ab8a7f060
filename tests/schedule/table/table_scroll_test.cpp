// Scrolling of the window of the schedule.
#include "tests/schedule/table/table_fixture.h"

namespace {

class TableViewTest : public ::testing::Test {
 protected:
  static int After(int lines, int page, int first, Scroll scroll, int position = 0) {
    TableView view;
    view.lines = lines;
    view.pageLines = page;
    view.firstLine = first;
    const bool moved = TableScrollMove(view, scroll, position);
    EXPECT_EQ(moved, view.firstLine != first);
    return view.firstLine;
  }
};

TEST_F(TableViewTest, ALineUpEndsAtTheTop) {
  EXPECT_EQ(After(31, 20, 5, Scroll::LineUp), 4);
  EXPECT_EQ(After(31, 20, 0, Scroll::LineUp), 0);
}

TEST_F(TableViewTest, ALineDownNeedsOneMoreRowBelow) {
  EXPECT_EQ(After(31, 20, 10, Scroll::LineDown), 11);
  EXPECT_EQ(After(31, 20, 11, Scroll::LineDown), 11);
  EXPECT_EQ(After(20, 20, 0, Scroll::LineDown), 0);
  EXPECT_EQ(After(21, 20, 0, Scroll::LineDown), 1);
}

TEST_F(TableViewTest, APageUpIsTenRowsOrToTheTop) {
  EXPECT_EQ(After(100, 20, 25, Scroll::PageUp), 15);
  EXPECT_EQ(After(100, 20, 11, Scroll::PageUp), 1);
  EXPECT_EQ(After(100, 20, 10, Scroll::PageUp), 0);
  EXPECT_EQ(After(100, 20, 3, Scroll::PageUp), 0);
}

TEST_F(TableViewTest, APageDownIsTenRowsOrToTheLastPage) {
  EXPECT_EQ(After(100, 20, 0, Scroll::PageDown), 10);
  EXPECT_EQ(After(100, 20, 69, Scroll::PageDown), 79);  // eleven rows below
  EXPECT_EQ(After(100, 20, 70, Scroll::PageDown), 80);  // ten rows below
  EXPECT_EQ(After(100, 20, 78, Scroll::PageDown), 80);
  EXPECT_EQ(After(10, 20, 0, Scroll::PageDown), 0);
}

TEST_F(TableViewTest, TopAndBottomGoToTheEnds) {
  EXPECT_EQ(After(100, 20, 33, Scroll::Top), 0);
  EXPECT_EQ(After(100, 20, 33, Scroll::Bottom), 80);
  EXPECT_EQ(After(10, 20, 0, Scroll::Bottom), 0);
}

TEST_F(TableViewTest, AThumbAtTheBeginAndNearTheEnd) {
  EXPECT_EQ(After(100, 20, 33, Scroll::Thumb, 0), 0);
  EXPECT_EQ(After(100, 20, 33, Scroll::Thumb, 40), 40);
  EXPECT_EQ(After(100, 20, 33, Scroll::Thumb, 80), 80);
  EXPECT_EQ(After(100, 20, 33, Scroll::Thumb, 90), 80) << "pulled back to a full page";
  EXPECT_EQ(After(100, 2, 33, Scroll::Thumb, 98), 97) << "three rows before the end";
  EXPECT_EQ(After(100, 2, 33, Scroll::Thumb, 97), 97);
  EXPECT_EQ(After(100, 20, 33, Scroll::Thumb, -5), 0);
  EXPECT_EQ(After(2, 20, 0, Scroll::Thumb, 1), 0);
}

TEST_F(TableViewTest, TheEndOfAScrollMovesNothing) {
  EXPECT_EQ(After(100, 20, 33, Scroll::End), 33);
}

TEST_F(ScheduleTableTest, ThousandRowsAreScrolledByBarWheelAndKeys) {
  Lines(1000);
  const WindowHandle bar = View().scrollBar;
  EXPECT_TRUE(ScrollBarState(bar).enabled);
  EXPECT_EQ(ScrollBarState(bar).lines, 1000);
  EXPECT_EQ(ScrollBarState(bar).page, 19);
  ScrollBy(Window(), bar, Scroll::LineDown);
  EXPECT_EQ(View().firstLine, 1);
  EXPECT_EQ(ScrollBarState(bar).position, 1);
  Wheel(Window(), 300, 200, -1);
  EXPECT_EQ(View().firstLine, 4);
  Wheel(Window(), 300, 200, -2);
  EXPECT_EQ(View().firstLine, 10);
  Wheel(Window(), 300, 200, 5);
  EXPECT_EQ(View().firstLine, 0);
  ScrollBy(Window(), bar, Scroll::Bottom);
  EXPECT_EQ(View().firstLine, 980);
  ScrollBy(Window(), bar, Scroll::Thumb, 500);
  EXPECT_EQ(View().firstLine, 500);
  Repaint();
  EXPECT_TRUE(Stands("501", 12, 52));
  EXPECT_TRUE(WindowHasFocus(bar)) << "whose keys are the table's";
}

TEST_F(ScheduleTableTest, TheBarIsOffWhenAllRowsFit) {
  Lines(20);
  EXPECT_FALSE(ScrollBarState(View().scrollBar).enabled);
  Wheel(Window(), 300, 200, -3);
  EXPECT_EQ(View().firstLine, 0);
  Lines(21);
  EXPECT_TRUE(ScrollBarState(View().scrollBar).enabled);
}

TEST_F(ScheduleTableTest, AScrollThatMovesNothingDrawsNothing) {
  Lines(100);
  DrawingClear();
  ScrollBy(Window(), View().scrollBar, Scroll::Top);
  EXPECT_TRUE(Drawings(Window()).empty());
}

}  // namespace
