// SetClockEventDlg: an event of the clock is run.
#include "clock_calendar/clock/performance_rows.h"
#include "tests/clock_calendar/clock/clock_fixture.h"

namespace {

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

}  // namespace
