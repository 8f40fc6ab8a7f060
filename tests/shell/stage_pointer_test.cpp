// What the pointer on the stage does to the tables' scrolling.
#include "schedule/table_scroll.h"
#include "tests/shell/panel_fixture.h"

namespace {

class StagePointerTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    MenuPanelState = 2;
    TableScrollDirection = ScrollDirection::Down;
    AutoScrollDelay = 4;
  }
  void TearDown() override {
    MenuPanelState = 0;
    TableScrollStop();
    PanelTest::TearDown();
  }
};

TEST_F(StagePointerTest, WithTheFocusAndNoButtonAllScrollingStops) {
  WindowSetFocus(hMainWnd);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(AutoScrollDelay, 0);
}

TEST_F(StagePointerTest, WithTheFocusAndTheButtonHeldScrollingGoesOn) {
  WindowSetFocus(hMainWnd);
  PanelPointerOnStage(MoveOnStage(kLeftHeld));
  EXPECT_EQ(TableScrollDirection, ScrollDirection::Down);
  EXPECT_EQ(AutoScrollDelay, 4);
}

TEST_F(StagePointerTest, WithoutTheFocusOnlyTheDirectionIsCleared) {
  WindowSetFocus(nullptr);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(AutoScrollDelay, 4);
}

}  // namespace
