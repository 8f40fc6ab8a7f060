// WatchAdustDlg: the details of the clock, and the check of its performance.
#include "clock_calendar/clock/clock_preview.h"
#include "platform/time.h"
#include "resources/character_ids.h"
#include "services/tick_step.h"
#include "tests/clock_calendar/clock/sel_watch_fixture.h"

namespace {

using Kind = DrawCall::Kind;

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

TEST_F(WatchAdustTest, ChangesThatCannotBeSavedAreTold) {
  Open();
  Then([] { Press(TopDialog(), IDC_ADUST_TWELVE); });
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルセーブできません", "時計 詳細設定");
  ThenPress(1);
  RunAll();
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

}  // namespace
