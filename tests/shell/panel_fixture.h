// The tool menu panel, driven through a main window that notes every command and
// carries out only what belongs to the panel.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "character/character.h"
#include "character/motion.h"
#include "character/stage.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"
#include "shell/start.h"
#include "shell/tick.h"
#include "tests/support/desktop.h"

struct Sent {
  std::uint32_t command;
  std::int32_t state;  // MenuPanelState as the command found it
  bool operator==(const Sent&) const = default;
};
inline void PrintTo(const Sent& sent, std::ostream* out) {
  *out << sent.command << " in state " << sent.state;
}

inline std::vector<Sent> sentCommands;
inline int stagePaints;
// Run by the main window for a command, after it was noted.
inline void (*onCommand)(std::uint32_t number);

inline void PanelCommandsOnly(std::uint32_t number) {
  if (number >= 1902 && number <= 1907) CommandPanelLevel(static_cast<Command>(number));
}

inline bool StageStandIn(const Event& event) {
  switch (event.kind) {
    case EventKind::MouseMove:
      PanelPointerOnStage(event);
      return true;
    case EventKind::Timer:
      MainTick();
      return true;
    case EventKind::Paint:
      ++stagePaints;
      return true;
    case EventKind::Command:
      sentCommands.push_back({event.command, Panel.MenuPanelState});
      if (onCommand) onCommand(event.command);
      return true;
    default:
      return false;
  }
}

inline Event MoveOnStage(unsigned keys = 0) {
  Event event;
  event.kind = EventKind::MouseMove;
  event.window = Program.hMainWnd;
  event.x = 5;
  event.y = 5;
  event.keys = keys;
  return event;
}

class PanelTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    Screen.ScreenWidth = 1024;
    Screen.ScreenHeight = 768;
    Character.StageX = 100;
    Character.StageY = 50;
    Stage.StageWidth = 120;
    Stage.StageHeight = 160;
    sentCommands.clear();
    stagePaints = 0;
    onCommand = PanelCommandsOnly;
    DrawingObjectsCreate();
    Program.hMainWnd = MainWindowCreate({"stage", "stage", 0, 0, 0, StageStandIn}, Character.StageX,
                                        Character.StageY, Stage.StageWidth, Stage.StageHeight);
    WindowShowFirst(Program.hMainWnd, 1);
    SetPointer(105, 55);
  }
  void TearDown() override {
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
    DrawingObjectsDelete();
    MainWindowDrop();
    Program.hMainWnd = nullptr;
    DesktopTest::TearDown();
  }

  // Opens the top level as the pointer does; the steps run while it is open.
  static void Open(std::vector<std::function<void()>> steps) {
    for (auto& step : steps) Then(std::move(step));
    PanelPointerOnStage(MoveOnStage());
  }
  static void OpenLevel(std::uint32_t command, std::vector<std::function<void()>> steps) {
    for (auto& step : steps) Then(std::move(step));
    CommandPanelLevel(static_cast<Command>(command));
  }
  static void Escape() { PressEscape(TopDialog()); }
  static void Click(int row, unsigned keys = kLeftHeld) {
    Mouse(TopDialog(), EventKind::LeftDown, 50, 10 + 20 * row, keys);
  }
  static void MoveTo(int row) { Mouse(TopDialog(), EventKind::MouseMove, 50, 10 + 20 * row); }
};
