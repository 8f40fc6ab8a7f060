// The rates of the sample schedule and its map, with marks that come and go as lines get a
// status and a place.
#include <gtest/gtest.h>

#include "resources/schedule_rates_ids.h"
#include "tests/desktop/alone_on_the_desktop.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr unsigned kLoad = 2021;
constexpr unsigned kRates = 2342;
constexpr unsigned kPlaces = 2344;
constexpr unsigned kStatuses = 2345;
constexpr int kPickName = 100;
constexpr int kNumberX = 30;
constexpr int kAttempts = 4;
constexpr unsigned kPatience = 3000;
const std::wstring kTitle = L"スケジュール表";

// The cells of the sample's map, and where their marks have a colour of their own.
constexpr int kCellWidth = 88;
constexpr int kCellHeight = 92;
struct MarkSign {
  int x;
  int y;
  std::uint32_t colour;
};
constexpr MarkSign kDone{78, 24, 0xE2574C};
constexpr MarkSign kBegun{52, 24, 0xF4C65B};
constexpr MarkSign kPutOff{61, 20, 0xD7E6F4};

class RatesTest : public AloneOnTheDesktop {
 protected:
  void SetUp() override {
    AloneOnTheDesktop::SetUp();
    companion_.Post(kLoad);
    const HWND picker = companion_.Dialog(L"ファイルのロード");
    ASSERT_TRUE(picker);
    SetEdit(picker, kPickName, L"スケジュール表\\見本の予定.GPI");
    ASSERT_TRUE(EndBy(picker, IDOK));
    window_ = companion_.Dialog(kTitle);
    ASSERT_TRUE(window_);
  }
  HWND Open(unsigned command, const std::wstring& title) const {
    companion_.Post(command);
    return companion_.Dialog(title);
  }
  // Clicks the number of a row until it is selected, and opens a dialog for it.
  HWND OpenForRow(int row, unsigned command, const std::wstring& title) const {
    POINT at{kNumberX, 40 + 20 * row};
    ClientToScreen(window_, &at);
    const auto selected = [&] {
      return ScreenPixels(static_cast<int>(at.x) + 14, static_cast<int>(at.y) - 8, 1, 1).front() == 0x8080FF;
    };
    for (int attempt = 0; attempt < kAttempts && !selected(); ++attempt) {
      PointerTo(static_cast<int>(at.x), static_cast<int>(at.y));
      PointerClick();
      WaitFor(selected, kPatience);
    }
    EXPECT_TRUE(selected()) << row;
    return Open(command, title);
  }
  void OpenMap() {
    rates_ = Open(kRates, L"予定表 - 目標達成率表示");
    ASSERT_TRUE(rates_);
    map_ = OpenBy(companion_, rates_, IDC_RATE_MAP, L"予定表ステータス マップ表示");
    ASSERT_TRUE(map_);
  }
  void CloseMap() {
    EXPECT_TRUE(EndBy(map_, IDCANCEL));
    EXPECT_TRUE(EndBy(rates_, IDOK));
  }
  std::uint32_t MapPixel(int x, int y) const {
    POINT at{x, y};
    ClientToScreen(map_, &at);
    return ScreenPixels(static_cast<int>(at.x), static_cast<int>(at.y), 1, 1).front();
  }
  // In a cell, from 1.
  std::uint32_t SignPixel(const MarkSign& sign, int column, int row) const {
    return MapPixel((column - 1) * kCellWidth + sign.x, (row - 1) * kCellHeight + sign.y);
  }
  bool Shows(const MarkSign& sign, int column, int row) const {
    return WaitFor([&] { return SignPixel(sign, column, row) == sign.colour; }, 5000);
  }

  HWND window_ = nullptr;
  HWND rates_ = nullptr;
  HWND map_ = nullptr;
};

}  // namespace

TEST_F(RatesTest, TheSampleShowsItsRatesAndTheMarksOfItsLines) {
  OpenMap();
  // 13 of 64 hours are done.
  EXPECT_EQ(EditText(rates_, IDC_RATE_DONE), L"20.31％");
  EXPECT_TRUE(Shows(kDone, 9, 4)) << "the last line with a mark";
  EXPECT_TRUE(Shows(kDone, 5, 2));
  EXPECT_TRUE(Shows(kBegun, 8, 1));
  EXPECT_TRUE(Shows(kBegun, 4, 4)) << "beside a line that is done";
  EXPECT_TRUE(Shows(kPutOff, 2, 2));
  EXPECT_TRUE(Shows(kPutOff, 6, 5));
  EXPECT_NE(SignPixel(kDone, 7, 3), kDone.colour) << "an open line has none";
  EXPECT_EQ(MapPixel(2, 2), 0xE9DCB4U) << "the picture's edge";
  CloseMap();
}

TEST_F(RatesTest, AMarkComesWhenAllLinesOfAPlaceAreDoneAndGoesWithAnOpenOne) {
  HWND dialog = OpenForRow(7, kStatuses, L"予定表 ステータス設定");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowText(dialog, IDC_STATUS_LIST, 1), L"番号=  2    : 途中");
  SelectListRow(dialog, IDC_STATUS_LIST, 0);
  ASSERT_TRUE(EndBy(dialog, IDOK));
  OpenMap();
  EXPECT_TRUE(Shows(kDone, 7, 3));
  CloseMap();
  dialog = OpenForRow(12, kPlaces, L"マップ位置設定");
  ASSERT_TRUE(dialog);
  EXPECT_EQ(ListRowText(dialog, IDC_MAP_POSITIONS, 4), L"5 (横:7 縦:3) \"学校\"");
  SelectListRow(dialog, IDC_MAP_POSITIONS, 4);
  EXPECT_EQ(EditText(dialog, IDC_MAP_NAME), L"学校");
  ASSERT_TRUE(EndBy(dialog, IDOK));
  OpenMap();
  EXPECT_TRUE(Shows(kDone, 9, 4));
  EXPECT_NE(SignPixel(kDone, 7, 3), kDone.colour);
  CloseMap();
  PostMessageW(window_, WM_CLOSE, 0, 0);
  EXPECT_TRUE(WaitFor([&] { return companion_.FindDialog(kTitle) == nullptr; }))
      << "edits of lines ask nothing";
}
