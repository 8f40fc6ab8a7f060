// SnryCharPlayDlg: what a member of the cast does.
#include "scenario/cast/cast_motions.h"

#include <cstring>

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/snry_cast.h"
#include "services/text.h"
#include "tests/scenario/scenario_world.h"
#include "world/world_list.h"

namespace {

class CastMotionsTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    Register(1, "郵便屋");
    Cast({1});
    Scenario.castRow = 0;
    Parameter(0, "鍵");
    const char* figures[] = {"左へ歩く", "右へ歩く", "停止する"};
    for (const char* name : figures)
      TextCopy(World.WorldFigures[World.WorldFigureCount++].name, kWorldFigureNameSize, name);
    SnryMain.charMotions[0].figures[0] = 3;
    SnryMain.charMotions[0].figures[2] = 1;  // an empty place lies between
  }
  static SnryCastRec& Member() { return SnryCastAt(0); }
  static std::string Row(int row) {
    char text[300];
    CastMotionRowText(Member(), row, text, sizeof text);
    return text;
  }
  static void Run() {
    ThenPress(2);
    SnryCharPlayDlgRun(Program.hMainWnd);
  }
};

TEST_F(CastMotionsTest, TheFiguresAreTheFirstTwentyOfTheCharacterAndACopyHasThoseOfItsMaster) {
  SnryCastAt(513).master = 1;
  for (const int id : {1, 514}) {
    EXPECT_EQ(CastFigureRows(id), 2) << id;
    EXPECT_EQ(CastFigureOfRow(id, 0), 3) << id;
    EXPECT_EQ(CastFigureOfRow(id, 1), 1) << id;
    EXPECT_EQ(CastFigureOfRow(id, 2), 0) << id;
    EXPECT_EQ(CastFigureRowOf(id, 1), 1) << id;
    EXPECT_EQ(CastFigureRowOf(id, 2), -1) << id;
  }
  for (const int id : {0, 515, 713, 60000}) EXPECT_EQ(CastFigureRows(id), 0) << id;
}

TEST_F(CastMotionsTest, AMotionTakesTheFirstFreeOfTheHundredPlaces) {
  EXPECT_TRUE(CastMotionAdd(Member(), 3, {1, 5}));
  EXPECT_TRUE(CastMotionAdd(Member(), 1, {}));
  EXPECT_EQ(Member().motions[0], 3);
  EXPECT_EQ(Member().motionParameters[0], 1);
  EXPECT_EQ(Member().motionValues[0], 5);
  EXPECT_EQ(Row(0), "[ 停止する ]-> 鍵=5");
  EXPECT_EQ(Row(1), "[ 左へ歩く ]");
  EXPECT_TRUE(Scenario.changed);
  for (int i = 2; i < 100; ++i) ASSERT_TRUE(CastMotionAdd(Member(), 2, {}));
  Scenario.changed = false;
  EXPECT_FALSE(CastMotionAdd(Member(), 2, {}));
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastMotionsTest, AMotionHoldsTheLowByteOfItsFigure) {
  EXPECT_TRUE(CastMotionAdd(Member(), 259, {}));
  EXPECT_EQ(Member().motions[0], 3);
  EXPECT_FALSE(CastMotionAdd(Member(), 512, {}));  // 0 is an empty place
  EXPECT_FALSE(CastMotionAdd(Member(), 0, {}));
  EXPECT_FALSE(CastMotionChange(Member(), 0, 0, {}));
  EXPECT_EQ(CastMotionRows(Member()), 1);
}

TEST_F(CastMotionsTest, ADeletedMotionMovesTheLaterOnesDownWithTheirConditions) {
  for (int i = 0; i < 100; ++i)
    CastMotionAdd(Member(), i + 1, {static_cast<std::uint16_t>(i), static_cast<std::uint16_t>(1000 + i)});
  CastMotionDelete(Member(), 1);
  EXPECT_EQ(Member().motions[0], 1);
  EXPECT_EQ(Member().motions[1], 3);
  EXPECT_EQ(Member().motionParameters[1], 2);
  EXPECT_EQ(Member().motionValues[98], 1099);
  EXPECT_EQ(Member().motions[99], 0);
  EXPECT_EQ(Member().motionParameters[99], 0);
  EXPECT_EQ(Member().motionValues[99], 0);
}

TEST_F(CastMotionsTest, FiguresThatTheWorldDoesNotHaveHaveNoName) {
  Member().motions[0] = 200;
  EXPECT_EQ(Row(0), "[  ]");
  EXPECT_EQ(Row(5), "[  ]");
}

TEST_F(CastMotionsTest, AMotionIsAddedChangedAndDeletedInTheDialog) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharPlayDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SnryCharPlayDlg);
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ミル");
    EXPECT_EQ(RowsIn(IDC_CAST_FIGURE), (Rows{"停止する", "左へ歩く"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_FIGURE), -1);
  });
  ThenChoose(IDC_CAST_FIGURE, 1);
  ThenChoose(IDC_CAST_START_PARA, 1);
  ThenType(IDC_CAST_START_VALUE, "4321");
  ExpectBox("動作を追加します。", "動作の追加");
  ThenPress(IDC_CAST_ADD);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"[ 左へ歩く ]-> 鍵=4321"}); });
  ThenChoose(IDC_CAST_LIST, 0);
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_FIGURE), 1);
    EXPECT_EQ(TextIn(IDC_CAST_START_VALUE), "4321");
  });
  ThenChoose(IDC_CAST_FIGURE, 0);
  ThenChoose(IDC_CAST_START_PARA, 0);
  ExpectBox("動作を変更します。", "動作の変更");
  ThenPress(IDC_CAST_CHANGE);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"[ 停止する ]"}); });
  ThenChoose(IDC_CAST_LIST, 0);
  ExpectBox("動作を削除します。", "動作の削除");
  ThenPress(IDC_CAST_DELETE);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows()); });
  Run();
  EXPECT_EQ(CastMotionRows(Member()), 0);
}

TEST_F(CastMotionsTest, CancelledBoxesMissingRowsAndMissingFiguresLeaveEverything) {
  CastMotionAdd(Member(), 3, {1, 5});
  Scenario.changed = false;
  ThenPress(IDC_CAST_CHANGE);  // no row
  ThenPress(IDC_CAST_DELETE);
  ExpectBox("動作を追加します。", "動作の追加");
  ThenPress(IDC_CAST_ADD);  // no figure
  ThenChoose(IDC_CAST_LIST, 0);
  ExpectBox("動作を追加します。", "動作の追加", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_ADD);
  ThenChoose(IDC_CAST_FIGURE, 1);
  ExpectBox("動作を変更します。", "動作の変更", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_CHANGE);
  ExpectBox("動作を削除します。", "動作の削除", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_DELETE);
  Run();
  EXPECT_EQ(CastMotionRows(Member()), 1);
  EXPECT_EQ(Member().motions[0], 3);
  EXPECT_FALSE(Scenario.changed);
}

}  // namespace
