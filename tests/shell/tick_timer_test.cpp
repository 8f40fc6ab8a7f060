// The timer: a tick each time it fires, and one firing for many ticks while there
// is nothing to do but to count.
#include "shell/tick_timer.h"

#include <functional>

#include "character/motion.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/clock_window.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "filetools/back_up/back_up.h"
#include "filetools/open/group_open.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/music/music.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/command_line.h"
#include "shell/file_watch.h"
#include "shell/panel.h"
#include "shell/tick.h"
#include "tests/support/program.h"

namespace {

constexpr int kStep = 17;    // ticks between two steps of the character
constexpr int kWatch = 201;  // ticks between two looks at the files

class TickTimerTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    TickCounts.TickCount = 0;
    Motion.CharaStepCount = 0;
    Watch.FileWatchCount = 0;
    // In every step there is something to do, and nothing comes of it.
    Motion.CharaMotion = kMotionBored;
    Motion.BoredHold = 100000;
  }

  static int Period() { return TimerPeriod(Program.hMainWnd, kTickTimer); }

  // The timer fires after its period.
  static void Fire() {
    TestClockPass(static_cast<unsigned>(Period()));
    TickTimerFired();
  }
};

TEST_F(TickTimerTest, TheFirstTickComesAfter30Milliseconds) {
  EXPECT_EQ(Period(), 30);
  EXPECT_EQ(TickCounts.TickCount, 0);
}

TEST_F(TickTimerTest, ACharacterThatOnlyCountsDownIsLeftAloneUntilItsCountIsOver) {
  Motion.CharaMotion = kMotionIdle;
  Motion.BoredLen1 = 1;
  Motion.BoredSec = 5;
  Motion.BoredMin = 3;
  Motion.CharaStepCount = 4;
  // Five steps count the seconds down, the sixth takes a minute.
  EXPECT_EQ(TicksUntilDue(), 6 * kStep - 4);
  Ticks(6 * kStep - 5);
  EXPECT_EQ(Motion.BoredSec, 0);
  EXPECT_EQ(Motion.BoredMin, 3);
  MainTick();
  EXPECT_EQ(Motion.BoredSec, 60);
  EXPECT_EQ(Motion.BoredMin, 2);
  Motion.BoredLen1 = 0;
  Motion.BoredLen2 = 0;
  EXPECT_EQ(TicksUntilDue(), kWatch - Watch.FileWatchCount) << "a character that does nothing at all";
}

TEST_F(TickTimerTest, AMovingCompanionRestsUntilTheCharactersNextStep) {
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 1);
  EXPECT_EQ(Motion.CharaStepCount, 1);
  EXPECT_EQ(Period(), (kStep - 1) * 30);
  Fire();
  EXPECT_EQ(TickCounts.TickCount, kStep);
  EXPECT_EQ(Motion.CharaStepCount, 0) << "the step was made, in its own tick";
  EXPECT_EQ(Period(), kStep * 30);
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 2 * kStep);
}

TEST_F(TickTimerTest, TheFileWatchEndsARestInItsOwnTick) {
  Watch.FileWatchCount = kWatch - 4;
  Fire();
  EXPECT_EQ(Period(), 3 * 30);
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 4);
  EXPECT_EQ(Watch.FileWatchCount, 0);
}

TEST_F(TickTimerTest, MailCheckingEndsARestWhenItsUnitIsOver) {
  MailSetting.enabled = 1;
  MailSetting.intervalIndex = 1;
  Mail.MailMinuteCount = 2;
  Mail.MailTickCount = 5995;
  Fire();
  EXPECT_EQ(Period(), 4 * 30);
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 5);
  EXPECT_EQ(Mail.MailMinuteCount, 1);
}

TEST_F(TickTimerTest, WhateverReachesTheMainWindowFindsTheTicksThatHavePassed) {
  Fire();
  TestClockPass(7 * 30 + 3);
  SendCommand(Program.hMainWnd, 47);
  EXPECT_EQ(TickCounts.TickCount, 8);
  EXPECT_EQ(Motion.CharaStepCount, 8);
  EXPECT_EQ(Period(), 30) << "tick by tick again";
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 9);
  EXPECT_EQ(Period(), (kStep - 9) * 30);
}

TEST_F(TickTimerTest, AFiringOutOfTurnIsOneTick) {
  Fire();
  TickTimerFired();
  EXPECT_EQ(TickCounts.TickCount, 2);
  EXPECT_EQ(Period(), (kStep - 2) * 30);
}

TEST_F(TickTimerTest, ALateTimerMakesUpForNoMoreThanItsRest) {
  Fire();
  TestClockPass(3600 * 1000);
  TickTimerFired();
  EXPECT_EQ(TickCounts.TickCount, kStep);
}

TEST_F(TickTimerTest, TheCommandLineWaitsForTheFirstTick) {
  TextCopy(ProgramLine.PendingCommandLine, sizeof ProgramLine.PendingCommandLine, "nothing");
  EXPECT_EQ(TicksUntilDue(), 1);
  Fire();
  EXPECT_EQ(ProgramLine.PendingCommandLine[0], '\0');
  EXPECT_GT(TicksUntilDue(), 1);
}

// Each of these keeps the timer at its pace.
struct Busy {
  const char* what;
  std::function<void()> begin;
  std::function<void()> end;
};

TEST_F(TickTimerTest, WorkInTheTickKeepsThePace) {
  static const OpnGroupRec group{};
  const Busy kinds[] = {
      {"back-up", [] { BackUpRun.BackUpActive = true; }, [] { BackUpRun.BackUpActive = false; }},
      {"stepped work", [] { Stepped.progressMode = 3; }, [] { Stepped.progressMode = 0; }},
      {"a started schedule program",
       [] {
         Applications.ApliStarted = 1;
         PutFile(InProgram("SclApliStUp.svt"), "x");
         TextCopy(Applications.ApliHandOffFile, sizeof Applications.ApliHandOffFile, "SclApliStUp.svt");
       },
       [] { Applications.ApliStarted = 0; }},
      {"reopen guard", [] { Panel.MenuReopenGuard = 5; }, [] { Panel.MenuReopenGuard = 0; }},
      {"the panel", [] { Panel.MenuPanelState = 1; }, [] { Panel.MenuPanelState = 0; }},
      {"a mail's walk is wanted",
       [] {
         MailSetting.enabled = 1;
         Walk.mailState = 1;
       },
       [] {
         MailSetting.enabled = 0;
         Walk.mailState = 0;
       }},
      {"a mail check is due",
       [] {
         MailSetting.enabled = 1;
         Mail.MailMinuteCount = 0;
       },
       [] { MailSetting.enabled = 0; }},
      {"a pending group", [] { GroupRun.OpnPendingGroup = &group; },
       [] { GroupRun.OpnPendingGroup = nullptr; }},
      {"a walk", [] { Walk.WalkActive = true; }, [] { Walk.WalkActive = false; }},
      {"an end phase", [] { Walk.WalkEndActive = true; }, [] { Walk.WalkEndActive = false; }},
      {"the menu motion", [] { Motion.CharaMotion = kMotionMenu; },
       [] { Motion.CharaMotion = kMotionBored; }},
  };
  for (const Busy& kind : kinds) {
    EXPECT_GT(TicksUntilDue(), 1) << kind.what;
    kind.begin();
    EXPECT_EQ(TicksUntilDue(), 1) << kind.what;
    kind.end();
  }
}

TEST_F(TickTimerTest, AnOpenWindowKeepsThePace) {
  for (WindowHandle* handle :
       {&Panel.hDiskMenu, &Dialogs.hMenuDlg, &Dialogs.hToolDlg, &Dialogs.hSubDlg, &Dialogs.hSnryDlg,
        &Picker.hFilePickDlg, &BackUpRun.hBackUpDlg, &Stepped.hSearchDlg, &SclTable.hSclTableWnd,
        &SclTable.hPlanWnd, &Music.hBgmWnd}) {
    *handle = OpenListener();
    Fire();
    EXPECT_EQ(Period(), 30);
    const WindowHandle window = *handle;
    *handle = nullptr;
    WindowDestroy(window);
    Motion.CharaStepCount = 0;
    Watch.FileWatchCount = 0;
    Fire();
    EXPECT_EQ(Period(), (kStep - 1) * 30);
  }
}

TEST_F(TickTimerTest, AnOpenNoticeIsDueAtItsNextPicture) {
  for (WindowHandle* handle : {&Mail.hMailNoticeWnd, &Notices.hSclNoticeWnd}) {
    *handle = OpenListener();
    FiveTicks.FrameDivider = 3;
    EXPECT_EQ(TicksUntilDue(), 3);
    FiveTicks.FrameDivider = 0;
    EXPECT_EQ(TicksUntilDue(), kStep);
    WindowDestroy(*handle);
    *handle = nullptr;
  }
}

// At half past nine 14 hours, 29 minutes and 45 seconds are left of the day.
TEST_F(TickTimerTest, AStillCalendarIsDueAtMidnight) {
  Calendar.hCalenWnd = OpenListener();
  Calendar.CalenTickerOn = false;
  TestClockSet({2026, 11, 21, 6, 9, 30, 15, 0});
  EXPECT_EQ(CalenWindowDue(), 52185000 / 30);
  TestClockSet({2026, 11, 21, 6, 23, 59, 59, 940});
  EXPECT_EQ(CalenWindowDue(), 2) << "60 milliseconds";
  Calendar.CalenTickerOn = true;
  EXPECT_EQ(CalendarDue(), 1);
  WindowDestroy(Calendar.hCalenWnd);
  Calendar.hCalenWnd = nullptr;
  EXPECT_EQ(CalendarDue(), kTickNever);
}

TEST_F(TickTimerTest, AnOpenClockIsDueAtItsNextMinute) {
  EXPECT_EQ(ClockDue(), kTickNever);
  Clock.hClockWnd = OpenListener();
  ClockTimeTake(9, 30);
  ClockAlarmCheck(9, 30);
  TestClockSet({2026, 11, 21, 6, 9, 30, 15, 0});
  EXPECT_EQ(ClockDue(), 45000 / 30);
  EXPECT_EQ(TicksUntilDue(), kStep);
  TestClockSet({2026, 11, 21, 6, 9, 30, 59, 939});
  EXPECT_EQ(ClockDue(), 3) << "61 milliseconds";
  TestClockSet({2026, 11, 21, 6, 9, 30, 59, 940});
  EXPECT_EQ(ClockDue(), 2) << "60 milliseconds";
  TestClockSet({2026, 11, 21, 6, 9, 30, 59, 999});
  EXPECT_EQ(ClockDue(), 1);
  TestClockSet({2026, 11, 21, 6, 9, 31, 0, 0});
  EXPECT_EQ(ClockDue(), 1) << "another minute than the one on show";
  TestClockSet({2026, 11, 21, 6, 10, 30, 0, 0});
  EXPECT_EQ(ClockDue(), 1) << "another hour";
  TestClockSet({2026, 11, 21, 6, 9, 30, 0, 0});
  Clock.strike.on = true;
  EXPECT_EQ(ClockDue(), 1) << "a performance";
  WindowDestroy(Clock.hClockWnd);
}

// A box that the last tick of a rest brings up: its loop has every tick, and what has
// passed in a rest of its own is not lost.
TEST_F(TickTimerTest, ABoxFromTheLastTickOfARestHasItsTicks) {
  CalenStartDefaults();
  ASSERT_EQ(CalenFileWrite(), 0);
  Calendar.CalenSheets[CalenSelected()][0].notes[0][0] = 'x';  // a note that the file does not have
  Applications.ApliCount = 1;
  Applications.ApliSelected = 1;
  Watch.FileWatchCount = kWatch - 4;
  Fire();
  ASSERT_EQ(Period(), 3 * 30);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)", BoxAnswer::Ok, [] {
              EXPECT_EQ(TickCounts.TickCount, 4);
              EXPECT_EQ(Period(), 30);
              Fire();
              EXPECT_EQ(TickCounts.TickCount, 5);
              EXPECT_EQ(Period(), (kStep - 5) * 30);
              TestClockPass(5 * 30);
            });
  Fire();
  EXPECT_EQ(TickCounts.TickCount, 10);
  EXPECT_EQ(Motion.CharaStepCount, 10);
  EXPECT_EQ(Period(), (kStep - 10) * 30);
}

TEST_F(TickTimerTest, TheDividerThatRunsForNobodyKeepsNobodyAwake) {
  FiveTicks.FrameDivider = 5;
  Fire();
  EXPECT_EQ(Period(), (kStep - 1) * 30);
  Fire();
  // 17 ticks from 5: three times round and two more.
  EXPECT_EQ(FiveTicks.FrameDivider, 3);
}

TEST_F(TickTimerTest, ClosingEndsTheTimerAlsoFromARest) {
  Fire();
  SendClose(Program.hMainWnd);
  EXPECT_FALSE(TimerIsRunning(Program.hMainWnd, kTickTimer));
  TestClockPass(1000);
  TickTimerWake();
  EXPECT_EQ(TickCounts.TickCount, 1);
}

// Whatever the counts stand at: the ticks of a rest leave them as as many single
// ticks do, and none but the last has had anything to do.
TEST_F(TickTimerTest, TheTicksOfARestAreTheSameTicks) {
  for (int start = 0; start < kStep; ++start) {
    for (const int watch : {0, 100, kWatch - 9, kWatch - 1}) {
      Motion.CharaStepCount = start;
      Watch.FileWatchCount = watch;
      const int rest = TicksUntilDue();
      EXPECT_EQ(rest, std::min(kStep - start, kWatch - watch));
      Ticks(rest - 1);
      EXPECT_EQ(Motion.CharaStepCount, start + rest - 1);
      EXPECT_EQ(Watch.FileWatchCount, watch + rest - 1);
      MainTick();
      EXPECT_TRUE(Motion.CharaStepCount == 0 || Watch.FileWatchCount == 0);
    }
  }
}

}  // namespace
