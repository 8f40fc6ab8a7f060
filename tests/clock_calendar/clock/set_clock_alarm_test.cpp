// SetClockAlarmDlg: the five alarms.
#include "resources/character_ids.h"
#include "tests/clock_calendar/clock/clock_fixture.h"
#include "tests/support/record_check.h"

namespace {

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

TEST_F(SetClockAlarmTest, AlarmsThatCannotBeSavedAreTold) {
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルセーブできません", "時計アラーム設定");
  ThenPress(1);
  Run();
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

}  // namespace
