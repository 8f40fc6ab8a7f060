// The editors of the plan, opened from its window.
#include "tests/schedule/plan/plan_window_fixture.h"

namespace {

class PlanEditors : public PlanWindowTest {
 protected:
  static std::string Field(int id) { return ControlText(TopDialog(), id); }
  static std::vector<int> Intervals() {
    return {Plan.head.ScpIntervalTable, Plan.head.ScpIntervalTable + kScpIntervalCount};
  }
  static WindowHandle PageOne() { return FindDialog(IDD_PSDialog2no1); }
  static WindowHandle PageTwo() { return FindDialog(IDD_PSDialog2no2); }
  static std::vector<void (*)()> Refusals() {
    return {[] { Press(TopDialog(), 2); }, [] { PressEscape(TopDialog()); }, [] { PressClose(TopDialog()); }};
  }
};

// --- The start

TEST_F(PlanEditors, TheStartIsThePlansAndMakesItChanged) {
  Open();
  const SclDate schedule = Schedule.SclHeader.start;
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "開始年月日設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLSttTimeSetDlgSecond);
    EXPECT_EQ(Field(IDC_SCL_YEAR), "26");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCL_MONTH), 10);
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCL_DAY), 20);
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCL_HOUR), 9);
  });
  ThenChoose(IDC_SCL_MONTH, 11);
  ThenChoose(IDC_SCL_DAY, 30);
  ThenChoose(IDC_SCL_HOUR, 0);
  ThenPress(1);
  Press(Window(), IDC_PLAN_START);
  EXPECT_EQ(Shown(Plan.head.start), "26/11/30 0");
  EXPECT_TRUE(Plan.dirty);
  EXPECT_EQ(Shown(Schedule.SclHeader.start), Shown(schedule));
}

TEST_F(PlanEditors, TheFirstListOfDaysIsThatOfTheSchedulesYear) {
  Open();
  Plan.head.start = {26, 1, 27, 8};  // February of no leap year
  SclStart() = {28, 0, 0, 8};        // and of one
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_DAY).size(), 29U); });
  ThenPress(2);
  Press(Window(), IDC_PLAN_START);
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanEditors, AStartThatIsNotConfirmedStays) {
  Open();
  for (void (*end)() : Refusals()) {
    ThenChoose(IDC_SCL_HOUR, 0);
    Then(end);
    Press(Window(), IDC_PLAN_START);
    EXPECT_EQ(Shown(Plan.head.start), "26/10/20 9");
    EXPECT_FALSE(Plan.dirty);
  }
}

// --- The intervals

TEST_F(PlanEditors, TheIntervalsAreShownInThreeCharacters) {
  Open();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRepeatIntSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "学習作業復習-時間間隔設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCPRepeatIntSetDlg);
    EXPECT_EQ(Field(IDC_SCP_INTERVAL_FIRST), "  2");
    EXPECT_EQ(Field(IDC_SCP_INTERVAL_FIRST + 2), " 14");
    EXPECT_EQ(Field(IDC_SCP_INTERVAL_FIRST + 9), " 56");
  });
  ThenPress(2);
  Press(Window(), IDC_PLAN_INTERVALS);
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanEditors, ConfirmingTheIntervalsWithoutChangesTurnsTheLongOnesIntoTen) {
  Open();
  ThenPress(1);
  Press(Window(), IDC_PLAN_INTERVALS);
  EXPECT_EQ(Intervals(), (std::vector<int>{2, 7, 10, 10, 10, 10, 10, 10, 10, 10}));
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, IntervalsAreReadAsHoursAreAndCutDownToTen) {
  Open();
  ThenType(IDC_SCP_INTERVAL_FIRST, "");
  ThenType(IDC_SCP_INTERVAL_FIRST + 1, "-5");
  ThenType(IDC_SCP_INTERVAL_FIRST + 2, "a");  // counts 10
  ThenType(IDC_SCP_INTERVAL_FIRST + 3, "11");
  ThenType(IDC_SCP_INTERVAL_FIRST + 4, " 9");
  ThenType(IDC_SCP_INTERVAL_FIRST + 5, "?");  // counts 1
  ThenType(IDC_SCP_INTERVAL_FIRST + 6, "003");
  Then([] { PressEnter(TopDialog()); });
  Press(Window(), IDC_PLAN_INTERVALS);
  EXPECT_EQ(Intervals(), (std::vector<int>{0, 0, 10, 10, 9, 1, 3, 10, 10, 10}));
}

TEST_F(PlanEditors, IntervalsThatAreNotConfirmedStay) {
  Open();
  for (void (*end)() : Refusals()) {
    ThenType(IDC_SCP_INTERVAL_FIRST, "9");
    Then(end);
    Press(Window(), IDC_PLAN_INTERVALS);
    EXPECT_EQ(Intervals()[0], 2);
    EXPECT_FALSE(Plan.dirty);
  }
}

TEST_F(PlanEditors, TheDaysOfRecoveryAreShownAndNeverStored) {
  OpenTraining();
  for (const int end : {1, 2}) {
    Then([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRepeat2IntSetDlg);
      EXPECT_EQ(WindowText(TopDialog()), "負荷ごとの疲労回復時間設定");
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCPRepeat2IntSetDlg);
      EXPECT_EQ(Field(IDC_SCP_RECOVERY_FIRST), "  2");
      EXPECT_EQ(Field(IDC_SCP_RECOVERY_FIRST + 1), "  3");
      EXPECT_EQ(Field(IDC_SCP_RECOVERY_FIRST + 2), "  4");
    });
    ThenType(IDC_SCP_RECOVERY_FIRST, "9");
    ThenPress(end);
    Press(Window(), IDC_PLAN_RECOVERY);
    EXPECT_EQ(Intervals()[0], 2);
    EXPECT_FALSE(Plan.dirty);
  }
}

// The study form has no such key, but its window serves the command.
TEST_F(PlanEditors, TheCommandOfTheRecoveryIsServedByTheStudyWindowToo) {
  Open();
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRepeat2IntSetDlg); });
  Then([] { PressEscape(TopDialog()); });
  CommandSend(Command::PlanRecovery);
}

// --- The work hours

TEST_F(PlanEditors, TheWorkHoursAreEditedInTheSchedulesRowsAndTakenBackWithTheirEnds) {
  Open();
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "1日のワーク時間設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::ChgSclDayTimeDlgSecond);
    EXPECT_EQ(Schedule.SclHeader.rows[3], (SclWorkDayRow{14, 8, 22}));
  });
  ThenChoose(IDC_SCL_BEGINS + 3, 20);
  ThenChoose(IDC_SCL_LENGTHS + 3, 4);
  ThenPress(1);
  Press(Window(), IDC_PLAN_DAY_HOURS);
  EXPECT_EQ(Plan.head.rows[3], (SclWorkDayRow{4, 20, 24}));
  EXPECT_EQ(Plan.head.rows[2], (SclWorkDayRow{14, 8, 22}));
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, ACancelledEditOfTheWorkHoursLeavesThePlansHoursInTheSchedule) {
  Open();
  for (void (*end)() : Refusals()) {
    for (SclWorkDayRow& row : SclRows()) row = {10, 8, 18};
    ThenChoose(IDC_SCL_BEGINS + 1, 9);
    Then(end);
    Press(Window(), IDC_PLAN_DAY_HOURS);
    EXPECT_EQ(Plan.head.rows[1], (SclWorkDayRow{14, 8, 22}));
    EXPECT_EQ(Schedule.SclHeader.rows[0], (SclWorkDayRow{14, 8, 22}));
    EXPECT_EQ(Schedule.SclHeader.rows[1].begin, 9);
    EXPECT_FALSE(Plan.dirty);
  }
}

// --- The rests

TEST_F(PlanEditors, TheSheetOfTheRestsHasTwoPagesOfTwelve) {
  Open();
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "休憩時間設定");
    EXPECT_EQ(ListRows(PageOne(), IDC_SCP_REST_START_FIRST).size(), 24U);
    EXPECT_EQ(ListSelected(PageOne(), IDC_SCP_REST_START_FIRST), 12);
    EXPECT_EQ(ControlText(PageOne(), IDC_SCP_REST_LENGTH_FIRST), "  1");
    EXPECT_EQ(ListSelected(PageOne(), IDC_SCP_REST_START_FIRST + 11), 21);
    SheetPageChoose(1);
    EXPECT_EQ(ListSelected(PageTwo(), IDC_SCP_REST_START_FIRST + 1), 18);
    EXPECT_EQ(ControlText(PageTwo(), IDC_SCP_REST_LENGTH_FIRST + 11), "  1");
    Press(TopDialog(), 2);
  });
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanEditors, ConfirmedRestsAreStoredForTheirRowsAndTheirEndsStay) {
  Open();
  Then([] {
    ChooseRow(PageOne(), IDC_SCP_REST_START_FIRST + 4, 10);  // Tuesday's second
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST + 4, "3");
    SheetPageChoose(1);
    ChooseRow(PageTwo(), IDC_SCP_REST_START_FIRST + 9, 0);  // the holiday's first
    Type(PageTwo(), IDC_SCP_REST_LENGTH_FIRST + 9, "-1");
    PressEnter(TopDialog());
  });
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_EQ(Plan.head.ScpRestTable[1][1], (ScpRestPeriod{10, 19, 3}));
  EXPECT_EQ(Plan.head.ScpRestTable[7][0], (ScpRestPeriod{0, 13, 0}));
  EXPECT_EQ(Plan.head.ScpRestTable[0][0], (ScpRestPeriod{12, 13, 1}));
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, ARestThatPassesMidnightEndsThere) {
  Open();
  Then([] {
    ChooseRow(PageOne(), IDC_SCP_REST_START_FIRST, 22);
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST, "3");
    ChooseRow(PageOne(), IDC_SCP_REST_START_FIRST + 1, 0);
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST + 1, "fff");
    ChooseRow(PageOne(), IDC_SCP_REST_START_FIRST + 2, 22);
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST + 2, "2");
    Press(TopDialog(), 1);
  });
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_EQ(Plan.head.ScpRestTable[0][0].length, 2);
  EXPECT_EQ(Plan.head.ScpRestTable[0][1].length, 24);
  EXPECT_EQ(Plan.head.ScpRestTable[0][2].length, 2);
}

TEST_F(PlanEditors, AppliedRestsStayWhenTheSheetIsCancelled) {
  Open();
  Then([] {
    EXPECT_FALSE(Plan.dirty);
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST, "2");
    EXPECT_TRUE(ControlIsEnabled(TopDialog(), kSheetApplyButton));
    Press(TopDialog(), kSheetApplyButton);
    EXPECT_EQ(Plan.head.ScpRestTable[0][0].length, 2);
    Type(PageOne(), IDC_SCP_REST_LENGTH_FIRST, "5");
    PressEscape(TopDialog());
  });
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_EQ(Plan.head.ScpRestTable[0][0].length, 2);
  EXPECT_TRUE(Plan.dirty);
}

// A start that is no hour, as only a file can hold it, stays while none is chosen.
TEST_F(PlanEditors, AStartThatIsNoHourIsShownAsNoneAndKept) {
  Open();
  Plan.head.ScpRestTable[0][0] = {77, 0, 1};
  Then([] {
    EXPECT_EQ(ListSelected(PageOne(), IDC_SCP_REST_START_FIRST), -1);
    Press(TopDialog(), 1);
  });
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_EQ(Plan.head.ScpRestTable[0][0], (ScpRestPeriod{77, 0, 0}));
}

// --- A line

TEST_F(PlanEditors, ADoubleClickOnTheContentEditsTheText) {
  Open();
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "内容設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLContentSetDlgSecond);
    EXPECT_EQ(Field(IDC_SCL_TEXT), "");
  });
  ThenType(IDC_SCL_TEXT, "英単語");
  ThenPress(1);
  DoubleClick(kContent, Down(2));
  EXPECT_STREQ(Plan.ScpPlanTable[1].text, "英単語");
  EXPECT_TRUE(Plan.dirty);
  EXPECT_TRUE(Shows("英単語", 50, 2));
}

TEST_F(PlanEditors, AStudyLinesHoursAreTypedInFourCharacters) {
  Open();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRsvTimeSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "学習時間設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCPRsvTimeSetDlg);
    EXPECT_EQ(Field(IDC_SCL_HOURS), "   0");
  });
  ThenType(IDC_SCL_HOURS, "12");
  ThenPress(1);
  DoubleClick(kHours, Down(3));
  EXPECT_EQ(Plan.ScpPlanTable[2].hours, 12U);
  EXPECT_TRUE(Shows(" 12H", 494, 3));
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, ATrainingLinesLoadAndHoursAreSetTogether) {
  OpenTraining();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRsvTime2SetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "負荷・時間設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCPRsvTime2SetDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCP_LOAD),
              (Rows{"軽い=70%未満", "中くらい=70%～84%", "重い=85%以上"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_SCP_LOAD), 1);
    EXPECT_EQ(Field(IDC_SCP_LOAD_HOURS), "  0");
  });
  ThenChoose(IDC_SCP_LOAD, 2);
  ThenType(IDC_SCP_LOAD_HOURS, "2");
  ThenPress(1);
  DoubleClick(kHours, Down(1));
  EXPECT_EQ(Plan.ScpPlanTable[0].load, 2U);
  EXPECT_EQ(Plan.ScpPlanTable[0].hours, 2U);
  EXPECT_TRUE(Shows("(重)  2H", 494, 1));
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, TrainingHoursAbove23Become24) {
  OpenTraining();
  for (const auto& [typed, hours] :
       {std::pair{"23", 23U}, {"24", 24U}, {"25", 24U}, {"999", 24U}, {"-3", 0U}}) {
    ThenType(IDC_SCP_LOAD_HOURS, typed);
    ThenPress(1);
    DoubleClick(kHours, Down(1));
    EXPECT_EQ(Plan.ScpPlanTable[0].hours, hours) << typed;
  }
}

TEST_F(PlanEditors, ALoadThatIsNoneIsShownAsNoneAndKept) {
  OpenTraining();
  Plan.ScpPlanTable[0].load = 9;
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_SCP_LOAD), -1); });
  ThenPress(1);
  DoubleClick(kHours, Down(1));
  EXPECT_EQ(Plan.ScpPlanTable[0].load, 9U);
  EXPECT_TRUE(Shows("(-)  0H", 494, 1));
}

TEST_F(PlanEditors, TheRepeatsAreCutDownToTen) {
  Open();
  for (const auto& [typed, repeat] :
       {std::pair{"9", 9}, {"10", 10}, {"11", 10}, {"266", 10}, {"9999", 10}, {"", 0}, {"-2", 0}}) {
    Then([] {
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRepeatTimeSetDlg);
      EXPECT_EQ(WindowText(TopDialog()), "復習回数");
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCPRepeatTimeSetDlg);
    });
    ThenType(IDC_SCP_REPEAT, typed);
    ThenPress(1);
    DoubleClick(kRepeat, Down(4));
    EXPECT_EQ(Plan.ScpPlanTable[3].repeat, repeat) << typed;
  }
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanEditors, TheRepeatsAreShownInFourCharacters) {
  Open();
  Then([] { EXPECT_EQ(Field(IDC_SCP_REPEAT), "   2"); });
  ThenPress(2);
  DoubleClick(kRepeat, Down(1));
}

TEST_F(PlanEditors, LinesThatAreNotConfirmedStay) {
  Open();
  const ScpPlanRec before = Plan.ScpPlanTable[0];
  for (void (*end)() : Refusals()) {
    ThenType(IDC_SCL_TEXT, "x");
    Then(end);
    DoubleClick(kContent, Down(1));
    ThenType(IDC_SCL_HOURS, "9");
    Then(end);
    DoubleClick(kHours, Down(1));
    ThenType(IDC_SCP_REPEAT, "9");
    Then(end);
    DoubleClick(kRepeat, Down(1));
    EXPECT_EQ(Plan.ScpPlanTable[0], before);
    EXPECT_FALSE(Plan.dirty);
  }
  Plan.head.ScpPlanKind = kScpTraining;
  for (void (*end)() : Refusals()) {
    ThenChoose(IDC_SCP_LOAD, 2);
    ThenType(IDC_SCP_LOAD_HOURS, "9");
    Then(end);
    DoubleClick(kHours, Down(1));
    EXPECT_EQ(Plan.ScpPlanTable[0], before);
    EXPECT_FALSE(Plan.dirty);
  }
}

TEST_F(PlanEditors, ADoubleClickOnNoCellOpensNothing) {
  Open();
  Plan.head.count = 2;
  SendPaint(Window());
  DoubleClick(kNumber, Down(1));
  DoubleClick(kContent, 230);      // the heads
  DoubleClick(kContent, Down(3));  // behind the last line
  DoubleClick(300, 100);
  DoubleClick(716, Down(1));
  EXPECT_EQ(TopDialog(), nullptr);
}

}  // namespace
