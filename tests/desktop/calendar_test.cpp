// The calendar on the desktop of the real program.
#include <gtest/gtest.h>

#include "clock_calendar/calendar/calendar_records.h"
#include "resources/calendar_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr unsigned kSettingsDialog = 2276;
constexpr unsigned kLayout = 2283;
constexpr int kOk = 1;
constexpr int kCancel = 2;
const std::wstring kChoice = L"カレンダー 選択/設定";
const std::wstring kEdit = L"カレンダー 詳細設定";

constexpr int kCalenX = 900;
constexpr int kCalenY = 40;
// Offsets in the settings file.
constexpr std::size_t kNoteModeAt = 170394;
constexpr std::size_t kCalenFirstYearAt = 2174;
constexpr std::size_t kMonthsAt = 2190;
constexpr std::size_t kMonthSize = 4672;
constexpr std::size_t kNotesAt = 34;

// The desktop calendar is the one visible window of the companion without a title that
// stands at its place.
struct Find {
  DWORD process;
  HWND found;
};
BOOL CALLBACK Look(HWND window, LPARAM context) {
  Find* find = reinterpret_cast<Find*>(context);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  RECT at{};
  GetWindowRect(window, &at);
  if (process == find->process && IsWindowVisible(window) && TextOf(window).empty() && at.left == kCalenX &&
      at.top == kCalenY)
    find->found = window;
  return TRUE;
}

class CalendarTest : public testing::Test {
 protected:
  // The calendars begin with the year of the machine, which the data set was made in.
  void Start(int noteMode = 0) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    month_ = now.wMonth - 1;
    day_ = now.wDay;
    SettingsChange(companion_)
        .Number(kCalenXAt, kCalenX)
        .Number(kCalenYAt, kCalenY)
        .Number(kCalenFirstYearAt, now.wYear - 2000)
        .Byte(kCalenShowAt, 1)
        .Number(kNoteModeAt, noteMode);
    PointerAway();
    companion_.Start();
  }
  HWND Window() const {
    Find find{companion_.ProcessId(), nullptr};
    EnumWindows(Look, reinterpret_cast<LPARAM>(&find));
    return find.found;
  }
  static std::vector<std::uint32_t> Shot(int height) { return ScreenPixels(kCalenX, kCalenY, 200, height); }
  std::string SavedNote(int day) const {
    const std::vector<unsigned char> bytes = ReadWholeFile(companion_.File(kSettings));
    const std::size_t at = kMonthsAt + static_cast<std::size_t>(month_) * kMonthSize + kNotesAt +
                           static_cast<std::size_t>(day - 1) * 128;
    return reinterpret_cast<const char*>(&bytes.at(at));
  }
  int SavedSticker() const {
    const std::vector<unsigned char> bytes = ReadWholeFile(companion_.File(L"mirrell_calen_file.dcd"));
    const std::size_t definition = 3986 + 3 * (56064 + 120);
    return bytes.at(definition + 26301 + static_cast<std::size_t>(month_) * 32 +
                    static_cast<std::size_t>(day_) - 1);
  }
  // Opens the editing dialog, and ends it with the choice.
  HWND Edit() {
    companion_.Post(kSettingsDialog);
    choice_ = companion_.Dialog(kChoice);
    return choice_ ? OpenBy(companion_, choice_, IDC_SEL_EDIT, kEdit) : nullptr;
  }
  bool EditEnd(HWND edit) { return EndBy(edit, kOk) && EndBy(choice_, kOk); }

  // Ticks until the pixels of the calendar are others.
  bool Changes(int height, int ticks) {
    const std::vector<std::uint32_t> before = Shot(height);
    for (int i = 0; i < ticks; ++i) {
      companion_.Tick();
      if (i % 10 == 9 && Shot(height) != before) return true;
    }
    return WaitFor([&] { return Shot(height) != before; });
  }

  Companion companion_;
  HWND choice_ = nullptr;
  int month_ = 0;
  int day_ = 0;
};

TEST_F(CalendarTest, ItStandsWhereTheSettingsPutItWithItsPageAndPicture) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  RECT at{};
  GetWindowRect(Window(), &at);
  EXPECT_EQ(at.right - at.left, 200);
  EXPECT_EQ(at.bottom - at.top, 195 + 8 * 16 + 24 + 20);
  // It is dragged nowhere.
  PointerTo(kCalenX + 60, kCalenY + 60);
  PointerClick();
  RECT after{};
  GetWindowRect(Window(), &after);
  EXPECT_TRUE(EqualRect(&at, &after));
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(CalendarTest, ItsFiguresMove) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  EXPECT_TRUE(Changes(195, 60)) << "a figure steps every 50 ticks";
  EXPECT_TRUE(Changes(195, 60));
}

TEST_F(CalendarTest, ItsTickerRuns) {
  Start();
  const HWND edit = Edit();
  ASSERT_NE(edit, nullptr);
  SetEdit(edit, IDC_CALEN_DAY_NOTE, L"カレンダーの流れる字");
  ASSERT_TRUE(EndBy(edit, kOk));
  // The calendar of the week has a ticker, at the foot of its picture.
  SelectListRow(choice_, IDC_SEL_LIST, 1);
  PressButton(choice_, IDC_SEL_LOAD);
  ASSERT_TRUE(EndBy(choice_, kOk));
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  const auto strip = [] { return ScreenPixels(kCalenX, kCalenY + 175, 200, 20); };
  std::vector<std::uint32_t> before = strip();
  for (int look = 0; look < 4; ++look) {
    for (int i = 0; i < 5; ++i) companion_.Tick();
    EXPECT_TRUE(WaitFor([&] { return strip() != before; })) << look;
    before = strip();
  }
}

// The week page is painted by a press of its button, which makes the button anew; and then
// there is nothing more to paint.
TEST_F(CalendarTest, ThePageIsTurnedByItsButtonsAndComesToRest) {
  Start();
  ASSERT_NE(Edit(), nullptr);
  ASSERT_TRUE(EndBy(companion_.FindDialog(kEdit), kOk));
  SelectListRow(choice_, IDC_SEL_LIST, 1);
  PressButton(choice_, IDC_SEL_LOAD);
  ASSERT_TRUE(EndBy(choice_, kOk));
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  const auto page = [] { return ScreenPixels(kCalenX, kCalenY + 195 + 20, 200, 126); };
  const std::vector<std::uint32_t> before = page();
  for (const int x : {140, 172}) {  // a week back and on again
    const std::vector<std::uint32_t> now = page();
    PointerTo(kCalenX + x, kCalenY + 195 + 9);
    PointerClick();
    EXPECT_TRUE(WaitFor([&] { return page() != now; })) << x;
    PointerAway();
  }
  EXPECT_TRUE(WaitFor([&] { return page() == before; }));
  EXPECT_TRUE(WaitFor([&] { return GetUpdateRect(Window(), nullptr, FALSE) == 0; }));
  EXPECT_EQ(companion_.Close(), 0);
}

// The note of today is written by the popup's dialog while nothing is announced; with the
// announcing switched on it is told.
TEST_F(CalendarTest, ANoteWrittenThroughTheMemoDialogIsAnnounced) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  // Today's cell: 28 by 18 from (2, 36) below the picture.
  SYSTEMTIME first{};
  GetLocalTime(&first);
  const int column = (first.wDayOfWeek - (first.wDay - 1) % 7 + 7) % 7;
  const int place = column + day_ - 1;
  const LPARAM at = MAKELPARAM(2 + place % 7 * 28 + 10, 195 + 36 + place / 7 * 18 + 8);
  PostMessageW(Window(), WM_RBUTTONDOWN, MK_RBUTTON, at);
  ASSERT_TRUE(WaitFor([] { return FindWindowW(L"#32768", nullptr) != nullptr; }));
  KeyPress("Down");
  KeyPress("Down");
  KeyPress("Return");
  const HWND note = companion_.Dialog(L"カレンダー書き込み");
  ASSERT_NE(note, nullptr);
  SetEdit(note, IDC_CALEN_NOTE, L"歯医者へ行く");
  ASSERT_TRUE(EndBy(note, kOk));
  EXPECT_EQ(SavedNote(day_), "歯医者へ行く");
  EXPECT_EQ(companion_.FindDialog(L"ミルレール"), nullptr) << "nothing is announced yet";
  const HWND edit = Edit();
  ASSERT_NE(edit, nullptr);
  SendDlgItemMessageW(edit, IDC_CALEN_NOTE_MODE, CB_SETCURSEL, 1, 0);
  PostButton(edit, kOk);
  // The notice bears the companion's name, and has a button.
  const auto announced = [&] {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, L"#32770", L"ミルレール")) != nullptr) {
      DWORD process = 0;
      GetWindowThreadProcessId(found, &process);
      if (process == companion_.ProcessId() && IsWindowVisible(found)) return true;
    }
    return false;
  };
  EndBy(choice_, kOk);
  EXPECT_TRUE(TickUntil(companion_, announced));
}

// By the pointer itself: the panel grows out of the foot of the page, and its box closes it.
TEST_F(CalendarTest, ADoubleClickOpensTheMemoPanel) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  const auto below = [&] {
    RECT at{};
    GetWindowRect(Window(), &at);
    return static_cast<int>(at.bottom - at.top) - (195 + 8 * 16 + 24);
  };
  EXPECT_EQ(below(), 20);
  PointerTo(kCalenX + 2 + 3 * 28 + 10, kCalenY + 195 + 36 + 18 + 8);
  PointerClick();
  PointerClick();
  EXPECT_TRUE(WaitFor([&] { return below() == 140; }));
  PointerTo(kCalenX + 190, kCalenY + 195 + 8 * 16 + 24 - 30 + 8);
  PointerClick();
  EXPECT_TRUE(WaitFor([&] { return below() == 20; }));
  PointerAway();
}

TEST_F(CalendarTest, AStickerIsSetAndTakenOff) {
  Start();
  HWND edit = Edit();
  ASSERT_NE(edit, nullptr);
  HWND stickers = OpenBy(companion_, edit, IDC_CALEN_STICKER, L"カレンダーにシールを貼る");
  ASSERT_NE(stickers, nullptr);
  SendMessageW(stickers, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5 + 3 * 41 + 10, 5 + 47 + 10));
  ASSERT_TRUE(EndBy(stickers, kOk));
  ASSERT_TRUE(EditEnd(edit));
  EXPECT_EQ(SavedSticker(), 14);
  edit = Edit();
  ASSERT_NE(edit, nullptr);
  stickers = OpenBy(companion_, edit, IDC_CALEN_STICKER, L"カレンダーにシールを貼る");
  ASSERT_NE(stickers, nullptr);
  ASSERT_TRUE(EndBy(stickers, IDC_STICKER_OFF));
  ASSERT_TRUE(EditEnd(edit));
  EXPECT_EQ(SavedSticker(), 0);
}

// The image of the screen stands at (10, 34) of the dialog, everything divided by its
// divisor: the calendar's white box with its black edge.
TEST_F(CalendarTest, TheLayoutDialogShowsItWhereItStands) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  companion_.Post(kLayout);
  const HWND layout = companion_.Dialog(L"レイアウト設定");
  ASSERT_NE(layout, nullptr);
  const int div = GetSystemMetrics(SM_CYFULLSCREEN) / 4 > 240 ? 5 : 4;
  POINT corner{10 + kCalenX / div, 34 + kCalenY / div};
  ClientToScreen(layout, &corner);
  const int width = 200 / div;
  const int height = (195 + 8 * 16 + 24 + 20) / div;
  EXPECT_TRUE(WaitFor([&] {
    const std::vector<std::uint32_t> edge = ScreenPixels(corner.x, corner.y, width, 1);
    const std::vector<std::uint32_t> side = ScreenPixels(corner.x, corner.y, 1, height);
    const auto black = [](const std::vector<std::uint32_t>& line) {
      for (const std::uint32_t pixel : line) {
        if (pixel != 0) return false;
      }
      return true;
    };
    return black(edge) && black(side);
  }));
  EXPECT_TRUE(EndBy(layout, kCancel));
}

// A list of holidays is taken into the calendar file while the program runs.
TEST_F(CalendarTest, AHolidaySetInTheCalendarFileReachesTheProgram) {
  Start();
  std::vector<unsigned char> file = ReadWholeFile(companion_.File(L"mirrell_calen_file.dcd"));
  const std::size_t month = 3986 + static_cast<std::size_t>(month_) * kMonthSize;
  const std::string name = "holiday";
  std::copy(name.begin(), name.end(), file.begin() + static_cast<std::ptrdiff_t>(month + kNotesAt + 2 * 128));
  Sleep(1100);  // the time of a file is told in seconds
  WriteWholeFile(companion_.File(L"mirrell_calen_file.dcd"), file);
  EXPECT_TRUE(TickUntil(companion_, [&] { return SavedNote(3) == "holiday"; }));
}

TEST_F(CalendarTest, TheCountsAreFlatWhileItMovesAndIsPainted) {
  Start();
  ASSERT_TRUE(WaitFor([&] { return Window() != nullptr; }));
  companion_.Tick(100);
  const std::vector<int> before = companion_.Live();
  companion_.Tick(500);
  EXPECT_EQ(companion_.Live(), before);
  EXPECT_EQ(companion_.Close(), 0);
}

}  // namespace
