// What the rows of the tool menu panel do: entries and sub-levels.
#include "services/panel_entry.h"

#include "character/character.h"
#include "character/motion.h"
#include "platform/dialog.h"
#include "resources/schedule_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"
#include "shell/panel.h"
#include "tests/shell/panel_fixture.h"

namespace {

// --- Entries

TEST_F(PanelTest, ALevelOneClickResetsTheBoredTimerAndMarksTheRow) {
  onCommand = nullptr;
  Character.BoredDelaySel = 4;  // 1 hour 30 minutes
  Motion.BoredHour = Motion.BoredMin = 77;
  Open({[] {
          Click(5);
          EXPECT_EQ(Motion.BoredHour, 1);
          EXPECT_EQ(Motion.BoredMin, 30);
          EXPECT_EQ(Panel.MenuHiLine, 5);
        },
        Escape});
}

TEST_F(PanelTest, ALevelOneClickAtOrBeyondRowEightResetsTheBoredTimerAndThenDoesNothing) {
  for (const int y : {170, 189, 190, 199}) {
    Motion.BoredHour = Motion.BoredMin = 77;
    Panel.MenuHiLine = 2;
    Open({[y] {
      Mouse(TopDialog(), EventKind::LeftDown, 50, y, kLeftHeld);
      EXPECT_EQ(Motion.BoredHour, 0) << y;
      EXPECT_EQ(Motion.BoredMin, 5) << y;
      EXPECT_EQ(Panel.MenuHiLine, y < 190 ? 8 : 2) << "row 9 is not marked";
      EXPECT_TRUE(sentCommands.empty());
      EXPECT_EQ(Panel.MenuPanelState, 1);
      EXPECT_EQ(Panel.hDiskMenu, TopDialog());
      Escape();
    }});
  }
}

TEST_F(PanelTest, ASubLevelClickLeavesTheBoredTimerAndTheMarkAlone) {
  onCommand = nullptr;
  Motion.BoredHour = 77;
  OpenLevel(1904, {[] {
                     Click(2);
                     EXPECT_EQ(Motion.BoredHour, 77);
                     EXPECT_EQ(Panel.MenuHiLine, 0);
                   },
                   Escape});
}

TEST_F(PanelTest, TheThirdRowOfTheApplicationsLevelClosesThePanel) {
  OpenLevel(1906, {[] {
              Click(2);
              EXPECT_EQ(Panel.hDiskMenu, nullptr);
              EXPECT_EQ(Panel.MenuPanelState, 0);
            }});
  EXPECT_TRUE(sentCommands.empty());
}

TEST_F(PanelTest, ARowWhoseCommandOnlyClearsTheStateClosesThePanel) {
  onCommand = [](std::uint32_t) { PanelStateClear(); };
  Open({[] {
    Click(3);
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
  }});
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{2377, 1}}));
  sentCommands.clear();
  OpenLevel(1906, {[] {
              Click(0);
              EXPECT_EQ(Panel.hDiskMenu, nullptr);
            }});
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{2365, 702}}));
}

// --- Sub-levels

TEST_F(PanelTest, ASubLevelTakesThePlaceOfTheTopLevel) {
  static WindowHandle top;
  Open({[] {
          top = TopDialog();
          Click(4);
        },
        [] {
          EXPECT_NE(TopDialog(), top);
          EXPECT_EQ(Panel.hDiskMenu, TopDialog());
          EXPECT_FALSE(IsVisible(top));
          EXPECT_EQ(Panel.MenuPanelState, 6);
          EXPECT_EQ(Panel.FuncNo, 8);
          Click(3);
        }});
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(TopDialog(), nullptr);
}

TEST_F(PanelTest, ASubLevelBeginsWithTheMarkOfTheLevelBefore) {
  Open({[] { Click(6); },
        [] {
          const std::vector<DrawCall> drawn = Drawings(TopDialog());
          ASSERT_GE(drawn.size(), 2U);
          EXPECT_EQ(drawn[1].y, 10 + 20 * 6);
          Escape();
        }});
}

TEST_F(PanelTest, ALevelWithTheStateAsItStandsDrawsTheLevelOfTheMoment) {
  Open({[] { CommandSend(Command::PanelDesktop); },
        [] {
          EXPECT_EQ(Panel.FuncNo, 10);
          EXPECT_EQ(Panel.MenuPanelState, 1);
          EXPECT_EQ(DrawnTexts(TopDialog()).size(), 8U);
          Escape();
        }});
}

TEST_F(PanelTest, ALevelWithNoStateHasNoRowsAndTheKeyboardClosesIt) {
  OpenLevel(1905, {[] {
              EXPECT_EQ(Panel.FuncNo, 10);
              EXPECT_EQ(Panel.MenuPanelState, 0);
              EXPECT_TRUE(DrawnTexts(TopDialog()).empty());
              Click(0);
              MoveTo(1);
              EXPECT_TRUE(sentCommands.empty());
              EXPECT_EQ(Panel.MenuHiLine, 0);
              Escape();
            }});
}

TEST_F(PanelTest, ASubLevelThatIsClosedFromOutsideLetsThePointerOpenThePanelAgain) {
  OpenLevel(1907, {[] { SendClose(TopDialog()); }});
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Panel.FuncNo, 0);
  Open({[] {
    EXPECT_EQ(Panel.MenuPanelState, 1);
    Escape();
  }});
}

// A feature's dialog opens from a command that the panel sent from within its own
// mouse handler: panel and stage are still on the stack.
bool FeatureProc(const Event&) {
  return false;
}

int RunFeature() {
  return ToolDialogRun(ToolDialog::FolderScopeSetDlg, IDD_FlyingBat4, Program.hMainWnd, FeatureProc);
}

TEST_F(PanelTest, AFeaturesDialogRunsInsideThePanelsHandlerAndThePanelIsGone) {
  onCommand = [](std::uint32_t number) {
    PanelCommandsOnly(number);
    if (number == 1914) FeatureDialogRun(Feature::FolderScope, RunFeature);
  };
  static WindowHandle level;
  Open({[] { Click(2); },
        [] {
          level = TopDialog();
          Click(0);
        },
        [] {
          EXPECT_EQ(TemplateOf(TopDialog()), IDD_FlyingBat4);
          EXPECT_EQ(Panel.hDiskMenu, nullptr);
          EXPECT_FALSE(IsVisible(level));
          EXPECT_EQ(Panel.MenuPanelState, 400);
          EXPECT_EQ(Panel.FuncNo, 6);
          SendCommand(TopDialog(), 2);
        }});
  EXPECT_EQ(Panel.MenuPanelState, 0);
  EXPECT_EQ(Panel.FuncNo, 0);
  EXPECT_EQ(TopDialog(), nullptr);
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{1902, 4}, {1914, 400}}));
}

// From outside while the panel stands open: it closes under the dialog.
TEST_F(PanelTest, AFeaturesDialogFromOutsideClosesThePanelFirst) {
  onCommand = [](std::uint32_t) { FeatureDialogRun(Feature::FolderScope, RunFeature); };
  Open({[] {
          CommandSend(Command::FolderScope);
          EXPECT_EQ(Panel.MenuPanelState, 0);
        },
        [] {
          EXPECT_EQ(TemplateOf(TopDialog()), IDD_FlyingBat4);
          EXPECT_EQ(Panel.hDiskMenu, nullptr);
          CommandSend(Command::FolderScope);  // one feature at a time
          EXPECT_EQ(Panel.FuncNo, 6);
          SendCommand(TopDialog(), 2);
        }});
  EXPECT_EQ(Panel.hDiskMenu, nullptr);
  EXPECT_EQ(Panel.FuncNo, 0);
}

}  // namespace
