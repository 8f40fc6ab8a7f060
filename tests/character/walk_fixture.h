// A walking character for the tests, and ticks of its part of the main tick.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "character/walk_windows.h"
#include "resources/character_ids.h"
#include "services/text.h"
#include "shell/shell_commands.h"
#include "shell/tick.h"
#include "tests/character/stage_fixture.h"

class WalkFixture : public StageFixture {
 protected:
  void SetUp() override {
    StageFixture::SetUp();
    extraCommand = OnCommand;
    request = {};
    request.settings.animeOn = 1;
    request.opening = kOpeningFile;
    request.atEnd = Command::OpenLaunch;
    SayNames({"letter.txt"});
    PutWalker();
  }
  void TearDown() override {
    extraCommand = nullptr;
    StageFixture::TearDown();
  }
  static void SayNames(const std::vector<std::string>& names) {
    request.balloon.count = 0;
    for (const std::string& name : names) {
      TextCopy(request.balloon.names[request.balloon.count++], kBalloonNameSize, name.c_str());
    }
  }

  // Slot 0 walks with character 10: frames 1 and 2 of 60 by 50 turn while it walks,
  // frame 3 of 30 by 20 ends it. From the middle of the screen, (500, 350), 5 steps
  // of (-14, -12), one every 3 ticks; the end picture stays for 4.
  static void PutWalker() {
    PutDwc(10,
           DwcFile({{{0, 0}, {59, 0}, {30, 49}}, {{1, 0}, {58, 0}, {30, 49}}, {{0, 0}, {29, 0}, {15, 19}}}));
    PutBmp(10, 1, BmpFile(60, 50));
    PutBmp(10, 2, BmpFile(60, 50));
    PutBmp(10, 3, BmpFile(30, 20));
    CharaTables.WalkCharaCount = 1;
    CharaTables.WalkCharas[0].number = 10;
    Character.CharaSet.WalkRow[0] = 1;
    Character.CharaSet.WalkStartPoint = 4;
    Character.CharaSet.WalkStepX[0] = -14;
    Character.CharaSet.WalkStepY[0] = -12;
    Character.CharaSet.WalkPeriod[0] = 3;
    Character.CharaSet.WalkCount[0] = 5;
    Character.CharaSet.WalkFrames[0][0] = 1;
    Character.CharaSet.WalkFrames[0][1] = 2;
    Character.CharaSet.EndFrames[0][0] = 3;
    Character.CharaSet.EndWait[0] = 4;
  }

  // The stage answers 2293 itself; all others go the program's way.
  static void OnCommand(std::uint32_t command) {
    if (command != 2293) CommandRoute(command);
  }

  static void WalkTicks(int count) {
    for (int i = 0; i < count; ++i) MainTick();
  }
  // Ticks as the steps of the script, so that each finds the innermost loop.
  static void ThenTicks(int count) {
    for (int i = 0; i < count; ++i) Then([] { WalkTicks(1); });
  }

  static inline WalkRequest request;  // a file's walk

  static WindowHandle WalkWindow() { return Walk.WalkSlots[0].walkWindow; }
};

class WalkTest : public WalkFixture {};

struct Place {
  int left, top, width, height;
  bool operator==(const Place&) const = default;
};
inline Place PlaceOf(WindowHandle window) {
  const Rect rect = WindowRect(window);
  return {rect.left, rect.top, RectWidth(rect), RectHeight(rect)};
}
inline std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << place.left << "," << place.top << " " << place.width << "x" << place.height;
}

inline const std::vector<std::uint32_t> kWholeWalk = {2203, 2208, 2202};
