#include "services/scroll_set.h"

#include <gtest/gtest.h>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "resources/services_ids.h"
#include "tests/support/desktop.h"

namespace {

// A bar of 200 pixels: ten lines of 20.
class ScrollSetTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    window = DialogOpen(IDD_FileSelectForLoadDlg, nullptr, [](const Event&) { return true; });
    bar = ControlCreate(window, ControlKind::VerticalScrollBar, 705, {300, 10, 316, 210}, "");
  }
  void TearDown() override {
    WindowDestroy(window);
    DesktopTest::TearDown();
  }
  ScrollState Set(int lines, int first, int lineHeight = 20) {
    ScrollSet(window, 10, lineHeight, lines, first, bar);
    return ScrollBarState(bar);
  }
  WindowHandle window = nullptr;
  WindowHandle bar = nullptr;
};

TEST_F(ScrollSetTest, DisablesTheBarWhenAllLinesFitOnThePage) {
  EXPECT_TRUE(Set(11, 0).enabled);
  EXPECT_FALSE(Set(10, 0).enabled);
  EXPECT_TRUE(Set(11, 0).enabled);
  EXPECT_FALSE(Set(0, 0).enabled);
}

TEST_F(ScrollSetTest, DisablesTheBarWhenNotEvenOneLineFits) {
  EXPECT_TRUE(Set(500, 0, 200).enabled);
  EXPECT_FALSE(Set(500, 0, 201).enabled);
  EXPECT_TRUE(Set(500, 0, 20).enabled);
  EXPECT_FALSE(Set(500, 0, 0).enabled);
  EXPECT_FALSE(Set(500, 0, -20).enabled);
}

TEST_F(ScrollSetTest, SetsRangePageAndPosition) {
  const ScrollState state = Set(31, 5);
  EXPECT_TRUE(state.enabled);
  EXPECT_EQ(state.lines, 31);
  EXPECT_EQ(state.page, 9);
  EXPECT_EQ(state.position, 5);
}

TEST_F(ScrollSetTest, AFirstLineBeyondTheLastPageShowsTheLastPage) {
  EXPECT_EQ(Set(31, 21).position, 21);
  // The line asked for is 30; a bar holds its last page inside its range, 0 to 30
  // with a page of 9.
  EXPECT_EQ(Set(31, 22).position, 22);
  EXPECT_EQ(Set(31, 30).position, 22);
}

TEST_F(ScrollSetTest, ABarThatIsNotThereIsPassedOver) {
  Set(31, 5);
  ScrollSet(window, 10, 20, 40, 7, nullptr);
  const ScrollState state = ScrollBarState(bar);
  EXPECT_EQ(state.lines, 31);
  EXPECT_EQ(state.position, 5);
  EXPECT_TRUE(state.enabled);
}

}  // namespace
