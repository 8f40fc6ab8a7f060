// SnryCharMessageDlg: what a member of the cast says.
#include "scenario/cast/cast_lines.h"

#include <cstring>

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/snry_cast.h"
#include "tests/scenario/scenario_world.h"

namespace {

class CastLinesTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    Register(1, "郵便屋");
    Cast({1});
    Scenario.castRow = 0;
    Parameter(0, "鍵");
    Parameter(2, "扉");
  }
  static SnryCastRec& Member() { return SnryCastAt(0); }
  static CastLine Line(const char* text, SnryPair start = {}, int end = 0, SnryPair change = {}) {
    CastLine line{};
    std::strcpy(line.text, text);
    line.start = start;
    line.end = static_cast<std::uint8_t>(end);
    line.change = change;
    return line;
  }
  static std::string Row(int row) {
    char text[200];
    CastLineRowText(Member(), row, text, sizeof text);
    return text;
  }
  // Runs the dialog with the steps that were scripted, and leaves it.
  static void Run() {
    ThenPress(2);
    SnryCharMessageDlgRun(Program.hMainWnd);
  }
};

// --- The tables

TEST_F(CastLinesTest, ALineTakesTheFirstFreeIdAndTheFirstFreePlace) {
  SnryLineAt(0).used = 1;
  SnryLineAt(2).used = 1;
  ASSERT_TRUE(CastLineAdd(Member(), Line("はい", {1, 5}, 3, {3, 9})));
  ASSERT_TRUE(CastLineAdd(Member(), Line("いいえ")));
  EXPECT_EQ(Member().lines[0], 2);
  EXPECT_EQ(Member().lines[1], 4);
  EXPECT_EQ(SnryLineAt(1).used, 1);
  EXPECT_STREQ(SnryLineAt(1).text, "はい");
  EXPECT_EQ(Member().lineParameters[0], 1);
  EXPECT_EQ(Member().lineValues[0], 5);
  EXPECT_EQ(Member().lineEnds[0], 3);
  EXPECT_EQ(Member().endParameters[0], 3);
  EXPECT_EQ(Member().endValues[0], 9);
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(CastLinesTest, AnEmptyTextAHundredLinesAndAFullTableAddNothing) {
  EXPECT_FALSE(CastLineAdd(Member(), Line("")));
  EXPECT_EQ(SnryLineAt(0).used, 0);
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(CastLineAdd(Member(), Line("a")));
  Scenario.changed = false;
  EXPECT_FALSE(CastLineAdd(Member(), Line("b")));
  EXPECT_EQ(SnryLineAt(100).used, 0);
  for (int slot = 0; slot < 25600; ++slot) SnryLineAt(slot).used = 1;
  EXPECT_FALSE(CastLineAdd(SnryCastAt(1), Line("c")));
  EXPECT_EQ(SnryCastAt(1).lines[0], 0);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastLinesTest, DeletingTheFirstOfThreeLinesKeepsTheEndOfTheFirstPlaceOnWhatWasTheSecond) {
  CastLineAdd(Member(), Line("一", {1, 11}, 1, {1, 21}));
  CastLineAdd(Member(), Line("二", {2, 12}, 2, {2, 22}));
  CastLineAdd(Member(), Line("三", {3, 13}, 3, {3, 23}));
  CastLineDelete(Member(), 0);
  const CastLine first = CastLineTake(Member(), 0);
  EXPECT_STREQ(first.text, "二");
  EXPECT_EQ(first.start.parameter, 2);
  EXPECT_EQ(first.start.value, 12);
  EXPECT_EQ(first.end, 1);
  EXPECT_EQ(first.change.parameter, 1);
  EXPECT_EQ(first.change.value, 21);
  EXPECT_EQ(Member().lineEnds[2], 3);  // nobody's now
  EXPECT_EQ(Member().lines[2], 0);
  EXPECT_EQ(SnryLineAt(0).used, 0);
  CastLineAdd(Member(), Line("四"));
  EXPECT_EQ(Member().lines[2], 1);  // the id is free again
}

TEST_F(CastLinesTest, AChangeKeepsTheIdAndTakesAnEmptyTextToo) {
  CastLineAdd(Member(), Line("長い台詞です"));
  CastLineChange(Member(), 0, Line("短"));
  EXPECT_EQ(Member().lines[0], 1);
  EXPECT_STREQ(SnryLineAt(0).text, "短");
  EXPECT_EQ(SnryLineAt(0).text[3], '\0');  // nothing of the old one stays
  EXPECT_EQ(SnryLineAt(0).text[8], '\0');
  CastLineChange(Member(), 0, Line(""));
  EXPECT_STREQ(SnryLineAt(0).text, "");
  EXPECT_EQ(SnryLineAt(0).used, 1);
  EXPECT_EQ(CastLineRows(Member()), 1);
}

TEST_F(CastLinesTest, ARowThatThereIsNotChangesNothing) {
  CastLineAdd(Member(), Line("a"));
  Scenario.changed = false;
  for (const int row : {-1, 1, 100}) {
    CastLineChange(Member(), row, Line("b"));
    CastLineDelete(Member(), row);
    EXPECT_STREQ(CastLineTake(Member(), row).text, "");
    EXPECT_EQ(Row(row), "");
  }
  EXPECT_STREQ(SnryLineAt(0).text, "a");
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastLinesTest, RowsShowAtMost32BytesOfTheTextAndOfTheCondition) {
  CastLineAdd(Member(), Line("おはよう"));
  CastLineAdd(Member(), Line("はい", {1, 5}));
  CastLineAdd(Member(), Line("うん", {2, 65535}));  // of an unused parameter
  CastLineAdd(Member(), Line("1234567890123456789012345678901あ", {3, 7}));
  std::memset(SnryMain.paras[2].name, 'n', 40);
  EXPECT_EQ(Row(0), "「おはよう」");
  EXPECT_EQ(Row(1), "「はい」-> 鍵=5");
  EXPECT_EQ(Row(2), "「うん」-> 未設定=65535");
  // The pair would end past the 32nd byte.
  EXPECT_EQ(Row(3), "「1234567890123456789012345678901」-> " + std::string(29, 'n'));
}

TEST_F(CastLinesTest, FreeingAMembersLinesFreesAllOfThem) {
  for (int i = 0; i < 7; ++i) CastLineAdd(Member(), Line("a", {1, 2}));
  CastLinesFree(Member());
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(SnryLineAt(i).used, 0) << i;
    EXPECT_EQ(Member().lines[i], 0) << i;
    EXPECT_EQ(Member().lineParameters[i], 0) << i;
  }
}

TEST_F(CastLinesTest, IdsBeyondTheTableOfLinesHaveNoTextAndHarmNothing) {
  Member().lines[0] = 25601;
  Member().lines[1] = 65535;
  EXPECT_EQ(Row(0), "「」");
  CastLineChange(Member(), 0, Line("x"));
  EXPECT_EQ(Row(0), "「」");
  CastLineDelete(Member(), 0);
  CastLinesFree(Member());
  EXPECT_EQ(CastLineRows(Member()), 0);
}

// --- The dialog

TEST_F(CastLinesTest, TheDialogShowsTheMemberAndItsLines) {
  CastLineAdd(Member(), Line("はい", {1, 5}));
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharMessageDlg);
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::SnryCharMessageDlg);
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ミル");
    EXPECT_EQ(TextIn(IDC_CAST_STAGE_NAME), "郵便屋");
    EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"「はい」-> 鍵=5"});
    EXPECT_EQ(RowsIn(IDC_CAST_START_PARA), (Rows{"未設定", "鍵", "扉"}));
    EXPECT_EQ(RowsIn(IDC_CAST_LINE_END),
              (Rows{"未指定", "一定時間", "リターンキー", "スペースキー", "何れかのキー"}));
    EXPECT_EQ(TextIn(IDC_CAST_LINE_TEXT), "");
  });
  Run();
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(CastLinesTest, ALineIsAddedWithItsConditionAndItsEnd) {
  ThenType(IDC_CAST_LINE_TEXT, "こんにちは");
  ThenChoose(IDC_CAST_START_PARA, 2);  // 扉, id 3
  ThenType(IDC_CAST_START_VALUE, "9999");
  ThenChoose(IDC_CAST_LINE_END, 4);
  ThenChoose(IDC_CAST_END_PARA, 1);
  ThenType(IDC_CAST_END_VALUE, "-5");
  ExpectBox("台詞を追加します。", "台詞の追加");
  ThenPress(IDC_CAST_ADD);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"「こんにちは」-> 扉=9999"}); });
  Run();
  EXPECT_EQ(Member().lineParameters[0], 3);
  EXPECT_EQ(Member().lineValues[0], 9999);
  EXPECT_EQ(Member().lineEnds[0], 4);
  EXPECT_EQ(Member().endParameters[0], 1);
  EXPECT_EQ(Member().endValues[0], 65531);
}

TEST_F(CastLinesTest, TheTextTakes179BytesAndValuesFourCharacters) {
  ThenType(IDC_CAST_LINE_TEXT, std::string(200, 'x'));
  ThenType(IDC_CAST_START_VALUE, "12345");
  ExpectBox("台詞を追加します。", "台詞の追加");
  ThenPress(IDC_CAST_ADD);
  Run();
  EXPECT_EQ(SnryLineAt(0).text, std::string(179, 'x'));
  EXPECT_EQ(Member().lineValues[0], 1234);
}

TEST_F(CastLinesTest, AnEmptyTextIsAskedAboutAndNotAdded) {
  ExpectBox("台詞を追加します。", "台詞の追加");
  ThenPress(IDC_CAST_ADD);
  Run();
  EXPECT_EQ(CastLineRows(Member()), 0);
}

TEST_F(CastLinesTest, ACancelledBoxLeavesEverything) {
  CastLineAdd(Member(), Line("はい", {1, 5}));
  const SnryCastRec before = Member();
  ThenType(IDC_CAST_LINE_TEXT, "いいえ");
  ExpectBox("台詞を追加します。", "台詞の追加", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_ADD);
  ThenChoose(IDC_CAST_LIST, 0);
  ExpectBox("台詞を変更します。", "台詞の変更", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_CHANGE);
  ExpectBox("台詞を削除します。", "台詞の削除", BoxAnswer::Cancel);
  ThenPress(IDC_CAST_DELETE);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST).size(), 1U); });
  Run();
  EXPECT_EQ(std::memcmp(&before, &Member(), sizeof before), 0);
  EXPECT_STREQ(SnryLineAt(0).text, "はい");
}

TEST_F(CastLinesTest, WithoutARowNothingIsChangedDeletedOrSaid) {
  CastLineAdd(Member(), Line("はい"));
  ThenPress(IDC_CAST_CHANGE);
  ThenPress(IDC_CAST_DELETE);
  Run();
  EXPECT_EQ(CastLineRows(Member()), 1);
}

TEST_F(CastLinesTest, ARowFillsTheFieldsAndAConditionOfAnUnusedParameterShowsAsNotSet) {
  CastLineAdd(Member(), Line("はい", {3, 5}, 2, {2, 6}));
  ThenChoose(IDC_CAST_LIST, 0);
  Then([] {
    EXPECT_EQ(TextIn(IDC_CAST_LINE_TEXT), "はい");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_START_PARA), 2);
    EXPECT_EQ(TextIn(IDC_CAST_START_VALUE), "5");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_LINE_END), 2);
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_END_PARA), 0);  // slot 1 is unused
    EXPECT_EQ(TextIn(IDC_CAST_END_VALUE), "6");
  });
  Run();
}

TEST_F(CastLinesTest, ALineIsChangedAndDeleted) {
  CastLineAdd(Member(), Line("一"));
  CastLineAdd(Member(), Line("二"));
  ThenChoose(IDC_CAST_LIST, 1);
  ThenType(IDC_CAST_LINE_TEXT, "弐");
  ExpectBox("台詞を変更します。", "台詞の変更");
  ThenPress(IDC_CAST_CHANGE);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), (Rows{"「一」", "「弐」"})); });
  ThenChoose(IDC_CAST_LIST, 0);
  ExpectBox("台詞を削除します。", "台詞の削除");
  ThenPress(IDC_CAST_DELETE);
  Then([] { EXPECT_EQ(RowsIn(IDC_CAST_LIST), Rows{"「弐」"}); });
  Run();
}

TEST_F(CastLinesTest, ClearingEmptiesTheTextFieldAndNothingElse) {
  CastLineAdd(Member(), Line("はい", {3, 5}, 2));
  ThenChoose(IDC_CAST_LIST, 0);
  ThenPress(IDC_CAST_CLEAR);
  Then([] {
    EXPECT_EQ(TextIn(IDC_CAST_LINE_TEXT), "");
    EXPECT_EQ(TextIn(IDC_CAST_START_VALUE), "5");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_CAST_LINE_END), 2);
    EXPECT_EQ(RowsIn(IDC_CAST_LIST).size(), 1U);
  });
  Run();
  EXPECT_STREQ(SnryLineAt(0).text, "はい");
}

TEST_F(CastLinesTest, ACopyIsNamedByItsCharacterAndItsNumber) {
  Cast({1, 514});
  SnryCastAt(513).master = 1;
  SnryCastAt(513).copies = 1;
  Scenario.castRow = 1;
  Then([] {
    EXPECT_EQ(TextIn(IDC_CAST_NAME), "ミルのコピー2");
    EXPECT_EQ(TextIn(IDC_CAST_STAGE_NAME), "郵便屋");
  });
  Run();
}

TEST_F(CastLinesTest, WithoutAMemberNoDialogOpens) {
  for (const int row : {-1, 1, 300}) {
    Scenario.castRow = row;
    for (void (*run)(WindowHandle) : {SnryCharMessageDlgRun, SnryCharPlayDlgRun, SnryCharEntryDlgRun,
                                      SnryCharBariaDlgRun, FileCharaDelDlgRun, FileCharaCopyDlgRun})
      run(Program.hMainWnd);
  }
  EXPECT_EQ(OpenWindowCount(), 1);
}

}  // namespace
