// The tool menu panel's levels: their rows, their drawing, the pointer and the keyboard.
#include "character/motion.h"
#include "resources/shell_ids.h"
#include "services/drawing_objects.h"
#include "shell/panel.h"
#include "tests/shell/panel_fixture.h"

namespace {

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
    EXPECT_EQ(Panel.hDiskMenu, TopDialog());
    EXPECT_EQ(Panel.MenuPanelState, GetParam().state);
    EXPECT_EQ(Panel.FuncNo, GetParam().funcNo);
    const Rect rect = WindowRect(TopDialog());
    EXPECT_EQ(RectWidth(rect), 200);
    EXPECT_EQ(RectHeight(rect), GetParam().height);
    EXPECT_EQ(WindowClientRect(TopDialog()).right, 200);
    Escape();
  }});
}

TEST_P(PanelLevelTest, DrawsEveryRowAtItsPlace) {
  Panel.MenuHiLine = 1;
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
    EXPECT_EQ(back.brush, Drawing.FaceBrushColour);
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
    Panel.MenuPanelState = Panel.FuncNo = 0;
    sentCommands.clear();
    std::vector<std::function<void()>> steps = {[row] { Click(static_cast<int>(row)); }};
    if (expected.command != 0) steps.push_back(Escape);
    OpenIt(steps);
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
    EXPECT_EQ(Panel.MenuPanelState, 0);
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
    const int rows = static_cast<int>(GetParam().rows.size());
    for (int row = rows; 10 + 20 * row < WindowClientRect(TopDialog()).bottom; ++row) {
      Click(row);
      EXPECT_TRUE(sentCommands.empty());
      EXPECT_EQ(Panel.hDiskMenu, TopDialog());
      EXPECT_EQ(Panel.MenuPanelState, GetParam().state);
    }
    Escape();
  }});
}

TEST_P(PanelLevelTest, ClickWithShiftHeldDoesNothing) {
  Motion.BoredHour = 77;
  OpenIt({[] {
    const int rows = static_cast<int>(GetParam().rows.size());
    for (int row = 0; row < rows; ++row) Click(row, kLeftHeld | kShiftHeld);
    EXPECT_TRUE(sentCommands.empty());
    EXPECT_EQ(Panel.MenuPanelState, GetParam().state);
    EXPECT_EQ(Motion.BoredHour, 77);
    EXPECT_EQ(Panel.MenuHiLine, 0);
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
    EXPECT_EQ(Panel.MenuHiLine, last);
    const std::vector<DrawCall> drawn = Drawings(TopDialog());
    ASSERT_EQ(drawn.size(), GetParam().rows.size() + 2);
    EXPECT_EQ(drawn[1].y, 10 + 20 * last);
    DrawingClear();
    MoveTo(last + 1);  // below the rows
    EXPECT_EQ(Panel.MenuHiLine, last);
    EXPECT_TRUE(Drawings(TopDialog()).empty());
    EXPECT_EQ(Panel.MenuCloseCount, kMenuInside);
    Escape();
  }});
}

TEST_P(PanelLevelTest, EscapeClearsStateFeatureNumberAndGuard) {
  OpenIt({[] {
    Panel.FuncNo = 5;
    Panel.MenuReopenGuard = 3;
    Escape();
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
    EXPECT_EQ(Panel.MenuPanelState, 0);
    EXPECT_EQ(Panel.FuncNo, 0);
    EXPECT_EQ(Panel.MenuReopenGuard, 0);
  }});
}

TEST_P(PanelLevelTest, OtherKeysDoNothing) {
  OpenIt({[] {
    PressKey(TopDialog(), 'a');
    EXPECT_EQ(Panel.hDiskMenu, TopDialog());
    EXPECT_EQ(Panel.MenuPanelState, GetParam().state);
    Escape();
  }});
}

TEST_P(PanelLevelTest, CommandsOneAndTwoCloseIt) {
  for (const std::uint32_t command : {1U, 2U}) {
    OpenIt({[command] {
      SendCommand(TopDialog(), command);
      EXPECT_EQ(Panel.hDiskMenu, nullptr);
    }});
    EXPECT_EQ(Panel.MenuPanelState, 0);
  }
}

TEST_P(PanelLevelTest, CloseClearsTheHandleAndKeepsTheStateWhileItsSenderWorks) {
  OpenIt({[] {
    Panel.MenuPanelState = 400;
    SendClose(TopDialog());
    EXPECT_EQ(Panel.hDiskMenu, nullptr);
    EXPECT_EQ(Panel.MenuPanelState, 400);
  }});
}

}  // namespace
