// The menus of the schedule, its commands, and the end of its window.
#include "platform/posix/faults.h"
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_file.h"
#include "tests/schedule/table/table_fixture.h"

namespace {

constexpr char kFile[] = "C:\\mirrell\\a.GPI";

class ScheduleCommandsTest : public ScheduleTableTest {
 protected:
  static Rows Buttons(WindowHandle dialog, const std::vector<int>& ids) {
    Rows texts;
    for (const int id : ids) texts.push_back(ControlText(dialog, id));
    return texts;
  }
  // A file with one line of that text, while the window shows something else.
  static void PutSchedule(const char* path, const char* text) {
    Lines(1);
    TextCopy(SclItem(0).text, kSclItemTextSize, text);
    EXPECT_EQ(SclSaveFile(path), 0);
    SclNew();
  }
  static void Choose() {
    ExpectBox("表示中スケジュールを実行指定します。(設定アラームが有効になります)", "実行スケジュールの指定");
    Press(Window(), IDC_SCL_EXECUTE);
  }
};

// --- The menus

TEST_F(ScheduleCommandsTest, TheMenuOfTheSchedule) {
  SendClose(Window());
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_ScheduleSelDlg);
    EXPECT_EQ(WindowText(TopDialog()), "スケジュール表 メニュー");
    EXPECT_EQ(Buttons(TopDialog(),
                      {IDC_SCL_NEW, IDC_SCL_EXECUTING, IDC_SCL_LOAD, IDC_SCL_PLAN, IDC_SCL_APPLICATIONS}),
              (Rows{"新規スケジュール表作成", "実行中スケジュール表編集", "スケジュール表読み込み",
                    "計画表の作成と編集", "アプリケーション選択"}));
    Press(TopDialog(), IDC_SCL_NEW);
  });
  Send(2019);
  EXPECT_NE(Window(), nullptr);
  EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::None);
}

TEST_F(ScheduleCommandsTest, TheMenuOfTheApplications) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_ScheduleSelDlg2);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::ScheduleSelDlg2);
    EXPECT_EQ(Buttons(TopDialog(), {IDC_SCL_RUN, IDC_SCL_APPLICATIONS, IDC_SCL_REGISTER}),
              (Rows{"実行中スケジュール表", "アプリケーション選択", "アプリケーション登録"}));
    Press(TopDialog(), 2);
  });
  Send(1910);
}

TEST_F(ScheduleCommandsTest, AMenuSendsTheCommandOfItsButtonWhenItHasClosed) {
  const struct {
    int menu;
    int button;
    std::uint32_t command;
  } kButtons[] = {{1910, IDC_SCL_RUN, 2366},       {1910, IDC_SCL_APPLICATIONS, 2020},
                  {1910, IDC_SCL_REGISTER, 2367},  {2019, IDC_SCL_NEW, 2017},
                  {2019, IDC_SCL_EXECUTING, 2264}, {2019, IDC_SCL_LOAD, 2021},
                  {2019, IDC_SCL_PLAN, 2025}};
  static std::vector<std::uint32_t> heard;
  Overhear([](const Event& event) {
    if (event.kind != EventKind::Command) return;
    heard.push_back(event.command);
    EXPECT_EQ(FindDialog(IDD_ScheduleSelDlg), nullptr) << event.command;
    EXPECT_EQ(FindDialog(IDD_ScheduleSelDlg2), nullptr) << event.command;
  });
  for (const auto& row : kButtons) {
    if (row.command == 2020 || row.command == 2366 || row.command == 2367 || row.command == 2025) continue;
    heard.clear();
    ThenPress(row.button);
    if (row.command == 2264) {
      ExpectBox("実行中のスケジュールはありません", "実行スケジュール編集エラー");
    } else if (row.command == 2021) {
      ThenCancelPicker();
    }
    Send(row.menu);
    ASSERT_EQ(heard.size(), 2U) << row.command;
    EXPECT_EQ(heard[1], row.command);
  }
}

TEST_F(ScheduleCommandsTest, AMenuEndsByEscapeAndClose) {
  for (const int menu : {1910, 2019}) {
    for (const auto end : {+[] { PressEscape(TopDialog()); }, +[] { PressClose(TopDialog()); }}) {
      Then(end);
      Send(menu);
    }
  }
}

// --- New and load

TEST_F(ScheduleCommandsTest, ANewScheduleWhileTheWindowIsOpenDoesNothingAtAll) {
  TextCopy(SclTitle(), kSclTitleSize, "年末");
  const WindowHandle window = Window();
  Send(kNew);
  EXPECT_EQ(Window(), window);
  EXPECT_STREQ(Schedule.SclHeader.title, "年末");
}

TEST_F(ScheduleCommandsTest, ANewScheduleBeginsTodayAtEightWith31Lines) {
  EXPECT_EQ(Schedule.SclHeader.count, 31);
  EXPECT_EQ(Shown(Schedule.SclHeader.start), "26/10/20 8");
  EXPECT_EQ(Schedule.SclHeader.kind, 1);
}

TEST_F(ScheduleCommandsTest, ALoadedScheduleIsShown) {
  PutSchedule(kFile, "荷造り");
  SendClose(Window());
  ThenPick("a.GPI");
  Send(2021);
  ASSERT_NE(Window(), nullptr);
  EXPECT_STREQ(Schedule.SclCurrentFile, kFile);
  Repaint();
  EXPECT_TRUE(Stands("荷造り", 52, 52));
  EXPECT_EQ(View().lines, 1);
}

TEST_F(ScheduleCommandsTest, ALoadIntoTheOpenWindowForgetsTheCurrentRow) {
  PutSchedule(kFile, "荷造り");
  const WindowHandle window = Window();
  Click(kNumberX, 12);
  ThenPick("a.GPI");
  Send(2021);
  EXPECT_EQ(Window(), window);
  EXPECT_EQ(RowSelection.currentRow, 0);
  EXPECT_EQ(View().lines, 1);
}

TEST_F(ScheduleCommandsTest, AFailedLoadOpensNoWindow) {
  PutFile(kFile, "SCL Data File ; ");
  SendClose(Window());
  ExpectBox("データが正しく読み込めません", "スケジュール表読み込みエラー");
  ThenPick("a.GPI");
  Send(2021);
  EXPECT_EQ(Window(), nullptr);
  ThenCancelPicker();
  Send(2021);
  EXPECT_EQ(Window(), nullptr);
}

// --- The executing schedule

TEST_F(ScheduleCommandsTest, WithNothingExecutingThereIsNothingToEdit) {
  ExpectBox("実行中のスケジュールはありません", "実行スケジュール編集エラー");
  Send(2264);
  // Chosen and not yet saved: there is one, and it has no file.
  Choose();
  ExpectBox("実行中のスケジュールはありません", "実行スケジュール編集エラー");
  Send(2264);
}

TEST_F(ScheduleCommandsTest, TheExecutingScheduleIsLoadedAndMarked) {
  PutSchedule(kFile, "荷造り");
  EXPECT_EQ(SclLoadFile(kFile), 0);
  Choose();
  ThenPick("a.GPI");
  ExpectBox("同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ");
  Press(Window(), IDC_SCL_SAVE);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  SendClose(Window());
  Send(kNew);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None) << "the execution goes on without its mark";
  EXPECT_TRUE(Schedule.SclExecActive);
  SendClose(Window());
  Send(2264);
  ASSERT_NE(Window(), nullptr);
  EXPECT_STREQ(Schedule.SclCurrentFile, kFile);
  EXPECT_STREQ(SclItem(0).text, "荷造り");
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
}

TEST_F(ScheduleCommandsTest, AnExecutingScheduleThatIsGoneIsTold) {
  PutSchedule(kFile, "荷造り");
  EXPECT_EQ(SclExecLoad(kFile), 0);
  RemoveFile(kFile);
  SendClose(Window());
  ExpectBox("ファイルを開けません", "スケジュール表読み込みエラー");
  Send(2264);
  EXPECT_EQ(Window(), nullptr);
}

// --- Saving

TEST_F(ScheduleCommandsTest, AScheduleIsSavedUnderAName) {
  Lines(3);
  ThenPick("b");
  Press(Window(), IDC_SCL_SAVE);
  EXPECT_EQ(FileBytes("C:\\mirrell\\b.GPI").size(), 275U + 3 * 160);
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\mirrell\\b.GPI");
}

TEST_F(ScheduleCommandsTest, BothNumbersOfTheOverwritingSaveToTheNameThatThereIs) {
  Lines(3);
  SclCurrentFileSet(kFile);
  for (const int command : {2024, 2324}) {
    RemoveFile(kFile);
    Send(command);
    EXPECT_TRUE(FileThere(kFile)) << command;
  }
  RemoveFile(kFile);
  Press(Window(), IDC_SCL_OVERWRITE);
  EXPECT_TRUE(FileThere(kFile));
}

// --- The hours of a day

TEST_F(ScheduleCommandsTest, TheHoursOfADayLeaveTheDatesAsTheyAre) {
  Lines(3);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_ChgSclDayTimeDlg);
    SclItem(0).hours = 5;
    Press(TopDialog(), 1);
  });
  Press(Window(), IDC_SCL_DAY_HOURS);
  EXPECT_EQ(Shown(SclItem(0).end), "26/10/20 9");
}

TEST_F(ScheduleCommandsTest, AConversionMeanwhileMovesThemAndIsTold) {
  Lines(3);
  Then([] {
    SclItem(0).hours = 5;
    SclConvertedSet(true);
    Press(TopDialog(), 2);
  });
  ExpectBox("項目の予定開始時間を再設定しました。", "開始年月日設定");
  Press(Window(), IDC_SCL_DAY_HOURS);
  EXPECT_EQ(Shown(SclItem(0).end), "26/10/20 13");
}

// --- The end of the window

TEST_F(ScheduleCommandsTest, PlainEditsAskNothingAtTheEnd) {
  Lines(3);
  Click(kNumberX, 1);
  Send(kInsert);
  Send(kDelete);
  Double(kCheckX, RowY(1));
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
}

TEST_F(ScheduleCommandsTest, AMarkThatWasSetIsAskedAboutAndTheSettingsAreWritten) {
  Choose();
  EXPECT_EQ(Schedule.SclDirtyFlags, 3U);
  ExpectBox("スケジュールが変更されています。セーブしますか?", "スケジュールのセーブ確認");
  ThenPick("c");
  Press(Window(), 2);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_TRUE(FileThere("C:\\mirrell\\c.GPI"));
  EXPECT_TRUE(FileThere(InProgram("mirrell_sys_file.svs")));
  EXPECT_EQ(Schedule.SclDirtyFlags, 0U);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\mirrell\\c.GPI");
}

TEST_F(ScheduleCommandsTest, ARefusalClosesWithoutSaving) {
  Choose();
  ExpectBox("スケジュールが変更されています。セーブしますか?", "スケジュールのセーブ確認", BoxAnswer::Cancel);
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  for (const std::string& name : FolderNames("C:\\mirrell")) EXPECT_FALSE(name.ends_with(".GPI")) << name;
  Send(kNew);
  PressClose(Window());  // of another schedule, which nobody has changed
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(ScheduleCommandsTest, ACancelledPickerClosesToo) {
  Choose();
  ExpectBox("スケジュールが変更されています。セーブしますか?", "スケジュールのセーブ確認");
  ThenCancelPicker();
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
  Send(kNew);
}

TEST_F(ScheduleCommandsTest, ASecondCloseWhileTheFirstOneAsksDoesNothing) {
  Choose();
  ExpectBox("スケジュールが変更されています。セーブしますか?", "スケジュールのセーブ確認", BoxAnswer::Cancel,
            [] {
              SendClose(Window());
              EXPECT_NE(Window(), nullptr);
            });
  PressClose(Window());
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(ScheduleCommandsTest, EnterAndOtherKeysDoNothing) {
  SendCommand(Window(), 1);
  EXPECT_NE(Window(), nullptr);
}

TEST_F(ScheduleCommandsTest, AWindowThatCannotBeMadeLeavesNoHandle) {
  SendClose(Window());
  FaultArm(FaultKind::Window, 1);
  Send(kNew);
  FaultClear();
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(ScheduleCommandsTest, OpenedAndClosedOftenItLeavesNothing) {
  SendClose(Window());
  const LiveObjects before = DiagnosticsLive();
  for (int i = 0; i < 20; ++i) {
    Send(kNew);
    Repaint();
    SendClose(Window());
  }
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

}  // namespace
