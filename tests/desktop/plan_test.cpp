// A plan on the real desktop, with a real pointer and real keys: its lines typed in, its
// rests set on the sheet, saved, loaded, and turned into a schedule.
#include <gtest/gtest.h>

#include <cstring>

#include "resources/schedule_model_ids.h"
#include "resources/schedule_plan_ids.h"
#include "resources/schedule_table_ids.h"
#include "tests/desktop/alone_on_the_desktop.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr unsigned kPlan = 2025;
constexpr unsigned kStart = 2085;
constexpr unsigned kRests = 2088;
constexpr unsigned kConvert = 2089;
constexpr unsigned kTraining = 2218;
constexpr int kPickName = 100;
// Columns of the window at its first size, and its first row.
constexpr int kContentX = 200;
constexpr int kHoursX = 540;
constexpr int kRepeatX = 640;
constexpr int kFirstRowY = 250;
// A saved schedule.
constexpr std::size_t kCountAt = 17;
constexpr std::size_t kItemsAt = 275;
constexpr std::size_t kItemSize = 160;
constexpr std::size_t kStartIn = 2;
constexpr std::size_t kEndIn = 6;
constexpr std::size_t kHoursIn = 12;
constexpr std::size_t kTextIn = 32;
// A saved plan: Monday's first rest.
constexpr std::size_t kRestsAt = 173;
const std::wstring kTitle = L"学習作業スケジュール作成";
const std::wstring kTrainingTitle = L"筋トレ スケジュール作成";
const std::wstring kTable = L"スケジュール表";
const std::wstring kSheet = L"休憩時間設定";
const std::wstring kDate = L"開始年月日設定";
const std::wstring kPrepare = L"計画表からスケジュールへの変換準備";
const std::wstring kCloseAsked = L"計画表のセーブ確認";

class PlanTest : public AloneOnTheDesktop {
 protected:
  void Open(unsigned command = kPlan, const std::wstring& title = kTitle) {
    companion_.Send(command);
    window_ = companion_.Dialog(title);
    ASSERT_TRUE(window_);
  }
  bool Gone(const std::wstring& title) const {
    return WaitFor([&] { return companion_.FindDialog(title) == nullptr; });
  }
  HWND DoubleClick(int x, int row, const std::wstring& opens) const {
    POINT at{x, kFirstRowY + 20 * (row - 1)};
    ClientToScreen(window_, &at);
    PointerTo(static_cast<int>(at.x), static_cast<int>(at.y));
    PointerDoubleClick();
    return companion_.Dialog(opens);
  }
  // Types a text into the field of the dialog that a cell opens, and presses Enter.
  void TypeInto(int x, int row, const std::wstring& dialog, int field, const char* text) const {
    const HWND opened = DoubleClick(x, row, dialog);
    ASSERT_TRUE(opened);
    SendDlgItemMessageW(opened, field, EM_SETSEL, 0, -1);
    KeysType(text);
    KeyPress("Return");
    ASSERT_TRUE(Gone(dialog));
  }
  // Chooses a row of a list that is dropped down, as the dialog hears it.
  static void ChooseCombo(HWND dialog, int id, int row) {
    SendDlgItemMessageW(dialog, id, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
  }
  // Monday, 30 November 2026, 8 o'clock; the calendar of the data set has no holiday near.
  void SetStart() const {
    const HWND dialog = OpenBy(companion_, window_, IDC_PLAN_START, kDate);
    ASSERT_TRUE(dialog);
    SetEdit(dialog, IDC_SCL_YEAR, L"26");
    ChooseCombo(dialog, IDC_SCL_MONTH, 10);
    ChooseCombo(dialog, IDC_SCL_DAY, 29);
    ChooseCombo(dialog, IDC_SCL_HOUR, 8);
    ASSERT_TRUE(EndBy(dialog, IDOK));
  }
  // The page of the sheet that has that control.
  HWND Page(int id) const {
    struct Found {
      int id;
      HWND page;
    } found{id, nullptr};
    EnumChildWindows(
        companion_.FindDialog(kSheet),
        [](HWND child, LPARAM to) -> BOOL {
          auto* wanted = reinterpret_cast<Found*>(to);
          if (!GetDlgItem(child, wanted->id) || !IsWindowVisible(child)) return TRUE;
          wanted->page = child;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found.page;
  }
  std::vector<unsigned char> Save(HWND window, int button, const std::wstring& name) const {
    const HWND picker = OpenBy(companion_, window, button, L"ファイルの保存");
    EXPECT_TRUE(picker);
    SetEdit(picker, kPickName, name);
    EXPECT_TRUE(EndBy(picker, IDOK));
    std::vector<unsigned char> bytes;
    WaitFor([&] { return !(bytes = ReadWholeFile(companion_.File(name))).empty(); });
    return bytes;
  }
  // "23 8 - 23 12 = 4 a": the days, hours and text of an item of a saved schedule.
  static std::string ItemText(const std::vector<unsigned char>& bytes, std::size_t item) {
    const std::size_t at = kItemsAt + item * kItemSize;
    if (bytes.size() < at + kItemSize) return "none";
    const auto date = [&](std::size_t in) {
      return std::to_string(bytes[at + in + 2] + 1) + " " + std::to_string(bytes[at + in + 3]);
    };
    const std::string text = reinterpret_cast<const char*>(bytes.data()) + at + kTextIn;
    return date(kStartIn) + " - " + date(kEndIn) + " = " + std::to_string(bytes[at + kHoursIn]) +
           (text.empty() ? "" : " ") + text;
  }

  HWND window_ = nullptr;
};

}  // namespace

TEST_F(PlanTest, ALessonTypedInBecomesTheWorkedSchedule) {
  Open();
  SetStart();
  TypeInto(kContentX, 1, L"内容設定", IDC_SCL_TEXT, "a");
  TypeInto(kHoursX, 1, L"学習時間設定", IDC_SCL_HOURS, "5");
  TypeInto(kRepeatX, 1, L"復習回数", IDC_SCP_REPEAT, "2");
  PostButton(window_, IDC_PLAN_CONVERT);
  EXPECT_EQ(AnswerBox(companion_, kPrepare),
            L"計画表を終了してスケジュール表を表示します !! その前に変更された計画表をセーブしますか?");
  EXPECT_EQ(AnswerBox(companion_, kCloseAsked, IDCANCEL),
            L"計画表が変更されています。 計画表をセーブしますか?");
  // The plan is saved behind the conversion.
  const HWND picker = companion_.Dialog(L"ファイルの保存");
  ASSERT_TRUE(picker);
  SetEdit(picker, kPickName, L"lesson");
  ASSERT_TRUE(EndBy(picker, IDOK));
  const HWND table = companion_.Dialog(kTable);
  ASSERT_TRUE(table);
  EXPECT_TRUE(Gone(kTitle));
  EXPECT_FALSE(ReadWholeFile(companion_.File(L"lesson.GPP")).empty());
  const std::vector<unsigned char> bytes = Save(table, IDC_SCL_SAVE, L"lesson.GPI");
  ASSERT_EQ(GetBig(bytes, kCountAt), 11U);
  const char* const kItems[] = {
      "30 8 - 30 12 = 4 a", "30 12 - 30 13 = 1 月曜日 - 休憩1", "30 13 - 30 14 = 1 a", "30 14 - 2 8 = 22",
      "2 8 - 2 12 = 4 a",   "2 12 - 2 13 = 1 水曜日 - 休憩1",   "2 13 - 2 14 = 1 a",   "2 14 - 9 8 = 92",
      "9 8 - 9 12 = 4 a",   "9 12 - 9 13 = 1 水曜日 - 休憩1",   "9 13 - 9 14 = 1 a",
  };
  for (std::size_t i = 0; i < std::size(kItems); ++i) EXPECT_EQ(ItemText(bytes, i), kItems[i]) << i;
}

TEST_F(PlanTest, RestsSetOnTheSheetBreakTheLesson) {
  Open();
  SetStart();
  const HWND sheet = OpenBy(companion_, window_, IDC_PLAN_RESTS, kSheet);
  ASSERT_TRUE(sheet);
  HWND page = nullptr;
  ASSERT_TRUE(WaitFor([&] { return (page = Page(IDC_SCP_REST_START_FIRST)) != nullptr; }));
  // Monday's first rest: from 10 on, two hours.
  ChooseCombo(page, IDC_SCP_REST_START_FIRST, 10);
  SetEdit(page, IDC_SCP_REST_LENGTH_FIRST, L"2");
  ASSERT_TRUE(EndBy(sheet, IDOK));
  TypeInto(kContentX, 1, L"内容設定", IDC_SCL_TEXT, "b");
  TypeInto(kHoursX, 1, L"学習時間設定", IDC_SCL_HOURS, "4");
  TypeInto(kRepeatX, 1, L"復習回数", IDC_SCP_REPEAT, "0");
  const std::vector<unsigned char> plan = Save(window_, IDC_PLAN_SAVE, L"rests.GPP");
  EXPECT_EQ(GetBig(plan, kRestsAt), 10U);
  EXPECT_EQ(GetBig(plan, kRestsAt + 4), 13U);  // the end stays what it was
  EXPECT_EQ(GetBig(plan, kRestsAt + 8), 2U);
  PostButton(window_, IDC_PLAN_CONVERT);
  EXPECT_EQ(AnswerBox(companion_, kPrepare), L"計画表を終了してスケジュール表を表示します !!");
  const HWND table = companion_.Dialog(kTable);
  ASSERT_TRUE(table);
  const std::vector<unsigned char> bytes = Save(table, IDC_SCL_SAVE, L"rests.GPI");
  ASSERT_EQ(GetBig(bytes, kCountAt), 3U);
  EXPECT_EQ(ItemText(bytes, 0), "30 8 - 30 10 = 2 b");
  EXPECT_EQ(ItemText(bytes, 1), "30 10 - 30 12 = 2 月曜日 - 休憩1");
  EXPECT_EQ(ItemText(bytes, 2), "30 12 - 30 14 = 2 b");
}

TEST_F(PlanTest, ASampleOfTheDataSetIsLoadedAndATrainingPlanHasItsForm) {
  Open();
  const HWND picker = OpenBy(companion_, window_, IDC_PLAN_LOAD, L"ファイルのロード");
  ASSERT_TRUE(picker);
  SetEdit(picker, kPickName, L"計画表\\筋トレ計画.GPP");
  ASSERT_TRUE(EndBy(picker, IDOK));
  EXPECT_TRUE(WaitFor([&] { return EditText(window_, IDC_PLAN_TITLE) == L"筋トレ計画の見本"; }));
  const HWND load = DoubleClick(kHoursX, 2, L"負荷・時間設定");
  ASSERT_TRUE(load);
  EXPECT_EQ(ListRowText(load, IDC_SCP_LOAD, 1), L"中くらい=70%～84%");
  ASSERT_TRUE(EndBy(load, IDCANCEL));
  PostMessageW(window_, WM_CLOSE, 0, 0);
  EXPECT_TRUE(Gone(kTitle));
  Open(kTraining, kTrainingTitle);
  EXPECT_EQ(EditText(window_, IDC_PLAN_TITLE), L"Plan to Train");
  ASSERT_TRUE(GetDlgItem(window_, IDC_PLAN_RECOVERY));
}

TEST_F(PlanTest, OddPathsLeaveNothingOpen) {
  Open();
  // A second command while the window is open, for the other kind too.
  companion_.Send(kPlan);
  companion_.Send(kTraining);
  EXPECT_EQ(companion_.FindDialog(kTrainingTitle), nullptr);
  // Escape and Alt+F4 end an editor; a command meanwhile opens no second one.
  companion_.Post(kStart);
  ASSERT_TRUE(companion_.Dialog(kDate));
  companion_.Send(kRests);
  companion_.Send(kConvert);
  EXPECT_EQ(companion_.FindDialog(kSheet), nullptr);
  EXPECT_EQ(companion_.FindDialog(kPrepare), nullptr);
  KeyPress("Escape");
  ASSERT_TRUE(Gone(kDate));
  companion_.Post(kStart);
  const HWND date = companion_.Dialog(kDate);
  ASSERT_TRUE(date);
  PostMessageW(date, WM_SYSCOMMAND, SC_CLOSE, 0);
  ASSERT_TRUE(Gone(kDate));
  // The sheet keeps all else closed too, and Escape leaves it.
  companion_.Post(kRests);
  ASSERT_TRUE(companion_.Dialog(kSheet));
  companion_.Send(kStart);
  EXPECT_EQ(companion_.FindDialog(kDate), nullptr);
  KeyPress("Escape");
  ASSERT_TRUE(Gone(kSheet));
  // Nothing was confirmed: the window closes without a question.
  PostMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_TRUE(Gone(kTitle));
  // Without the window the commands do nothing.
  companion_.Send(kStart);
  companion_.Send(kConvert);
  EXPECT_EQ(companion_.FindDialog(kDate), nullptr);
}

TEST_F(PlanTest, AChangedPlanAsksWhenItIsClosed) {
  Open();
  TypeInto(kRepeatX, 1, L"復習回数", IDC_SCP_REPEAT, "3");
  PostMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_EQ(AnswerBox(companion_, kCloseAsked, IDCANCEL),
            L"計画表が変更されています。 計画表をセーブしますか?");
  EXPECT_TRUE(Gone(kTitle));
  EXPECT_EQ(companion_.FindDialog(kTable), nullptr);
}
