// The timer: a tick each time it fires, and one firing for many ticks while there
// is nothing to do but to count.
#include "shell/tick_timer.h"

#include <functional>

#include "character/motion.h"
#include "character/walk.h"
#include "filetools/open_groups.h"
#include "mail_music/mail.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "schedule/application_list.h"
#include "shell/entry.h"
#include "shell/shell.h"
#include "shell/text.h"
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
    TickCount = 0;
    CharaStepCount = 0;
    FileWatchCount = 0;
    // In every step there is something to do, and nothing comes of it.
    CharaMotion = kMotionBored;
    BoredHold = 100000;
  }

  static int Period() { return TimerPeriod(hMainWnd, kTickTimer); }

  // The timer fires after its period.
  static void Fire() {
    TestClockPass(static_cast<unsigned>(Period()));
    TickTimerFired();
  }
};

TEST_F(TickTimerTest, TheFirstTickComesAfter30Milliseconds) {
  EXPECT_EQ(Period(), 30);
  EXPECT_EQ(TickCount, 0);
}

TEST_F(TickTimerTest, ACharacterThatOnlyCountsDownIsLeftAloneUntilItsCountIsOver) {
  CharaMotion = kMotionIdle;
  BoredLen1 = 1;
  BoredSec = 5;
  BoredMin = 3;
  CharaStepCount = 4;
  // Five steps count the seconds down, the sixth takes a minute.
  EXPECT_EQ(TicksUntilDue(), 6 * kStep - 4);
  Ticks(6 * kStep - 5);
  EXPECT_EQ(BoredSec, 0);
  EXPECT_EQ(BoredMin, 3);
  MainTick();
  EXPECT_EQ(BoredSec, 60);
  EXPECT_EQ(BoredMin, 2);
  BoredLen1 = 0;
  BoredLen2 = 0;
  EXPECT_EQ(TicksUntilDue(), kWatch - FileWatchCount) << "a character that does nothing at all";
}

TEST_F(TickTimerTest, AMovingCompanionRestsUntilTheCharactersNextStep) {
  Fire();
  EXPECT_EQ(TickCount, 1);
  EXPECT_EQ(CharaStepCount, 1);
  EXPECT_EQ(Period(), (kStep - 1) * 30);
  Fire();
  EXPECT_EQ(TickCount, kStep);
  EXPECT_EQ(CharaStepCount, 0) << "the step was made, in its own tick";
  EXPECT_EQ(Period(), kStep * 30);
  Fire();
  EXPECT_EQ(TickCount, 2 * kStep);
}

TEST_F(TickTimerTest, TheFileWatchEndsARestInItsOwnTick) {
  FileWatchCount = kWatch - 4;
  Fire();
  EXPECT_EQ(Period(), 3 * 30);
  Fire();
  EXPECT_EQ(TickCount, 4);
  EXPECT_EQ(FileWatchCount, 0);
}

TEST_F(TickTimerTest, MailCheckingEndsARestWhenItsUnitIsOver) {
  MailCheckOn = true;
  MailInterval = 2;
  MailMinuteCount = 2;
  MailTickCount = 5995;
  Fire();
  EXPECT_EQ(Period(), 4 * 30);
  Fire();
  EXPECT_EQ(TickCount, 5);
  EXPECT_EQ(MailMinuteCount, 1);
}

TEST_F(TickTimerTest, WhateverReachesTheMainWindowFindsTheTicksThatHavePassed) {
  Fire();
  TestClockPass(7 * 30 + 3);
  SendCommand(hMainWnd, 47);
  EXPECT_EQ(TickCount, 8);
  EXPECT_EQ(CharaStepCount, 8);
  EXPECT_EQ(Period(), 30) << "tick by tick again";
  Fire();
  EXPECT_EQ(TickCount, 9);
  EXPECT_EQ(Period(), (kStep - 9) * 30);
}

TEST_F(TickTimerTest, AFiringOutOfTurnIsOneTick) {
  Fire();
  TickTimerFired();
  EXPECT_EQ(TickCount, 2);
  EXPECT_EQ(Period(), (kStep - 2) * 30);
}

TEST_F(TickTimerTest, ALateTimerMakesUpForNoMoreThanItsRest) {
  Fire();
  TestClockPass(3600 * 1000);
  TickTimerFired();
  EXPECT_EQ(TickCount, kStep);
}

TEST_F(TickTimerTest, TheCommandLineWaitsForTheFirstTick) {
  TextCopy(PendingCommandLine, sizeof PendingCommandLine, "nothing");
  EXPECT_EQ(TicksUntilDue(), 1);
  Fire();
  EXPECT_EQ(PendingCommandLine[0], '\0');
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
      {"back-up", [] { BackUpActive = true; }, [] { BackUpActive = false; }},
      {"stepped work", [] { progressMode = 3; }, [] { progressMode = 0; }},
      {"a started schedule program", [] { ApliStarted = 1; }, [] { ApliStarted = 0; }},
      {"reopen guard", [] { MenuReopenGuard = 5; }, [] { MenuReopenGuard = 0; }},
      {"the panel", [] { MenuPanelState = 1; }, [] { MenuPanelState = 0; }},
      {"a mail's walk is wanted",
       [] {
         MailCheckOn = true;
         MailNoticeFlag = 1;
       },
       [] {
         MailCheckOn = false;
         MailNoticeFlag = 0;
       }},
      {"a mail check is due",
       [] {
         MailCheckOn = true;
         MailMinuteCount = 0;
       },
       [] { MailCheckOn = false; }},
      {"a pending group", [] { OpnPendingGroup = &group; }, [] { OpnPendingGroup = nullptr; }},
      {"a walk", [] { WalkActive = true; }, [] { WalkActive = false; }},
      {"an end phase", [] { WalkEndActive = true; }, [] { WalkEndActive = false; }},
      {"the menu motion", [] { CharaMotion = kMotionMenu; }, [] { CharaMotion = kMotionBored; }},
  };
  for (const Busy& kind : kinds) {
    EXPECT_GT(TicksUntilDue(), 1) << kind.what;
    kind.begin();
    EXPECT_EQ(TicksUntilDue(), 1) << kind.what;
    kind.end();
  }
}

TEST_F(TickTimerTest, AnOpenWindowKeepsThePace) {
  for (WindowHandle* handle : {&hDiskMenu, &hMenuDlg, &hToolDlg, &hSubDlg, &hSnryDlg, &hFilePickDlg,
                               &hBackUpDlg, &hSearchDlg, &hClockWnd, &hCalenWnd, &hMailNoticeWnd,
                               &hSclNoticeWnd, &hClockNoticeWnd, &hSclTableWnd, &hPlanWnd, &hBgmWnd}) {
    *handle = OpenListener();
    Fire();
    EXPECT_EQ(Period(), 30);
    const WindowHandle window = *handle;
    *handle = nullptr;
    WindowDestroy(window);
    CharaStepCount = 0;
    FileWatchCount = 0;
    Fire();
    EXPECT_EQ(Period(), (kStep - 1) * 30);
  }
}

TEST_F(TickTimerTest, TheDividerThatRunsForNobodyKeepsNobodyAwake) {
  FrameDivider = 5;
  Fire();
  EXPECT_EQ(Period(), (kStep - 1) * 30);
  Fire();
  // 17 ticks from 5: three times round and two more.
  EXPECT_EQ(FrameDivider, 3);
}

TEST_F(TickTimerTest, ClosingEndsTheTimerAlsoFromARest) {
  Fire();
  SendClose(hMainWnd);
  EXPECT_FALSE(TimerIsRunning(hMainWnd, kTickTimer));
  TestClockPass(1000);
  TickTimerWake();
  EXPECT_EQ(TickCount, 1);
}

// Whatever the counts stand at: the ticks of a rest leave them as as many single
// ticks do, and none but the last has had anything to do.
TEST_F(TickTimerTest, TheTicksOfARestAreTheSameTicks) {
  for (int start = 0; start < kStep; ++start) {
    for (const int watch : {0, 100, kWatch - 9, kWatch - 1}) {
      CharaStepCount = start;
      FileWatchCount = watch;
      const int rest = TicksUntilDue();
      EXPECT_EQ(rest, std::min(kStep - start, kWatch - watch));
      Ticks(rest - 1);
      EXPECT_EQ(CharaStepCount, start + rest - 1);
      EXPECT_EQ(FileWatchCount, watch + rest - 1);
      MainTick();
      EXPECT_TRUE(CharaStepCount == 0 || FileWatchCount == 0);
    }
  }
}

}  // namespace
