// The tool menu panel of the real program, opened and left by the real pointer.
#include <gtest/gtest.h>

#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr int kInside = -1;  // the closing count once the pointer has been in the panel
constexpr int kPanelWidth = 200;

// The panel's window: the only one of the class of dialogs that is that wide, has no
// title and shows. The clock and the calendar, which could be taken for it, are off.
HWND FindPanel(const Companion& companion) {
  return companion.FindDialog(L"");
}

RECT RectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

class PanelTest : public testing::Test {
 protected:
  // The stage at a place, nothing else on the desktop, the pointer far from it.
  void StartAt(int x, int y) {
    PointerAway();
    SettingsChange(companion_)
        .Number(kStageXAt, x)
        .Number(kStageYAt, y)
        .Byte(kClockShowAt, 0)
        .Byte(kCalenShowAt, 0);
    companion_.Start();
  }

  // A place on the character that no panel covers.
  POINT OnStage() const {
    int width = 0;
    int height = 0;
    const std::vector<bool> region = RegionPixels(companion_.Window(), &width, &height);
    const RECT stage = RectOf(companion_.Window());
    const int y = height / 2;
    for (int x = 0; x < width; ++x) {
      const auto at = static_cast<std::size_t>(y * width + x);
      if (region.size() > at + 8 && region[at] && region[at + 8])
        return {static_cast<LONG>(stage.left + x + 4), static_cast<LONG>(stage.top + y)};
    }
    return {-1, -1};
  }

  // The pointer touches the stage; the panel that opens.
  HWND Touch() const {
    const POINT at = OnStage();
    // In two steps, as a pointer that is back where it was has not moved.
    PointerTo(static_cast<int>(at.x) + 1, static_cast<int>(at.y));
    PointerTo(static_cast<int>(at.x), static_cast<int>(at.y));
    HWND panel = nullptr;
    WaitFor([&] { return (panel = FindPanel(companion_)) != nullptr; }, 5000);
    return panel;
  }

  bool Closes(unsigned milliseconds = 5000) const {
    return WaitFor([&] { return FindPanel(companion_) == nullptr; }, milliseconds);
  }

  void PointerToRow(HWND panel, int row) const {
    const RECT rect = RectOf(panel);
    PointerTo(static_cast<int>(rect.left) + 100, static_cast<int>(rect.top) + 20 + 20 * row);
    EXPECT_TRUE(WaitFor([&] { return companion_.Value(kShowMenuCloseCount) == kInside; }, 5000));
  }

  // A press on a row, as the panel gets it; for rows whose command runs a dialog.
  static void Press(HWND panel, int row, WPARAM keys = MK_LBUTTON) {
    PostMessageW(panel, WM_LBUTTONDOWN, keys, MAKELPARAM(50, 15 + 20 * row));
  }

  // Another panel than the one given is on show.
  HWND NextPanel(HWND before) const {
    HWND panel = nullptr;
    WaitFor([&] { return (panel = FindPanel(companion_)) != nullptr && panel != before; }, 5000);
    return panel != before ? panel : nullptr;
  }

  HWND SubLevel(int row) {
    const HWND top = Touch();
    Press(top, row);
    return NextPanel(top);
  }

  Companion companion_;
};

}  // namespace

TEST_F(PanelTest, OpensBesideTheStageWhenThePointerTouchesItAndCloses40TicksAfterItLeft) {
  StartAt(200, 300);
  const POINT at = OnStage();
  PointerTo(static_cast<int>(at.x), static_cast<int>(at.y));
  ASSERT_TRUE(WaitFor([&] { return FindPanel(companion_) != nullptr; }, 5000));
  const int opened = companion_.Value(kShowTicks);
  const int left = companion_.Value(kShowMenuCloseCount);
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 1);
  EXPECT_LE(left, 40);
  const RECT stage = RectOf(companion_.Window());
  const RECT panel = RectOf(FindPanel(companion_));
  EXPECT_EQ(panel.left, stage.right - 50);
  EXPECT_EQ(panel.top, stage.top);
  EXPECT_EQ(panel.right - panel.left, kPanelWidth);
  EXPECT_EQ(panel.bottom - panel.top, 200);
  PointerAway();
  int closed = 0;
  ASSERT_TRUE(WaitFor([&] {
    closed = companion_.Value(kShowTicks);
    return companion_.Value(kShowMenuPanelState) == 0;
  }));
  EXPECT_NEAR(closed - opened, left, 3);
  EXPECT_TRUE(Closes());
  EXPECT_EQ(companion_.Close(), 0);
}

TEST_F(PanelTest, StaysWhileThePointerMovesOnTheStage) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  const POINT at = OnStage();
  const int begin = companion_.Value(kShowTicks);
  for (int i = 0; companion_.Value(kShowTicks) - begin < 80; ++i)
    PointerTo(static_cast<int>(at.x), static_cast<int>(at.y) + i % 2);
  EXPECT_EQ(FindPanel(companion_), panel);
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 1);
  PointerAway();
  EXPECT_TRUE(Closes());
}

TEST_F(PanelTest, StaysWithThePointerInsideAndClosesAtOnceWhenItLeaves) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  PointerToRow(panel, 2);
  companion_.Tick(100);
  EXPECT_EQ(FindPanel(companion_), panel);
  EXPECT_EQ(companion_.Value(kShowMenuCloseCount), kInside);
  const int before = companion_.Value(kShowTicks);
  PointerAway();
  ASSERT_TRUE(Closes());
  EXPECT_LT(companion_.Value(kShowTicks) - before, 30);
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 0);
}

TEST_F(PanelTest, OpensToTheLeftOfAStageAtTheRightEdge) {
  StartAt(GetSystemMetrics(SM_CXFULLSCREEN) - 160, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  EXPECT_EQ(RectOf(panel).right, RectOf(companion_.Window()).left);
  EXPECT_EQ(RectOf(panel).top, 300);
}

TEST_F(PanelTest, IsPushedUpBesideAStageAtTheBottomEdge) {
  const int screen = GetSystemMetrics(SM_CYFULLSCREEN);
  StartAt(200, screen - 170);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  EXPECT_EQ(RectOf(panel).bottom, screen);
  EXPECT_EQ(RectOf(panel).top, screen - 200);
}

TEST_F(PanelTest, TheRowUnderThePointerIsMarked) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  constexpr std::uint32_t kMark = 0x00C8C8;  // of the band
  for (const int row : {3, 6}) {
    PointerToRow(panel, row);
    const RECT rect = RectOf(panel);
    const auto banded = [&](int which) {
      return ScreenPixels(static_cast<int>(rect.left) + 190, static_cast<int>(rect.top) + 20 + 20 * which, 1,
                          1)[0] == kMark;
    };
    EXPECT_TRUE(WaitFor([&] { return banded(row); }, 3000)) << row;
    EXPECT_FALSE(banded(row - 1));
    EXPECT_FALSE(banded(row + 1));
  }
}

TEST_F(PanelTest, EscapeClosesItWithTheRealKeyboard) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  PointerToRow(panel, 0);
  KeyPress("Escape");
  EXPECT_TRUE(Closes());
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 0);
}

TEST_F(PanelTest, EscapeClosesItAfterAClickOnTheStageToo) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  PointerClick();
  KeyPress("Escape");
  EXPECT_TRUE(WaitFor([&] { return !IsWindow(panel); }, 900)) << "before its time is over";
}

TEST_F(PanelTest, AClickWithShiftHeldOrBelowTheRowsDoesNothing) {
  StartAt(200, 300);
  const HWND panel = Touch();
  ASSERT_TRUE(panel);
  PointerToRow(panel, 7);
  SendMessageW(panel, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(50, 15 + 20 * 7));
  SendMessageW(panel, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 15 + 20 * 8));
  EXPECT_EQ(FindPanel(companion_), panel);
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 1);
  EXPECT_FALSE(companion_.FindDialog(L"プログラム終了"));
}

TEST_F(PanelTest, SubLevelsHaveTheirSizesDoNotTimeOutAndCloseByTheirLastRow) {
  StartAt(200, 300);
  struct Level {
    int topRow;
    int state;
    int height;
    int lastRow;
  };
  for (const Level& level :
       {Level{2, 4, 80, 2}, Level{4, 6, 100, 3}, Level{5, 7, 80, 2}, Level{6, 8, 100, 3}}) {
    const HWND panel = SubLevel(level.topRow);
    ASSERT_TRUE(panel) << level.state;
    EXPECT_EQ(companion_.Value(kShowMenuPanelState), level.state);
    EXPECT_EQ(RectOf(panel).bottom - RectOf(panel).top, level.height);
    PointerAway();
    companion_.Tick(100);
    EXPECT_EQ(FindPanel(companion_), panel) << level.state;
    Press(panel, level.lastRow);
    EXPECT_TRUE(Closes()) << level.state;
    EXPECT_EQ(companion_.Value(kShowMenuPanelState), 0);
  }
}

TEST_F(PanelTest, EscapeLeavesASubLevel) {
  StartAt(200, 300);
  const HWND panel = SubLevel(5);
  ASSERT_TRUE(panel);
  // A pointer that is still on the stage would open the panel anew.
  PointerAway();
  KeyPress("Escape");
  EXPECT_TRUE(Closes());
  EXPECT_EQ(companion_.Value(kShowMenuPanelState), 0);
  EXPECT_TRUE(Touch()) << "the stage opens it again";
}

TEST_F(PanelTest, ARealClickOnTheLastRowAsksCancelStaysAndOkEndsTheProgram) {
  StartAt(200, 300);
  for (const int answer : {IDCANCEL, IDOK}) {
    const HWND panel = Touch();
    ASSERT_TRUE(panel);
    PointerToRow(panel, 7);
    PointerClick();
    const HWND box = companion_.Dialog(L"プログラム終了", 5000);
    ASSERT_TRUE(box);
    EXPECT_FALSE(IsWindowVisible(panel)) << "the panel has closed by then";
    PointerAway();
    PostButton(box, answer);
    if (answer == IDCANCEL) {
      ASSERT_TRUE(WaitFor([&] { return companion_.Value(kShowMenuPanelState) == 0; }));
      EXPECT_TRUE(companion_.Runs());
    } else {
      EXPECT_TRUE(WaitFor([&] { return !companion_.Runs(); }));
    }
  }
}
