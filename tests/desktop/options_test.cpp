// The option dialogs of the real program: the main character, the alarm characters,
// the layout of the desktop.
#include <gtest/gtest.h>

#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kMainCharacter = 2281;
constexpr unsigned kAlarmCharacters = 2282;
constexpr unsigned kLayout = 2283;
constexpr int kOk = 1;
constexpr int kCancel = 2;

RECT RectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

class OptionsTest : public testing::Test {
 protected:
  HWND Open(unsigned command, const std::wstring& title) {
    companion_.Post(command);
    return companion_.Dialog(title);
  }

  bool StageIs(int character) const {
    return StageDifference(companion_, L"Chara" + std::to_wstring(character) + L"_1x.bmp") == 0;
  }

  Companion companion_;
};

class MainCharacterTest : public OptionsTest {
 protected:
  HWND Open() { return OptionsTest::Open(kMainCharacter, L"ミルレールキャラクタ"); }
  static constexpr int kList = 100;
  static constexpr int kName = 101;
};

class AlarmCharactersTest : public OptionsTest {
 protected:
  HWND Open() { return OptionsTest::Open(kAlarmCharacters, L"アラームキャラクタ"); }
  static constexpr int kSchedule = 100;
  static constexpr int kClock = 101;
};

class LayoutTest : public OptionsTest {
 protected:
  // The image stands at (10, 34) of the dialog; it is 240 pixels high at most.
  static constexpr int kImageX = 10;
  static constexpr int kImageY = 34;
  static constexpr int kDefault = 2292;

  void StartAt(int x, int y) {
    ASSERT_EQ(GetSystemMetrics(SM_CXFULLSCREEN), 1280);
    div_ = GetSystemMetrics(SM_CYFULLSCREEN) / 4 > 240 ? 5 : 4;
    SettingsChange(companion_)
        .Number(kStageXAt, x)
        .Number(kStageYAt, y)
        .Byte(kClockShowAt, 0)
        .Byte(kCalenShowAt, 0)
        .Number(kClockXAt, 800)
        .Number(kClockYAt, 8)
        .Number(kCalenXAt, 1000)
        .Number(kCalenYAt, 8);
    companion_.Start();
  }
  HWND Open() { return OptionsTest::Open(kLayout, L"レイアウト設定"); }

  static void Mouse(HWND dialog, UINT message, int imageX, int imageY, WPARAM keys = MK_LBUTTON) {
    SendMessageW(dialog, message, keys, MAKELPARAM(kImageX + imageX, kImageY + imageY));
  }
  static void Drag(HWND dialog, int fromX, int fromY, int toX, int toY, WPARAM keys = MK_LBUTTON) {
    Mouse(dialog, WM_LBUTTONDOWN, fromX, fromY, keys);
    Mouse(dialog, WM_MOUSEMOVE, (fromX + toX) / 2, (fromY + toY) / 2, keys);
    Mouse(dialog, WM_MOUSEMOVE, toX, toY, keys);
    Mouse(dialog, WM_LBUTTONUP, toX, toY, 0);
    Mouse(dialog, WM_MOUSEMOVE, 0, 0, 0);
  }
  // Catches the stage, which stands at (400, 320), and drags it by that much.
  void DragStage(HWND dialog, int byX, int byY, WPARAM keys = MK_LBUTTON) const {
    const int x = 400 / div_ + 5;
    const int y = 320 / div_ + 5;
    Drag(dialog, x, y, x + byX, y + byY, keys);
  }
  bool StageAt(int x, int y) const {
    return WaitFor(
        [&] {
          const RECT rect = RectOf(companion_.Window());
          return rect.left == x && rect.top == y;
        },
        5000);
  }

  int div_ = 0;
};

}  // namespace

TEST_F(MainCharacterTest, AnotherOneTakesTheStageInItsOwnShapeAndIsSaved) {
  companion_.Start();
  ASSERT_TRUE(StageIs(1));
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowCount(dialog, kList), 4);
  EXPECT_EQ(EditText(dialog, kName), ListRowText(dialog, kList, 0));
  SelectListRow(dialog, kList, 2);
  EXPECT_EQ(EditText(dialog, kName), ListRowText(dialog, kList, 2));
  EXPECT_TRUE(StageIs(1)) << "a choice alone changes nothing";
  EXPECT_TRUE(EndBy(dialog, kOk));
  EXPECT_TRUE(WaitFor([&] { return StageIs(3); }, 5000));
  EXPECT_TRUE(WaitFor([&] { return SettingsNumber(companion_, kCharaIndexAt) == 2; }, 5000));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(MainCharacterTest, CancelLeavesTheStageAndTheSettings) {
  companion_.Start();
  const std::vector<unsigned char> before = ReadWholeFile(companion_.File(kSettings));
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  SelectListRow(dialog, kList, 3);
  EXPECT_TRUE(EndBy(dialog, kCancel));
  companion_.Tick(5);
  EXPECT_TRUE(StageIs(1));
  EXPECT_TRUE(ReadWholeFile(companion_.File(kSettings)) == before);
}

TEST_F(AlarmCharactersTest, TheChoiceIsSavedAndTheCheckPlays) {
  companion_.Start();
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowText(dialog, kSchedule, 0), L"未設定");
  ASSERT_GE(ListRowCount(dialog, kSchedule), 3);
  SelectListRow(dialog, kSchedule, 2);
  SelectListRow(dialog, kClock, 0);
  constexpr int kCheckSchedule = 2290;
  const HWND check = OpenBy(companion_, dialog, kCheckSchedule, L"アラーム動作の確認");
  ASSERT_TRUE(check);
  POINT at{10, 10};
  ClientToScreen(check, &at);
  const auto picture = [&] { return ScreenPixels(static_cast<int>(at.x), static_cast<int>(at.y), 200, 120); };
  const std::vector<std::uint32_t> first = picture();
  EXPECT_TRUE(WaitFor([&] { return picture() != first; }, 5000)) << "the frames go on";
  EXPECT_TRUE(EndBy(check, kCancel));
  EXPECT_TRUE(EndBy(dialog, kOk));
  EXPECT_TRUE(WaitFor([&] { return SettingsNumber(companion_, kAlarmCharaSelAt + 4) == 2; }, 5000));
  EXPECT_EQ(SettingsNumber(companion_, kAlarmCharaSelAt + 8), 0);
}

TEST_F(AlarmCharactersTest, CancelSavesNothing) {
  companion_.Start();
  const std::vector<unsigned char> before = ReadWholeFile(companion_.File(kSettings));
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  SelectListRow(dialog, kSchedule, 3);
  EXPECT_TRUE(EndBy(dialog, kCancel));
  companion_.Tick(2);
  EXPECT_TRUE(ReadWholeFile(companion_.File(kSettings)) == before);
}

TEST_F(LayoutTest, TheDraggedStageMovesAtOk) {
  StartAt(400, 320);
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  // With Shift held nothing is caught.
  DragStage(dialog, -30, 20, MK_LBUTTON | MK_SHIFT);
  DragStage(dialog, -50, -40);
  EXPECT_TRUE(StageAt(400, 320)) << "nothing moves before OK";
  EXPECT_TRUE(EndBy(dialog, kOk));
  EXPECT_TRUE(StageAt(400 - 50 * div_, 320 - 40 * div_));
  EXPECT_TRUE(WaitFor([&] { return SettingsNumber(companion_, kStageXAt) == 400 - 50 * div_; }, 5000));
  EXPECT_EQ(SettingsNumber(companion_, kStageYAt), 320 - 40 * div_);
  EXPECT_EQ(SettingsNumber(companion_, kClockXAt), 800);
  EXPECT_TRUE(StageIs(1)) << "the shape has come along";
}

TEST_F(LayoutTest, CancelLeavesTheStageAfterADragAndAfterTheDefault) {
  StartAt(400, 320);
  for (const bool byDefault : {false, true}) {
    const HWND dialog = Open();
    ASSERT_TRUE(dialog);
    DragStage(dialog, -50, -40);
    if (byDefault) PressButton(dialog, kDefault);
    EXPECT_TRUE(EndBy(dialog, kCancel));
    companion_.Tick(2);
    EXPECT_TRUE(StageAt(400, 320));
    EXPECT_EQ(SettingsNumber(companion_, kStageXAt), 400);
  }
}

TEST_F(LayoutTest, TheDefaultPutsTheStageUnderTheCalendarAtTheRight) {
  StartAt(400, 320);
  const RECT before = RectOf(companion_.Window());
  const HWND dialog = Open();
  ASSERT_TRUE(dialog);
  PressButton(dialog, kDefault);
  EXPECT_TRUE(EndBy(dialog, kOk));
  const int width = static_cast<int>(before.right - before.left);
  EXPECT_TRUE(WaitFor([&] { return RectOf(companion_.Window()).left == 1280 - width - 10; }, 5000));
  const int calendarX = SettingsNumber(companion_, kCalenXAt);
  EXPECT_EQ(SettingsNumber(companion_, kCalenYAt), 10);
  EXPECT_GT(calendarX, 640);
  EXPECT_LT(calendarX, 1270);
  EXPECT_GT(RectOf(companion_.Window()).top, 10) << "below the calendar";
}
