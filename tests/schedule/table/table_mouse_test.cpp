// The pointer on the window of the schedule: what is hit, what is selected, what opens.
#include "schedule/table/table_layout.h"
#include "tests/schedule/table/table_fixture.h"

namespace {

TableHit HitAt(int x, int y) {
  return TablePlaceAt(TableLayoutOf({0, 0, 808, 540}, {}), 0, 31, x, y).hit;
}

TEST(TableHitTest, EachPlaceOfTheWindowHasItsNumber) {
  EXPECT_EQ(static_cast<int>(HitAt(600, 20)), 1);   // start
  EXPECT_EQ(static_cast<int>(HitAt(300, 60)), 2);   // content
  EXPECT_EQ(static_cast<int>(HitAt(600, 60)), 3);   // hours
  EXPECT_EQ(static_cast<int>(HitAt(700, 60)), 4);   // check
  EXPECT_EQ(static_cast<int>(HitAt(30, 40)), 5);    // head of the numbers
  EXPECT_EQ(static_cast<int>(HitAt(30, 60)), 6);    // number
  EXPECT_EQ(static_cast<int>(HitAt(100, 20)), 7);   // title
  EXPECT_EQ(static_cast<int>(HitAt(750, 60)), 8);   // alarm
  EXPECT_EQ(static_cast<int>(HitAt(750, 40)), 9);   // head of the alarms
  EXPECT_EQ(static_cast<int>(HitAt(300, 40)), 0);   // another head
  EXPECT_EQ(static_cast<int>(HitAt(5, 60)), 0);     // beside the table
  EXPECT_EQ(static_cast<int>(HitAt(790, 60)), 0);   // the scroll bar
  EXPECT_EQ(static_cast<int>(HitAt(300, 460)), 0);  // below the rows
}

TEST(TableHitTest, CellsMeetAtTheirEdges) {
  EXPECT_EQ(HitAt(9, 50), TableHit::None);
  EXPECT_EQ(HitAt(10, 50), TableHit::Number);
  EXPECT_EQ(HitAt(49, 50), TableHit::Number);
  EXPECT_EQ(HitAt(50, 50), TableHit::Content);
  EXPECT_EQ(HitAt(577, 50), TableHit::Content);
  EXPECT_EQ(HitAt(578, 50), TableHit::Hours);
  EXPECT_EQ(HitAt(668, 50), TableHit::Check);
  EXPECT_EQ(HitAt(726, 50), TableHit::Alarm);
  EXPECT_EQ(HitAt(781, 50), TableHit::Alarm);
  EXPECT_EQ(HitAt(782, 50), TableHit::None);
  EXPECT_EQ(HitAt(567, 10), TableHit::Title);
  EXPECT_EQ(HitAt(568, 10), TableHit::Start);
  EXPECT_EQ(HitAt(30, 29), TableHit::Title);
  EXPECT_EQ(HitAt(30, 30), TableHit::NumberHead);
  EXPECT_EQ(HitAt(30, 449), TableHit::Number);
  EXPECT_EQ(HitAt(30, 450), TableHit::None);
}

TEST(TableHitTest, TheRowIsCountedFromTheFirstOnShowAndEndsWithTheLines) {
  const TableLayout layout = TableLayoutOf({0, 0, 808, 540}, {});
  EXPECT_EQ(TablePlaceAt(layout, 7, 31, 30, 50).row, 8);
  EXPECT_EQ(TablePlaceAt(layout, 7, 31, 30, 69).row, 8);
  EXPECT_EQ(TablePlaceAt(layout, 7, 31, 30, 70).row, 9);
  EXPECT_EQ(TablePlaceAt(layout, 0, 3, 30, 109).row, 3);
  EXPECT_EQ(TablePlaceAt(layout, 0, 3, 30, 110).hit, TableHit::None);
}

TEST_F(ScheduleTableTest, APressOnACellMakesItsRowCurrent) {
  Click(kContentX, 4);
  EXPECT_EQ(RowSelection.currentRow, 4);
  EXPECT_EQ(RowSelection.highlightedCell, TableCell::Content);
  EXPECT_FALSE(RowSelection.dragging);
  Click(kNumberX, 6);
  EXPECT_EQ(RowSelection.currentRow, 6);
  EXPECT_EQ(RowSelection.highlightedCell, TableCell::None);
  Mouse(Window(), EventKind::LeftDown, 300, 40);  // a head
  EXPECT_EQ(RowSelection.currentRow, 6);
}

TEST_F(ScheduleTableTest, ADragOverTheNumbersSelectsARange) {
  Down(kNumberX, 3);
  EXPECT_TRUE(RowSelection.dragging);
  EXPECT_EQ(PointerCaptured(), Window());
  Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(7), kLeftHeld);
  EXPECT_EQ(RowSelection.selectionAnchor, 3);
  EXPECT_EQ(RowSelection.selectionEnd, 7);
  EXPECT_EQ(RowSelection.currentRow, 3) << "until the button is up";
  Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(5), kLeftHeld);
  EXPECT_EQ(RowSelection.selectionEnd, 5);
  Mouse(Window(), EventKind::MouseMove, kContentX, RowY(9), kLeftHeld);
  EXPECT_EQ(RowSelection.selectionEnd, 5) << "only over number cells";
  Up(kNumberX, 6);
  EXPECT_FALSE(RowSelection.dragging);
  EXPECT_EQ(PointerCaptured(), nullptr);
  EXPECT_EQ(RowSelection.selectionEnd, 6);
  EXPECT_EQ(RowSelection.currentRow, 6);
}

TEST_F(ScheduleTableTest, ADragUpwardsSelectsAsWell) {
  Drag(7, 3);
  EXPECT_EQ(RowSelection.selectionAnchor, 7);
  EXPECT_EQ(RowSelection.selectionEnd, 3);
  EXPECT_EQ(RowSelectionRange().first, 3);
  EXPECT_EQ(RowSelectionRange().last, 7);
}

TEST_F(ScheduleTableTest, ReleasedOutsideTheRowsTheSelectionStays) {
  Down(kNumberX, 3);
  Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(5), kLeftHeld);
  Mouse(Window(), EventKind::LeftUp, 30, 40);
  EXPECT_EQ(RowSelection.selectionEnd, 5);
  EXPECT_EQ(RowSelection.currentRow, 5);
}

TEST_F(ScheduleTableTest, ShiftMovesTheEndOfTheSelection) {
  Click(kNumberX, 3);
  Click(kNumberX, 8, kShiftHeld);
  EXPECT_EQ(RowSelection.selectionAnchor, 3);
  EXPECT_EQ(RowSelection.selectionEnd, 8);
  EXPECT_FALSE(RowSelection.dragging);
  Click(kNumberX, 2, kShiftHeld);
  EXPECT_EQ(RowSelection.selectionAnchor, 3);
  EXPECT_EQ(RowSelection.selectionEnd, 2);
}

TEST_F(ScheduleTableTest, ShiftWithNoCurrentRowSetsBoth) {
  Click(kNumberX, 8, kShiftHeld);
  EXPECT_EQ(RowSelection.selectionAnchor, 8);
  EXPECT_EQ(RowSelection.selectionEnd, 8);
  EXPECT_EQ(RowSelection.currentRow, 8);
}

TEST_F(ScheduleTableTest, ADragPastTheEdgeScrollsOneRowAMove) {
  Lines(100);
  Down(kNumberX, 18);
  Mouse(Window(), EventKind::MouseMove, kNumberX, 470, kLeftHeld);
  EXPECT_EQ(View().firstLine, 1);
  EXPECT_EQ(RowSelection.selectionEnd, 19);
  Mouse(Window(), EventKind::MouseMove, kNumberX, 471, kLeftHeld);
  EXPECT_EQ(View().firstLine, 2);
  EXPECT_EQ(RowSelection.selectionEnd, 20);
  Mouse(Window(), EventKind::MouseMove, kNumberX, 40, kLeftHeld);
  EXPECT_EQ(View().firstLine, 1);
  EXPECT_EQ(RowSelection.selectionEnd, 19);
  Mouse(Window(), EventKind::LeftUp, kNumberX, 40);
}

TEST_F(ScheduleTableTest, HeldPastTheEdgeTheTickScrollsOn) {
  Lines(100);
  Down(kNumberX, 20);
  Mouse(Window(), EventKind::MouseMove, kNumberX, 600, kLeftHeld);
  EXPECT_EQ(View().firstLine, 1);
  Ticks(1);
  EXPECT_EQ(View().firstLine, 2);
  EXPECT_EQ(RowSelection.selectionEnd, 22);
  Ticks(6);
  EXPECT_EQ(View().firstLine, 3);
  Mouse(Window(), EventKind::LeftUp, kNumberX, 600);
  EXPECT_EQ(RowSelection.currentRow, 23);
  Ticks(20);
  EXPECT_EQ(View().firstLine, 3) << "the button is up";
}

TEST_F(ScheduleTableTest, BackOverTheNumbersTheTableStandsStill) {
  Lines(100);
  Down(kNumberX, 20);
  Mouse(Window(), EventKind::MouseMove, kNumberX, 600, kLeftHeld);
  Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(10), kLeftHeld);
  Ticks(20);
  EXPECT_EQ(View().firstLine, 1);
  EXPECT_EQ(RowSelection.selectionEnd, 10);
  Up(kNumberX, 10);
}

TEST_F(ScheduleTableTest, AMoveWithoutADragDoesNothing) {
  Click(kNumberX, 3);
  Mouse(Window(), EventKind::MouseMove, kNumberX, RowY(9));
  EXPECT_EQ(RowSelection.selectionEnd, 3);
}

// --- The popup menu

TEST_F(ScheduleTableTest, TheRightButtonSelectsARowAndOpensTheMenu) {
  Click(kNumberX, 3);
  ExpectMenu(IDM_SCHEDULE_LINE, 0);
  Mouse(Window(), EventKind::RightDown, kNumberX, RowY(5));
  EXPECT_EQ(RowSelection.currentRow, 5);
  EXPECT_EQ(RowSelection.selectionAnchor, 5);
  EXPECT_EQ(DialogsExpected(), 0);
}

TEST_F(ScheduleTableTest, WithARangeTheMenuOpensOnlyInsideIt) {
  Drag(3, 6);
  Mouse(Window(), EventKind::RightDown, kNumberX, RowY(7));
  EXPECT_EQ(RowSelection.selectionAnchor, 3);
  EXPECT_EQ(RowSelection.selectionEnd, 6);
  ExpectMenu(IDM_SCHEDULE_LINE, 2210);
  Mouse(Window(), EventKind::RightDown, kNumberX, RowY(6));
  EXPECT_EQ(RowSelection.copyMark, CopyMark::InSchedule);
  EXPECT_EQ(RowSelection.copyFirst, 3);
  EXPECT_EQ(RowSelection.copyLast, 6);
}

TEST_F(ScheduleTableTest, TheRightButtonElsewhereOpensNothing) {
  for (const int x : {kContentX, kHoursX, kCheckX, kAlarmX}) {
    Mouse(Window(), EventKind::RightDown, x, RowY(5));
  }
  Mouse(Window(), EventKind::RightDown, kNumberX, 40);
  EXPECT_EQ(RowSelection.currentRow, 0);
}

// --- Double clicks

TEST_F(ScheduleTableTest, ADoubleClickOnTheStartEditsItAndMovesAllItems) {
  Lines(2);
  ThenType(IDC_SCL_YEAR, "27");
  ThenPress(1);
  Double(600, 20);
  EXPECT_EQ(Schedule.SclHeader.start.year, 27);
  EXPECT_EQ(SclItem(1).start.year, 27);
}

TEST_F(ScheduleTableTest, ADoubleClickOnAContentEditsIt) {
  ThenType(IDC_SCL_TEXT, "会議");
  ThenPress(1);
  Double(kContentX, RowY(3));
  EXPECT_STREQ(SclItem(2).text, "会議");
  Repaint();
  EXPECT_TRUE(Stands("会議", 52, 92));
  EXPECT_EQ(Schedule.SclDirtyFlags, 0U) << "a plain edit asks nothing at the end";
}

TEST_F(ScheduleTableTest, ADoubleClickOnHoursEditsThem) {
  ThenType(IDC_SCL_HOURS, "12");
  ThenPress(1);
  Double(kHoursX, RowY(1));
  EXPECT_EQ(SclItem(0).hours, 12U);
  // Saturday 8 to 18, and two hours of Sunday.
  EXPECT_EQ(Shown(SclItem(0).end), "26/10/21 10");
}

TEST_F(ScheduleTableTest, ADoubleClickOnACheckTurnsIt) {
  Double(kCheckX, RowY(2));
  EXPECT_EQ(SclItem(1).doneState, 1);
  Double(kCheckX, RowY(2));
  EXPECT_EQ(SclItem(1).doneState, 0);
  SclItem(1).doneState = 5;
  Double(kCheckX, RowY(2));
  EXPECT_EQ(SclItem(1).doneState, 0);
}

TEST_F(ScheduleTableTest, ADoubleClickOnAnAlarmTurnsIt) {
  Double(kAlarmX, RowY(2));
  EXPECT_EQ(SclItem(1).alarmOn, 1);
  Double(kAlarmX, RowY(2));
  EXPECT_EQ(SclItem(1).alarmOn, 0);
}

TEST_F(ScheduleTableTest, ADoubleClickOnTheTitleEditsIt) {
  ThenType(IDC_SCL_TEXT, "年末");
  ThenPress(1);
  Double(100, 20);
  EXPECT_STREQ(Schedule.SclHeader.title, "年末");
}

TEST_F(ScheduleTableTest, ADoubleClickOnAHeadOrBesideTheTableOpensNothing) {
  Double(30, 40);
  Double(300, 40);
  Double(5, 60);
  Double(150, 470);
  EXPECT_EQ(OpenWindowCount(), 2);
}

TEST_F(ScheduleTableTest, ASecondDialogDoesNotOpenOverTheFirst) {
  Then([] {
    const int windows = OpenWindowCount();
    for (const int command : {2021, 2022, 2023, 2324, 2257, 2264, 2019, 1910, kNew}) Send(command);
    EXPECT_EQ(OpenWindowCount(), windows);
    Press(TopDialog(), 2);
  });
  Double(kContentX, RowY(3));
}

// --- ScheduleAlarmDlg

TEST_F(ScheduleTableTest, AllAlarmsGoOnAndOffUpToTheCount) {
  SclItem(31).alarmOn = 9;  // behind the last line
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_ScheduleAlarmDlg);
    EXPECT_EQ(WindowText(TopDialog()), "スケジュールのアラーム設定");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::ScheduleAlarmDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_ALARMS_ON), "全アラームをON");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_ALARMS_OFF), "全アラームをOFF");
  });
  ThenPress(IDC_SCL_ALARMS_ON);
  Double(750, 40);
  for (int i = 0; i < 31; ++i) EXPECT_EQ(SclItem(i).alarmOn, 1) << i;
  EXPECT_EQ(SclItem(31).alarmOn, 9);
  Repaint();
  EXPECT_TRUE(Stands("  ◎", 728, 52));
  for (const auto end : {+[] { Press(TopDialog(), 2); }, +[] { PressEscape(TopDialog()); },
                         +[] { PressClose(TopDialog()); }}) {
    Then(end);
    Double(750, 40);
    EXPECT_EQ(SclItem(0).alarmOn, 1);
  }
  ThenPress(IDC_SCL_ALARMS_OFF);
  Double(750, 40);
  for (int i = 0; i < 31; ++i) EXPECT_EQ(SclItem(i).alarmOn, 0) << i;
  Then([] { PressEnter(TopDialog()); });
  Double(750, 40);
  EXPECT_EQ(SclItem(0).alarmOn, 1);
}

// --- DspSclClickLineData

TEST_F(ScheduleTableTest, ADoubleClickOnANumberShowsTheLine) {
  SclItem(4).hours = 25;
  SclItem(4).start = {26, 10, 22, 8};
  SclItem(4).end = {26, 10, 24, 13};
  std::fill_n(SclItem(4).text, kSclItemTextSize, 'z');  // without a terminator
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspSclClickLineData);
    EXPECT_EQ(WindowText(TopDialog()), "指定ラインの詳細");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspSclClickLineData);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_LINE_NUMBER), " 5 ");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_LINE_TIME),
              "2026年 11月 23日 8時 ～ 2026年 11月 25日 13時 の25時間");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_LINE_TEXT), std::string(128, 'z'));
    PressEnter(TopDialog());
  });
  Double(kNumberX, RowY(5));
  for (const auto end : {+[] { Press(TopDialog(), 2); }, +[] { PressEscape(TopDialog()); },
                         +[] { PressClose(TopDialog()); }}) {
    Then(end);
    Double(kNumberX, RowY(5));
  }
}

}  // namespace
