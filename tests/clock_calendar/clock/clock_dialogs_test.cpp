// The dialogs of the clock: its choice, its details, its alarms and events.
#include "clock_calendar/clock/clock_preview.h"
#include "clock_calendar/clock/performance_rows.h"
#include "platform/time.h"
#include "resources/character_ids.h"
#include "services/tick_step.h"
#include "tests/clock_calendar/clock/clock_fixture.h"
#include "tests/support/record_check.h"

namespace {

using Kind = DrawCall::Kind;

// --- SelWatchDlg

class SelWatchTest : public ClockFixture {
 protected:
  static void Run() { CommandSend(Command::ClockSelect); }
};

TEST_F(SelWatchTest, ItListsTheDesignsAndReadsAsTold) {
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SelWatchDlg);
    EXPECT_EQ(WindowText(dialog), "時計 選択/設定");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SelWatchDlg);
    EXPECT_EQ(Panel.FuncNo, 16);
    EXPECT_EQ(ControlText(dialog, IDC_WATCH_SHOW), "時計をデスクトップへ表示する(&D)");
    EXPECT_EQ(ControlText(dialog, IDC_WATCH_ADUST), "時計詳細設定(&S)");
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_WATCH_SHOW));
    EXPECT_EQ(ListRows(dialog, IDC_WATCH_DESIGNS), (Rows{"鳩時計", "電車"}));
    EXPECT_EQ(ListSelected(dialog, IDC_WATCH_DESIGNS), 0);
  });
  ThenEscape();
  Run();
}

TEST_F(SelWatchTest, OkPutsTheChosenDesignOnTheDesktopAndSavesTheSettings) {
  OpenClock();
  Then([] { ChooseRow(TopDialog(), IDC_WATCH_DESIGNS, 1); });
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, 1);
  ASSERT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(RectWidth(WindowRect(Clock.hClockWnd)), 60);
  const std::string file = SettingsFile();
  ASSERT_EQ(file.size(), 172720U);
  EXPECT_EQ(file[1092], 1);
  EXPECT_EQ(file[1093], 1);
}

TEST_F(SelWatchTest, ADoubleClickTakesADesignToo) {
  Then([] { DoubleClickRow(TopDialog(), IDC_WATCH_DESIGNS, 1); });
  Run();
  EXPECT_EQ(Clock.ClockDesign, 1);
}

TEST_F(SelWatchTest, SwitchingTheClockOffClosesItAndOnAgainOpensIt) {
  OpenClock();
  ThenPress(IDC_WATCH_SHOW);
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.hClockWnd, nullptr);
  EXPECT_EQ(Clock.ClockShow, 0);
  EXPECT_EQ(SettingsFile()[1092], 0);
  ThenPress(IDC_WATCH_SHOW);
  Then([] { PressEnter(TopDialog()); });
  Run();
  EXPECT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(SettingsFile()[1092], 1);
}

TEST_F(SelWatchTest, CancelEscapeAndTheSignInTheCaptionChangeNothing) {
  for (int way = 0; way < 3; ++way) {
    ThenPress(IDC_WATCH_SHOW);
    Then([way] {
      ChooseRow(TopDialog(), IDC_WATCH_DESIGNS, 1);
      if (way == 0) Press(TopDialog(), 2);
      if (way == 1) PressEscape(TopDialog());
      if (way == 2) PressClose(TopDialog());
    });
    Run();
    EXPECT_EQ(Clock.ClockDesign, 0);
    EXPECT_EQ(Clock.ClockWanted, 0);
    EXPECT_EQ(Clock.ClockShow, 1);
    EXPECT_EQ(Clock.ClockShowWanted, 1);
    EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
  }
}

TEST_F(SelWatchTest, WhileNoDesignIsChosenTheFirstIsProposed) {
  Take(kClockNone);
  Clock.ClockShow = 0;
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_WATCH_DESIGNS), 0); });
  ThenPress(IDC_WATCH_SHOW);
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, 0);
  EXPECT_NE(Clock.hClockWnd, nullptr);
}

TEST_F(SelWatchTest, WithoutDesignsNothingIsChosen) {
  CharaTables.ClockDesignCount = 0;
  Take(kClockNone);
  Then([] {
    EXPECT_TRUE(ListRows(TopDialog(), IDC_WATCH_DESIGNS).empty());
    Press(TopDialog(), IDC_WATCH_ADUST);
  });
  Then([] {
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), IDC_ADUST_CHECK));
    EXPECT_FALSE(ControlIsEnabled(TopDialog(), IDC_ADUST_DEFAULT));
    PressEscape(TopDialog());
  });
  ThenPress(1);
  Run();
  EXPECT_EQ(Clock.ClockDesign, kClockNone);
  EXPECT_EQ(Clock.hClockWnd, nullptr);
}

TEST_F(SelWatchTest, ACountBeyondTheTableListsOnlyTheTable) {
  CharaTables.ClockDesignCount = 1000;
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_WATCH_DESIGNS).size(), 50U); });
  ThenEscape();
  Run();
}

// --- WatchAdustDlg

class WatchAdustTest : public SelWatchTest {
 protected:
  void SetUp() override {
    SelWatchTest::SetUp();
    Clock.ClockStrikeMode = kStrikeEveryHour;
    Clock.ClockStrikeSel = 0;
    Clock.ClockSoundOn = 0;
    TextCopy(Clock.ClockSoundName, sizeof Clock.ClockSoundName, "nya.wav");
  }
  // Opens it from SelWatchDlg for a design; the steps that are added run in it.
  static void Open(int design = 0) {
    Then([design] {
      ChooseRow(TopDialog(), IDC_WATCH_DESIGNS, design);
      Press(TopDialog(), IDC_WATCH_ADUST);
    });
  }
  static void RunAll() {
    ThenEscape();  // of SelWatchDlg
    Run();
  }
  static int CheckedOf(std::initializer_list<int> ids) {
    int place = 0;
    for (const int id : ids) {
      if (ControlIsChecked(TopDialog(), id)) return place;
      ++place;
    }
    return -1;
  }
  static int Mode() { return CheckedOf({IDC_ADUST_NEVER, IDC_ADUST_HOURLY, IDC_ADUST_TWELVE}); }
  static int Repeat() { return CheckedOf({IDC_ADUST_ONCE, IDC_ADUST_AS_HOUR}); }
  static int Sound() { return CheckedOf({IDC_ADUST_SILENT, IDC_ADUST_SOUND}); }
};

TEST_F(WatchAdustTest, ItShowsTheSettingsAndTheTimeAndReadsAsTold) {
  SetTime(21, 5, 9);
  Open();
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_WatchAdustDlg);
    EXPECT_EQ(WindowText(dialog), "時計 詳細設定");
    EXPECT_EQ(Dialogs.hToolDlg, dialog);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::WatchAdustDlg);
    const std::pair<int, const char*> labels[] = {
        {IDC_ADUST_SET, "時計をセット(&T)"},
        {IDC_ADUST_NEVER, "実行しない"},
        {IDC_ADUST_HOURLY, "正時に実行する"},
        {IDC_ADUST_TWELVE, "12時に実行する"},
        {IDC_ADUST_ONCE, "1度のみ実行"},
        {IDC_ADUST_AS_HOUR, "時間数だけ反復する"},
        {IDC_ADUST_SILENT, "使用しない"},
        {IDC_ADUST_SOUND, "選択されたサウンドを演奏"},
        {IDC_ADUST_CHECK, "パフォーマンスチェック(&C)"},
        {IDC_ADUST_DEFAULT, "設定をデフォルトに戻す(&D)"},
        {1, "設定を変更して終了"},
    };
    for (const auto& [id, text] : labels) EXPECT_EQ(ControlText(dialog, id), text);
    EXPECT_EQ(ListCount(dialog, IDC_ADUST_HOUR), 24);
    EXPECT_EQ(ListCount(dialog, IDC_ADUST_MINUTE), 60);
    EXPECT_EQ(ListCount(dialog, IDC_ADUST_SECOND), 60);
    EXPECT_EQ(ListSelected(dialog, IDC_ADUST_HOUR), 21);
    EXPECT_EQ(ListSelected(dialog, IDC_ADUST_MINUTE), 5);
    EXPECT_EQ(ListSelected(dialog, IDC_ADUST_SECOND), 9);
    EXPECT_EQ(Mode(), 1);
    EXPECT_EQ(Repeat(), 0);
    EXPECT_EQ(Sound(), 0);
    Rows sounds = ListRows(dialog, IDC_ADUST_SOUNDS);
    std::sort(sounds.begin(), sounds.end());
    EXPECT_EQ(sounds, (Rows{"kan.wav", "nya.wav", "po2.wav"}));
    EXPECT_EQ(ListRows(dialog, IDC_ADUST_SOUNDS)[ListSelected(dialog, IDC_ADUST_SOUNDS)], "nya.wav");
    EXPECT_EQ(kWatchAdustStep.step.due(), 1) << "its time runs";
  });
  ThenEscape();
  RunAll();
}

TEST_F(WatchAdustTest, TheRunningTimeStandsAt20And86AndFollowsTheSecond) {
  SetTime(9, 5, 7);
  Open();
  Then([] {
    SendPaint(TopDialog());
    EXPECT_TRUE(TextStands(TopDialog(), " 9 :  5 .  7", 20, 86));
    SetTime(9, 5, 8);
    Ticks(1);
    EXPECT_TRUE(TextStands(TopDialog(), " 9 :  5 .  8", 20, 86));
    DrawingClear();
    Ticks(5);
    EXPECT_TRUE(Drawings(TopDialog()).empty());
    SendPaint(TopDialog());  // something lay over it
    EXPECT_TRUE(TextStands(TopDialog(), " 9 :  5 .  8", 20, 86));
  });
  ThenEscape();
  RunAll();
}

TEST_F(WatchAdustTest, TheMachinesClockIsSetKeepingTheDateAndTheMilliseconds) {
  TestClockSet({2026, 2, 28, 6, 9, 30, 15, 678});
  Open();
  Then([] {
    ChooseRow(TopDialog(), IDC_ADUST_HOUR, 23);
    ChooseRow(TopDialog(), IDC_ADUST_MINUTE, 59);
    ChooseRow(TopDialog(), IDC_ADUST_SECOND, 0);
    Press(TopDialog(), IDC_ADUST_SET);
    LocalTime now;
    TimeGetLocal(&now);
    EXPECT_EQ(now.year, 2026);
    EXPECT_EQ(now.month, 2);
    EXPECT_EQ(now.day, 28);
    EXPECT_EQ(now.hour, 23);
    EXPECT_EQ(now.minute, 59);
    EXPECT_EQ(now.second, 0);
    EXPECT_EQ(now.millisecond, 678);
  });
  ThenEscape();
  RunAll();
  EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
}

TEST_F(WatchAdustTest, AClockThatMayNotBeSetIsTold) {
  TestClockForbid(true);
  Open();
  ExpectBox("時計をセットできません", "時計 詳細設定");
  ThenPress(IDC_ADUST_SET);
  ThenEscape();
  RunAll();
  TestClockForbid(false);
}

TEST_F(WatchAdustTest, ChangesAreStoredAndSavedWithTheButtonThatEndsIt) {
  Open();
  Then([] {
    const WindowHandle dialog = TopDialog();
    Press(dialog, IDC_ADUST_TWELVE);
    Press(dialog, IDC_ADUST_AS_HOUR);
    Press(dialog, IDC_ADUST_SOUND);
    const Rows sounds = ListRows(dialog, IDC_ADUST_SOUNDS);
    ChooseRow(dialog, IDC_ADUST_SOUNDS,
              static_cast<int>(std::find(sounds.begin(), sounds.end(), "kan.wav") - sounds.begin()));
    Press(dialog, 1);
  });
  RunAll();
  EXPECT_EQ(Clock.ClockStrikeMode, 2);
  EXPECT_EQ(Clock.ClockStrikeSel, 1);
  EXPECT_EQ(Clock.ClockSoundOn, 1);
  EXPECT_STREQ(Clock.ClockSoundName, "kan.wav");
  const std::string file = SettingsFile();
  ASSERT_EQ(file.size(), 172720U);
  EXPECT_EQ(file.substr(780, 12), std::string("\0\0\0\2\0\0\0\1\0\0\0\1", 12));
  EXPECT_EQ(file.substr(792, 8), std::string("kan.wav\0", 8));
}

TEST_F(WatchAdustTest, WithNothingChangedTheFileIsNotWritten) {
  Open();
  Then([] { PressEnter(TopDialog()); });
  RunAll();
  EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
}

TEST_F(WatchAdustTest, CancelAndEscapeStoreNothing) {
  for (const bool escape : {false, true}) {
    Open();
    ThenPress(IDC_ADUST_NEVER);
    if (escape) {
      ThenEscape();
    } else {
      ThenPress(2);
    }
    RunAll();
    EXPECT_EQ(Clock.ClockStrikeMode, kStrikeEveryHour);
    EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
  }
}

TEST_F(WatchAdustTest, TheDefaultsAreThoseOfTheChosenDesignAndAreNotStoredYet) {
  CharaTables.ClockDesigns[1].record.strikeMode = kStrikeNever;
  Open(1);
  ThenPress(IDC_ADUST_DEFAULT);
  Then([] {
    EXPECT_EQ(Mode(), 0);
    EXPECT_EQ(Repeat(), 1);
    EXPECT_EQ(Sound(), 1);
    EXPECT_EQ(ListRows(TopDialog(), IDC_ADUST_SOUNDS)[ListSelected(TopDialog(), IDC_ADUST_SOUNDS)],
              "po2.wav");
  });
  ThenEscape();
  RunAll();
  EXPECT_EQ(Clock.ClockStrikeMode, kStrikeEveryHour);
  Open(0);
  ThenPress(IDC_ADUST_DEFAULT);
  ThenPress(1);
  RunAll();
  EXPECT_EQ(Clock.ClockStrikeMode, kStrikeAtTwelve);
  EXPECT_STREQ(Clock.ClockSoundName, "po2.wav");
}

TEST_F(WatchAdustTest, AModeThatOnlyADesignCanSetStaysWhileNoButtonIsPressed) {
  Clock.ClockStrikeMode = 7;
  Open();
  Then([] { EXPECT_EQ(Mode(), -1); });
  ThenPress(IDC_ADUST_AS_HOUR);
  ThenPress(1);
  RunAll();
  EXPECT_EQ(Clock.ClockStrikeMode, 7);
  EXPECT_EQ(Clock.ClockStrikeSel, 1);
}

TEST_F(WatchAdustTest, ASoundThatIsNoLongerThereStaysTheOneThatIsSet) {
  RemoveFile(InProgram("サウンド\\nya.wav"));
  Open();
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_ADUST_SOUNDS), -1); });
  ThenPress(IDC_ADUST_SOUND);
  ThenPress(1);
  RunAll();
  EXPECT_STREQ(Clock.ClockSoundName, "nya.wav");
}

// --- The performance is tried out

TEST_F(WatchAdustTest, ThePerformanceCheckPlaysInAlarmChkDialogAt10And120) {
  SetTime(2, 20);
  Open();
  ThenPress(IDC_ADUST_AS_HOUR);
  ThenPress(IDC_ADUST_SOUND);
  ThenPress(IDC_ADUST_CHECK);
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_AlarmChkDialog);
    EXPECT_EQ(WindowText(dialog), "アラーム動作の確認");
    EXPECT_EQ(Dialogs.hToolDlg, dialog);
    EXPECT_GE(WindowClientRect(dialog).bottom, 120 + 100);
    EXPECT_EQ(SoundsPlayed(), (Rows{"C:\\mirrell\\サウンド\\nya.wav"}));
    SendPaint(dialog);
    EXPECT_TRUE(TextStands(dialog, "鳩時計", 10, 10));
    // Two o'clock: frames 2 to 4 twice, each for its tick and the one that moves on.
    std::string shown;
    for (int i = 0; i < 40 && ClockPreview.play.on; ++i) {
      EXPECT_EQ(kClockPreviewStep.due(), 1);
      shown += static_cast<char>('0' + ClockPreview.frame);
      DrawingClear();
      Ticks(1);
      for (const DrawCall& call : Of(Drawings(dialog), Kind::Dib)) {
        EXPECT_EQ(call.x, 10);
        EXPECT_EQ(call.y, 120);
      }
    }
    EXPECT_EQ(shown, "11223311223300000000");
    EXPECT_EQ(SoundsPlayed().size(), 2U);
    EXPECT_EQ(kClockPreviewStep.due(), kTickNever);
    Press(dialog, 2);
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchAdustDlg);
    EXPECT_EQ(Dialogs.hToolDlg, TopDialog()) << "the dialog behind is in force again";
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::WatchAdustDlg);
    SetTime(2, 21, 1);
    Ticks(1);
    EXPECT_TRUE(TextStands(TopDialog(), " 2 : 21 .  1", 20, 86));
    PressEscape(TopDialog());
  });
  RunAll();
  EXPECT_EQ(Clock.ClockStrikeSel, 0) << "only tried out";
}

TEST_F(WatchAdustTest, ClosingTheCheckStopsThePreviewAndFreesItsPicture) {
  const int before = DiagnosticsLive().blocks;
  Open();
  ThenPress(IDC_ADUST_CHECK);
  Then([before] {
    EXPECT_EQ(DiagnosticsLive().blocks, before + 2);  // picture and mask
    PressEscape(TopDialog());
  });
  Then([before] {
    EXPECT_FALSE(ClockPreview.play.on);
    EXPECT_EQ(DiagnosticsLive().blocks, before);
    PressEscape(TopDialog());
  });
  RunAll();
}

TEST_F(WatchAdustTest, APreviewWhoseToolDialogIsGoneStops) {
  ClockPreview.play.on = true;
  Ticks(1);
  EXPECT_FALSE(ClockPreview.play.on);
}

TEST_F(WatchAdustTest, ADesignWithoutPicturesIsCheckedWithNothingToShow) {
  for (int frame = 1; frame <= 4; ++frame)
    RemoveFile(InProgram("キャラクタ\\Chara15_" + std::to_string(frame) + ".bmp"));
  Open();
  ThenPress(IDC_ADUST_CHECK);
  Then([] {
    SendPaint(TopDialog());
    Ticks(30);
    EXPECT_TRUE(Of(Drawings(TopDialog()), Kind::Dib).empty());
    PressClose(TopDialog());
  });
  ThenEscape();
  RunAll();
}

// --- SetClockAlarmDlg

class SetClockAlarmTest : public ClockFixture {
 protected:
  static void Run() { CommandSend(Command::ClockAlarms); }
};

TEST_F(SetClockAlarmTest, ItShowsTheFiveSlots) {
  AlarmSlot& slot = Clock.ClockEvents[4];
  slot.enabled = 1;
  slot.hour = 23;
  slot.minute = 59;
  slot.performance = 2;
  TextCopy(slot.comment, sizeof slot.comment, "寝る時間");
  Then([] {
    const WindowHandle dialog = TopDialog();
    EXPECT_EQ(TemplateOf(dialog), IDD_SetClockAlarmDlg);
    EXPECT_EQ(WindowText(dialog), "時計アラーム設定");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetClockAlarmDlg);
    for (int i = 0; i < kAlarmSlotCount; ++i) {
      EXPECT_EQ(ControlText(dialog, IDC_ALARM_ENABLE + i), "&" + std::to_string(i + 1) + ".許可");
      EXPECT_EQ(ListCount(dialog, IDC_ALARM_HOUR + i), 24);
      EXPECT_EQ(ListCount(dialog, IDC_ALARM_MINUTE + i), 60);
      EXPECT_EQ(ListRows(dialog, IDC_ALARM_PERFORMANCE + i),
                (Rows{"未設定", "キャラクタ+音", "キャラクタのみ", "音のみ"}));
    }
    EXPECT_EQ(ListRows(dialog, IDC_ALARM_HOUR).back(), "23");
    EXPECT_TRUE(ControlIsChecked(dialog, IDC_ALARM_ENABLE + 4));
    EXPECT_FALSE(ControlIsChecked(dialog, IDC_ALARM_ENABLE));
    EXPECT_EQ(ListSelected(dialog, IDC_ALARM_HOUR + 4), 23);
    EXPECT_EQ(ListSelected(dialog, IDC_ALARM_MINUTE + 4), 59);
    EXPECT_EQ(ListSelected(dialog, IDC_ALARM_PERFORMANCE + 4), 2);
    EXPECT_EQ(ListSelected(dialog, IDC_ALARM_PERFORMANCE), 0);
    EXPECT_EQ(ControlText(dialog, IDC_ALARM_COMMENT + 4), "寝る時間");
  });
  ThenEscape();
  Run();
}

TEST_F(SetClockAlarmTest, ConfirmingStoresAllFiveForgetsTheLastOneAndWritesTheSettings) {
  Clock.firedLast = 3;
  Then([] {
    const WindowHandle dialog = TopDialog();
    for (int i = 0; i < kAlarmSlotCount; ++i) {
      Press(dialog, IDC_ALARM_ENABLE + i);
      ChooseRow(dialog, IDC_ALARM_HOUR + i, 6 + i);
      ChooseRow(dialog, IDC_ALARM_MINUTE + i, 10 * i);
      ChooseRow(dialog, IDC_ALARM_PERFORMANCE + i, i % 4);
      Type(dialog, IDC_ALARM_COMMENT + i, ("起きる" + std::to_string(i)).c_str());
    }
    Press(dialog, 1);
  });
  Run();
  EXPECT_EQ(Clock.firedLast, -1);
  const std::string file = SettingsFile();
  ASSERT_EQ(file.size(), 172720U);
  for (int i = 0; i < kAlarmSlotCount; ++i) {
    const std::string slot = file.substr(static_cast<std::size_t>(171996 + 144 * i), 144);
    EXPECT_EQ(slot[0], 1);
    EXPECT_EQ(slot[1], 6 + i);
    EXPECT_EQ(slot[2], 10 * i);
    EXPECT_EQ(slot[4], i % 4);
    EXPECT_EQ(slot[5], 0);
    EXPECT_STREQ(slot.c_str() + 6, ("起きる" + std::to_string(i)).c_str());
  }
  ClockAlarmCheckReset();
  EXPECT_EQ(ClockAlarmCheck(8, 20), 1);
  EXPECT_EQ(Clock.ClockAlarmSlot, 2);
}

TEST_F(SetClockAlarmTest, CancelEscapeAndCloseStoreNothing) {
  Clock.firedLast = 3;
  for (int way = 0; way < 3; ++way) {
    Then([way] {
      Press(TopDialog(), IDC_ALARM_ENABLE);
      if (way == 0) Press(TopDialog(), 2);
      if (way == 1) PressEscape(TopDialog());
      if (way == 2) PressClose(TopDialog());
    });
    Run();
    EXPECT_EQ(Clock.ClockEvents[0].enabled, 0);
    EXPECT_EQ(Clock.firedLast, 3);
    EXPECT_FALSE(FileThere(InProgram("mirrell_sys_file.svs")));
  }
}

TEST_F(SetClockAlarmTest, ACommentTakesUpTo99Bytes) {
  Then([] {
    Type(TopDialog(), IDC_ALARM_COMMENT, std::string(99, 'x').c_str());
    PressEnter(TopDialog());
  });
  Run();
  EXPECT_STREQ(Clock.ClockEvents[0].comment, std::string(99, 'x').c_str());
}

// 49 double-byte characters are 98 bytes; of the next one there is no room for both.
TEST_F(SetClockAlarmTest, ACommentIsCutBeforeThePairThatDoesNotFit) {
  std::string comment;
  for (int i = 0; i < 60; ++i) comment += "茶";
  Then([comment] {
    Type(TopDialog(), IDC_ALARM_COMMENT, comment.c_str());
    Press(TopDialog(), 1);
  });
  Run();
  EXPECT_STREQ(Clock.ClockEvents[0].comment, comment.substr(0, 98).c_str());
}

TEST_F(SetClockAlarmTest, APerformanceCanBeTakenAwayAgain) {
  Clock.ClockEvents[1].performance = 3;
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_ALARM_PERFORMANCE + 1), 3);
    ChooseRow(TopDialog(), IDC_ALARM_PERFORMANCE + 1, 0);
    Press(TopDialog(), 1);
  });
  Run();
  EXPECT_EQ(Clock.ClockEvents[1].performance, 0);
}

// What a damaged settings file may hold.
TEST_F(SetClockAlarmTest, ValuesBeyondTheListsSelectNothingAndStay) {
  RecordFill(Clock.ClockEvents[2], '\xFF');
  Then([] {
    for (const int list : {IDC_ALARM_HOUR, IDC_ALARM_MINUTE, IDC_ALARM_PERFORMANCE})
      EXPECT_EQ(ListSelected(TopDialog(), list + 2), -1);
    Press(TopDialog(), 1);
  });
  Run();
  EXPECT_EQ(Clock.ClockEvents[2].hour, 255);
  EXPECT_EQ(Clock.ClockEvents[2].minute, 255);
  EXPECT_EQ(Clock.ClockEvents[2].performance, 65535);
  EXPECT_EQ(Clock.ClockEvents[2].enabled, 1);
}

TEST_F(SetClockAlarmTest, AnAlarmSetToTheCurrentMinuteAfterThatMinutesCheckDoesNotRingUntilTheNextDay) {
  Clock.ClockStrikeMode = kStrikeNever;
  SetTime(9, 30);
  OpenClock();
  Ticks(2);
  Then([] {
    Press(TopDialog(), IDC_ALARM_ENABLE);
    ChooseRow(TopDialog(), IDC_ALARM_HOUR, 9);
    ChooseRow(TopDialog(), IDC_ALARM_MINUTE, 30);
    Press(TopDialog(), 1);
  });
  Run();
  Ticks(100);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
  SetTime(9, 31);
  Ticks(1);
  TestClockSet({2026, 11, 22, 0, 9, 30, 0, 0});
  Ticks(1);
  EXPECT_NE(ClockNotice.hClockNoticeWnd, nullptr);
}

// --- SetClockEventDlg

class SetClockEventTest : public ClockFixture {
 protected:
  static void Run() { CommandSend(Command::ClockEvents); }
};

TEST_F(SetClockEventTest, ItListsThePerformancesInUse) {
  PerformanceTable.ClockPerformances[1].flags = 0;
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetClockEventDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント選択実行");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetClockEventDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_EVENT_LIST), (Rows{"キャラクタ+音", "音のみ"}));
  });
  ThenEscape();
  Run();
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
}

TEST_F(SetClockEventTest, ConfirmingOneRunsItsPerformanceWithNoAlarmSlot) {
  PerformanceTable.ClockPerformances[1].flags = 0;
  Clock.ClockAlarmSlot = 2;
  TextCopy(Clock.ClockEvents[2].comment, kAlarmCommentSize, "起きる");
  for (const bool byDouble : {false, true}) {
    Then([byDouble] {
      if (byDouble) return DoubleClickRow(TopDialog(), IDC_EVENT_LIST, 1);
      ChooseRow(TopDialog(), IDC_EVENT_LIST, 1);
      Press(TopDialog(), 1);
    });
    Run();
    EXPECT_EQ(Clock.ClockAlarmSlot, -1);
    EXPECT_EQ(Performance.PerformanceActive, 3) << "the number, not the row";
    ASSERT_NE(ClockNotice.hClockNoticeWnd, nullptr);
    DrawingClear();
    SendPaint(ClockNotice.hClockNoticeWnd);
    EXPECT_TRUE(DrawnTexts(ClockNotice.hClockNoticeWnd).empty());
  }
  EXPECT_EQ(SoundsPlayed(), (Rows(2, "C:\\mirrell\\サウンド\\kan.wav")));
}

TEST_F(SetClockEventTest, WithNothingToChooseItStaysUntilItIsCancelled) {
  PerformanceTable.ClockPerformanceCount = 0;
  ThenPress(1);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SetClockEventDlg); });
  ThenPress(2);
  Run();
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
}

TEST_F(SetClockEventTest, ThePlacesOfThePerformancesInUseAndTheirNumbers) {
  PerformanceTable.ClockPerformances[0].flags = 0;
  PerformanceTable.ClockPerformances[2].flags = 0x80;
  EXPECT_EQ(PerformancesInUse(), 2);
  EXPECT_EQ(PerformanceAt(0), 2);
  EXPECT_EQ(PerformanceAt(1), 3);
  EXPECT_EQ(PerformanceAt(2), 0);
  EXPECT_EQ(PerformanceAt(-1), 0);
  EXPECT_EQ(PerformancePlace(3), 1);
  EXPECT_EQ(PerformancePlace(1), -1);
  EXPECT_EQ(PerformancePlace(0), -1);
  EXPECT_EQ(PerformancePlace(70000), -1);
  char title[81];
  PerformanceTitle(5, title, sizeof title);
  EXPECT_STREQ(title, "");
  PerformanceTable.ClockPerformanceCount = 1000;
  EXPECT_EQ(PerformancesInUse(), 2);
}

// --- The timed events

class WatchListTest : public ClockFixture {
 protected:
  static void Fill(const char* hour, const char* minute, const char* second, const char* comment) {
    Type(TopDialog(), IDC_TIMED_HOUR, hour);
    Type(TopDialog(), IDC_TIMED_MINUTE, minute);
    Type(TopDialog(), IDC_TIMED_SECOND, second);
    Type(TopDialog(), IDC_TIMED_COMMENT, comment);
  }
  static Rows List() { return ListRows(TopDialog(), IDC_TIMED_LIST); }
  static void Put(int hour, int minute, int second, const char* comment, bool enabled = true) {
    TimedEvent event{enabled, hour, minute, second, {}};
    TextCopy(event.comment, sizeof event.comment, comment);
    TimedAdd(event);
  }
};

TEST_F(WatchListTest, AnEventIsAddedWithItsTimeInTwoCharactersEach) {
  SetTime(9, 5, 7);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListAddDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント追加");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::WatchListAddDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_HOUR), " 9");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_MINUTE), " 5");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_SECOND), " 7");
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_TIMED_ENABLE));
    Fill("99", "59", "60", "お茶");
    Press(TopDialog(), 1);
  });
  CommandSend(Command::WatchListAdd);
  ASSERT_EQ(Timed.TimedCount, 1);
  const TimedEvent event = TimedGet(0);
  EXPECT_TRUE(event.enabled);
  EXPECT_EQ(event.hour, 23) << "held inside the day";
  EXPECT_EQ(event.minute, 59);
  EXPECT_EQ(event.second, 59);
  EXPECT_STREQ(event.comment, "お茶");
}

TEST_F(WatchListTest, ACommentTakes127BytesAndEndsInsideItsField) {
  Then([] {
    Fill("1", "2", "3", std::string(127, 'x').c_str());
    PressEnter(TopDialog());
  });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(std::strlen(TimedGet(0).comment), 127U);
}

TEST_F(WatchListTest, A25thRowIsRefusedAndWhatWasTypedStays) {
  for (int i = 0; i < 23; ++i) Put(1, i, 0, "");
  Then([] { Press(TopDialog(), 1); });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(Timed.TimedCount, 24);
  Then([] { Fill("3", "4", "5", "もう一つ"); });
  ExpectBox("時計イベントの登録最大数は２４個です", "時計イベント追加");
  ThenPress(1);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListAddDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_COMMENT), "もう一つ");
    PressEscape(TopDialog());
  });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(Timed.TimedCount, 24);
}

TEST_F(WatchListTest, CancelAddsNothing) {
  for (int way = 0; way < 3; ++way) {
    Then([way] {
      if (way == 0) Press(TopDialog(), 2);
      if (way == 1) PressEscape(TopDialog());
      if (way == 2) PressClose(TopDialog());
    });
    CommandSend(Command::WatchListAdd);
  }
  EXPECT_EQ(Timed.TimedCount, 0);
}

TEST_F(WatchListTest, TheEventsAreListedInTheOrderOfTheirTimesAndTheChosenOneIsChanged) {
  Put(20, 0, 0, "夜");
  Put(6, 5, 30, "朝", false);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListChgDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント変更");
    EXPECT_EQ(List(), (Rows{"   6 :  5 . 30  朝", "○20 :  0 .  0  夜"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_COMMENT), "朝");
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_TIMED_ENABLE));
    ChooseRow(TopDialog(), IDC_TIMED_LIST, 1);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_HOUR), "20");
    Fill("5", "0", "0", "早朝");
    Press(TopDialog(), 1);
    EXPECT_EQ(List(), (Rows{"○ 5 :  0 .  0  早朝", "   6 :  5 . 30  朝"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_TIMED_LIST), -1);
  });
  ExpectBox("リストから選択してください", "時計イベント変更");
  ThenPress(1);
  ThenPress(2);
  CommandSend(Command::WatchListChange);
  EXPECT_STREQ(TimedGet(0).comment, "早朝") << "the row keeps its number";
}

TEST_F(WatchListTest, AnEventIsDeletedAndThoseBehindItMoveUp) {
  Put(20, 0, 0, "夜");
  Put(6, 0, 0, "朝");
  Put(12, 0, 0, "昼");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListDelDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント削除");
    ChooseRow(TopDialog(), IDC_TIMED_LIST, 2);
    Press(TopDialog(), 1);
    EXPECT_EQ(List(), (Rows{"○ 6 :  0 .  0  朝", "○12 :  0 .  0  昼"}));
  });
  ExpectBox("リストから選択してください", "時計イベント削除");
  ThenPress(1);
  ThenEscape();
  CommandSend(Command::WatchListDelete);
  EXPECT_EQ(Timed.TimedCount, 2);
  EXPECT_STREQ(TimedGet(0).comment, "朝");
}

TEST_F(WatchListTest, AnEmptyListHasNothingToChangeOrDelete) {
  for (const Command command : {Command::WatchListChange, Command::WatchListDelete}) {
    const char* caption = command == Command::WatchListChange ? "時計イベント変更" : "時計イベント削除";
    ExpectBox("リストから選択してください", caption);
    ThenPress(1);
    ThenEscape();
    CommandSend(command);
  }
}

}  // namespace
