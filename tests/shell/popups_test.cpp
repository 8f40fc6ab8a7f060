#include "shell/popups.h"

#include <gtest/gtest.h>

#include <vector>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "filetools/back_up/back_up.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "resources/schedule_ids.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/program.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"
#include "tests/support/desktop.h"

namespace {

std::vector<std::uint32_t> sentCommands;
int paints;
std::int32_t dayAtPaint;  // CalenClickedDay when the window was painted last

bool MainProc(const Event& event) {
  if (event.kind == EventKind::Command) sentCommands.push_back(event.command);
  return true;
}

bool WindowProc(const Event& event) {
  if (event.kind == EventKind::Paint) {
    ++paints;
    dayAtPaint = Calendar.CalenClickedDay;
  }
  EXPECT_NE(event.kind, EventKind::Command) << "what was chosen is the main window's";
  return event.kind != EventKind::Close;
}

class PopupsTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    sentCommands.clear();
    Calendar.CalenClickedDay = 0;
    Popups.PopupPoint = {12, 34};
    Program.hMainWnd = MainWindowCreate({"m", "m", 0, 0, 0, MainProc}, 0, 0, 100, 100);
    window = DialogOpen(IDD_FlyingBat6, Program.hMainWnd, WindowProc);
    paints = 0;
  }
  void TearDown() override {
    SclTable.hSclTableWnd = SclTable.hPlanWnd = Calendar.hCalenWnd = Clock.hClockWnd = nullptr;
    MainWindowDrop();
    Program.hMainWnd = nullptr;
    DesktopTest::TearDown();
  }
  WindowHandle window = nullptr;
};
using Numbers = std::vector<std::uint32_t>;

TEST_F(PopupsTest, WhatIsChosenForALineOfTheScheduleIsSentToTheMainWindow) {
  SclTable.hSclTableWnd = window;
  for (const std::uint32_t entry : {2209U, 2040U, 2210U, 2211U, 2344U, 2345U}) {
    sentCommands.clear();
    ExpectMenu(IDM_SCHEDULE_LINE, entry);
    CommandRoute(2039);
    EXPECT_EQ(sentCommands, Numbers{entry});
  }
}

TEST_F(PopupsTest, ThePlanHasTheMenuOfTheSchedule) {
  SclTable.hPlanWnd = window;
  ExpectMenu(IDM_SCHEDULE_LINE, 2211);
  CommandRoute(2039);
  EXPECT_EQ(sentCommands, Numbers{2211});
}

TEST_F(PopupsTest, WhatIsChosenForADayIsSentAndTheDayStaysClicked) {
  Calendar.hCalenWnd = window;
  for (const std::uint32_t entry : {2276U, 2277U, 2278U}) {
    sentCommands.clear();
    Calendar.CalenClickedDay = 9;
    ExpectMenu(IDM_CALENDAR_DAY, entry);
    CommandRoute(2279);
    EXPECT_EQ(sentCommands, Numbers{entry});
    EXPECT_EQ(Calendar.CalenClickedDay, 9);
    EXPECT_EQ(paints, 0);
  }
}

TEST_F(PopupsTest, WithNothingChosenTheClickedDayIsClearedAndTheCalendarPainted) {
  Calendar.hCalenWnd = window;
  Calendar.CalenClickedDay = 9;
  ExpectMenu(IDM_CALENDAR_DAY, 0);
  CommandRoute(2279);
  EXPECT_TRUE(sentCommands.empty());
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(dayAtPaint, 0) << "the mark is gone from the picture";
}

TEST_F(PopupsTest, WhatIsChosenOnTheClockIsSent) {
  Clock.hClockWnd = window;
  for (const std::uint32_t entry : {2330U, 2339U, 1911U}) {
    sentCommands.clear();
    ExpectMenu(IDM_CLOCK, entry);
    CommandRoute(2337);
    EXPECT_EQ(sentCommands, Numbers{entry});
    EXPECT_EQ(paints, 0);
  }
}

TEST_F(PopupsTest, WithNothingChosenTheClockIsDrawn) {
  Clock.hClockWnd = window;
  ExpectMenu(IDM_CLOCK, 0);
  CommandRoute(2337);
  EXPECT_TRUE(sentCommands.empty());
  EXPECT_EQ(paints, 1);
}

TEST_F(PopupsTest, Command50TakesAPopupAwayThatIsStillUp) {
  Clock.hClockWnd = window;
  ExpectMenu(IDM_CLOCK, 2330, [] { CommandRoute(50); });
  CommandRoute(2337);
  EXPECT_TRUE(sentCommands.empty());
  EXPECT_EQ(paints, 1) << "as with nothing chosen";
  CommandRoute(50);  // with none up it does nothing
  ExpectMenu(IDM_CLOCK, 2330);
  CommandRoute(2337);
  EXPECT_EQ(sentCommands, Numbers{2330});
}

TEST_F(PopupsTest, WithoutItsWindowNoPopupOpens) {
  CommandRoute(2039);
  CommandRoute(2279);
  CommandRoute(2337);
  EXPECT_TRUE(sentCommands.empty());
}

TEST_F(PopupsTest, APopupMayOpenOnlyWithNoPanelDialogProgressOrPickerOpen) {
  EXPECT_TRUE(PopupMayOpen());
  for (WindowHandle* handle :
       {&Panel.hDiskMenu, &Dialogs.hMenuDlg, &Dialogs.hToolDlg, &Dialogs.hSubDlg, &Dialogs.hSnryDlg,
        &BackUpRun.hBackUpDlg, &Stepped.hSearchDlg, &Picker.hFilePickDlg}) {
    *handle = window;
    EXPECT_FALSE(PopupMayOpen());
    *handle = nullptr;
  }
  // Modeless feature windows do not matter.
  for (WindowHandle* handle : {&Clock.hClockWnd, &Calendar.hCalenWnd, &Mail.hMailNoticeWnd,
                               &Notices.hSclNoticeWnd, &SclTable.hSclTableWnd}) {
    *handle = window;
    EXPECT_TRUE(PopupMayOpen());
    *handle = nullptr;
  }
}

}  // namespace
