// The stage of the real program: its place, its shape, its life, its end.
#include <gtest/gtest.h>

#include <set>

#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"

namespace {

std::vector<unsigned char> RegionData(HWND window) {
  HRGN region = CreateRectRgn(0, 0, 0, 0);
  GetWindowRgn(window, region);
  std::vector<unsigned char> data(GetRegionData(region, 0, nullptr));
  GetRegionData(region, static_cast<DWORD>(data.size()), reinterpret_cast<RGNDATA*>(data.data()));
  DeleteObject(region);
  return data;
}

}  // namespace

TEST(Stage, StandsAtItsSavedPlace) {
  Companion companion;
  std::vector<unsigned char> settings = ReadWholeFile(companion.File(kSettings));
  ASSERT_EQ(settings.size(), 172720U);
  PutBig(settings, kStageXAt, 321);
  PutBig(settings, kStageYAt, 123);
  WriteWholeFile(companion.File(kSettings), settings);
  companion.Start();
  RECT rect{};
  GetWindowRect(companion.Window(), &rect);
  EXPECT_EQ(rect.left, 321);
  EXPECT_EQ(rect.top, 123);
  const Picture picture = LoadPicture(companion, L"Chara1_1.bmp");
  EXPECT_EQ(rect.right - rect.left, picture.width + 20);
  EXPECT_EQ(rect.bottom - rect.top,
            picture.height + GetSystemMetrics(SM_CYMENU) + GetSystemMetrics(SM_CYEDGE) + 10);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, RegionEqualsTheDrawingPixelByPixelForEveryMainCharacter) {
  for (unsigned character = 0; character < 4; ++character) {
    Companion companion;
    std::vector<unsigned char> settings = ReadWholeFile(companion.File(kSettings));
    PutBig(settings, kCharaIndexAt, character);
    settings.at(kCharaSetAt) = static_cast<unsigned char>(character + 1);
    WriteWholeFile(companion.File(kSettings), settings);
    companion.Start();
    EXPECT_EQ(StageDifference(companion, L"Chara" + std::to_wstring(character + 1) + L"_1x.bmp"), 0)
        << "main character " << character + 1;
    EXPECT_EQ(companion.Close(), 0);
  }
}

TEST(Stage, NothingButTheDesktopAroundTheCharacter) {
  Companion companion;
  const Picture picture = LoadPicture(companion, L"Chara1_1.bmp");
  const Picture mask = LoadPicture(companion, L"Chara1_1x.bmp");
  const std::vector<unsigned char> settings = ReadWholeFile(companion.File(kSettings));
  const int x = static_cast<int>(GetBig(settings, kStageXAt));
  const int y = static_cast<int>(GetBig(settings, kStageYAt));
  const int width = picture.width + 60;
  const int height = picture.height + 80;
  const std::vector<std::uint32_t> before = ScreenPixels(x - 20, y - 20, width, height);
  companion.Start();
  ASSERT_TRUE(WaitFor([&] { return companion.Value(kShowTicks) > 3; }));
  ASSERT_EQ(companion.Value(kShowCharaFrame), 0);
  int drawn = 0;
  int wrongInside = 0;
  int wrongOutside = 0;
  const auto look = [&] {
    drawn = wrongInside = wrongOutside = 0;
    const std::vector<std::uint32_t> after = ScreenPixels(x - 20, y - 20, width, height);
    for (int sy = 0; sy < height; ++sy) {
      for (int sx = 0; sx < width; ++sx) {
        const int px = sx - 20 - kStageLeft;
        const int py = sy - 20 - StageTop();
        const auto at = static_cast<std::size_t>(sy * width + sx);
        const bool inPicture = px >= 0 && py >= 0 && px < picture.width && py < picture.height;
        const auto pixel = static_cast<std::size_t>(py * picture.width + px);
        if (inPicture && mask.pixels[pixel] == 0) {
          ++drawn;
          if (after[at] != picture.pixels[pixel]) ++wrongInside;
        } else if (after[at] != before[at]) {
          ++wrongOutside;
        }
      }
    }
    return wrongInside == 0;
  };
  EXPECT_TRUE(WaitFor(look));
  EXPECT_GT(drawn, 5000);
  EXPECT_EQ(wrongOutside, 0);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, BlinksAfterTheCountedTicksAndKeepsItsRegion) {
  Companion companion;
  companion.Start();
  const std::vector<unsigned char> region = RegionData(companion.Window());
  const std::vector<unsigned char> settings = ReadWholeFile(companion.File(kSettings));
  const int blinkFrame = static_cast<int>(GetBig(settings, 28));
  ASSERT_GT(blinkFrame, 0);
  // Count the ticks from one blink's beginning to its end: one step, 17 ticks.
  const auto driveTo = [&](int frame) {
    for (int i = 0; i < 40000; ++i) {
      if (companion.Value(kShowCharaFrame) == frame) return companion.Value(kShowTicks);
      companion.Tick();
    }
    return -1;
  };
  const int begin = driveTo(blinkFrame);
  ASSERT_GT(begin, 0);
  EXPECT_EQ(RegionData(companion.Window()), region) << "the blink has the outline of frame 0";
  const int end = driveTo(0);
  // The real timer runs beside the driven ticks and may add one between two looks.
  EXPECT_NEAR(end - begin, 17, 1);
  EXPECT_NEAR(begin % 17, 0, 1);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, BoredPatternChangesTheRegionAndComesBackToFrame0) {
  Companion companion;
  companion.Start();
  const std::vector<unsigned char> atRest = RegionData(companion.Window());
  std::set<int> frames;
  bool shapeChanged = false;
  bool cameBack = false;
  for (int i = 0; i < 60000 && !cameBack; ++i) {
    companion.Tick();
    const int motion = companion.Value(kShowCharaMotion);
    const int frame = companion.Value(kShowCharaFrame);
    if (motion == 3 && frame != 0 && frames.insert(frame).second) {
      shapeChanged = shapeChanged || RegionData(companion.Window()) != atRest;
      EXPECT_EQ(StageDifference(companion, L"Chara1_" + std::to_wstring(frame + 1) + L"x.bmp"), 0)
          << "frame " << frame;
    }
    cameBack = !frames.empty() && motion == 0;
  }
  EXPECT_GE(frames.size(), 3U);
  EXPECT_TRUE(shapeChanged);
  EXPECT_TRUE(cameBack);
  EXPECT_EQ(companion.Value(kShowCharaFrame), 0);
  EXPECT_EQ(RegionData(companion.Window()), atRest);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, WithNoDataFilesItComesUpAtItsDefaultPlaceAndTheTimerRuns) {
  Companion companion(false);
  companion.Start();
  RECT rect{};
  GetWindowRect(companion.Window(), &rect);
  EXPECT_EQ(rect.left, 500);
  EXPECT_EQ(rect.top, 300);
  const int ticks = companion.Value(kShowTicks);
  EXPECT_TRUE(WaitFor([&] { return companion.Value(kShowTicks) > ticks + 3; }));
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, ReplacedCharacterFileIsPickedUpByTheFileWatch) {
  Companion companion;
  companion.Start();
  EXPECT_EQ(StageDifference(companion, L"Chara1_1x.bmp"), 0);
  std::vector<unsigned char> file = ReadWholeFile(companion.File(L"mirrell_chara_file.dcx"));
  // The first record's number stands behind the magic of 23 bytes and the count.
  ASSERT_EQ(GetBig(file, 27), 1U);
  PutBig(file, 27, 3);
  WriteWholeFile(companion.File(L"mirrell_chara_file.dcx"), file);
  companion.Tick(202);
  EXPECT_TRUE(WaitFor([&] { return StageDifference(companion, L"Chara3_1x.bmp") == 0; }, 5000));
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, CloseReleasesWhatItHeld) {
  Companion companion;
  companion.Start();
  const std::vector<int> live = companion.Live();
  ASSERT_EQ(live.size(), 11U);
  EXPECT_EQ(live[0], 12) << "brushes";
  EXPECT_EQ(live[1], 11) << "pens";
  EXPECT_EQ(live[7], 1) << "timers";
  EXPECT_EQ(companion.Close(), 0);
  const std::vector<int> end = companion.LiveAtEnd();
  ASSERT_EQ(end.size(), 11U);
  EXPECT_EQ(end[0], 0) << "brushes";
  EXPECT_EQ(end[1], 0) << "pens";
  EXPECT_EQ(end[2], 0) << "fonts";
  EXPECT_EQ(end[3], 0) << "bitmaps";
  EXPECT_EQ(end[4], 0) << "regions";
  EXPECT_EQ(end[5], 0) << "canvases";
  EXPECT_EQ(end[7], 0) << "timers";
  EXPECT_EQ(end[9], 0) << "files";
  EXPECT_EQ(end[10], 0) << "searches";
}

TEST(Stage, ADayOfTicksLeavesTheObjectCountsFlat) {
  Companion companion;
  companion.Start();
  companion.Tick(2000);
  const std::vector<int> before = companion.Live();
  companion.Tick(40000);
  EXPECT_EQ(companion.Live(), before);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Stage, CommandLineWithoutTheFirstRunMarkIsConsumed) {
  Companion companion;
  companion.Start(L"hello");
  const std::vector<unsigned char> before = ReadWholeFile(companion.File(kSettings));
  EXPECT_TRUE(WaitFor([&] { return companion.Value(kShowTicks) > 3; }));
  EXPECT_EQ(ReadWholeFile(companion.File(kSettings)), before);
  EXPECT_EQ(companion.Close(), 0);
}

TEST(Send, SaysClearlyWhenNoneIsRunningAndReachesOneThatIs) {
  const auto run = [](const Companion& companion, const std::wstring& argument) {
    std::wstring line = L"\"" + companion.File(L"mirrell-send.exe") + L"\" " + argument;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
      return 99;
    WaitForSingleObject(process.hProcess, 20000);
    DWORD code = 98;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return static_cast<int>(code);
  };
  Companion companion;
  EXPECT_EQ(run(companion, L"close"), 1);
  EXPECT_EQ(run(companion, L"no-such-command"), 2);
  EXPECT_EQ(run(companion, L"--list"), 0);
  companion.Start();
  EXPECT_EQ(run(companion, L"close"), 0);
  EXPECT_TRUE(WaitFor([&] { return !companion.Runs(); }));
}
