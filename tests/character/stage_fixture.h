// A stage for the tests: the main window with the commands that the character
// sends to it, and a main character of a few small frames.
#pragma once

#include <vector>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/motion.h"
#include "character/stage.h"
#include "platform/headless/headless.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "tests/character/chara_files.h"

inline constexpr int kMenuLine = 20;  // MenuBarHeight of the tests

class StageFixture : public CharaFiles {
 protected:
  void SetUp() override {
    CharaFiles::SetUp();
    commands = {};
    MenuBarHeight = kMenuLine;
    ScreenWidth = 1000;
    ScreenHeight = 700;
    CharWidth = 8;
    hMainWnd = MainWindowCreate({"mirrell", "mirrell", 0, 0, 0, MainProc}, 500, 300, 120, 160);
    ASSERT_NE(hMainWnd, nullptr);
    WindowShowFirst(hMainWnd, 1);
    Forget();
  }
  void TearDown() override {
    Forget();
    hMainWnd = nullptr;
    CharaFiles::TearDown();
  }

  // Every table and variable of the character as at the start of the program.
  static void Forget() {
    MainCharaCount = AlarmCharaCount = WalkCharaCount = 0;
    for (MainChara& row : MainCharas) row = MainChara{};
    for (std::int32_t& number : AlarmCharas) number = 0;
    for (WalkChara& row : WalkCharas) row = WalkChara{};
    for (unsigned char& flags : WalkFlags) flags = 0;
    for (unsigned char& byte : CharaSet) byte = 0;
    for (std::int32_t& selection : AlarmCharaSel) selection = 0;
    CharaIndex = MenuFrame = BlinkFrame = 0;
    for (int i = 0; i < kBoredFrameCount; ++i) Bored1Frames[i] = Bored2Frames[i] = -1;
    BoredDelaySel = BoredSpeedSel = BoredRepeatSel = BlinkSpeedSel = 0;
    StageX = 200;
    StageY = 100;
    StageWidth = 300;
    StageHeight = 200;
    StageAppliedWidth = StageAppliedHeight = 0;
    StageRedraw = CharaFrame = StageFrameCount = 0;
    CurrentOutline.count = 0;
    for (Outline& outline : StageOutlines) outline.count = 0;
    CharaMotion = CharaStepCount = BlinkCount = BoredSec = BoredMin = BoredHour = 0;
    BoredPattern = BoredLen1 = BoredLen2 = BoredLeft = BoredHold = BoredRepeat = 0;
    BlinkDone = false;
    DlgIdMenu = DlgIdTool = DlgIdSub = 0;
    hDiskMenu = nullptr;
    OpeningState = MailPhase = FuncNo = MenuPanelState = 0;
  }

  // Character `number` gets those frames: pictures of width by height, outlines of
  // the points given. It becomes the current main character.
  static void PutMain(int number, const std::vector<FilePoints>& outlines, int width = 40, int height = 30) {
    PutDwc(number, DwcFile(outlines));
    for (std::size_t i = 0; i < outlines.size(); ++i) {
      PutBmp(number, static_cast<int>(i) + 1, BmpFile(width, height));
    }
    MainCharaCount = 1;
    MainCharas[0].charaNo = static_cast<std::uint16_t>(number);
    SetCharaSetNo(CharaSet, 1);
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
