// The running time in WatchAdustDlg.
#include "clock_calendar/clock_calendar_tick.h"
#include "platform/window.h"
#include "shell/shared_time.h"
#include "shell/shell.h"
#include "tests/support/program.h"

namespace {

class WatchAdustTimeTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    hToolDlg = OpenListener();
    FaceBrush = BrushFace();
  }
  void TearDown() override {
    WindowDestroy(hToolDlg);
    ProgramTest::TearDown();
  }
  static std::vector<DrawCall> DrawnAt(int hour, int minute, int second) {
    SharedTime.hour = hour;
    SharedTime.minute = minute;
    SharedTime.second = second;
    DrawingClear();
    WatchAdustTimeDraw();
    return Drawings(hToolDlg);
  }
};

TEST_F(WatchAdustTimeTest, TheTimeStandsInABoxOf100By20) {
  const std::vector<DrawCall> drawn = DrawnAt(9, 5, 7);
  ASSERT_EQ(drawn.size(), 2U);
  EXPECT_EQ(drawn[0].kind, DrawCall::Kind::Rectangle);
  EXPECT_EQ(drawn[0].x, 20);
  EXPECT_EQ(drawn[0].y, 86);
  EXPECT_EQ(drawn[0].x2, 121);  // without a pen the last column and row are left out
  EXPECT_EQ(drawn[0].y2, 107);
  EXPECT_FALSE(drawn[0].edged);
  EXPECT_TRUE(TextStands(hToolDlg, " 9 :  5 .  7", 20, 86));
}

TEST_F(WatchAdustTimeTest, ItIsDrawnAgainOnlyWhenTheSecondHasChanged) {
  EXPECT_EQ(DrawnAt(23, 59, 58).size(), 2U);
  EXPECT_TRUE(DrawnAt(23, 59, 58).empty());
  EXPECT_EQ(DrawnAt(23, 59, 59).size(), 2U);
}

}  // namespace
