// What the schedule's notice takes for today.
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/execution/scl_notice.h"
#include "services/commands.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "tests/support/program.h"

namespace {

class NoticeDateTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    // 2026-11-21, 9:30 to 12:05, in a table of 8 to 18.
    SclItemRec& item = Schedule.SclExecTable.items[0];
    item.start = {26, 10, 20, 9};
    item.mirrorStart.minute = 30;
    item.end = {26, 10, 20, 12};
    item.mirrorEnd.minute = 5;
    SclAlarm.row = {10, 8, 18};
    SclAlarm.announce = 1;
  }
  void TearDown() override {
    SendClose(Notices.hSclNoticeWnd);
    ProgramTest::TearDown();
  }
};

TEST_F(NoticeDateTest, TodayIsTheMachinesDayThoughTheSharedDateMayBeYesterdays) {
  Today.TodayDay = 19;
  CommandSend(Command::ScheduleNotice);
  SendPaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定 : 9 時 30 分 ～ 12 時 5 分", 10, 30));
}

TEST_F(NoticeDateTest, PastMidnightTheItemIsOfAnotherDay) {
  TestClockSet({2026, 11, 22, 0, 0, 0, 1, 0});
  CommandSend(Command::ScheduleNotice);
  SendPaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定 : 8 時 0 分 ～ 18 時 0 分", 10, 30));
}

}  // namespace
