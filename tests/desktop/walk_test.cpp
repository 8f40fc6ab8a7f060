// The walk that goes before a file is opened, in the real program: its windows, its
// steps, its end, and the opening that waits for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>

#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"

namespace {

// The history of opened files.
constexpr std::size_t kHistorySize = 240804;
constexpr std::size_t kHistoryFileName = 201;  // of row 0: 300 bytes, then the folder's
constexpr std::size_t kHistoryProgName = 120201;
constexpr std::size_t kHistoryText = 300;
constexpr std::size_t kHistoryAnimeOn = 240201;

constexpr unsigned kFileOpnDialogCommand = 1900;

// The walker of the first main character: two walking frames, then the end picture.
const std::wstring kWalker = L"Chara10_";
constexpr int kWindowFrame = 3;  // around the picture
constexpr int kStartInTheMiddle = 4;

void PutText(std::vector<unsigned char>& bytes, std::size_t at, const std::wstring& text) {
  char narrow[kHistoryText] = "";
  WideCharToMultiByte(932, 0, text.c_str(), -1, narrow, kHistoryText, nullptr, nullptr);
  std::memcpy(bytes.data() + at, narrow, std::strlen(narrow) + 1);
}

struct Search {
  DWORD process;
  std::vector<HWND> found;
};

BOOL CALLBACK Collect(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  if (process == search.process && IsWindowVisible(window) && std::wstring(name) == L"#32770" &&
      GetWindowTextLengthW(window) == 0) {
    search.found.push_back(window);
  }
  return TRUE;
}

RECT RectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

class WalkTest : public testing::Test {
 protected:
  struct Setting {
    int flags = 0;
    int period = 10;
    int count = 5;
    int endWait = 50;
  };

  // The desktop with one known file, which a walk of these settings goes before.
  void Start(const Setting& setting) {
    setting_ = setting;
    SettingsChange(companion_)
        .Byte(kClockShowAt, 0)
        .Byte(kCalenShowAt, 0)
        .LowFirst32(kCharaSetAt + kWalkStepXAt, kStepX)
        .LowFirst32(kCharaSetAt + kWalkStepYAt, kStepY)
        .LowFirst16(kCharaSetAt + kWalkPeriodAt, setting.period)
        .LowFirst16(kCharaSetAt + kWalkCountAt, setting.count)
        .LowFirst16(kCharaSetAt + kEndWaitAt, setting.endWait)
        .LowFirst16(kCharaSetAt + kWalkStartPointAt, kStartInTheMiddle);
    const std::wstring charaFile = companion_.File(L"mirrell_chara_file.dcx");
    std::vector<unsigned char> characters = ReadWholeFile(charaFile);
    // The flags of the walking rows stand before the blink speeds of the four main
    // characters, at the end.
    characters.at(characters.size() - 4 * 4 - 50) = static_cast<unsigned char>(setting.flags);
    WriteWholeFile(charaFile, characters);

    WriteWholeFile(companion_.File(L"letter.opened"), {'x'});
    wchar_t own[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    const std::wstring program = own;
    const std::size_t cut = program.rfind(L'\\') + 1;
    std::vector<unsigned char> history(kHistorySize);
    history[0] = 1;
    PutText(history, kHistoryFileName, L"letter.opened");
    PutText(history, kHistoryFileName + kHistoryText, companion_.Folder() + L"\\");
    PutText(history, kHistoryProgName, program.substr(cut));
    PutText(history, kHistoryProgName + kHistoryText, program.substr(0, cut));
    history[kHistoryAnimeOn] = 1;
    WriteWholeFile(companion_.File(L"OpnFileHis.lis"), history);
    companion_.Start();

    startX_ = GetSystemMetrics(SM_CXFULLSCREEN) / 2;
    startY_ = GetSystemMetrics(SM_CYFULLSCREEN) / 2;
  }

  // "開く" in the dialog; the walk begins.
  void Open() {
    companion_.Post(kFileOpnDialogCommand);
    const HWND dialog = companion_.Dialog(L"ファイル オープン");
    ASSERT_TRUE(dialog);
    PostButton(dialog, 1);
    ASSERT_TRUE(WaitFor([&] { return companion_.Value(kShowOpeningState) == 1; }, 5000));
  }

  std::vector<HWND> Windows() const {
    Search search{companion_.ProcessId(), {}};
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  // Step k of a window that stands on the walk's way, from 1; 0 for none.
  int StepOf(const RECT& rect) const {
    for (int k = 1; k <= setting_.count; ++k) {
      if (rect.left == startX_ + k * kStepX && rect.top == startY_ + k * kStepY) return k;
    }
    return 0;
  }

  bool Opened() const {
    return GetFileAttributesW(companion_.File(L"letter.opened.mark").c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  std::wstring MaskOf(int frame) const { return kWalker + std::to_wstring(frame) + L"x.bmp"; }

  static constexpr int kStepX = -34;
  static constexpr int kStepY = -22;
  Companion companion_;
  Setting setting_;
  int startX_ = 0;
  int startY_ = 0;
};

}  // namespace

TEST_F(WalkTest, GoesStepByStepInItsShapeThenStandsWithABalloonAndOnlyThenOpensTheFile) {
  Start({});
  Open();
  const Picture picture = LoadPicture(companion_, kWalker + L"1.bmp");
  const int ticks = companion_.Value(kShowTicks);
  std::vector<int> steps;
  std::vector<HWND> windows;
  ASSERT_TRUE(WaitFor([&] {
    windows = Windows();
    if (windows.size() != 1) return windows.size() == 2;
    const RECT rect = RectOf(windows[0]);
    const int step = StepOf(rect);
    EXPECT_GT(step, 0) << rect.left << ", " << rect.top;
    if (!steps.empty() && steps.back() == step) return false;
    steps.push_back(step);
    EXPECT_EQ(rect.right - rect.left, picture.width);
    EXPECT_EQ(rect.bottom - rect.top, picture.height);
    // The first step moves on to the second frame.
    const int frame = step % 2 == 1 ? 2 : 1;
    const int differ = RegionDifference(companion_, windows[0], MaskOf(frame), kWindowFrame, kWindowFrame);
    const bool stillThere = StepOf(RectOf(windows[0])) == step;
    EXPECT_TRUE(differ == 0 || !stillThere) << differ << " at step " << step;
    EXPECT_EQ(companion_.Value(kShowOpeningState), 1);
    EXPECT_FALSE(Opened());
    return false;
  }));
  EXPECT_EQ(steps, (std::vector<int>{1, 2, 3, 4, 5}));
  EXPECT_GE(companion_.Value(kShowTicks) - ticks, 4 * setting_.period) << "the timer ticks inside the walk";

  // The end: the picture where the walk stopped, the balloon under it.
  EXPECT_FALSE(Opened());
  std::sort(windows.begin(), windows.end(), [](HWND a, HWND b) { return RectOf(a).top < RectOf(b).top; });
  const Picture endPicture = LoadPicture(companion_, kWalker + L"3.bmp");
  const RECT end = RectOf(windows[0]);
  EXPECT_EQ(end.left, startX_ + 5 * kStepX);
  EXPECT_EQ(end.top, startY_ + 5 * kStepY);
  EXPECT_EQ(end.right - end.left, endPicture.width);
  EXPECT_EQ(end.bottom - end.top, endPicture.height);
  EXPECT_EQ(RegionDifference(companion_, windows[0], MaskOf(3), kWindowFrame, kWindowFrame), 0);
  const RECT balloon = RectOf(windows[1]);
  EXPECT_EQ(balloon.left, end.left);
  EXPECT_EQ(balloon.top, end.top + endPicture.height);
  EXPECT_EQ(balloon.right - balloon.left, 300);
  EXPECT_EQ(balloon.bottom - balloon.top, 200);
  EXPECT_EQ(companion_.Value(kShowOpeningState), 1);
  EXPECT_TRUE(WaitFor([&] { return Opened(); }));
  EXPECT_TRUE(WaitFor([&] { return Windows().empty() && companion_.Value(kShowOpeningState) == 0; }));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(WalkTest, TrailLeavesACopyAtEachStepUntilTheWalkEnds) {
  constexpr int kTrail = 1;
  Setting setting;
  setting.flags = kTrail;
  Start(setting);
  Open();
  std::set<int> together;
  ASSERT_TRUE(WaitFor([&] {
    std::set<int> now;
    for (HWND window : Windows()) now.insert(StepOf(RectOf(window)));
    now.erase(0);
    if (now.size() > together.size()) together = now;
    return together.size() == 5;
  })) << together.size();
  EXPECT_EQ(together, (std::set<int>{1, 2, 3, 4, 5}));
  EXPECT_TRUE(WaitFor([&] { return Windows().size() == 2; }));
  EXPECT_TRUE(WaitFor([&] { return Opened() && Windows().empty(); }));
}

TEST_F(WalkTest, WipeRevealsThePictureFromTheRight) {
  constexpr int kWipe = 2;
  Setting setting;
  setting.flags = kWipe;
  setting.period = 50;
  setting.count = 3;
  setting.endWait = 4;  // slices
  Start(setting);
  const Picture picture = LoadPicture(companion_, kWalker + L"2.bmp");
  const Picture mask = LoadPicture(companion_, MaskOf(2));
  const int left = startX_ + kStepX + kWindowFrame;
  const int top = startY_ + kStepY + kWindowFrame;
  const int slice = picture.width / 4;
  Open();
  ASSERT_TRUE(WaitFor([&] { return Windows().size() == 1; }));
  int shownRight = 0;
  int right = 0;
  int shownLeft = 0;
  int all = 0;
  const auto look = [&] {
    shownRight = right = shownLeft = all = 0;
    const std::vector<std::uint32_t> screen = ScreenPixels(left, top, picture.width, picture.height);
    // The frame's far edge covers three pixels of the picture.
    for (int y = 0; y < picture.height - 2 * kWindowFrame; ++y) {
      for (int x = 0; x < picture.width - 2 * kWindowFrame; ++x) {
        const auto at = static_cast<std::size_t>(y * picture.width + x);
        if (mask.pixels[at] != 0) continue;
        const bool shown = screen[at] == picture.pixels[at];
        if (x >= picture.width - slice) {
          ++right;
          shownRight += shown;
        } else {
          ++all;
          shownLeft += shown;
        }
      }
    }
    return shownRight == right;
  };
  EXPECT_TRUE(WaitFor(look));  // the window is painted
  ASSERT_EQ(StepOf(RectOf(Windows().at(0))), 1);
  EXPECT_GT(right, 50);
  EXPECT_GT(all, 200);
  EXPECT_LT(shownLeft, all / 4);
  EXPECT_TRUE(WaitFor([&] { return Opened() && Windows().empty(); }));
}

TEST_F(WalkTest, ShakeMovesTheStepsUpAndDown) {
  constexpr int kShake = 4;
  Setting setting;
  setting.flags = kShake;
  setting.period = 5;
  setting.count = 8;
  Start(setting);
  Open();
  std::set<LONG> shifts;
  std::set<LONG> places;
  ASSERT_TRUE(WaitFor([&] {
    const std::vector<HWND> windows = Windows();
    if (windows.size() != 1) return windows.size() == 2;
    const RECT rect = RectOf(windows[0]);
    const LONG steps = (rect.left - startX_) / kStepX;
    EXPECT_EQ(rect.left, startX_ + steps * kStepX);
    const LONG shift = rect.top - (startY_ + steps * kStepY);
    EXPECT_LE(shift, 49);
    EXPECT_GE(shift, -49);
    places.insert(steps);
    if (steps > 1) shifts.insert(shift);
    return false;
  }));
  EXPECT_GE(places.size(), 6U);
  EXPECT_GE(shifts.size(), 3U);
  EXPECT_TRUE(WaitFor([&] { return Opened() && Windows().empty(); }));
}
