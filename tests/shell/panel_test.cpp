// The tool menu panel, driven through a main window that notes every command and
// carries out only what belongs to the panel.
#include "shell/panel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "character/character.h"
#include "character/motion.h"
#include "character/stage.h"
#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "schedule/table_scroll.h"
#include "shell/commands.h"
#include "shell/shell.h"
#include "shell/start.h"
#include "shell/tick.h"
#include "tests/support/desktop.h"

namespace {

struct Sent {
  std::uint32_t command;
  std::int32_t state;  // MenuPanelState as the command found it
  bool operator==(const Sent&) const = default;
};
void PrintTo(const Sent& sent, std::ostream* out) {
  *out << sent.command << " in state " << sent.state;
}

std::vector<Sent> sentCommands;
int stagePaints;
// Run by the main window for a command, after it was noted.
void (*onCommand)(std::uint32_t number);

void PanelCommandsOnly(std::uint32_t number) {
  if (number >= 1902 && number <= 1907) CommandPanelLevel(number);
}

bool StageStandIn(const Event& event) {
  switch (event.kind) {
    case EventKind::MouseMove:
      PanelPointerOnStage(event);
      return true;
    case EventKind::Timer:
      MainTick();
      return true;
    case EventKind::Paint:
      ++stagePaints;
      return true;
    case EventKind::Command:
      sentCommands.push_back({event.command, MenuPanelState});
      if (onCommand) onCommand(event.command);
      return true;
    default:
      return false;
  }
}

Event MoveOnStage(unsigned keys = 0) {
  Event event;
  event.kind = EventKind::MouseMove;
  event.window = hMainWnd;
  event.x = 5;
  event.y = 5;
  event.keys = keys;
  return event;
}

class PanelTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    MenuPanelState = MenuHiLine = FuncNo = MenuCloseCount = MenuReopenGuard = 0;
    MenuPanelRect = {};
    MenuFrame = 0;
    CharaMotion = kMotionIdle;
    StageRedraw = kRedrawNothing;
    BoredDelaySel = 0;
    ScreenWidth = 1024;
    ScreenHeight = 768;
    StageX = 100;
    StageY = 50;
    StageWidth = 120;
    StageHeight = 160;
    sentCommands.clear();
    stagePaints = 0;
    onCommand = PanelCommandsOnly;
    DrawingObjectsCreate();
    hMainWnd =
        MainWindowCreate({"stage", "stage", 0, 0, 0, StageStandIn}, StageX, StageY, StageWidth, StageHeight);
    WindowShowFirst(hMainWnd, 1);
    SetPointer(105, 55);
  }
  void TearDown() override {
    EXPECT_EQ(hDiskMenu, nullptr);
    DrawingObjectsDelete();
    MainWindowDrop();
    hMainWnd = nullptr;
    DesktopTest::TearDown();
  }

  // Opens the top level as the pointer does; the steps run while it is open.
  static void Open(std::vector<std::function<void()>> steps) {
    for (auto& step : steps) Then(std::move(step));
    PanelPointerOnStage(MoveOnStage());
  }
  static void OpenLevel(std::uint32_t command, std::vector<std::function<void()>> steps) {
    for (auto& step : steps) Then(std::move(step));
    CommandPanelLevel(command);
  }
  static void Escape() { PressKey(TopDialog(), 27); }
  static void Click(int row, unsigned keys = kLeftHeld) {
    Mouse(TopDialog(), EventKind::LeftDown, 50, 10 + 20 * row, keys);
  }
  static void MoveTo(int row) { Mouse(TopDialog(), EventKind::MouseMove, 50, 10 + 20 * row); }
};

// --- Levels

struct RowExpected {
  const char* text;
  std::int32_t state;     // -1: the state of before
  std::uint32_t command;  // 0: none, the panel closes
};
struct LevelExpected {
  const char* name;
  std::uint32_t command;  // that opens it; 0: the pointer
  std::int32_t state;
  std::int32_t funcNo;
  int height;
  std::vector<RowExpected> rows;
};

void PrintTo(const LevelExpected& level, std::ostream* out) {
  *out << level.name;
}

const LevelExpected kTopLevel = {"Top",
                                 0,
                                 1,
                                 0,
                                 200,
                                 {{" ファイル オープン  ", 2, 1900},
                                  {" ファイル バックアップ  ", 3, 1901},
                                  {" その他のファイル操作  ", 4, 1902},
                                  {" 操作説明書 ", -1, 2377},
                                  {" スケジュール/時間設定 ", 6, 1904},
                                  {" アプリケーション", 7, 1906},
                                  {" オプション  ", 8, 1907},
                                  {" プログラム終了 ", -1, 1908}}};
const LevelExpected kFiles = {
    "Files", 1902,
    4,       4,
    80,      {{" フォルダースコープ ", 400, 1914}, {" ファイル分割  ", 401, 1915}, {" キャンセル  ", 0, 0}}};
const LevelExpected kCommunication = {
    "Communication", 1903, 5, 5, 60, {{" メール受信連絡 ", 500, 1918}, {"BGM自動演奏設定 ", 501, 1921}}};
const LevelExpected kSchedule = {"Schedule",
                                 1904,
                                 6,
                                 8,
                                 100,
                                 {{" スケジュール表 ", 600, 1910},
                                  {" 時計表示  ", 601, 1911},
                                  {" カレンダー表示  ", 603, 1913},
                                  {" キャンセル  ", 0, 0}}};
const LevelExpected kApplications = {
    "Applications",
    1906,
    7,
    13,
    80,
    {{" シナリオライター", 702, 2365}, {" キャラクタエディター", 700, 1927}, {" キャンセル  ", 0, 0}}};
const LevelExpected kOptions = {"Options",
                                1907,
                                8,
                                19,
                                100,
                                {{" ミルレールキャラクタ", 800, 2281},
                                 {" アラームキャラクタ", 800, 2282},
                                 {" レイアウト設定 ", 800, 2283},
                                 {" キャンセル  ", 0, 0}}};

class PanelLevelTest : public PanelTest, public ::testing::WithParamInterface<LevelExpected> {
 protected:
  static void OpenIt(std::vector<std::function<void()>> steps) {
    if (GetParam().command == 0) {
      Open(std::move(steps));
    } else {
      OpenLevel(GetParam().command, std::move(steps));
    }
  }
};

INSTANTIATE_TEST_SUITE_P(All, PanelLevelTest,
                         ::testing::Values(kTopLevel, kFiles, kCommunication, kSchedule, kApplications,
                                           kOptions),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(PanelLevelTest, OpensWithItsStateFeatureNumberAndSize) {
  OpenIt({[] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspDiskMenu);
    EXPECT_EQ(hDiskMenu, TopDialog());
    EXPECT_EQ(MenuPanelState, GetParam().state);
    EXPECT_EQ(FuncNo, GetParam().funcNo);
    const Rect rect = WindowRect(TopDialog());
    EXPECT_EQ(RectWidth(rect), 200);
    EXPECT_EQ(RectHeight(rect), GetParam().height);
    EXPECT_EQ(WindowClientRect(TopDialog()).right, 200);
    Escape();
  }});
}

TEST_P(PanelLevelTest, DrawsEveryRowAtItsPlace) {
  MenuHiLine = 1;
  OpenIt({[] {
    const std::vector<DrawCall> texts = DrawnTexts(TopDialog());
    ASSERT_EQ(texts.size(), GetParam().rows.size());
    for (std::size_t row = 0; row < texts.size(); ++row) {
      EXPECT_EQ(texts[row].text, GetParam().rows[row].text);
      EXPECT_EQ(texts[row].x, 10);
      EXPECT_EQ(texts[row].y, 10 + 20 * static_cast<int>(row));
      EXPECT_TRUE(texts[row].transparent);
      EXPECT_EQ(texts[row].textColour, 0U);
      EXPECT_EQ(texts[row].fontHeight, 16);
    }
    const std::vector<DrawCall> all = Drawings(TopDialog());
    ASSERT_EQ(all.size(), texts.size() + 2);
    const DrawCall& back = all[0];
    EXPECT_EQ(back.kind, DrawCall::Kind::Rectangle);
    EXPECT_EQ(back.brush, FaceBrushColour);
    EXPECT_FALSE(back.edged);
    // A fill without an edge leaves its last column and row out.
    EXPECT_EQ(back.x, 0);
    EXPECT_EQ(back.y, 0);
    EXPECT_EQ(back.x2 - 1, 200);
    EXPECT_EQ(back.y2 - 1, 220);
    const DrawCall& band = all[1];
    EXPECT_EQ(band.kind, DrawCall::Kind::Rectangle);
    EXPECT_EQ(band.brush, 0xC8C800U);
    EXPECT_FALSE(band.edged);
    EXPECT_EQ(band.x, 0);
    EXPECT_EQ(band.y, 30);
    EXPECT_EQ(band.x2 - 1, 200);
    EXPECT_EQ(band.y2 - 1, 50);
    Escape();
  }});
}

TEST_P(PanelLevelTest, EveryRowSetsItsStateAndSendsItsCommand) {
  onCommand = nullptr;  // the commands are noted only, so the panel stays
  for (std::size_t row = 0; row < GetParam().rows.size(); ++row) {
    const RowExpected& expected = GetParam().rows[row];
    MenuPanelState = FuncNo = 0;
    sentCommands.clear();
    std::vector<std::function<void()>> steps = {[row] { Click(static_cast<int>(row)); }};
    if (expected.command != 0) steps.push_back(Escape);
    OpenIt(steps);
    EXPECT_EQ(hDiskMenu, nullptr);
    EXPECT_EQ(MenuPanelState, 0);
    if (expected.command == 0) {
      EXPECT_TRUE(sentCommands.empty()) << expected.text;
    } else {
      const std::int32_t state = expected.state < 0 ? GetParam().state : expected.state;
      EXPECT_EQ(sentCommands, (std::vector<Sent>{{expected.command, state}})) << row;
    }
  }
}

// A click below the last row of a level gives a row beyond the level's count and
// does nothing, and the panel stays.
TEST_P(PanelLevelTest, ClickBelowTheLastRowDoesNothingAndThePanelStays) {
  OpenIt({[] {
    for (int row = static_cast<int>(GetParam().rows.size()); row < 12; ++row) {
      Click(row);
      EXPECT_TRUE(sentCommands.empty());
      EXPECT_EQ(hDiskMenu, TopDialog());
      EXPECT_EQ(MenuPanelState, GetParam().state);
    }
    Escape();
  }});
}

TEST_P(PanelLevelTest, ClickWithShiftHeldDoesNothing) {
  BoredHour = 77;
  OpenIt({[] {
    for (int row = 0; row < 10; ++row) Click(row, kLeftHeld | kShiftHeld);
    EXPECT_TRUE(sentCommands.empty());
    EXPECT_EQ(MenuPanelState, GetParam().state);
    EXPECT_EQ(BoredHour, 77);
    EXPECT_EQ(MenuHiLine, 0);
    Escape();
  }});
}

TEST_P(PanelLevelTest, PointerMarksARowAndRepaintsOnlyOnAChange) {
  OpenIt({[] {
    const int last = static_cast<int>(GetParam().rows.size()) - 1;
    DrawingClear();
    MoveTo(0);  // marked already
    EXPECT_TRUE(Drawings(TopDialog()).empty());
    MoveTo(last);
    EXPECT_EQ(MenuHiLine, last);
    const std::vector<DrawCall> drawn = Drawings(TopDialog());
    ASSERT_EQ(drawn.size(), GetParam().rows.size() + 2);
    EXPECT_EQ(drawn[1].y, 10 + 20 * last);
    DrawingClear();
    MoveTo(last + 1);  // below the rows
    EXPECT_EQ(MenuHiLine, last);
    EXPECT_TRUE(Drawings(TopDialog()).empty());
    EXPECT_EQ(MenuCloseCount, kMenuInside);
    Escape();
  }});
}

TEST_P(PanelLevelTest, EscapeClearsStateFeatureNumberAndGuard) {
  OpenIt({[] {
    FuncNo = 5;
    MenuReopenGuard = 3;
    Escape();
    EXPECT_EQ(hDiskMenu, nullptr);
    EXPECT_EQ(MenuPanelState, 0);
    EXPECT_EQ(FuncNo, 0);
    EXPECT_EQ(MenuReopenGuard, 0);
  }});
}

TEST_P(PanelLevelTest, OtherKeysDoNothing) {
  OpenIt({[] {
    PressKey(TopDialog(), 'a');
    EXPECT_EQ(hDiskMenu, TopDialog());
    EXPECT_EQ(MenuPanelState, GetParam().state);
    Escape();
  }});
}

TEST_P(PanelLevelTest, CommandsOneAndTwoCloseIt) {
  for (const std::uint32_t command : {1U, 2U}) {
    OpenIt({[command] {
      SendCommand(TopDialog(), command);
      EXPECT_EQ(hDiskMenu, nullptr);
    }});
    EXPECT_EQ(MenuPanelState, 0);
  }
}

TEST_P(PanelLevelTest, CloseClearsTheHandleAndKeepsTheStateWhileItsSenderWorks) {
  OpenIt({[] {
    MenuPanelState = 400;
    SendClose(TopDialog());
    EXPECT_EQ(hDiskMenu, nullptr);
    EXPECT_EQ(MenuPanelState, 400);
  }});
}

// --- Hit test

TEST_F(PanelTest, RowsAreTwentyPixelsHighFromPixelTenOn) {
  MenuHiLine = 3;
  Open({[] {
    const auto markedAt = [](int y) {
      Mouse(TopDialog(), EventKind::MouseMove, 0, y);
      return MenuHiLine;
    };
    EXPECT_EQ(markedAt(0), 0);  // above the first row
    EXPECT_EQ(markedAt(-40), 0);
    EXPECT_EQ(markedAt(29), 0);
    EXPECT_EQ(markedAt(30), 1);
    EXPECT_EQ(markedAt(49), 1);
    EXPECT_EQ(markedAt(50), 2);
    EXPECT_EQ(markedAt(150), 7);
    EXPECT_EQ(markedAt(169), 7);
    EXPECT_EQ(markedAt(170), 7);  // row 8 is no row of this level
    EXPECT_EQ(markedAt(4000), 7);
    Escape();
  }});
}

// --- Opening and placing

TEST_F(PanelTest, ThePointerOnTheStageOpensTheTopLevelAndTheStageIsPaintedAfterwards) {
  SetPointer(0, 0);
  Then([] {
    EXPECT_EQ(MenuPanelState, 1);
    EXPECT_EQ(MenuCloseCount, 40);
    stagePaints = 0;
    Escape();
  });
  Mouse(hMainWnd, EventKind::MouseMove, 5, 5);
  EXPECT_EQ(stagePaints, 0);
  Tick();  // what is due is painted before the timer fires
  EXPECT_EQ(stagePaints, 1);
}

TEST_F(PanelTest, NothingOpensWhileTheGuardRuns) {
  MenuReopenGuard = 2;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(MenuPanelState, 0);
  MainTick();
  MainTick();
  Open({Escape});
  EXPECT_EQ(StepsLeft(), 0);
}

TEST_F(PanelTest, NothingOpensWhileAnEntryIsCarriedOut) {
  MenuPanelState = 400;
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(MenuPanelState, 400);
  EXPECT_EQ(TopDialog(), nullptr);
  MenuPanelState = 0;
}

TEST_F(PanelTest, TheCharacterTurnsToItsMenuFrameWhenItHasOne) {
  MenuFrame = 3;
  Open({[] {
    EXPECT_EQ(CharaMotion, kMotionMenu);
    EXPECT_EQ(CharaFrame, 3);
    EXPECT_EQ(sentCommands, (std::vector<Sent>{{2293, 1}}));
    Escape();
  }});
}

TEST_F(PanelTest, WithoutAMenuFrameTheCharacterStays) {
  Open({[] {
    EXPECT_EQ(CharaMotion, kMotionIdle);
    EXPECT_TRUE(sentCommands.empty());
    Escape();
  }});
}

void ExpectPanelAt(int left, int top, int right, int bottom) {
  const Rect rect = WindowRect(TopDialog());
  EXPECT_EQ(rect.left, left);
  EXPECT_EQ(rect.top, top);
  EXPECT_EQ(rect.right, right);
  EXPECT_EQ(rect.bottom, bottom);
  EXPECT_EQ(MenuPanelRect.left, left);
  EXPECT_EQ(MenuPanelRect.top, top);
  EXPECT_EQ(MenuPanelRect.right, right);
  EXPECT_EQ(MenuPanelRect.bottom, bottom);
}

TEST_F(PanelTest, StageOnTheLeftHasThePanelOnItsRight) {
  // 512 > 100 + 60; the panel covers 50 pixels of the stage.
  Open({[] {
    ExpectPanelAt(100 + 120 - 50, 50, 370, 250);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheRightEdgeThePanelOpensToTheLeftOfTheStage) {
  StageX = 904;
  Open({[] {
    ExpectPanelAt(704, 50, 904, 250);
    Escape();
  }});
}

TEST_F(PanelTest, TheMiddleOfTheScreenCountsAsRight) {
  StageX = 512 - 60;  // half the screen is not more than the stage's middle
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 452 - 200);
    Escape();
  }});
  StageX = 511 - 60;
  Open({[] {
    EXPECT_EQ(WindowRect(TopDialog()).left, 451 + 120 - 50);
    Escape();
  }});
}

TEST_F(PanelTest, OnAStageAtTheBottomThePanelIsPushedUp) {
  StageY = 700;
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  StageY = 568;  // just at the edge: the same place by either rule
  Open({[] {
    ExpectPanelAt(170, 568, 370, 768);
    Escape();
  }});
  StageY = 567;
  Open({[] {
    ExpectPanelAt(170, 567, 370, 767);
    Escape();
  }});
}

TEST_F(PanelTest, ASubLevelIsPlacedByItsOwnHeight) {
  StageY = 700;
  OpenLevel(1902, {[] {
              ExpectPanelAt(170, 688, 370, 768);
              Escape();
            }});
}

// --- Closing by the tick

TEST_F(PanelTest, MovingOverTheStageAndAwayWithoutEnteringClosesThePanelAfterFortyTicks) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  Open({[] { Tick(39); },
        [] {
          EXPECT_EQ(hDiskMenu, TopDialog());
          EXPECT_EQ(MenuCloseCount, 1);
          Tick(1);
          EXPECT_EQ(hDiskMenu, nullptr);
          EXPECT_EQ(MenuPanelState, 0);
        }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ThePointerOnTheStageKeepsThePanel) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
    Tick(39);
    Mouse(hMainWnd, EventKind::MouseMove, 5, 5);  // the stage hears it, though it owns the panel
    EXPECT_EQ(MenuCloseCount, 40);
    Tick(39);
    EXPECT_EQ(hDiskMenu, TopDialog());
    Tick(1);
    EXPECT_EQ(hDiskMenu, nullptr);
  }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, AfterThePointerHasEnteredOnlyLeavingTheRectangleCloses) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  Open({[] {
          MoveTo(2);
          Tick(500);
          EXPECT_EQ(hDiskMenu, TopDialog());
          EXPECT_EQ(MenuCloseCount, kMenuInside);
        },
        [] {
          // The four corners are inside, what lies beyond them is not.
          const Point inside[] = {{170, 50}, {369, 50}, {170, 249}, {369, 249}};
          for (const Point& at : inside) {
            SetPointer(at.x, at.y);
            Tick(1);
            EXPECT_EQ(hDiskMenu, TopDialog());
          }
          SetPointer(370, 100);
          Tick(1);
          EXPECT_EQ(hDiskMenu, nullptr);
          EXPECT_EQ(MenuPanelState, 0);
        }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, ASubLevelIsNotClosedByTheTick) {
  TimerStart(hMainWnd, kTickTimer, kTickMilliseconds);
  SetPointer(900, 700);
  OpenLevel(1904, {[] {
              Tick(300);
              EXPECT_EQ(hDiskMenu, TopDialog());
              MoveTo(1);
              SetPointer(900, 700);
              Tick(300);
              EXPECT_EQ(hDiskMenu, TopDialog());
              Escape();
            }});
  TimerStop(hMainWnd, kTickTimer);
}

TEST_F(PanelTest, APanelThatCannotBeMadeIsForgottenByTheTick) {
  FaultArm(FaultKind::Window, 1);
  PanelPointerOnStage(MoveOnStage());
  FaultClear();
  EXPECT_EQ(hDiskMenu, nullptr);
  for (int i = 0; i < 40; ++i) MainTick();
  EXPECT_EQ(MenuPanelState, 0);
}

// --- Entries

TEST_F(PanelTest, ALevelOneClickResetsTheBoredTimerAndMarksTheRow) {
  onCommand = nullptr;
  BoredDelaySel = 4;  // 1 hour 30 minutes
  BoredHour = BoredMin = 77;
  Open({[] {
          Click(5);
          EXPECT_EQ(BoredHour, 1);
          EXPECT_EQ(BoredMin, 30);
          EXPECT_EQ(MenuHiLine, 5);
        },
        Escape});
}

TEST_F(PanelTest, ALevelOneClickAtOrBeyondRowEightResetsTheBoredTimerAndThenDoesNothing) {
  for (const int y : {170, 189, 190, 199}) {
    BoredHour = BoredMin = 77;
    MenuHiLine = 2;
    Open({[y] {
      Mouse(TopDialog(), EventKind::LeftDown, 50, y, kLeftHeld);
      EXPECT_EQ(BoredHour, 0) << y;
      EXPECT_EQ(BoredMin, 5) << y;
      EXPECT_EQ(MenuHiLine, y < 190 ? 8 : 2) << "row 9 is not marked";
      EXPECT_TRUE(sentCommands.empty());
      EXPECT_EQ(MenuPanelState, 1);
      EXPECT_EQ(hDiskMenu, TopDialog());
      Escape();
    }});
  }
}

TEST_F(PanelTest, ASubLevelClickLeavesTheBoredTimerAndTheMarkAlone) {
  onCommand = nullptr;
  BoredHour = 77;
  OpenLevel(1904, {[] {
                     Click(2);
                     EXPECT_EQ(BoredHour, 77);
                     EXPECT_EQ(MenuHiLine, 0);
                   },
                   Escape});
}

TEST_F(PanelTest, TheThirdRowOfTheApplicationsLevelClosesThePanel) {
  OpenLevel(1906, {[] {
              Click(2);
              EXPECT_EQ(hDiskMenu, nullptr);
              EXPECT_EQ(MenuPanelState, 0);
            }});
  EXPECT_TRUE(sentCommands.empty());
}

TEST_F(PanelTest, ARowWhoseCommandOnlyClearsTheStateClosesThePanel) {
  // The manual and the other programs beside this one do no more than that.
  onCommand = [](std::uint32_t) { MenuPanelState = 0; };
  Open({[] {
    Click(3);
    EXPECT_EQ(hDiskMenu, nullptr);
  }});
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{2377, 1}}));
  sentCommands.clear();
  OpenLevel(1906, {[] {
              Click(0);
              EXPECT_EQ(hDiskMenu, nullptr);
            }});
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{2365, 702}}));
}

// --- Sub-levels

TEST_F(PanelTest, ASubLevelTakesThePlaceOfTheTopLevel) {
  static WindowHandle top;
  Open({[] {
          top = TopDialog();
          Click(4);
        },
        [] {
          EXPECT_NE(TopDialog(), top);
          EXPECT_EQ(hDiskMenu, TopDialog());
          EXPECT_FALSE(IsVisible(top));
          EXPECT_EQ(MenuPanelState, 6);
          EXPECT_EQ(FuncNo, 8);
          Click(3);
        }});
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(TopDialog(), nullptr);
}

TEST_F(PanelTest, ASubLevelBeginsWithTheMarkOfTheLevelBefore) {
  Open({[] { Click(6); },
        [] {
          const std::vector<DrawCall> drawn = Drawings(TopDialog());
          ASSERT_GE(drawn.size(), 2U);
          EXPECT_EQ(drawn[1].y, 10 + 20 * 6);
          Escape();
        }});
}

TEST_F(PanelTest, ALevelWithTheStateAsItStandsDrawsTheLevelOfTheMoment) {
  Open({[] { SendCommand(hMainWnd, 1905); },
        [] {
          EXPECT_EQ(FuncNo, 10);
          EXPECT_EQ(MenuPanelState, 1);
          EXPECT_EQ(DrawnTexts(TopDialog()).size(), 8U);
          Escape();
        }});
}

TEST_F(PanelTest, ALevelWithNoStateHasNoRowsAndTheKeyboardClosesIt) {
  OpenLevel(1905, {[] {
              EXPECT_EQ(FuncNo, 10);
              EXPECT_EQ(MenuPanelState, 0);
              EXPECT_TRUE(DrawnTexts(TopDialog()).empty());
              Click(0);
              MoveTo(1);
              EXPECT_TRUE(sentCommands.empty());
              EXPECT_EQ(MenuHiLine, 0);
              Escape();
            }});
}

TEST_F(PanelTest, ASubLevelThatIsClosedFromOutsideLetsThePointerOpenThePanelAgain) {
  OpenLevel(1907, {[] { SendClose(TopDialog()); }});
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(FuncNo, 0);
  Open({[] {
    EXPECT_EQ(MenuPanelState, 1);
    Escape();
  }});
}

// A feature's dialog opens from a command that the panel sent from within its own
// mouse handler: panel and stage are still on the stack.
bool FeatureProc(const Event& event) {
  if (event.kind != EventKind::Command) return false;
  DialogEnd(event.window, 0);
  return true;
}

TEST_F(PanelTest, AFeaturesDialogRunsInsideThePanelsHandler) {
  onCommand = [](std::uint32_t number) {
    PanelCommandsOnly(number);
    if (number != 1914) return;
    SendClose(hDiskMenu);
    DialogRun(IDD_FlyingBat4, hMainWnd, FeatureProc);
    FuncNo = 0;
    MenuPanelState = 0;
  };
  Open({[] { Click(2); }, [] { Click(0); },
        [] {
          EXPECT_EQ(TemplateOf(TopDialog()), IDD_FlyingBat4);
          EXPECT_EQ(hDiskMenu, nullptr);
          EXPECT_EQ(MenuPanelState, 400);
          SendCommand(TopDialog(), 2);
        }});
  EXPECT_EQ(MenuPanelState, 0);
  EXPECT_EQ(TopDialog(), nullptr);
  EXPECT_EQ(sentCommands, (std::vector<Sent>{{1902, 4}, {1914, 400}}));
}

// --- What the pointer on the stage does to the tables' scrolling

class StagePointerTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    MenuPanelState = 2;
    TableScrollDirection = ScrollDirection::Down;
    AutoScrollDelay = 4;
  }
  void TearDown() override {
    MenuPanelState = 0;
    TableScrollStop();
    PanelTest::TearDown();
  }
};

TEST_F(StagePointerTest, WithTheFocusAndNoButtonAllScrollingStops) {
  WindowSetFocus(hMainWnd);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(AutoScrollDelay, 0);
}

TEST_F(StagePointerTest, WithTheFocusAndTheButtonHeldScrollingGoesOn) {
  WindowSetFocus(hMainWnd);
  PanelPointerOnStage(MoveOnStage(kLeftHeld));
  EXPECT_EQ(TableScrollDirection, ScrollDirection::Down);
  EXPECT_EQ(AutoScrollDelay, 4);
}

TEST_F(StagePointerTest, WithoutTheFocusOnlyTheDirectionIsCleared) {
  WindowSetFocus(nullptr);
  PanelPointerOnStage(MoveOnStage());
  EXPECT_EQ(TableScrollDirection, ScrollDirection::None);
  EXPECT_EQ(AutoScrollDelay, 4);
}

}  // namespace
