// The order of the tick's steps, the commands that they send, and the end of the
// program from inside one of them.
#include <algorithm>
#include <memory>

#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/motion.h"
#include "character/options.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/performance.h"
#include "filetools/back_up/back_up.h"
#include "filetools/open/group_open.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/schedule_ids.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/dialog_family.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/file_watch.h"
#include "shell/panel.h"
#include "shell/settings.h"
#include "shell/tick.h"
#include "tests/support/program.h"

namespace {

using Words = std::vector<std::string>;

class TickOrderTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    SetFactorySettings();
    ASSERT_EQ(CharaFileWrite(), 0);
    StartProgram("hello");
    group_ = std::make_unique<OpnGroupRec>();
  }
  void TearDown() override {
    for (const WindowHandle window : OpenWindows()) {
      if (window != Program.hMainWnd && WindowIsOpen(window)) WindowDestroy(window);
    }
    ProgramTest::TearDown();
  }
  void GroupPending() {
    group_->fileCount = 1;
    TextCopy(group_->fileName[0], kOpnTextSize, "a.txt");
    TextCopy(group_->progName[0], kOpnTextSize, "edit.exe");
    GroupRun.OpnPendingGroup = group_.get();
  }
  // An alarm at the clock's 9:30.
  static void AlarmNow() {
    AlarmSlot& alarm = Clock.ClockEvents[0];
    alarm.enabled = 1;
    alarm.hour = 9;
    alarm.minute = 30;
    ClockAlarmCheckReset();
  }
  // The next step of the motion shows frame 0 again.
  static void MotionDue() {
    Motion.CharaMotion = kMotionBlink;
    Motion.BlinkDone = true;
    Motion.BoredHold = 0;
    Motion.CharaStepCount = 16;
  }
  static void WalkStepDue(WindowHandle window) {
    Walk.WalkActive = true;
    Walk.WalkSlots[0].active = true;
    Walk.WalkSlots[0].frameCount = 1;
    Walk.WalkSlots[0].WalkLeft = 2;
    Walk.WalkSlots[0].walkWindow = window;
  }
  static void WalkEndDue(WindowHandle window) {
    Walk.WalkEndActive = true;
    Walk.WalkSlots[1].ending = true;
    Walk.WalkSlots[1].endWait = 1;
    Walk.WalkSlots[1].endWindow = window;
  }
  static void TableScrolls(WindowHandle table) {
    SclTable.hSclTableWnd = table;
    SclTable.SclTableView.lines = 12;
    SclTable.SclTableView.pageLines = 10;
    SclTable.SclTableView.scrollBar =
        ControlCreate(table, ControlKind::VerticalScrollBar, 900, {0, 0, 16, 200}, "");
    SclTable.TableScrollDirection = ScrollDirection::Down;
  }
  // The character file as a sibling leaves it.
  static void CharacterFileChanges() {
    SetFileTime("C:\\mirrell\\mirrell_chara_file.dcx", 4000000000);
    Watch.FileWatchCount = 200;
  }
  std::unique_ptr<OpnGroupRec> group_;
};

// Everything that can be due at once, in one tick. The listeners stand for the windows.
TEST_F(TickOrderTest, TheStepsOfATickRunInTheirOrder) {
  BackUpRun.hBackUpDlg = OpenListener("back-up");
  Stepped.hSearchDlg = OpenListener("search");
  Panel.hDiskMenu = OpenListener("panel");
  Clock.hClockWnd = OpenListener("clock");
  ClockNotice.hClockNoticeWnd = nullptr;
  Mail.hMailNoticeWnd = OpenListener("mail");
  Notices.hSclNoticeWnd = OpenListener("notice");
  WalkStepDue(OpenListener("walk"));
  WalkEndDue(OpenListener("end"));
  TableScrolls(OpenListener("table"));
  const WindowHandle preview = OpenListener("preview");
  Calendar.hCalenWnd = OpenListener("calendar");

  BackUpRun.BackUpActive = true;
  Stepped.progressMode = 1;
  Panel.MenuPanelState = 1;
  Panel.MenuCloseCount = 1;
  MailSetting.enabled = 1;
  Mail.MailMinuteCount = 0;
  Mail.mailStopped = true;  // no server is asked
  GroupPending();
  Clock.ClockHour12 = 3;  // the clock has another hour to show
  AlarmNow();
  MotionDue();
  FiveTicks.FrameDivider = 1;
  CharacterFileChanges();

  // The preview plays as long as its dialog is open; its paint goes to the listener.
  CharaTables.MainCharas[0].blinkFrame = 1;
  Words heard;
  Then([&] {
    for (int i = 0; i < 5; ++i) ASSERT_EQ(MotionPreviewTick(), 0);
    const WindowHandle dialog = Dialogs.hSubDlg;
    Dialogs.hSubDlg = preview;
    TakeHeard();
    ListenToEverything();
    MainTick();
    heard = TakeHeard();
    Dialogs.hSubDlg = dialog;
    SendClose(dialog);
  });
  MotionPreviewRun(Program.hMainWnd, 0, Preview::Blink);

  EXPECT_EQ(heard, (Words{
                       "main 2373",             // 1
                       "back-up command 2375",  // 2
                       "search command 2376",   // 3
                       "panel pressed 2",       // 6
                       "main 2079",             // 8
                       "start",                 // 9
                       "walk command 2258",     // 10
                       "end close",             // 11
                       "clock paint",           // 13
                       "main 2336",
                       "main 2293",      // 14
                       "preview paint",  // 15
                       "mail paint",     // 16
                       "notice paint",
                       "table paint",  // 17
                       "main 2293",    // 18
                       "main 2254",
                       "clock close",
                   }));
}

TEST_F(TickOrderTest, AMatchingAlarmIsSent2336OnceInItsMinute) {
  Ticks(1);
  Calendar.hCalenWnd = OpenListener();
  AlarmNow();
  ListenToEverything();
  Ticks(3);
  EXPECT_EQ(TakeHeard(), Words{"main 2336"});
  EXPECT_NE(ClockNotice.hClockNoticeWnd, nullptr);
}

TEST_F(TickOrderTest, WithNeitherClockNorCalendarNorClockNoticeNoAlarmIsLookedFor) {
  Ticks(1);
  AlarmNow();
  ListenToEverything();
  Ticks(1);
  const Words heard = TakeHeard();
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "main 2336"), 0);
}

TEST_F(TickOrderTest, WithOnlyTheClockOpenTheAlarmsAreLookedAtAndNotTheDay) {
  Ticks(1);
  Clock.hClockWnd = OpenListener();
  Today.TodayDay = 0;
  AlarmNow();
  ListenToEverything();
  Ticks(3);
  const Words heard = TakeHeard();
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "main 2336"), 1);
  EXPECT_NE(ClockNotice.hClockNoticeWnd, nullptr);
  Clock.hClockWnd = nullptr;
}

TEST_F(TickOrderTest, WithOnlyTheClockNoticeOpenDayAndAlarmsAreLookedAt) {
  Ticks(1);
  ClockNotice.hClockNoticeWnd = OpenListener("bell");
  Today.TodayDay = 0;
  AlarmNow();
  ListenToEverything();
  PerformanceWaitStart(0, Today.SharedTime);
  Ticks(1);
  EXPECT_EQ(TakeHeard(), (Words{"main 2336", "bell close", "bell command 2258"}));
  EXPECT_EQ(Today.TodayDay, 20);
}

// The calendar's repaint, the alarm, the notice's step.
TEST_F(TickOrderTest, TheChecksOfTheCalendarsStepRunInTheirOrder) {
  Ticks(1);
  Calendar.hCalenWnd = OpenListener("calendar");
  ClockNotice.hClockNoticeWnd = OpenListener("bell");
  Today.TodayDay = 0;
  AlarmNow();
  ListenToEverything();
  PerformanceWaitStart(0, Today.SharedTime);
  Ticks(1);
  EXPECT_EQ(TakeHeard(), (Words{"calendar paint", "main 2336", "bell close", "bell command 2258"}));
}

TEST_F(TickOrderTest, TheMailIsAskedForWhenItsCountIsOver) {
  Ticks(1);
  MailSetting.enabled = 1;
  Mail.mailStopped = true;
  Mail.MailMinuteCount = 1;
  ListenToEverything();
  Ticks(5999);
  EXPECT_EQ(TakeHeard(), Words{});
  Ticks(1);
  EXPECT_EQ(TakeHeard(), Words{"main 2079"});
}

TEST_F(TickOrderTest, ANewFrameOfTheCharacterIsSent2293) {
  Ticks(1);
  MotionDue();
  ListenToEverything();
  Ticks(1);
  EXPECT_EQ(TakeHeard(), Words{"main 2293"});
  Ticks(17);
  EXPECT_EQ(TakeHeard(), Words{});
}

// --- The end of the program from inside a tick

bool EndsTheProgram(const Event& event) {
  if (event.kind == EventKind::Command && event.command == 2375) SendClose(Program.hMainWnd);
  return false;
}

TEST_F(TickOrderTest, AfterTheShutdownTheRestOfTheTickIsNotRun) {
  Ticks(1);
  BackUpRun.hBackUpDlg = DialogOpen(IDD_FlyingBat4, Program.hMainWnd, EndsTheProgram);
  BackUpRun.BackUpActive = true;
  Stepped.hSearchDlg = OpenListener();
  Stepped.progressMode = 1;
  Panel.MenuReopenGuard = 5;
  CharacterFileChanges();
  ListenToEverything();
  MainTick();
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(TakeHeard(), Words{});
  EXPECT_EQ(Panel.MenuReopenGuard, 5);
  EXPECT_EQ(Watch.FileWatchCount, 200);
  EXPECT_FALSE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
}

}  // namespace
