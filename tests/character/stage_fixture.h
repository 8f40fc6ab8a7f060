// A stage for the tests: the main window with the commands that the character
// sends to it, and a main character of a few small frames.
#pragma once

#include <vector>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/motion.h"
#include "character/stage.h"
#include "character/walk.h"
#include "platform/headless/headless.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "shell/panel.h"
#include "tests/character/chara_files.h"

inline constexpr int kMenuLine = 20;  // MenuBarHeight of the tests

class StageFixture : public CharaFiles {
 protected:
  void SetUp() override {
    CharaFiles::SetUp();
    commands = {};
    Screen.MenuBarHeight = kMenuLine;
    Screen.ScreenWidth = 1000;
    Screen.ScreenHeight = 700;
    Screen.CharWidth = 8;
    Program.hMainWnd = MainWindowCreate({"mirrell", "mirrell", 0, 0, 0, MainProc}, 500, 300, 120, 160);
    ASSERT_NE(Program.hMainWnd, nullptr);
    WindowShowFirst(Program.hMainWnd, 1);
    for (int i = 0; i < kBoredFrameCount; ++i) Character.Bored1Frames[i] = Character.Bored2Frames[i] = -1;
    Character.StageX = 200;
    Character.StageY = 100;
    Stage.StageWidth = 300;
    Stage.StageHeight = 200;
  }
  void TearDown() override {
    CharaFiles::TearDown();
  }

  // Character `number` gets those frames: pictures of width by height, outlines of
  // the points given. It becomes the current main character.
  static void PutMain(int number, const std::vector<FilePoints>& outlines, int width = 40, int height = 30) {
    PutDwc(number, DwcFile(outlines));
    for (std::size_t i = 0; i < outlines.size(); ++i) {
      PutBmp(number, static_cast<int>(i) + 1, BmpFile(width, height));
    }
    CharaTables.MainCharaCount = 1;
    CharaTables.MainCharas[0].charaNo = static_cast<std::uint16_t>(number);
    Character.CharaSet.CharaNo = 1;
  }

  static std::vector<std::uint32_t> commands;  // that the main window was sent

  static bool MainProc(const Event& event) {
    if (event.kind == EventKind::Paint) StagePaint();
    if (event.kind == EventKind::Command) {
      commands.push_back(event.command);
      if (event.command == 2293) CommandRedrawStage();
      if (extraCommand) extraCommand(event.command);
    }
    return true;
  }
  static void (*extraCommand)(std::uint32_t);
};

inline std::vector<std::uint32_t> StageFixture::commands;
inline void (*StageFixture::extraCommand)(std::uint32_t) = nullptr;

// The pictures that were drawn into a window since the last DrawingClear.
inline std::vector<DrawCall> DibsDrawn(WindowHandle window) {
  std::vector<DrawCall> dibs;
  for (const DrawCall& call : Drawings(window)) {
    if (call.kind == DrawCall::Kind::Dib) dibs.push_back(call);
  }
  return dibs;
}

inline FilePoints PointsOf(RegionHandle region) {
  FilePoints points;
  for (const Point& point : RegionPoints(region)) points.emplace_back(point.x, point.y);
  return points;
}
