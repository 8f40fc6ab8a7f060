// A schedule on the real desktop, with a real pointer and real keys: typed in, saved,
// loaded, announced, and scrolled.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "resources/schedule_model_ids.h"
#include "resources/schedule_table_ids.h"
#include "tests/desktop/alone_on_the_desktop.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr unsigned kNew = 2017;
constexpr unsigned kLoad = 2021;
constexpr int kBar = 100;
constexpr int kPickName = 100;
// Columns of the window at its first size, and its first row.
constexpr int kNumberX = 30;
constexpr int kContentX = 300;
constexpr int kHoursX = 600;
constexpr int kCheckX = 700;
constexpr int kAlarmX = 750;
// The file.
constexpr std::size_t kCountAt = 17;
constexpr std::size_t kItemsAt = 275;
constexpr std::size_t kItemSize = 160;
constexpr std::size_t kHoursIn = 12;
constexpr std::size_t kDoneIn = 16;
constexpr std::size_t kTextIn = 32;
// The display may still be busy with a window that comes or goes, and take the click for it;
// a user clicks again.
constexpr int kAttempts = 4;
constexpr unsigned kPatience = 3000;
const std::wstring kTitle = L"スケジュール表";
const std::wstring kContent = L"内容設定";
const std::wstring kHours = L"予想時間設定";

class ScheduleTest : public AloneOnTheDesktop {
 protected:
  void Open() {
    companion_.Send(kNew);
    window_ = companion_.Dialog(kTitle);
    ASSERT_TRUE(window_);
  }
  void Load(const std::wstring& name) {
    companion_.Post(kLoad);
    const HWND picker = companion_.Dialog(L"ファイルのロード");
    ASSERT_TRUE(picker);
    SetEdit(picker, kPickName, name);
    ASSERT_TRUE(EndBy(picker, IDOK));
    window_ = companion_.Dialog(kTitle);
    ASSERT_TRUE(window_);
  }
  bool Closed() const {
    return WaitFor([&] { return companion_.FindDialog(kTitle) == nullptr; });
  }

  // Puts the pointer over a place of the window; over the middle of a cell of a row.
  void Point(int x, int y) const {
    POINT at{x, y};
    ClientToScreen(window_, &at);
    PointerTo(static_cast<int>(at.x), static_cast<int>(at.y));
  }
  void PointRow(int x, int row) const { Point(x, 40 + 20 * row); }
  void Click(int x, int row) const {
    PointRow(x, row);
    PointerClick();
  }
  HWND DoubleClick(int x, int row, const std::wstring& opens) const {
    HWND dialog = nullptr;
    for (int attempt = 0; attempt < kAttempts && !dialog; ++attempt) {
      PointRow(x, row);
      PointerDoubleClick();
      dialog = companion_.Dialog(opens, kPatience);
    }
    return dialog;
  }
  bool DialogGone(const std::wstring& title) const {
    return WaitFor([&] { return companion_.FindDialog(title) == nullptr; });
  }
  // Types a text into the field of the dialog that a cell opens, and presses Enter.
  void TypeInto(int x, int row, const std::wstring& dialog, const char* text) const {
    const HWND opened = DoubleClick(x, row, dialog);
    ASSERT_TRUE(opened);
    SendDlgItemMessageW(opened, IDC_SCL_TEXT, EM_SETSEL, 0, -1);
    TypeWhole(opened, text);
    KeyPress("Return");
    ASSERT_TRUE(DialogGone(dialog));
  }
  // Types a text into the field of a dialog and waits until it stands there.
  static void TypeWhole(HWND dialog, const char* text) {
    KeysType(text);
    const std::wstring wanted(text, text + std::strlen(text));
    EXPECT_TRUE(WaitFor([&] { return EditText(dialog, IDC_SCL_TEXT) == wanted; }, 5000))
        << text << ": a key was lost";
  }
  // Double clicks an empty cell and waits until something stands in it.
  void Turn(int x, int row) const {
    POINT at{x - 20, 40 + 20 * row - 7};
    ClientToScreen(window_, &at);
    const auto stands = [&] {
      const auto pixels = ScreenPixels(static_cast<int>(at.x), static_cast<int>(at.y), 40, 14);
      return std::count(pixels.begin(), pixels.end(), 0U) > 4;
    };
    bool turned = false;
    for (int attempt = 0; attempt < kAttempts && !turned; ++attempt) {
      PointRow(x, row);
      PointerDoubleClick();
      turned = WaitFor(stands, kPatience);
    }
    EXPECT_TRUE(turned) << x;
  }
  std::vector<unsigned char> SaveAs(const std::wstring& name) const {
    const HWND picker = OpenBy(companion_, window_, IDC_SCL_SAVE, L"ファイルの保存");
    EXPECT_TRUE(picker);
    SetEdit(picker, kPickName, name);
    EXPECT_TRUE(EndBy(picker, IDOK));
    std::vector<unsigned char> bytes;
    WaitFor([&] { return !(bytes = ReadWholeFile(companion_.File(name + L".GPI"))).empty(); });
    return bytes;
  }
  static std::string TextOfItem(const std::vector<unsigned char>& bytes, std::size_t item) {
    const std::size_t at = kItemsAt + item * kItemSize + kTextIn;
    return bytes.size() > at ? reinterpret_cast<const char*>(bytes.data()) + at : "";
  }
  static int ByteOfItem(const std::vector<unsigned char>& bytes, std::size_t item, std::size_t in) {
    const std::size_t at = kItemsAt + item * kItemSize + in;
    return bytes.size() > at ? bytes[at] : -1;
  }
  // A file of so many lines of an hour, made from one that the program has saved.
  void PutLines(const std::wstring& name, std::size_t count) const {
    std::vector<unsigned char> bytes = SaveAs(L"empty");
    ASSERT_GE(bytes.size(), kItemsAt + kItemSize);
    bytes.resize(kItemsAt + kItemSize);
    const std::vector<unsigned char> line(bytes.begin() + kItemsAt, bytes.end());
    bytes.resize(kItemsAt);
    PutBig(bytes, kCountAt, static_cast<std::uint32_t>(count));
    for (std::size_t i = 0; i < count; ++i) {
      bytes.insert(bytes.end(), line.begin(), line.end());
      bytes[kItemsAt + i * kItemSize + kHoursIn] = 1;
      const std::string text = std::to_string(i + 1);
      std::memcpy(bytes.data() + kItemsAt + i * kItemSize + kTextIn, text.c_str(), text.size() + 1);
    }
    WriteWholeFile(companion_.File(name), bytes);
  }
  static bool MenuIsUp() {
    const HWND menu = FindWindowW(L"#32768", nullptr);
    return menu && IsWindowVisible(menu);
  }
  // The menu of the rows. The focus that comes back from a dialog a moment after its end
  // would end it too, and the key that is meant for it would go elsewhere: so it has to stay.
  bool OpenMenu() const {
    bool stays = false;
    for (int attempt = 0; attempt < kAttempts && !stays; ++attempt) {
      PostMessageW(window_, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(kNumberX, 80));
      stays = WaitFor([] { return MenuIsUp(); }) && !WaitFor([] { return !MenuIsUp(); }, 300);
    }
    return stays;
  }
  int BarPosition() const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    GetScrollInfo(GetDlgItem(window_, kBar), SB_CTL, &info);
    return info.nPos;
  }
  bool Stands(int position) const {
    return WaitFor([&] { return BarPosition() == position; }, 5000);
  }

  HWND window_ = nullptr;
};

}  // namespace

TEST_F(ScheduleTest, AScheduleIsTypedInSavedClosedLoadedAndAnnouncedAtItsTime) {
  Open();
  TypeInto(kContentX, 1, kContent, "packing");
  TypeInto(kHoursX, 1, kHours, "3");
  TypeInto(kContentX, 2, kContent, "journey");
  TypeInto(kHoursX, 2, kHours, "12");
  Turn(kAlarmX, 1);
  Turn(kCheckX, 2);
  const std::vector<unsigned char> bytes = SaveAs(L"plan");
  EXPECT_EQ(ByteOfItem(bytes, 1, kDoneIn), 1);
  EXPECT_EQ(bytes.size(), kItemsAt + 31 * kItemSize);
  EXPECT_EQ(TextOfItem(bytes, 0), "packing");
  EXPECT_EQ(ByteOfItem(bytes, 0, kHoursIn), 3);
  EXPECT_EQ(ByteOfItem(bytes, 0, 0), 1) << "its alarm";
  EXPECT_EQ(ByteOfItem(bytes, 0, 5), 8) << "it starts at eight";
  EXPECT_EQ(ByteOfItem(bytes, 0, 9), 11) << "and ends at eleven";
  EXPECT_EQ(TextOfItem(bytes, 1), "journey");
  EXPECT_EQ(ByteOfItem(bytes, 1, kHoursIn), 12);
  PostMessageW(window_, WM_CLOSE, 0, 0);
  ASSERT_TRUE(Closed()) << "saved, it asks nothing";
  Load(L"plan.GPI");
  PressButton(window_, IDC_SCL_OVERWRITE);
  EXPECT_EQ(ReadWholeFile(companion_.File(L"plan.GPI")), bytes) << "it comes back as it was";
  companion_.SetTime(9, 30, 0);
  PostButton(window_, IDC_SCL_EXECUTE);
  EXPECT_EQ(AnswerBox(companion_, L"実行スケジュールの指定"),
            L"表示中スケジュールを実行指定します。(設定アラームが有効になります)");
  const HWND notice = companion_.Dialog(L"ミルレール");
  ASSERT_TRUE(notice) << "the line that has begun is announced at once";
  EXPECT_TRUE((GetWindowLongW(notice, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0);
  EXPECT_TRUE(EndBy(notice, IDCANCEL));
  companion_.Tick(20);
  EXPECT_EQ(companion_.FindDialog(L"ミルレール"), nullptr) << "and once";
  PostMessageW(window_, WM_CLOSE, 0, 0);
  EXPECT_EQ(AnswerBox(companion_, L"スケジュールのセーブ確認", IDCANCEL),
            L"スケジュールが変更されています。セーブしますか?");
  EXPECT_TRUE(Closed());
}

TEST_F(ScheduleTest, ThousandRowsAreScrolledByWheelKeysAndThumb) {
  Open();
  PutLines(L"long.GPI", 1000);
  Load(L"long.GPI");
  ASSERT_TRUE(Stands(0));
  Click(kNumberX, 3);
  PointerWheel(-2);
  EXPECT_TRUE(Stands(6));
  PointerWheel(1);
  EXPECT_TRUE(Stands(3));
  KeyPress("Down");
  EXPECT_TRUE(Stands(4));
  KeyPress("Next");
  EXPECT_TRUE(Stands(14));
  KeyPress("Prior");
  EXPECT_TRUE(Stands(4));
  KeyPress("Up");
  EXPECT_TRUE(Stands(3));
  KeyPress("Home");
  EXPECT_TRUE(Stands(0));
  KeyPress("End");
  EXPECT_TRUE(WaitFor([&] { return BarPosition() >= 970; }, 5000));
  KeyPress("Home");
  EXPECT_TRUE(Stands(0));
  // The thumb stands below the upper arrow.
  RECT bar{};
  GetWindowRect(GetDlgItem(window_, kBar), &bar);
  const int x = static_cast<int>(bar.left + bar.right) / 2;
  PointerTo(x, static_cast<int>(bar.top) + 20);
  PointerHold(true);
  PointerTo(x, static_cast<int>(bar.top) + 100);
  PointerTo(x, static_cast<int>(bar.top + bar.bottom) / 2);
  PointerHold(false);
  EXPECT_TRUE(WaitFor([&] { return BarPosition() > 300 && BarPosition() < 700; }, 5000)) << BarPosition();
  // A drag past the lower edge goes on by itself.
  KeyPress("Home");
  EXPECT_TRUE(Stands(0));
  PointRow(kNumberX, 19);
  PointerHold(true);
  Point(kNumberX, 480);
  EXPECT_TRUE(WaitFor([&] { return BarPosition() >= 4; }, 10000)) << BarPosition();
  PointerHold(false);
  SaveAs(L"after");
  PostMessageW(window_, WM_CLOSE, 0, 0);
  EXPECT_TRUE(Closed());
}

TEST_F(ScheduleTest, EscapeEnterFocusAndASecondCommandWhileADialogIsOpen) {
  Open();
  HWND dialog = DoubleClick(kContentX, 1, kContent);
  ASSERT_TRUE(dialog);
  KeysType("lost");
  KeyPress("Escape");
  ASSERT_TRUE(DialogGone(kContent));
  dialog = DoubleClick(kContentX, 2, kContent);
  ASSERT_TRUE(dialog);
  companion_.Send(kNew);
  companion_.Post(kLoad);
  companion_.Tick(3);
  EXPECT_EQ(companion_.FindDialog(L"ファイルのロード"), nullptr);
  EXPECT_FALSE(IsWindowEnabled(window_));
  SendDlgItemMessageW(dialog, IDC_SCL_TEXT, EM_SETSEL, 0, -1);
  TypeWhole(dialog, "kept");
  KeyPress("Return");
  ASSERT_TRUE(DialogGone(kContent));
  EXPECT_TRUE(IsWindowEnabled(window_));
  // The menu of the rows, left by Escape.
  ASSERT_TRUE(OpenMenu());
  KeyPress("Escape");
  ASSERT_TRUE(WaitFor([] { return !MenuIsUp(); }));
  const std::vector<unsigned char> bytes = SaveAs(L"odd");
  EXPECT_EQ(TextOfItem(bytes, 0), "");
  EXPECT_EQ(TextOfItem(bytes, 1), "kept");
  EXPECT_EQ(bytes.size(), kItemsAt + 31 * kItemSize);
  Click(kNumberX, 2);
  KeyPress("alt+F4");
  EXPECT_TRUE(Closed());
  EXPECT_TRUE(companion_.Runs());
}
