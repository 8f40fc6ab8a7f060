// What the pointer on the stage does to the tables' scrolling.
#include "schedule/table/table_scroll.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/shell/panel_fixture.h"

namespace {

class StagePointerTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    Panel.MenuPanelState = 2;
    SclTable.TableScrollDirection = ScrollDirection::Down;
    SclTable.AutoScrollDelay = 4;
  }
  void TearDown() override {
    Panel.MenuPanelState = 0;
    TableScrollStop();
    PanelTest::TearDown();
  }
};

TEST_F(StagePointerTest, WithTheFocusAndNoButtonAllScrollingStops) {
  WindowSetFocus(Program.hMainWnd);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(SclTable.AutoScrollDelay, 0);
}

TEST_F(StagePointerTest, WithTheFocusAndTheButtonHeldScrollingGoesOn) {
  WindowSetFocus(Program.hMainWnd);
  PanelPointerOnStage(MoveOnStage(kLeftHeld));
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::Down);
  EXPECT_EQ(SclTable.AutoScrollDelay, 4);
}

TEST_F(StagePointerTest, WithoutTheFocusOnlyTheDirectionIsCleared) {
  WindowSetFocus(nullptr);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(SclTable.TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(SclTable.AutoScrollDelay, 4);
}

}  // namespace
