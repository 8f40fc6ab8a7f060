// Insert, delete, copy and paste of rows.
#include "schedule/model/scl_file.h"
#include "tests/schedule/table/table_fixture.h"

namespace {

// --- Insert

TEST_F(ScheduleTableTest, AnInsertedRowIsEmptyAndLiesAtTheEndOfTheOneAbove) {
  Lines(4);
  Click(kNumberX, 3);
  Send(kInsert);
  EXPECT_EQ(Texts(), "1 2 - 3 4");
  const SclItemRec& row = SclItem(2);
  EXPECT_EQ(row.hours, 0U);
  // Two hours after Saturday at 8.
  EXPECT_EQ(Shown(row.start), "26/10/20 10");
  EXPECT_EQ(Shown(row.end), "26/10/20 10");
  EXPECT_EQ(row.mirrorStart.year, 26);
  EXPECT_EQ(row.mirrorStart.month, 10);
  EXPECT_EQ(row.mirrorStart.day, 20);
  EXPECT_EQ(row.mirrorStart.minute, 10) << "the hour stands where minutes are read";
  EXPECT_EQ(row.mirrorEnd, row.mirrorStart);
  EXPECT_EQ(row.alarmOn, 0);
}

TEST_F(ScheduleTableTest, ARowAtTheTopBeginsWithTheSchedule) {
  Lines(2);
  SclStart() = {26, 10, 22, 9};
  Click(kNumberX, 1);
  Send(kInsert);
  EXPECT_EQ(Texts(), "- 1 2");
  EXPECT_EQ(Shown(SclItem(0).start), "26/10/22 9");
  EXPECT_EQ(SclItem(0).mirrorEnd.minute, 9);
}

TEST_F(ScheduleTableTest, DatesOfLaterRowsStayAfterAnInsertion) {
  Lines(3);
  SclItem(2).start = {30, 1, 2, 3};
  Click(kNumberX, 2);
  Send(kInsert);
  EXPECT_EQ(Shown(SclItem(3).start), "30/1/2 3");
}

TEST_F(ScheduleTableTest, ARangeInsertsAsManyRowsAtItsAnchor) {
  Lines(6);
  Drag(2, 4);
  Send(kInsert);
  EXPECT_EQ(Texts(), "1 - - - 2 3 4 5 6");
  Lines(6);
  Drag(4, 2);
  Send(kInsert);
  EXPECT_EQ(Texts(), "1 2 3 - - - 4 5 6");
}

TEST_F(ScheduleTableTest, WithNoCurrentRowNothingIsInserted) {
  ExpectBox("項目を挿入できません", "スケジュール項目挿入エラー");
  Send(kInsert);
  EXPECT_EQ(Schedule.SclHeader.count, 31);
}

TEST_F(ScheduleTableTest, AFullTableTakesNoRow) {
  Lines(1000);
  Click(kNumberX, 3);
  ExpectBox("項目数の最大値1000に達しています。項目を減らしてから挿入してください。",
            "スケジュール項目挿入エラー");
  Send(kInsert);
  EXPECT_EQ(Schedule.SclHeader.count, 1000);
  EXPECT_STREQ(SclItem(2).text, "3");
}

TEST_F(ScheduleTableTest, ARangeThatPassesTheLimitFillsTheTableAndNoMore) {
  Lines(998);
  Drag(1, 5);
  Send(kInsert);
  EXPECT_EQ(Schedule.SclHeader.count, 1000);
  EXPECT_STREQ(SclItem(1).text, "");
  EXPECT_STREQ(SclItem(2).text, "1");
  EXPECT_STREQ(SclItem(999).text, "998");
}

// --- Delete

TEST_F(ScheduleTableTest, ADeletedRowIsGoneAndTheRestIsRecalculated) {
  Lines(4);
  SclItem(0).hours = 5;
  Click(kNumberX, 2);
  Send(kDelete);
  EXPECT_EQ(Texts(), "1 3 4");
  EXPECT_EQ(Shown(SclItem(1).start), "26/10/20 13");
  EXPECT_EQ(RowSelection.currentRow, 2);
}

TEST_F(ScheduleTableTest, DeletingARangeKeepsTheCurrentRowWhichMayBePastTheEnd) {
  Lines(6);
  Drag(3, 6);
  Send(kDelete);
  EXPECT_EQ(Texts(), "1 2");
  EXPECT_EQ(RowSelection.currentRow, 6);
  EXPECT_EQ(RowSelection.selectionAnchor, 6);
  EXPECT_EQ(RowSelection.selectionEnd, 6);
  Repaint();
  for (const DrawCall& text : DrawnTexts(Window())) EXPECT_NE(text.text, "[項目6]");
  // There is nothing any more where the current row is.
  Send(kDelete);
  EXPECT_EQ(Texts(), "1 2");
  Send(kInsert);
  EXPECT_EQ(Texts(), "1 2 -");
}

TEST_F(ScheduleTableTest, ARangeSelectedUpwardsIsDeletedAsWell) {
  Lines(6);
  Drag(5, 2);
  Send(kDelete);
  EXPECT_EQ(Texts(), "1 6");
  EXPECT_EQ(RowSelection.currentRow, 2);
}

TEST_F(ScheduleTableTest, WithoutACurrentRowOrRowsNothingIsDeleted) {
  Lines(3);
  Send(kDelete);
  EXPECT_EQ(Texts(), "1 2 3");
  Drag(1, 3);
  Send(kDelete);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  Send(kDelete);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  Repaint();
}

TEST_F(ScheduleTableTest, DeletingTheLastRowsPullsTheTopBack) {
  Lines(40);
  ScrollBy(Window(), View().scrollBar, Scroll::Bottom);
  EXPECT_EQ(View().firstLine, 20);
  Drag(30, 40);
  Send(kDelete);
  EXPECT_EQ(View().lines, 29);
  EXPECT_EQ(View().firstLine, 9);
}

// --- Whatever moves rows waits for the dialog that edits one

TEST_F(ScheduleTableTest, WhileADialogEditsALineNoCommandMovesTheRowsUnderIt) {
  Lines(6);
  Drag(1, 2);
  Send(kCopy);
  Click(kNumberX, 4);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLContentSetDlg);
    for (const int command : {kDelete, kInsert, kCopy, kPaste}) Send(command);
    EXPECT_EQ(RowSelection.copyFirst, 1);
    EXPECT_EQ(Texts(), "1 2 3 4 5 6");
    Type(TopDialog(), IDC_SCL_TEXT, "x");
    Press(TopDialog(), 1);
  });
  Double(kContentX, RowY(4));
  EXPECT_EQ(Texts(), "1 2 3 x 5 6");
}

// --- Copy and paste

TEST_F(ScheduleTableTest, CopiedRowsAreWrittenOverTheRowsFromTheTargetOn) {
  Lines(8);
  Drag(2, 3);
  Send(kCopy);
  SclItem(1).start = {30, 1, 2, 3};
  Click(kNumberX, 6);
  ExpectBox("項目2～3までを 項目6 からへ上書きます", "貼り付け");
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 3 4 5 2 3 8");
  EXPECT_EQ(Shown(SclItem(5).start), "30/1/2 3") << "copied rows keep their dates";
  EXPECT_EQ(RowSelection.selectionAnchor, 6);
  EXPECT_EQ(RowSelection.selectionEnd, 6);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::None);
  EXPECT_EQ(BoxesShown().back().buttons, BoxButtons::OkCancel);
  Send(kPaste);  // without a mark
  EXPECT_EQ(Texts(), "1 2 3 4 5 2 3 8");
}

TEST_F(ScheduleTableTest, ATargetWhollyBeforeTheRangePasses) {
  Lines(8);
  Drag(5, 6);
  Send(kCopy);
  Click(kNumberX, 3);
  ExpectBox("項目5～6までを 項目3 からへ上書きます", "貼り付け");
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 5 6 5 6 7 8");
}

TEST_F(ScheduleTableTest, ATargetInsideOrReachingTheRangeIsRefused) {
  Lines(8);
  Drag(4, 6);
  Send(kCopy);
  for (const int target : {2, 3, 4, 5, 6}) {
    Click(kNumberX, target);
    ExpectBox("貼り付けできません", "貼り付け指定範囲エラー");
    Send(kPaste);
    EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 8") << target;
    EXPECT_EQ(RowSelection.copyMark, CopyMark::InSchedule);
  }
  for (const int target : {1, 7}) {
    Click(kNumberX, target);
    char text[100];
    TextFormat(text, sizeof text, "項目4～6までを 項目%d からへ上書きます", target);
    ExpectBox(text, "貼り付け", BoxAnswer::Cancel);
    Send(kPaste);
  }
  EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 8");
  EXPECT_EQ(RowSelection.copyMark, CopyMark::InSchedule);
}

TEST_F(ScheduleTableTest, APasteTargetOnTheLastRowCopiesOnlyAsManyRowsAsFitBelowTheCount) {
  Lines(8);
  Drag(1, 4);
  Send(kCopy);
  Click(kNumberX, 8);
  ExpectBox("項目1～4までを 項目8 からへ上書きます", "貼り付け");
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 1");
  EXPECT_STREQ(SclItem(8).text, "");
}

TEST_F(ScheduleTableTest, ACopyWithNoRowOrAPasteWithNoTargetDoesNothing) {
  Lines(8);
  Send(kCopy);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::None);
  Click(kNumberX, 2);
  Send(kCopy);
  Mouse(Window(), EventKind::LeftDown, 600, 20);
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 8");
}

TEST_F(ScheduleTableTest, RowsThatWereDeletedSinceTheyWereCopiedAreNotPasted) {
  Lines(8);
  Drag(5, 8);
  Send(kCopy);
  Drag(6, 8);
  Send(kDelete);
  Click(kNumberX, 1);
  ExpectBox("項目5～8までを 項目1 からへ上書きます", "貼り付け");
  Send(kPaste);
  EXPECT_EQ(Texts(), "5 2 3 4 5");
}

TEST_F(ScheduleTableTest, TheWindowMayCloseWhileThePasteIsAskedFor) {
  Lines(8);
  Click(kNumberX, 5);
  Send(kCopy);
  Click(kNumberX, 1);
  ExpectBox("項目5～5までを 項目1 からへ上書きます", "貼り付け", BoxAnswer::Ok,
            [] { SendClose(SclTable.hSclTableWnd); });
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 8");
}

TEST_F(ScheduleTableTest, AnotherWindowsMarkIsNotPastedHere) {
  Lines(8);
  Click(kNumberX, 2);
  RowsMarkCopied(CopyMark::InPlan);
  Click(kNumberX, 5);
  Send(kPaste);
  EXPECT_EQ(Texts(), "1 2 3 4 5 6 7 8");
  Repaint();
  EXPECT_EQ(Drawn(kRed), Rows()) << "and has no bracket here";
  RowsMarkClear();
}

TEST_F(ScheduleTableTest, AWindowOpenedAnewKnowsNoCopiedRows) {
  Click(kNumberX, 2);
  Send(kCopy);
  SendClose(Window());
  Send(kNew);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::None);
  EXPECT_EQ(RowSelection.currentRow, 0);
}

TEST_F(ScheduleTableTest, AScheduleThatIsLoadedIntoTheOpenWindowHasNoCopiedRows) {
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\a.GPI"), 0);
  Click(kNumberX, 2);
  Send(kCopy);
  ThenPick("a.GPI");
  Send(kLoad);
  EXPECT_EQ(RowSelection.currentRow, 0);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::None);
}

// --- Two windows with rows

int planInsertions = 0;
constexpr RowTable kPlanRows{
    CopyMark::InPlan, 300,    300, [] { return 10; }, [](int) { ++planInsertions; }, [](int, int) {},
    [](int, int) {},  nullptr};

TEST_F(ScheduleTableTest, TheCommandsActOnTheWindowThatWasClickedLast) {
  Lines(4);
  const WindowHandle plan = OpenListener();
  PlanWindowSet(plan, &kPlanRows);
  planInsertions = 0;
  Click(kNumberX, 2);
  RowWindowClicked(plan);
  EXPECT_EQ(RowWindow(), plan);
  Send(kInsert);
  EXPECT_EQ(planInsertions, 1);
  EXPECT_EQ(Texts(), "1 2 3 4");
  Send(kCopy);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::InPlan) << "by the window that is open in front";
  Click(kNumberX, 2);
  EXPECT_EQ(RowWindow(), Window());
  Send(kInsert);
  EXPECT_EQ(planInsertions, 1);
  EXPECT_EQ(Texts(), "1 - 2 3 4");
  PlanWindowSet(nullptr, nullptr);
  WindowDestroy(plan);
  EXPECT_EQ(RowWindow(), Window());
  RowsMarkClear();
}

TEST_F(ScheduleTableTest, WithTheScheduleClosedThePlanHasTheCommands) {
  const WindowHandle plan = OpenListener();
  PlanWindowSet(plan, &kPlanRows);
  planInsertions = 0;
  Click(kNumberX, 2);
  SendClose(Window());
  EXPECT_EQ(RowWindow(), plan);
  Send(kInsert);
  EXPECT_EQ(planInsertions, 1);
  PlanWindowSet(nullptr, nullptr);
  EXPECT_EQ(RowWindow(), nullptr);
  WindowDestroy(plan);
}

TEST_F(ScheduleTest, WithoutAWindowTheCommandsOfRowsDoNothing) {
  for (const std::uint32_t command : {2040U, 2209U, 2210U, 2211U}) SendCommand(Program.hMainWnd, command);
  EXPECT_EQ(OpenWindowCount(), 1);
}

}  // namespace
