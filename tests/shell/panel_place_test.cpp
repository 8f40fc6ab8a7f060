// The panel beside a stage that stands nowhere on the screen.
#include <climits>

#include "character/character.h"
#include "character/stage.h"
#include "clock_calendar/clock.h"
#include "platform/window.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "tests/support/program.h"

namespace {

class PanelPlaceTest : public ProgramTest {};

// The screen is 1024 by 768, the panel 200 by 200.
TEST_F(PanelPlaceTest, APlaceOfTheSettingsFileThatIsFarAwayStillOpensThePanel) {
  for (const std::int32_t x : {INT_MIN, INT_MIN + 1, -5000, INT_MAX - 100, INT_MAX}) {
    for (const std::int32_t y : {INT_MIN, -5000, INT_MAX - 100, INT_MAX}) {
      StageX = x;
      StageY = y;
      ClockDesign = 255;
      ASSERT_EQ(SysFileWrite(), 0);
      StartProgram();
      ASSERT_EQ(StageX, x);
      bool opened = false;
      Then([&] {
        opened = hDiskMenu != nullptr;
        EXPECT_EQ(RectWidth(MenuPanelRect), 200);
        EXPECT_EQ(RectHeight(MenuPanelRect), 200);
        EXPECT_EQ(MenuPanelRect.left < 0, x < 0);
        if (y > 0) {
          EXPECT_EQ(MenuPanelRect.top, 768 - 200);
        } else {
          EXPECT_LE(MenuPanelRect.top, -5000);
        }
        SendCommand(hDiskMenu, 2);
      });
      Mouse(hMainWnd, EventKind::MouseMove, 10, 10);
      EXPECT_TRUE(opened) << x << " " << y;
      TearDown();
      SetUp();
    }
  }
}

}  // namespace
