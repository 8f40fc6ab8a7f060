// The executing schedule in the running program: its tick, its announcement, its mark, and
// its lines of a day of the calendar.
#include "schedule/execution/schedule_run.h"

#include "clock_calendar/calendar/calendar.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "resources/schedule_ids.h"
#include "resources/schedule_table_ids.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/model/scl_exec.h"
#include "schedule/model/scl_file.h"
#include "schedule/table/table_scroll.h"
#include "services/today.h"
#include "tests/schedule/schedule_fixture.h"

namespace {

constexpr int kExecute = 2257;
constexpr int kNotice = 2265;
constexpr int kDay = 2278;
constexpr char kChooseText[] = "表示中スケジュールを実行指定します。(設定アラームが有効になります)";
constexpr char kChooseTitle[] = "実行スケジュールの指定";
constexpr char kUnchooseText[] = "実行スケジュール指定を解除しますが、よろしいですか。";
constexpr char kUnchooseTitle[] = "実行スケジュール指定の解除";

// It is Saturday 21 November 2026, 9:30:15.
class ScheduleRunTest : public ScheduleTest {
 protected:
  void SetUp() override {
    ScheduleTest::SetUp();
    SclNew();
    SclCountSet(3);
  }
  void TearDown() override {
    SendClose(Notices.hSclNoticeWnd);
    SclDirtyClear(kSclTableChanged | kSclSettingsChanged);
    SendClose(SclTable.hSclTableWnd);
    ScheduleTest::TearDown();
  }
  static void Send(int command) { SendCommand(Program.hMainWnd, static_cast<std::uint32_t>(command)); }
  static void Line(int item, int startHour, int startMinute, int endHour, int endMinute, const char* text) {
    SclItemRec& line = SclItem(item);
    line = {};
    line.alarmOn = 1;
    line.hours = 2;
    line.start = {26, 10, 20, static_cast<std::uint8_t>(startHour)};
    line.end = {26, 10, 20, static_cast<std::uint8_t>(endHour)};
    line.mirrorStart.minute = static_cast<std::uint8_t>(startMinute);
    line.mirrorEnd.minute = static_cast<std::uint8_t>(endMinute);
    TextCopy(line.text, kSclItemTextSize, text);
  }
  static void Execute() {
    ExpectBox(kChooseText, kChooseTitle);
    Send(kExecute);
  }
  static void Clock(int hour, int minute, int second = 0, int day = 21) {
    TestClockSet({2026, 11, day, 6, hour, minute, second, 0});
  }
  static bool NoticeSays(const char* text, int y) {
    DrawingClear();
    SendPaint(Notices.hSclNoticeWnd);
    return TextStands(Notices.hSclNoticeWnd, text, 10, y);
  }
};

// --- The tick

TEST_F(ScheduleRunTest, AnItemIsAnnouncedAtItsTime) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Clock(8, 0);
  Execute();
  Ticks(2);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
  Clock(9, 44, 59);
  Ticks(1);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
  Clock(9, 45);
  Ticks(1);
  ASSERT_NE(Notices.hSclNoticeWnd, nullptr);
  EXPECT_EQ(TemplateOf(Notices.hSclNoticeWnd), IDD_FlyingBat4);
  EXPECT_TRUE(NoticeSays("-スケジュール表-", 10));
  EXPECT_TRUE(NoticeSays("予定 : 9 時 45 分 ～ 12 時 5 分", 30));
  EXPECT_TRUE(NoticeSays("( 内 容 )", 54));
  EXPECT_TRUE(NoticeSays("荷造り", 74));
  const WindowHandle notice = Notices.hSclNoticeWnd;
  Ticks(5);
  EXPECT_EQ(Notices.hSclNoticeWnd, notice) << "announced once";
}

TEST_F(ScheduleRunTest, TwoAtTheSameTimeReplaceEachOtherOnConsecutiveTicks) {
  Line(0, 9, 45, 12, 0, "一");
  Line(1, 9, 45, 12, 0, "二");
  Clock(8, 0);
  Execute();
  Ticks(1);
  Clock(9, 45);
  Ticks(1);
  EXPECT_TRUE(NoticeSays("一", 74));
  const WindowHandle first = Notices.hSclNoticeWnd;
  Ticks(1);
  EXPECT_NE(Notices.hSclNoticeWnd, first);
  EXPECT_TRUE(NoticeSays("二", 74));
}

TEST_F(ScheduleRunTest, ADayInTheMiddleOfAnItemIsToldByItsHoursOfWork) {
  Line(0, 9, 45, 12, 5, "旅行");
  SclItem(0).start.day = 18;
  SclItem(0).end.day = 25;
  Clock(8, 0);
  Execute();
  Ticks(1);
  EXPECT_TRUE(NoticeSays("予定 : 8 時 0 分 ～ 18 時 0 分", 30));
}

TEST_F(ScheduleRunTest, WithoutAnAlarmTheTickLooksAtNothing) {
  Line(0, 9, 45, 12, 5, "荷造り");
  SclItem(0).alarmOn = 0;
  Execute();
  EXPECT_FALSE(SclIsRunning());
  EXPECT_EQ(SclRunDue(), kTickNever);
  Clock(9, 45);
  Ticks(3);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
  EXPECT_EQ(SclAlarm.year, 0);
}

TEST_F(ScheduleRunTest, WithNothingDueTheStepRestsUntilTheMinuteIsOver) {
  Line(0, 16, 0, 17, 0, "荷造り");
  Clock(9, 30, 15);
  Execute();
  EXPECT_EQ(SclRunDue(), 1) << "the day is not known yet";
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 1) << "the list may hold what has begun in this hour";
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 1500) << "45 seconds are left, in ticks of 30 milliseconds";
  Clock(9, 30, 59);
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 34);
  Clock(9, 31, 0);
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 2000);
}

TEST_F(ScheduleRunTest, OutsideTheHoursOfWorkTheStepRestsToo) {
  Line(0, 16, 0, 17, 0, "荷造り");
  Clock(6, 0);
  Execute();
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 2000);
  Clock(18, 0);
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 2000);
}

TEST_F(ScheduleRunTest, WhileSomethingFiresTheStepIsDueAtOnce) {
  Line(0, 9, 45, 12, 0, "一");
  Line(1, 9, 45, 12, 0, "二");
  Clock(8, 0);
  Execute();
  Ticks(1);
  Clock(9, 45);
  Ticks(1);
  EXPECT_EQ(SclRunDue(), 1);
}

TEST_F(ScheduleRunTest, AnAnnouncementAppearsAboveADialog) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Clock(8, 0);
  Execute();
  Ticks(1);
  Then([] {
    Clock(9, 45);
    Ticks(1);
    EXPECT_NE(Notices.hSclNoticeWnd, nullptr);
    Press(TopDialog(), 2);
  });
  Send(2019);
  EXPECT_NE(Notices.hSclNoticeWnd, nullptr);
}

TEST_F(ScheduleRunTest, WhatWasAnnouncedIsNotOpenedAgainOnceTheMarkIsTakenBack) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Clock(8, 0);
  Execute();
  Ticks(1);
  Clock(9, 45);
  Ticks(1);
  SendClose(Notices.hSclNoticeWnd);
  Send(kNotice);
  ASSERT_NE(Notices.hSclNoticeWnd, nullptr) << "there is an item to announce";
  SendClose(Notices.hSclNoticeWnd);
  ExpectBox(kUnchooseText, kUnchooseTitle);
  Send(kExecute);
  Send(kNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
}

TEST_F(ScheduleRunTest, AnItemWithoutATerminatorIsAnnouncedWhole) {
  Line(0, 9, 0, 12, 0, "");
  std::fill_n(SclItem(0).text, kSclItemTextSize, 'w');
  Clock(9, 0);
  Execute();
  Ticks(2);
  EXPECT_EQ(std::string(Notices.SclNotice.text), std::string(128, 'w'));
}

// --- The mark

TEST_F(ScheduleRunTest, ChoosingTheScheduleSetsTheMarkAndMakesTheCopy) {
  Line(0, 9, 45, 12, 5, "荷造り");
  SclItem(0).doneState = 1;
  SclCurrentFileSet("C:\\mirrell\\a.GPI");
  Execute();
  EXPECT_EQ(BoxesShown().back().buttons, BoxButtons::OkCancel);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Chosen);
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_STREQ(Schedule.SclExecFile, "C:\\mirrell\\a.GPI");
  EXPECT_EQ(Schedule.SclDirtyFlags, kSclTableChanged | kSclSettingsChanged);
  EXPECT_STREQ(Schedule.SclExecTable.items[0].text, "荷造り");
  EXPECT_EQ(Schedule.SclExecTable.items[0].doneState, 0);
  EXPECT_EQ(SclItem(0).doneState, 1);
  EXPECT_TRUE(SclIsRunning());
}

TEST_F(ScheduleRunTest, TakingTheMarkBackEndsTheExecution) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Clock(8, 0);
  Execute();
  Ticks(1);
  SclDirtyClear(3);
  ExpectBox(kUnchooseText, kUnchooseTitle, BoxAnswer::Cancel);
  Send(kExecute);
  EXPECT_TRUE(SclIsRunning());
  ExpectBox(kUnchooseText, kUnchooseTitle);
  Send(kExecute);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_FALSE(Schedule.SclExecActive);
  EXPECT_STREQ(Schedule.SclExecFile, "");
  EXPECT_FALSE(SclIsRunning());
  EXPECT_EQ(Schedule.SclDirtyFlags, kSclTableChanged | kSclSettingsChanged);
  Clock(9, 45);
  Ticks(3);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
}

TEST_F(ScheduleRunTest, ARefusalChangesNothing) {
  ExpectBox(kChooseText, kChooseTitle, BoxAnswer::Cancel);
  Send(kExecute);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_EQ(Schedule.SclDirtyFlags, 0U);
}

TEST_F(ScheduleRunTest, AMarkThatWasTurnedWhileTheQuestionStoodIsNotTurnedTwice) {
  ExpectBox(kChooseText, kChooseTitle, BoxAnswer::Ok, [] {
    ExpectBox(kChooseText, kChooseTitle);
    Send(kExecute);
  });
  Send(kExecute);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Chosen);
  ExpectBox(kUnchooseText, kUnchooseTitle, BoxAnswer::Ok, [] {
    ExpectBox(kUnchooseText, kUnchooseTitle);
    Send(kExecute);
  });
  Send(kExecute);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
}

TEST_F(ScheduleRunTest, AnotherChoiceBeginsTheDayAnew) {
  Line(0, 9, 0, 12, 0, "荷造り");
  Clock(9, 30);
  Execute();
  Ticks(2);
  ASSERT_NE(Notices.hSclNoticeWnd, nullptr);
  SendClose(Notices.hSclNoticeWnd);
  ExpectBox(kUnchooseText, kUnchooseTitle);
  Send(kExecute);
  Execute();
  Ticks(2);
  EXPECT_NE(Notices.hSclNoticeWnd, nullptr);
}

// --- The start of the program

TEST_F(ScheduleRunTest, TheScheduleOfTheSelectedApplicationIsExecuted) {
  Line(0, 9, 0, 12, 0, "荷造り");
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\a.GPI"), 0);
  SclNew();
  SclExecutionLoad();
  EXPECT_FALSE(Schedule.SclExecActive) << "no application is selected";
  ASSERT_EQ(ApliListSetFirst("C:\\mirrell\\plan.exe"), 0);
  Applications.ApliSelected = 1;
  SclExecutionLoad();
  EXPECT_FALSE(Schedule.SclExecActive) << "it names no schedule";
  TextCopy(Applications.ApliSchedule.path, sizeof Applications.ApliSchedule.path, "C:\\mirrell\\none.GPI");
  SclExecutionLoad();
  EXPECT_FALSE(Schedule.SclExecActive) << "which is not there";
  TextCopy(Applications.ApliSchedule.path, sizeof Applications.ApliSchedule.path, "C:\\mirrell\\a.GPI");
  SclExecutionLoad();
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_STREQ(SclItem(0).text, "荷造り");
  Clock(9, 30);
  Ticks(2);
  EXPECT_NE(Notices.hSclNoticeWnd, nullptr);
}

// --- The lines of a day of the calendar

TEST_F(ScheduleRunTest, ADayOfTheCalendarShowsTheLinesOfTheCopyWithTheirMinutes) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Line(1, 13, 0, 15, 30, "会議");
  SclItem(1).alarmOn = 0;
  SclItem(1).end.day = 22;
  Line(2, 9, 0, 10, 0, "空");
  SclItem(2).hours = 0;
  Execute();
  SclItem(0).text[0] = '\0';  // of the schedule on display, which is not shown
  CalenShowToday();
  CalenClickedDaySet(21);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DspSclClickDayData);
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspSclClickDayDataSecond);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_DAY_HEAD), "2026年 11月 21日 の予定");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_DAY_LINES),
              (Rows{"【 時間 】9 時 45 分 ～ 12 時 5 分", "項目  1: 荷造り",
                    "【 時間 】13 時 0 分 ～ 18 時 0 分", "項目  2: 会議"}));
    PressEscape(TopDialog());
  });
  Send(kDay);
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
}

TEST_F(ScheduleRunTest, WithNothingExecutedTheDayIsEmptyAndWithoutADayThereIsNoDialog) {
  Line(0, 9, 45, 12, 5, "荷造り");
  Send(kDay);
  CalenShowToday();
  CalenClickedDaySet(21);
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_DAY_LINES), Rows());
    Press(TopDialog(), 2);
  });
  Send(kDay);
}

}  // namespace
