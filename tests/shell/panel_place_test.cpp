// The panel beside a stage that stands nowhere on the screen.
#include <climits>

#include "character/character.h"
#include "character/stage.h"
#include "clock_calendar/clock/clock.h"
#include "platform/window.h"
#include "services/program.h"
#include "shell/panel.h"
#include "shell/settings.h"
#include "tests/support/program.h"

namespace {

class PanelPlaceTest : public ProgramTest {};

// The screen is 1024 by 768, the panel 200 by 200.
TEST_F(PanelPlaceTest, APlaceOfTheSettingsFileThatIsFarAwayStillOpensThePanel) {
  for (const std::int32_t x : {INT_MIN, INT_MIN + 1, -5000, INT_MAX - 100, INT_MAX}) {
    for (const std::int32_t y : {INT_MIN, -5000, INT_MAX - 100, INT_MAX}) {
      Character.StageX = x;
      Character.StageY = y;
      Clock.ClockDesign = 255;
      ASSERT_EQ(SysFileWrite(), 0);
      StartProgram();
      ASSERT_EQ(Character.StageX, x);
      bool opened = false;
      Then([&] {
        opened = Panel.hDiskMenu != nullptr;
        EXPECT_EQ(RectWidth(Panel.MenuPanelRect), 200);
        EXPECT_EQ(RectHeight(Panel.MenuPanelRect), 200);
        EXPECT_EQ(Panel.MenuPanelRect.left < 0, x < 0);
        if (y > 0) {
          EXPECT_EQ(Panel.MenuPanelRect.top, 768 - 200);
        } else {
          EXPECT_LE(Panel.MenuPanelRect.top, -5000);
        }
        SendCommand(Panel.hDiskMenu, 2);
      });
      Mouse(Program.hMainWnd, EventKind::MouseMove, 10, 10);
      EXPECT_TRUE(opened) << x << " " << y;
      TearDown();
      SetUp();
    }
  }
}

}  // namespace
