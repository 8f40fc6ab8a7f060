// The running time in WatchAdustDlg.
#include "clock_calendar/clock/clock_window.h"
#include "platform/window.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/today.h"
#include "tests/support/program.h"

namespace {

class WatchAdustTimeTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Dialogs.hToolDlg = OpenListener();
    Drawing.FaceBrush = BrushFace();
  }
  void TearDown() override {
    WindowDestroy(Dialogs.hToolDlg);
    ProgramTest::TearDown();
  }
  static std::vector<DrawCall> DrawnAt(int hour, int minute, int second) {
    Today.SharedTime.hour = hour;
    Today.SharedTime.minute = minute;
    Today.SharedTime.second = second;
    DrawingClear();
    WatchAdustTimeDraw();
    return Drawings(Dialogs.hToolDlg);
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
  EXPECT_TRUE(TextStands(Dialogs.hToolDlg, " 9 :  5 .  7", 20, 86));
}

TEST_F(WatchAdustTimeTest, ItIsDrawnAgainOnlyWhenTheSecondHasChanged) {
  EXPECT_EQ(DrawnAt(23, 59, 58).size(), 2U);
  EXPECT_TRUE(DrawnAt(23, 59, 58).empty());
  EXPECT_EQ(DrawnAt(23, 59, 59).size(), 2U);
}

}  // namespace
