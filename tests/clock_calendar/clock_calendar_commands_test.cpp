// What the commands of the clock and the calendar do, sent to the main window.
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "platform/diagnostics.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "services/program.h"
#include "shell/settings.h"
#include "shell/shutdown.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"
#include "tests/support/records.h"

namespace {

class ClockCalendarCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ClearRecords();
    StartProgram();
    CalenYearsSet(26);
    Calendar.CalenYearCount = 3;
    for (int i = 0; i < kCalenYearMax; ++i) CalenYearInit(i);
  }
  void TearDown() override {
    ProgramTest::TearDown();
    ClearRecords();
  }
};

// A sibling has written the calendar file: the months of all three years are worked out
// for the years of the list, and the settings that hold them are saved.
TEST_F(ClockCalendarCommandsTest, TheYearsAreRebuiltWhenTheCalendarFileWasWritten) {
  CalenNoteSet(1, 1, 2, "kept");
  for (auto& year : Calendar.CalenMonths) {
    for (CalenMonth& month : year) month.days = month.firstWeekday = 1;
  }
  SendCommand(Program.hMainWnd, 2381);
  EXPECT_EQ(Calendar.CalenMonths[0][10].days, 30);
  EXPECT_EQ(Calendar.CalenMonths[0][10].firstWeekday, 6);  // 1 November 2026, Sunday
  EXPECT_EQ(Calendar.CalenMonths[1][0].firstWeekday, 4);   // 1 January 2027, Friday
  EXPECT_EQ(Calendar.CalenMonths[2][1].days, 29);          // February 2028
  EXPECT_STREQ(Calendar.CalenMonths[1][1].notes[2], "kept");
  // In the settings file the months begin at 2190, 4672 bytes each.
  const std::string file = FileBytes(InProgram("mirrell_sys_file.svs"));
  ASSERT_GT(file.size(), 2190U + 36U * 4672U);
  EXPECT_EQ(file[2190 + 10 * 4672], 30);
  EXPECT_EQ(file[2190 + 10 * 4672 + 1], 6);
}

TEST_F(ClockCalendarCommandsTest, TheShutdownFreesThePicturesOfTheMonth) {
  MakeFolder(InProgram("キャラクタ"));
  PutFile(InProgram("キャラクタ\\Chara5_1.bmp"), BmpFile(10, 20));
  Calendar.CalenMonths[0][3].picture.pictureOn = 1;
  Calendar.CalenDefinitions[0].charas[3][0] = 5;
  Calendar.CalenStickers.count = 1;
  Calendar.CalenStickers.charas[0] = 5;
  Calendar.CalenDefinitions[0].stickers[3][7] = 1;
  Calendar.CalenMonthPos = 3;
  const int blocks = DiagnosticsLive().blocks;
  CalenPrepareMonth();
  EXPECT_EQ(DiagnosticsLive().blocks, blocks + 2);
  Shutdown();
  EXPECT_LE(DiagnosticsLive().blocks, blocks);
  EXPECT_EQ(CalendarPictures.CalenFigures[0].picture, nullptr);
  EXPECT_EQ(CalendarPictures.CalenDayStickers[7].picture, nullptr);
}

}  // namespace
