// The plain editors, and loading and saving with their boxes.
#include "schedule/model/schedule_dialogs.h"

#include "platform/posix/faults.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_file.h"
#include "tests/schedule/schedule_fixture.h"

namespace {

class ScheduleDialogsTest : public ScheduleTest {
 protected:
  void SetUp() override {
    ScheduleTest::SetUp();
    SclNew();
    Schedule.SclHeader.start = {26, 10, 22, 8};
  }

  static bool StartRun() {
    return SCLSttTimeSetDlgRun(ToolDialog::SCLSttTimeSetDlg, Program.hMainWnd, SclStart());
  }
  static int Chosen(int id) { return ListSelected(TopDialog(), id); }
  static std::size_t DayCount() { return ListRows(TopDialog(), IDC_SCL_DAY).size(); }
  static void ThenDays(std::size_t count, int chosen) {
    Then([=] {
      EXPECT_EQ(DayCount(), count);
      EXPECT_EQ(Chosen(IDC_SCL_DAY), chosen);
    });
  }
};

// --- SCLSttTimeSetDlg

TEST_F(ScheduleDialogsTest, TheStartIsShownAndStored) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLSttTimeSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "開始年月日設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLSttTimeSetDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_YEAR), "26");
    const Rows months = ListRows(TopDialog(), IDC_SCL_MONTH);
    EXPECT_EQ(months.size(), 12U);
    EXPECT_EQ(months.front(), " 1");
    EXPECT_EQ(months.back(), "12");
    EXPECT_EQ(Chosen(IDC_SCL_MONTH), 10);
    EXPECT_EQ(DayCount(), 30U);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_DAY).front(), " 1");
    EXPECT_EQ(Chosen(IDC_SCL_DAY), 22);
    const Rows hours = ListRows(TopDialog(), IDC_SCL_HOUR);
    EXPECT_EQ(hours.size(), 24U);
    EXPECT_EQ(hours.front(), " 0");
    EXPECT_EQ(Chosen(IDC_SCL_HOUR), 8);
  });
  ThenType(IDC_SCL_YEAR, "27");
  ThenChoose(IDC_SCL_MONTH, 0);
  ThenChoose(IDC_SCL_DAY, 30);
  ThenChoose(IDC_SCL_HOUR, 23);
  ThenPress(1);
  EXPECT_TRUE(StartRun());
  EXPECT_EQ(Shown(SclStart()), "27/0/30 23");
}

TEST_F(ScheduleDialogsTest, ACancelEscapeOrCloseStoresNothing) {
  for (const auto end : {+[] { Press(TopDialog(), 2); }, +[] { PressEscape(TopDialog()); },
                         +[] { PressClose(TopDialog()); }}) {
    ThenType(IDC_SCL_YEAR, "27");
    ThenChoose(IDC_SCL_MONTH, 0);
    Then(end);
    EXPECT_FALSE(StartRun());
    EXPECT_EQ(Shown(SclStart()), "26/10/22 8");
  }
  Then([] { PressEnter(TopDialog()); });
  EXPECT_TRUE(StartRun());
}

TEST_F(ScheduleDialogsTest, AYearOfOneDigitIsShownWithA0) {
  SclStart().year = 7;
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_YEAR), "07"); });
  ThenPress(1);
  StartRun();
  EXPECT_EQ(SclStart().year, 7);
}

TEST_F(ScheduleDialogsTest, AYearAbove99ReadsAs99) {
  ThenType(IDC_SCL_YEAR, "ff");
  ThenPress(1);
  StartRun();
  EXPECT_EQ(SclStart().year, 99);
  ThenType(IDC_SCL_YEAR, "");
  ThenPress(1);
  StartRun();
  EXPECT_EQ(SclStart().year, 0);
}

TEST_F(ScheduleDialogsTest, AYearBehind2099IsShownWholeAndReadsAs99) {
  SclStart().year = 100;
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_YEAR), "100"); });
  ThenPress(1);
  StartRun();
  EXPECT_EQ(SclStart().year, 99);
}

TEST_F(ScheduleDialogsTest, AMonthChangePullsTheDayBackToTheLastOfTheMonth) {
  ThenChoose(IDC_SCL_MONTH, 0);
  ThenChoose(IDC_SCL_DAY, 30);
  ThenChoose(IDC_SCL_MONTH, 3);
  ThenDays(30, 29);
  ThenChoose(IDC_SCL_MONTH, 1);
  ThenDays(28, 27);
  ThenChoose(IDC_SCL_MONTH, 0);
  ThenDays(31, 27);
  ThenPress(1);
  StartRun();
  EXPECT_EQ(Shown(SclStart()), "26/0/27 8");
}

TEST_F(ScheduleDialogsTest, AYearChangeDoesSoOnlyInFebruary) {
  ThenType(IDC_SCL_YEAR, "28");
  ThenChoose(IDC_SCL_MONTH, 1);
  ThenDays(29, 22);
  ThenChoose(IDC_SCL_DAY, 28);
  ThenType(IDC_SCL_YEAR, "27");
  ThenDays(28, 27);
  ThenType(IDC_SCL_YEAR, "28");
  ThenDays(29, 27);
  ThenChoose(IDC_SCL_MONTH, 2);
  ThenDays(31, 27);
  ThenType(IDC_SCL_YEAR, "29");
  ThenDays(31, 27);
  ThenPress(2);
  StartRun();
}

// The plan starts in February of a leap year, the schedule does not.
TEST_F(ScheduleDialogsTest, ThePlansDaysAreFirstThoseOfTheSchedulesYear) {
  static SclDate plan;
  plan = {28, 1, 28, 9};
  ThenDays(28, -1);
  Then([] { EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLSttTimeSetDlgSecond); });
  ThenPress(1);
  EXPECT_TRUE(SCLSttTimeSetDlgRun(ToolDialog::SCLSttTimeSetDlgSecond, Program.hMainWnd, plan));
  EXPECT_EQ(Shown(plan), "28/1/28 9") << "nothing was chosen";
}

TEST_F(ScheduleDialogsTest, AConfirmedDayIsPulledBackIntoItsMonth) {
  SclStart() = {26, 1, 30, 24};
  Then([] { EXPECT_EQ(Chosen(IDC_SCL_HOUR), -1); });
  ThenPress(1);
  StartRun();
  EXPECT_EQ(Shown(SclStart()), "26/1/27 24");
}

// --- SCLRsvTimeSetDlg

TEST_F(ScheduleDialogsTest, HoursAreShownStoredAndAllItemsRecalculated) {
  SclItem(0).hours = 5;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLRsvTimeSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "予想時間設定");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLRsvTimeSetDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_HOURS), "   5");
  });
  ThenType(IDC_SCL_HOURS, "  12");
  ThenPress(1);
  EXPECT_TRUE(SCLRsvTimeSetDlgRun(Program.hMainWnd, 0));
  EXPECT_EQ(SclItem(0).hours, 12U);
  EXPECT_EQ(Shown(SclItem(0).end), "26/10/23 10");
  EXPECT_EQ(Shown(SclItem(30).start), "26/10/23 10");
}

TEST_F(ScheduleDialogsTest, ACancelOfTheHoursRecalculatesToo) {
  SclItem(0).hours = 5;
  ThenType(IDC_SCL_HOURS, "9");
  ThenPress(2);
  EXPECT_FALSE(SCLRsvTimeSetDlgRun(Program.hMainWnd, 0));
  EXPECT_EQ(SclItem(0).hours, 5U);
  EXPECT_EQ(Shown(SclItem(0).end), "26/10/22 13");
}

TEST_F(ScheduleDialogsTest, HoursOfMoreDigitsThanCanBeTypedStayAsTheyAre) {
  SclItem(0).hours = 16665;
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_HOURS), "16665"); });
  ThenPress(1);
  SCLRsvTimeSetDlgRun(Program.hMainWnd, 0);
  EXPECT_EQ(SclItem(0).hours, 16665U);
}

TEST_F(ScheduleDialogsTest, HoursTakeFourCharactersByTheOddRule) {
  ThenType(IDC_SCL_HOURS, "1a");
  ThenPress(1);
  SCLRsvTimeSetDlgRun(Program.hMainWnd, 0);
  EXPECT_EQ(SclItem(0).hours, 20U);
  ThenType(IDC_SCL_HOURS, "-5");
  ThenPress(1);
  SCLRsvTimeSetDlgRun(Program.hMainWnd, 0);
  EXPECT_EQ(SclItem(0).hours, 0U);
}

// --- SCLContentSetDlg and SCLTitleDlg

TEST_F(ScheduleDialogsTest, AContentOf127BytesIsStored) {
  TextCopy(SclItem(3).text, kSclItemTextSize, "買い物");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLContentSetDlg);
    EXPECT_EQ(WindowText(TopDialog()), "内容設定");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_TEXT), "買い物");
  });
  ThenType(IDC_SCL_TEXT, std::string(127, 'x'));
  ThenPress(1);
  EXPECT_TRUE(SCLContentSetDlgRun(ToolDialog::SCLContentSetDlg, Program.hMainWnd, SclItem(3).text));
  EXPECT_EQ(std::string(SclItem(3).text), std::string(127, 'x'));
  ThenType(IDC_SCL_TEXT, "y");
  ThenPress(2);
  EXPECT_FALSE(SCLContentSetDlgRun(ToolDialog::SCLContentSetDlgSecond, Program.hMainWnd, SclItem(3).text));
  EXPECT_EQ(SclItem(3).text[0], 'x');
}

TEST_F(ScheduleDialogsTest, ATitleOf128BytesIsStored) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCLTitleDlg);
    EXPECT_EQ(WindowText(TopDialog()), "表タイトル");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::SCLTitleDlgSecond);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_TEXT), "");
  });
  ThenType(IDC_SCL_TEXT, std::string(128, 'x'));
  ThenPress(1);
  EXPECT_TRUE(SCLTitleDlgRun(ToolDialog::SCLTitleDlgSecond, Program.hMainWnd));
  EXPECT_EQ(std::string(SclTitle()), std::string(128, 'x'));
  ThenType(IDC_SCL_TEXT, "y");
  ThenPress(2);
  EXPECT_FALSE(SCLTitleDlgRun(ToolDialog::SCLTitleDlg, Program.hMainWnd));
  EXPECT_EQ(SclTitle()[0], 'x');
}

// --- ChgSclDayTimeDlg

TEST_F(ScheduleDialogsTest, TheEightRowsAreShown) {
  Schedule.SclHeader.rows[7] = {3, 20, 23};
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_ChgSclDayTimeDlg);
    EXPECT_EQ(WindowText(TopDialog()), "1日のワーク時間設定");
    for (int row = 0; row < 7; ++row) {
      EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_BEGINS + row).size(), 24U);
      EXPECT_EQ(Chosen(IDC_SCL_BEGINS + row), 8);
      EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_LENGTHS + row).size(), 17U) << "0 to 16";
      EXPECT_EQ(Chosen(IDC_SCL_LENGTHS + row), 10);
    }
    EXPECT_EQ(Chosen(IDC_SCL_BEGINS + 7), 20);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_LENGTHS + 7).size(), 5U);
    EXPECT_EQ(Chosen(IDC_SCL_LENGTHS + 7), 3);
  });
  ThenPress(1);
  EXPECT_TRUE(ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlg, Program.hMainWnd));
}

TEST_F(ScheduleDialogsTest, EachChoiceIsWrittenAtOnceAndNoButtonTakesItBack) {
  ThenChoose(IDC_SCL_BEGINS, 20);
  Then([] {
    EXPECT_EQ(Schedule.SclHeader.rows[0], (SclWorkDayRow{4, 20, 18})) << "the end is not refreshed";
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_LENGTHS).size(), 5U);
    EXPECT_EQ(Chosen(IDC_SCL_LENGTHS), 4);
  });
  ThenChoose(IDC_SCL_LENGTHS, 2);
  ThenChoose(IDC_SCL_LENGTHS + 7, 0);
  Then([] { EXPECT_EQ(Schedule.SclHeader.rows[0].length, 2); });
  ThenPress(2);
  EXPECT_FALSE(ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlgSecond, Program.hMainWnd));
  EXPECT_EQ(Schedule.SclHeader.rows[0], (SclWorkDayRow{2, 20, 18}));
  EXPECT_EQ(Schedule.SclHeader.rows[7].length, 0);
}

TEST_F(ScheduleDialogsTest, AnEarlierBeginKeepsTheLength) {
  ThenChoose(IDC_SCL_BEGINS + 3, 0);
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_LENGTHS + 3).size(), 25U);
    EXPECT_EQ(Chosen(IDC_SCL_LENGTHS + 3), 10);
  });
  ThenPress(1);
  ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlg, Program.hMainWnd);
  EXPECT_EQ(Schedule.SclHeader.rows[3], (SclWorkDayRow{10, 0, 18}));
}

TEST_F(ScheduleDialogsTest, RowsThatNoDialogMakesAreShownAsNone) {
  Schedule.SclHeader.rows[0] = {-7, 99, 3};
  Then([] {
    EXPECT_EQ(Chosen(IDC_SCL_BEGINS), -1);
    EXPECT_EQ(Chosen(IDC_SCL_LENGTHS), -1);
  });
  ThenPress(1);
  ChgSclDayTimeDlgRun(ToolDialog::ChgSclDayTimeDlg, Program.hMainWnd);
}

// --- Files

TEST_F(ScheduleDialogsTest, AScheduleIsSavedAndLoaded) {
  SclItem(0).hours = 5;
  SclDirtyRaise(kSclTableChanged | kSclSettingsChanged);
  ThenPick("月");
  SclSaveRun(Program.hMainWnd);
  EXPECT_TRUE(FileThere("C:\\mirrell\\月.GPI"));
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\mirrell\\月.GPI");
  EXPECT_EQ(Schedule.SclDirtyFlags, kSclSettingsChanged);
  SclNew();
  ThenPick("月.GPI");
  EXPECT_TRUE(SclLoadRun(Program.hMainWnd));
  EXPECT_EQ(SclItem(0).hours, 5U);
}

TEST_F(ScheduleDialogsTest, ACancelledPickerDoesNothing) {
  ThenCancelPicker();
  EXPECT_FALSE(SclLoadRun(Program.hMainWnd));
  ThenCancelPicker();
  SclSaveRun(Program.hMainWnd);
  EXPECT_EQ(FileResult.FileStatus, 1);
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(ScheduleDialogsTest, ASaveAsksBeforeItReplacesAFile) {
  PutFile("C:\\mirrell\\a.GPI", "old");
  ThenPick("a.GPI");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Cancel);
  SclSaveRun(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\mirrell\\a.GPI"), "old");
  ThenPick("a.GPI");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ");
  SclSaveRun(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\mirrell\\a.GPI").size(), 275U + 31 * 160);
}

TEST_F(ScheduleDialogsTest, ASavedChosenScheduleIsTheExecutingOne) {
  SclExecChoose();
  ThenPick("a");
  SclSaveRun(Program.hMainWnd);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\mirrell\\a.GPI");
  // Another one is loaded while it goes on, and then itself.
  SclSaveFile("C:\\mirrell\\b.GPI");
  ThenPick("b.GPI");
  EXPECT_TRUE(SclLoadRun(Program.hMainWnd));
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_TRUE(Schedule.SclExecActive);
  ThenPick("a.GPI");
  EXPECT_TRUE(SclLoadRun(Program.hMainWnd));
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
}

TEST_F(ScheduleDialogsTest, ALoadTellsWhyItFails) {
  ThenPick("none.GPI");
  ExpectBox("ファイルを開けません", "スケジュール表読み込みエラー");
  EXPECT_FALSE(SclLoadRun(Program.hMainWnd));
  PutFile("C:\\mirrell\\bad.GPI", "SCL Data File : ");
  ThenPick("bad.GPI");
  ExpectBox("データが正しく読み込めません", "スケジュール表読み込みエラー");
  EXPECT_FALSE(SclLoadRun(Program.hMainWnd));
  EXPECT_EQ(BoxesShown()[1].icon, BoxIcon::Exclamation);
}

TEST_F(ScheduleDialogsTest, ASaveThatCannotOpenIsTold) {
  SclDirtyRaise(kSclTableChanged);
  ThenPick("a");
  ExpectBox("ファイルを開けません", "セーブエラー");
  FaultArm(FaultKind::Create, 1);
  SclSaveRun(Program.hMainWnd);
  EXPECT_EQ(Schedule.SclDirtyFlags, kSclTableChanged);
}

TEST_F(ScheduleDialogsTest, AShortWriteIsToldByNoBoxAndTheChangesStayUnsaved) {
  SclDirtyRaise(kSclTableChanged);
  SclExecChoose();
  ThenPick("a");
  FaultArm(FaultKind::Write, 2);
  SclSaveRun(Program.hMainWnd);
  FaultClear();
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_TRUE((Schedule.SclDirtyFlags & kSclTableChanged) != 0);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Chosen);
  EXPECT_EQ(FileBytes("C:\\mirrell\\a.GPI").size(), 274U) << "the half-written file remains";
}

TEST_F(ScheduleDialogsTest, AnOverwriteSavesUnderTheNameThatIsThere) {
  SclSaveFile("C:\\mirrell\\a.GPI");
  SclItem(0).hours = 9;
  SclDirtyRaise(kSclTableChanged);
  SclOverwriteRun(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\mirrell\\a.GPI")[275 + 12], 9);
  EXPECT_EQ(Schedule.SclDirtyFlags, 0U);
}

TEST_F(ScheduleDialogsTest, AnOverwriteWithoutANameAsksForOne) {
  ThenPick("a");
  SclOverwriteRun(Program.hMainWnd);
  EXPECT_TRUE(FileThere("C:\\mirrell\\a.GPI"));
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(ScheduleDialogsTest, AnOverwriteWhosePickerIsCancelledReportsThatNothingOpens) {
  ThenCancelPicker();
  ExpectBox("ファイルを開けません", "セーブエラー");
  SclOverwriteRun(Program.hMainWnd);
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
}

}  // namespace
