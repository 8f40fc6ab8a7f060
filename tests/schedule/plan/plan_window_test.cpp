// The plan window: its table, its files, its closing, and the way to the schedule.
#include "platform/posix/faults.h"
#include "tests/schedule/plan/plan_window_fixture.h"

namespace {

constexpr const char* kSaveAsked = "計画表が変更されています。 計画表をセーブしますか?";
constexpr const char* kSaveAskedCaption = "計画表のセーブ確認";
constexpr const char* kConvert = "計画表を終了してスケジュール表を表示します !!";
constexpr const char* kConvertChanged =
    "計画表を終了してスケジュール表を表示します !! その前に変更された計画表をセーブしますか?";
constexpr const char* kConvertCaption = "計画表からスケジュールへの変換準備";
constexpr const char* kLose = "変更された計画データは失われますがよろしいですか?";
constexpr const char* kLoseCaption = "スケジュール移行への確認";

class PlanWindow : public PlanWindowTest {
 protected:
  static std::string Title() { return ControlText(Window(), IDC_PLAN_TITLE); }
  // A training plan of two lines in a file.
  static void PutTraining(const std::string& name) {
    ScpTrainDefaults();
    SetLine(0, 2, 10, "Arm");
    SetLine(1, 1, 3, "Leg");
    Plan.ScpPlanTable[1].load = 0;
    Plan.head.count = 2;
    ASSERT_EQ(ScpSaveFile(InProgram(name).c_str()), 0);
  }
};

// --- Opening

TEST_F(PlanWindow, OpensWithTheStudyDefaults) {
  Open();
  EXPECT_EQ(TemplateOf(Window()), IDD_SchedulePlan1Dlg);
  EXPECT_EQ(WindowText(Window()), "学習作業スケジュール作成");
  EXPECT_EQ(Title(), "Plan to Study");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_START), "開始日設定");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_INTERVALS), "復習時間間隔設定");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_DAY_HOURS), "1日のワーク時間設定");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_RESTS), "1日の休憩時間設定");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_CONVERT), "計画表からスケジュール表に変換");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_LOAD), "計画表のロード");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_SAVE), "計画表のセーブ");
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanWindow, ASecondCommandWhileItIsOpenDoesNothing) {
  Open();
  const WindowHandle first = Window();
  SetLine(0, 7, 1, "mine");
  CommandSend(Command::SchedulePlan);
  CommandSend(Command::PlanTraining);
  EXPECT_EQ(Window(), first);
  EXPECT_EQ(TemplateOf(Window()), IDD_SchedulePlan1Dlg);
  EXPECT_EQ(Plan.ScpPlanTable[0].hours, 7U);
  EXPECT_EQ(Plan.head.ScpPlanKind, 0);
}

TEST_F(PlanWindow, OpenedAnewItBeginsWithTheDefaultsAgain) {
  Open();
  SetLine(0, 7, 1, "mine");
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  Open();
  EXPECT_EQ(Plan.ScpPlanTable[0].hours, 0U);
}

TEST_F(PlanWindow, ATrainingPlanHasItsOwnFormAndColumns) {
  OpenTraining();
  EXPECT_EQ(TemplateOf(Window()), IDD_SCHEDULEPLAN2DLG);
  EXPECT_EQ(WindowText(Window()), "筋トレ スケジュール作成");
  EXPECT_EQ(ControlText(Window(), IDC_PLAN_RECOVERY), "疲労回復時間設定");
  EXPECT_EQ(Title(), "Plan to Train");
  SendPaint(Window());
  EXPECT_TRUE(Heads("(負荷) 時間", " 予定回数 "));
  EXPECT_TRUE(Shows("Training for arm 70per", 50, 1));
  EXPECT_TRUE(Shows("(中)  0H", 494, 1));
  EXPECT_TRUE(Shows(" 10", 594, 1));
}

TEST_F(PlanWindow, TheTableShowsNumbersContentsHoursAndRepeats) {
  Open();
  SetLine(1, 12, 10, "英単語");
  SetLine(2, 1, 0, "b");
  SendPaint(Window());
  EXPECT_TRUE(TextStands(Window(), "項目", 12, 222));
  EXPECT_TRUE(TextStands(Window(), "   内  容 ", 52, 222));
  EXPECT_TRUE(Heads(" 学習時間 ", " 復習回数 "));
  EXPECT_TRUE(Shows("  1", 10, 1));
  EXPECT_TRUE(Shows("----", 494, 1));
  EXPECT_TRUE(Shows("  2", 594, 1));
  EXPECT_TRUE(Shows("  2", 10, 2));
  EXPECT_TRUE(Shows("英単語", 50, 2));
  EXPECT_TRUE(Shows(" 12H", 494, 2));
  EXPECT_TRUE(Shows(" 10", 594, 2));
  EXPECT_TRUE(Shows("----", 594, 3));
  // (530 - 290) / 20 rows are in view.
  EXPECT_TRUE(Shows(" 12", 10, 12));
  EXPECT_FALSE(Shows(" 13", 10, 13));
}

TEST_F(PlanWindow, TheNumberOfEscapeClosesItAndThatOfEnterDoesNothing) {
  Open();
  SendCommand(Window(), 1);
  EXPECT_NE(Window(), nullptr);
  SendCommand(Window(), 2);
  EXPECT_EQ(Window(), nullptr);
}

// --- Scrolling and rows

TEST_F(PlanWindow, AScrolledTrainingTableIsDrawnLikeAStudyPlanUntilItIsPainted) {
  OpenTraining();
  SendPaint(Window());
  ScrollBy(Window(), SclTable.PlanView.scrollBar, Scroll::LineDown);
  EXPECT_EQ(SclTable.PlanView.firstLine, 1);
  EXPECT_TRUE(Heads(" 学習時間 ", " 復習回数 "));
  EXPECT_TRUE(Shows("----", 494, 1));
  SendPaint(Window());
  EXPECT_TRUE(Heads("(負荷) 時間", " 予定回数 "));
}

TEST_F(PlanWindow, TheTableScrollsToItsThreeHundredthLine) {
  Open();
  ScrollBy(Window(), SclTable.PlanView.scrollBar, Scroll::Bottom);
  EXPECT_EQ(SclTable.PlanView.firstLine, 288);
  EXPECT_TRUE(Shows("300", 10, 12));
}

TEST_F(PlanWindow, AFullPlanTakesNoInsertion) {
  Open();
  Click(kNumber, Down(1));
  ExpectBox("項目数の最大値300に達しています。項目を減らしてから挿入してください。",
            "スケジュール項目挿入エラー");
  ChooseInMenu(1, Command::ScheduleLineInsert);
  EXPECT_EQ(Plan.head.count, 300);
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanWindow, DeletedLinesAreGoneAndAnInsertedOneIsNew) {
  OpenTraining();
  for (int line = 0; line < 300; ++line) SetLine(line, 1, 5, std::to_string(line).c_str());
  Click(kNumber, Down(2));
  Click(kNumber, Down(3), kShiftHeld);
  ChooseInMenu(2, Command::ScheduleLineDelete);
  EXPECT_EQ(Plan.head.count, 298);
  EXPECT_STREQ(Plan.ScpPlanTable[1].text, "3");
  EXPECT_STREQ(Plan.ScpPlanTable[297].text, "299");
  EXPECT_EQ(Plan.ScpPlanTable[298], ScpNewLine());
  EXPECT_TRUE(Plan.dirty);
  DirtySet(false);
  Click(kNumber, Down(1));
  ChooseInMenu(1, Command::ScheduleLineInsert);
  EXPECT_EQ(Plan.head.count, 299);
  EXPECT_EQ(Plan.ScpPlanTable[0], ScpNewLine());
  EXPECT_STREQ(Plan.ScpPlanTable[1].text, "0");
  EXPECT_STREQ(Plan.ScpPlanTable[298].text, "299");
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanWindow, CopiedLinesArePastedOverOthers) {
  Open();
  SetLine(0, 3, 1, "a");
  SetLine(1, 4, 2, "b");
  Click(kNumber, Down(1));
  Click(kNumber, Down(2), kShiftHeld);
  ChooseInMenu(1, Command::ScheduleLineCopy);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::InPlan);
  Click(kNumber, Down(5));
  ExpectBox("項目1～2までを 項目5 からへ上書きます", "貼り付け");
  ChooseInMenu(5, Command::ScheduleLinePaste);
  EXPECT_EQ(Plan.ScpPlanTable[4], Plan.ScpPlanTable[0]);
  EXPECT_EQ(Plan.ScpPlanTable[5], Plan.ScpPlanTable[1]);
  EXPECT_TRUE(Plan.dirty);
  EXPECT_EQ(RowSelection.copyMark, CopyMark::None);
}

// --- Files

TEST_F(PlanWindow, ALoadedTrainingPlanBringsItsColumnsAndEditorsIntoTheStudyWindow) {
  PutTraining("t.GPP");
  Open();
  DirtySet(true);
  ThenPick("t.GPP");
  Press(Window(), IDC_PLAN_LOAD);
  EXPECT_EQ(Title(), "Plan to Train");
  EXPECT_FALSE(Plan.dirty);
  EXPECT_TRUE(Heads("(負荷) 時間", " 予定回数 "));
  EXPECT_TRUE(Shows("(中)  2H", 494, 1));
  EXPECT_TRUE(Shows("(軽)  1H", 494, 2));
  EXPECT_FALSE(Shows("  3", 10, 3));
  EXPECT_EQ(WindowText(Window()), "学習作業スケジュール作成");
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SCPRsvTime2SetDlg); });
  ThenPress(2);
  DoubleClick(kHours, Down(1));
}

TEST_F(PlanWindow, ALoadThatIsCancelledChangesNothing) {
  Open();
  SetLine(0, 7, 1, "mine");
  ThenCancelPicker();
  Press(Window(), IDC_PLAN_LOAD);
  EXPECT_EQ(Plan.ScpPlanTable[0].hours, 7U);
  EXPECT_EQ(FileResult.FileStatus, 1);
}

TEST_F(PlanWindow, AFileThatIsNotThereIsTold) {
  Open();
  ThenPick("none.GPP");
  ExpectBox("ファイルを開けません", "スケジュール表読み込みエラー");
  Press(Window(), IDC_PLAN_LOAD);
  EXPECT_EQ(Plan.head.count, 300);
}

TEST_F(PlanWindow, ABadFileIsToldAndItsLinesStand) {
  PutTraining("t.GPP");
  const std::string bytes = FileBytes(InProgram("t.GPP"));
  PutFile(InProgram("t.GPP"), bytes.substr(0, 590 + 152));
  Open();
  ThenPick("t.GPP");
  ExpectBox("データが正しく読み込めません", "スケジュール表読み込みエラー");
  Press(Window(), IDC_PLAN_LOAD);
  EXPECT_EQ(Title(), "Plan to Study");  // only a good load brings the title
  EXPECT_TRUE(Shows("(中)  2H", 494, 1));
  PutFile(InProgram("t.GPP"), "SCL Data File : ");
  ThenPick("t.GPP");
  ExpectBox("データが正しく読み込めません", "スケジュール表読み込みエラー");
  Press(Window(), IDC_PLAN_LOAD);
}

TEST_F(PlanWindow, ASaveTakesTheTitleAndTheNameGetsItsEnding) {
  Open();
  Type(Window(), IDC_PLAN_TITLE, "わたしの計画");
  DirtySet(true);
  ThenPick("mine");
  Press(Window(), IDC_PLAN_SAVE);
  EXPECT_FALSE(Plan.dirty);
  const std::string bytes = FileBytes(InProgram("mine.GPP"));
  ASSERT_EQ(bytes.size(), 590U + 300U * 152U);
  EXPECT_STREQ(bytes.c_str() + 461, "わたしの計画");
}

TEST_F(PlanWindow, AnExistingFileIsReplacedOnlyWhenTheUserAgrees) {
  PutFile(InProgram("mine.GPP"), "old");
  Open();
  DirtySet(true);
  ThenPick("mine");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Cancel);
  Press(Window(), IDC_PLAN_SAVE);
  EXPECT_EQ(FileBytes(InProgram("mine.GPP")), "old");
  EXPECT_TRUE(Plan.dirty);
  ThenPick("mine");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ");
  Press(Window(), IDC_PLAN_SAVE);
  EXPECT_EQ(FileBytes(InProgram("mine.GPP")).size(), 590U + 300U * 152U);
  EXPECT_FALSE(Plan.dirty);
}

TEST_F(PlanWindow, ASaveThatIsCancelledKeepsThePlanChanged) {
  Open();
  DirtySet(true);
  ThenCancelPicker();
  Press(Window(), IDC_PLAN_SAVE);
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanWindow, AFileThatCannotBeMadeIsTold) {
  Open();
  ThenPick("no folder\\mine");
  ExpectBox("ファイルを開けません", "セーブエラー");
  Press(Window(), IDC_PLAN_SAVE);
}

TEST_F(PlanWindow, AShortWriteIsToldByNoBoxAndThePlanStaysChanged) {
  Open();
  DirtySet(true);
  Then([] {
    Type(TopDialog(), kPickNameId, "mine");
    FaultArm(FaultKind::Write, 2);
    Press(TopDialog(), 1);
  });
  Press(Window(), IDC_PLAN_SAVE);
  EXPECT_TRUE(Plan.dirty);
  // The second write is the head; it came a byte short, and nothing was written behind it.
  EXPECT_EQ(FileBytes(InProgram("mine.GPP")).size(), 16U + 573U);
}

// --- Closing

TEST_F(PlanWindow, AChangedPlanIsSavedAtTheCloseWhenTheUserWants) {
  Open();
  DirtySet(true);
  ExpectBox(kSaveAsked, kSaveAskedCaption, BoxAnswer::Cancel);
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  Open();
  DirtySet(true);
  ExpectBox(kSaveAsked, kSaveAskedCaption);
  ThenPick("mine");
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  EXPECT_TRUE(FileThere(InProgram("mine.GPP")));
}

TEST_F(PlanWindow, TheWindowClosesTooWhenThePickerIsCancelled) {
  Open();
  DirtySet(true);
  ExpectBox(kSaveAsked, kSaveAskedCaption);
  ThenCancelPicker();
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(PlanWindow, WhileItAsksNothingElseIsDone) {
  Open();
  DirtySet(true);
  ExpectBox(kSaveAsked, kSaveAskedCaption, BoxAnswer::Cancel, [] {
    SendClose(Window());
    CommandSend(Command::PlanStart);
    CommandSend(Command::PlanConvert);
    CommandSend(Command::SchedulePlan);
    EXPECT_NE(Window(), nullptr);
  });
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
}

// --- Conversion

TEST_F(PlanWindow, AnUnchangedPlanIsConvertedWhenTheUserAgrees) {
  Open();
  Plan.head.start = kMonday8;
  SetLine(0, 5, 0, "A");
  ExpectBox(kConvert, kConvertCaption, BoxAnswer::Cancel);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_NE(Window(), nullptr);
  EXPECT_EQ(SclTable.hSclTableWnd, nullptr);
  Type(Window(), IDC_PLAN_TITLE, "三冊");
  ExpectBox(kConvert, kConvertCaption);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_NE(SclTable.hSclTableWnd, nullptr);
  EXPECT_STREQ(Schedule.SclHeader.title, "三冊");
  EXPECT_EQ(Schedule.SclHeader.kind, 1);
  EXPECT_EQ(ItemTexts(), (Rows{
                             "2026/11/23 8 - 2026/11/23 12 = 4 A",
                             "2026/11/23 12 - 2026/11/23 13 = 1 月曜日 - 休憩1",
                             "2026/11/23 13 - 2026/11/23 14 = 1 A",
                         }));
}

TEST_F(PlanWindow, AChangedPlanIsSavedBehindTheConversionAndByTheClosingWindow) {
  Open();
  SetLine(0, 1, 0, "A");
  DirtySet(true);
  ExpectBox(kConvertChanged, kConvertCaption);
  ExpectBox(kSaveAsked, kSaveAskedCaption, BoxAnswer::Cancel);  // of the closing window
  ThenPick("after");
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_TRUE(FileThere(InProgram("after.GPP")));
  EXPECT_FALSE(Plan.dirty);
  EXPECT_NE(SclTable.hSclTableWnd, nullptr);
}

TEST_F(PlanWindow, BothSavesAreDoneWhenBothAreWanted) {
  Open();
  DirtySet(true);
  ExpectBox(kConvertChanged, kConvertCaption);
  ExpectBox(kSaveAsked, kSaveAskedCaption);
  ThenPick("closing");
  ThenPick("after");
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_TRUE(FileThere(InProgram("closing.GPP")));
  EXPECT_TRUE(FileThere(InProgram("after.GPP")));
}

// The window is gone by then, and a new plan would take the place of the one that is saved.
TEST_F(PlanWindow, WhileTheConvertedPlanIsSavedNoNewOneIsBegun) {
  Open();
  SetLine(0, 1, 0, "A");
  DirtySet(true);
  ExpectBox(kConvertChanged, kConvertCaption);
  ExpectBox(kSaveAsked, kSaveAskedCaption, BoxAnswer::Cancel);
  PutFile(InProgram("after.GPP"), "old");
  Then([] {
    for (const Command command : {Command::SchedulePlan, Command::PlanTraining}) CommandSend(command);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_STREQ(Plan.ScpPlanTable[0].text, "A");
  });
  ThenPick("after");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ", BoxAnswer::Ok, [] {
    for (const Command command : {Command::SchedulePlan, Command::PlanTraining}) CommandSend(command);
    EXPECT_EQ(Window(), nullptr);
  });
  CommandSend(Command::PlanConvert);
  ASSERT_EQ(ScpLoadFile(InProgram("after.GPP").c_str()), 0);
  EXPECT_STREQ(Plan.ScpPlanTable[0].text, "A");
  EXPECT_EQ(Plan.ScpPlanTable[0].hours, 1U);
}

TEST_F(PlanWindow, ChangesThatMayBeLostAreLostOnlyWhenTheUserAgrees) {
  Open();
  DirtySet(true);
  ExpectBox(kConvertChanged, kConvertCaption, BoxAnswer::Cancel);
  ExpectBox(kLose, kLoseCaption, BoxAnswer::Cancel);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_NE(Window(), nullptr);
  EXPECT_TRUE(Plan.dirty);
  ExpectBox(kConvertChanged, kConvertCaption, BoxAnswer::Cancel);
  ExpectBox(kLose, kLoseCaption);
  ExpectBox(kSaveAsked, kSaveAskedCaption, BoxAnswer::Cancel);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_NE(SclTable.hSclTableWnd, nullptr);
}

TEST_F(PlanWindow, AConversionThatFillsTheTableIsToldAndTheWindowStays) {
  Open();
  for (int line = 0; line < 300; ++line) SetLine(line, 1, 10, "A");
  std::memset(Plan.head.ScpRestTable, 0, sizeof Plan.head.ScpRestTable);
  for (std::int32_t& interval : Plan.head.ScpIntervalTable) interval = 0;
  ExpectBox(kConvert, kConvertCaption);
  ExpectBox("スケジュールの最大ライン数を超えました。", "計画表からスケジュールへの変換エラー");
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_NE(Window(), nullptr);
  EXPECT_EQ(SclTable.hSclTableWnd, nullptr);
  EXPECT_EQ(Schedule.SclHeader.count, 1000);
}

TEST_F(PlanWindow, AScheduleThatIsOpenShowsHowFarTheConversionGot) {
  CommandSend(Command::ScheduleNew);
  Open();
  for (int line = 0; line < 300; ++line) SetLine(line, 1, 10, "Deep");
  std::memset(Plan.head.ScpRestTable, 0, sizeof Plan.head.ScpRestTable);
  for (std::int32_t& interval : Plan.head.ScpIntervalTable) interval = 0;
  DrawingClear();
  ExpectBox(kConvert, kConvertCaption);
  ExpectBox("スケジュールの最大ライン数を超えました。", "計画表からスケジュールへの変換エラー", BoxAnswer::Ok,
            [] {
              EXPECT_FALSE(DrawnTexts(SclTable.hSclTableWnd).empty());
              EXPECT_EQ(SclTable.SclTableView.lines, 1000);
            });
  Press(Window(), IDC_PLAN_CONVERT);
}

TEST_F(PlanWindow, AScheduleThatIsOpenAlreadyShowsTheConvertedOne) {
  CommandSend(Command::ScheduleNew);
  const WindowHandle table = SclTable.hSclTableWnd;
  ASSERT_NE(table, nullptr);
  Open();
  SetLine(0, 1, 0, "A");
  ExpectBox(kConvert, kConvertCaption);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_EQ(SclTable.hSclTableWnd, table);
  EXPECT_EQ(Schedule.SclHeader.count, 1);
}

TEST_F(PlanWindow, APlanLeftAtItsDefaultsConvertsToAnEmptySchedule) {
  Open();
  ExpectBox(kConvert, kConvertCaption);
  Press(Window(), IDC_PLAN_CONVERT);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
  EXPECT_NE(SclTable.hSclTableWnd, nullptr);
}

// --- Commands from outside

TEST_F(PlanWindow, WithoutTheWindowItsCommandsDoNothing) {
  for (const Command command :
       {Command::PlanStart, Command::PlanIntervals, Command::PlanDayHours, Command::PlanRests,
        Command::PlanConvert, Command::PlanLoad, Command::PlanSave, Command::PlanRecovery}) {
    CommandSend(command);
  }
  EXPECT_EQ(TopDialog(), nullptr);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(PlanWindow, WhileAnEditorOrTheSheetIsUpNoSecondOneOpens) {
  Open();
  const auto all = [] {
    const WindowHandle top = TopDialog();
    for (const Command command :
         {Command::PlanStart, Command::PlanIntervals, Command::PlanDayHours, Command::PlanRests,
          Command::PlanConvert, Command::PlanLoad, Command::PlanSave, Command::PlanRecovery,
          Command::ScheduleStatus, Command::BackUpFiles}) {
      CommandSend(command);
      EXPECT_EQ(TopDialog(), top);
    }
    PressEscape(top);
  };
  Then(all);
  Press(Window(), IDC_PLAN_START);
  Then(all);
  Press(Window(), IDC_PLAN_RESTS);
  EXPECT_EQ(TopDialog(), nullptr);
  EXPECT_NE(Window(), nullptr);
}

TEST_F(PlanWindow, ADialogOfAnotherFeatureKeepsItsEditorsClosed) {
  Open();
  Then([] {
    const WindowHandle top = TopDialog();
    CommandSend(Command::PlanStart);
    EXPECT_EQ(TopDialog(), top);
    PressEscape(top);
  });
  CommandSend(Command::BackUpFiles);
}

}  // namespace
