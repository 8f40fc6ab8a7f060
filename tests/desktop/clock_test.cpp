// The real clock on the real desktop: its shape, its hands, its strikes, its alarms.
#include <gtest/gtest.h>

#include "resources/clock_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kSelect = 1911;
constexpr unsigned kAlarms = 2330;
constexpr unsigned kEvents = 2339;
constexpr int kX = 700;
constexpr int kY = 20;
constexpr std::uint32_t kHand = 0x42222A;  // of the first design's hands
constexpr int kCentre = 72;                // of its dial, both ways
constexpr int kDrum = 16;                  // the character of the second design
const std::wstring kNotice = L"時計 アラーム";

struct Search {
  DWORD process;
  HWND found;
};

// The clock is the window of the companion at the clock's place.
BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  Search& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  RECT rect{};
  GetWindowRect(window, &rect);
  if (process != search.process || !IsWindowVisible(window) || rect.left != kX || rect.top != kY) return TRUE;
  search.found = window;
  return FALSE;
}

HWND ClockOf(const Companion& companion) {
  Search search{companion.ProcessId(), nullptr};
  EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

class ClockTest : public testing::Test {
 protected:
  void Start(int design) {
    SettingsChange(companion_)
        .Byte(kClockShowAt, 1)
        .Byte(kClockDesignAt, design)
        .Number(kClockXAt, kX)
        .Number(kClockYAt, kY);
    companion_.Start();
    ASSERT_TRUE(WaitFor([&] { return Clock() != nullptr; }));
  }
  HWND Clock() const { return ClockOf(companion_); }
  // Goes to a time, with the tick that sees it.
  void GoTo(int hour, int minute, int second = 0) {
    companion_.SetTime(hour, minute, second);
    companion_.Tick();
  }
  // Whether the clock's shape is that of a frame of its design.
  bool HasShapeOf(int chara, int frame) const {
    const std::wstring mask = L"Chara" + std::to_wstring(chara) + L"_" + std::to_wstring(frame) + L"x.bmp";
    return RegionDifference(companion_, Clock(), mask, 0, 0) == 0;
  }
  bool TickUntilShape(int frame) {
    for (int tick = 0; tick < 200; ++tick) {
      if (HasShapeOf(kDrum, frame)) return true;
      companion_.Tick();
    }
    return false;
  }
  // Whether a place of the dial is a hand's, once the screen shows what was drawn.
  static bool Hand(int x, int y, bool there = true) {
    return WaitFor([=] { return (ScreenPixels(kX + x, kY + y, 1, 1)[0] == kHand) == there; });
  }

  Companion companion_;
};

}  // namespace

TEST_F(ClockTest, EachDesignStandsOnTheDesktopInItsOwnShape) {
  for (int design = 0; design < 4; ++design) {
    Companion companion;
    SettingsChange(companion)
        .Byte(kClockShowAt, 1)
        .Byte(kClockDesignAt, design)
        .Number(kClockXAt, kX)
        .Number(kClockYAt, kY);
    companion.Start();
    ASSERT_TRUE(WaitFor([&] { return ClockOf(companion) != nullptr; })) << design;
    const std::wstring mask = L"Chara" + std::to_wstring(15 + design) + L"_1x.bmp";
    EXPECT_EQ(RegionDifference(companion, ClockOf(companion), mask, 0, 0), 0);
  }
}

TEST_F(ClockTest, ItsHandsStandWhereTheTimeSaysAndThePictureAroundThem) {
  Start(0);
  GoTo(6, 0);
  EXPECT_TRUE(Hand(kCentre, kCentre + 20)) << "the hour hand points down";
  EXPECT_TRUE(Hand(kCentre, kCentre - 35)) << "the minute hand up";
  EXPECT_TRUE(Hand(kCentre + 35, kCentre, false));
  GoTo(9, 15);
  EXPECT_TRUE(Hand(kCentre + 35, kCentre)) << "the minute hand points right";
  EXPECT_TRUE(Hand(kCentre, kCentre - 35, false)) << "and up no more";
}

// The second design stretches its arms: nearly every frame has a shape of its own.
TEST_F(ClockTest, TheHourStrikesWithItsFiguresAndEndsWithTheDial) {
  Start(1);
  GoTo(0, 59, 59);
  EXPECT_TRUE(HasShapeOf(kDrum, 1));
  EXPECT_FALSE(HasShapeOf(kDrum, 3));
  companion_.SetTime(1, 0, 0);
  for (int frame = 2; frame <= 8; ++frame) EXPECT_TRUE(TickUntilShape(frame)) << frame;
  EXPECT_TRUE(TickUntilShape(1));
  companion_.Tick(200);
  EXPECT_TRUE(HasShapeOf(kDrum, 1)) << "one o'clock strikes once";
}

TEST_F(ClockTest, AnAlarmSetThroughTheDialogRingsInItsMinuteAndOnlyOnce) {
  Start(0);
  GoTo(7, 28);
  companion_.Post(kAlarms);
  const HWND dialog = companion_.Dialog(L"時計アラーム設定");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowCount(dialog, IDC_ALARM_PERFORMANCE), 4);
  SetChecked(dialog, IDC_ALARM_ENABLE + 1, true);
  SelectListRow(dialog, IDC_ALARM_HOUR + 1, 7);
  SelectListRow(dialog, IDC_ALARM_MINUTE + 1, 30);
  SelectListRow(dialog, IDC_ALARM_PERFORMANCE + 1, 3);
  SetEdit(dialog, IDC_ALARM_COMMENT + 1, L"お茶の時間");
  EXPECT_TRUE(EndBy(dialog, IDOK));
  const std::vector<unsigned char> settings = ReadWholeFile(companion_.File(kSettings));
  ASSERT_EQ(settings.size(), 172720U);
  EXPECT_EQ(settings[171996 + 144], 1);
  EXPECT_EQ(settings[171996 + 144 + 1], 7);
  EXPECT_EQ(settings[171996 + 144 + 2], 30);
  EXPECT_EQ(settings[171996 + 144 + 4], 3);

  GoTo(7, 29, 59);
  companion_.Tick(50);
  EXPECT_FALSE(companion_.FindDialog(kNotice));
  GoTo(7, 30);
  const HWND notice = companion_.Dialog(kNotice);
  ASSERT_TRUE(notice);
  EXPECT_TRUE(EndBy(notice, IDOK));
  companion_.Tick(100);
  EXPECT_FALSE(companion_.FindDialog(kNotice));
  GoTo(7, 31);
  GoTo(7, 30);
  companion_.Tick(10);
  EXPECT_FALSE(companion_.FindDialog(kNotice)) << "it fired last";
}

TEST_F(ClockTest, AnEventFromTheListRunsInTheAlarmWindow) {
  Start(0);
  companion_.Post(kEvents);
  const HWND dialog = companion_.Dialog(L"時計イベント選択実行");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowCount(dialog, IDC_EVENT_LIST), 3);
  EXPECT_EQ(ListRowText(dialog, IDC_EVENT_LIST, 2), L"音のみ");
  SelectListRow(dialog, IDC_EVENT_LIST, 2);
  EXPECT_TRUE(EndBy(dialog, IDOK));
  const HWND notice = companion_.Dialog(kNotice);
  ASSERT_TRUE(notice);
  EXPECT_TRUE(EndBy(notice, IDOK));
}

TEST_F(ClockTest, TheClockIsChosenAndSetThroughItsDialogs) {
  Start(0);
  GoTo(3, 4, 5);
  companion_.Post(kSelect);
  const HWND dialog = companion_.Dialog(L"時計 選択/設定");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowCount(dialog, IDC_WATCH_DESIGNS), 4);
  SelectListRow(dialog, IDC_WATCH_DESIGNS, 3);
  const HWND adust = OpenBy(companion_, dialog, IDC_WATCH_ADUST, L"時計 詳細設定");
  ASSERT_TRUE(adust);
  SelectListRow(adust, IDC_ADUST_HOUR, 21);
  SelectListRow(adust, IDC_ADUST_MINUTE, 8);
  SelectListRow(adust, IDC_ADUST_SECOND, 0);
  PressButton(adust, IDC_ADUST_SET);
  const HWND check = OpenBy(companion_, adust, IDC_ADUST_CHECK, L"アラーム動作の確認");
  ASSERT_TRUE(check);
  companion_.Tick(40);
  EXPECT_TRUE(EndBy(check, IDCANCEL));
  PressButton(adust, IDC_ADUST_TWELVE);
  SetChecked(adust, IDC_ADUST_TWELVE, true);
  SetChecked(adust, IDC_ADUST_HOURLY, false);
  EXPECT_TRUE(EndBy(adust, IDOK));
  EXPECT_TRUE(EndBy(dialog, IDOK));
  ASSERT_TRUE(WaitFor([&] { return Clock() != nullptr && HasShapeOf(18, 1); }));
  EXPECT_EQ(SettingsNumber(companion_, 780), 2);
  EXPECT_EQ(ReadWholeFile(companion_.File(kSettings))[kClockDesignAt], 3);
}

TEST_F(ClockTest, ADayOfHoursLeavesNothingBehind) {
  Start(0);
  GoTo(0, 59);
  GoTo(1, 0);
  companion_.Tick(120);
  const std::vector<int> before = companion_.Live();
  for (int hour = 2; hour <= 25; ++hour) {
    GoTo((hour + 23) % 24, 59);
    GoTo(hour % 24, 0);
    companion_.Tick(30);
  }
  companion_.Tick(1200);
  std::vector<int> after = companion_.Live();
  EXPECT_EQ(after, before);
  EXPECT_EQ(companion_.Close(), 0);
}
