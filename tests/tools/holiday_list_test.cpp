#include "newdata/holiday_list.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <random>

#include "clock_calendar/calendar/calendar.h"
#include "newdata/data_set.h"
#include "newdata/host_file.h"
#include "platform/posix/posix_paths.h"
#include "shell/settings.h"
#include "tests/support/places.h"

namespace fs = std::filesystem;

namespace {

using Faults = std::vector<std::string>;

// The test's own texts are code page 932.
std::string Utf8(const char* text) {
  return Cp932ToUtf8(text);
}

const char kPublished[] =
    "国民の祝日・休日月日,国民の祝日・休日名称\r\n"
    "1955/1/1,元日\r\n"
    "2026/1/1,元日\r\n"
    "2026/1/12,成人の日\r\n"
    "2026/9/22,休日\r\n";

void ExpectPublished(const HolidayList& list) {
  EXPECT_EQ(list.faults, Faults{});
  ASSERT_EQ(list.days.size(), 4U);
  EXPECT_EQ(list.days[0].year, 1955);
  EXPECT_EQ(list.days[2].month, 1);
  EXPECT_EQ(list.days[2].day, 12);
  EXPECT_EQ(list.days[2].name, "成人の日");
}

TEST(HolidayList, TheFormInWhichListsArePublishedIsRead) {
  ExpectPublished(ReadHolidayList(kPublished));
  ExpectPublished(ReadHolidayList(Utf8(kPublished)));
  ExpectPublished(ReadHolidayList("\xEF\xBB\xBF" + Utf8(kPublished)));
}

TEST(HolidayList, DatesWithHyphensQuotesAndBlanksAreRead) {
  const HolidayList list = ReadHolidayList("\"2026-02-23\", \"天皇誕生日\"\n\n 2026/2/11 ,建国記念の日");
  EXPECT_EQ(list.faults, Faults{});
  ASSERT_EQ(list.days.size(), 2U);
  EXPECT_EQ(list.days[0].name, "天皇誕生日");
  EXPECT_EQ(list.days[1].day, 11);
}

TEST(HolidayList, EachLineThatCannotBeTakenIsTold) {
  const HolidayList list = ReadHolidayList(Utf8("2026/1/1,元日\n"
                                                "2026/2/30,a\n"
                                                "2026/13/1,a\n"
                                                "2027/2/29,a\n"
                                                "2026/1,a\n"
                                                "tomorrow,a\n"
                                                "2026/1/2\n"
                                                "2026/1/3,\n"
                                                "2026/1/4,") +
                                           "\xF0\x9F\x8E\x89\n2026/1/5," + std::string(128, 'x') +
                                           "\n2028/2/29,b\n99999999999/1/1,c\n2026/-1/1,d\n");
  EXPECT_EQ(
      list.faults,
      (Faults{"line 2: there is no such day", "line 3: there is no such day", "line 4: there is no such day",
              "line 5: the date is not understood", "line 6: the date is not understood",
              "line 7: there is no comma between a date and a name", "line 8: there is no name",
              "line 9: the name has letters that Shift-JIS has not",
              "line 10: the name is longer than a note, 127 bytes", "line 12: the date is not understood",
              "line 13: the date is not understood"}));
  ASSERT_EQ(list.days.size(), 2U);
  EXPECT_EQ(list.days[1].name, "b");
}

TEST(HolidayList, NoBytesBreakTheReader) {
  std::mt19937 random(5);
  const std::string whole = Utf8(kPublished);
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) ReadHolidayList(whole.substr(0, cut));
  for (int i = 0; i < 2000; ++i) {
    std::string spoilt = i % 2 == 0 ? whole : kPublished;
    for (int k = 0; k < 5; ++k) spoilt[random() % spoilt.size()] = static_cast<char>(random());
    for (const ListedHoliday& day : ReadHolidayList(spoilt).days) {
      EXPECT_LE(day.name.size(), 127U);
      EXPECT_GE(day.day, 1);
      EXPECT_LE(day.day, 31);
      EXPECT_GE(day.month, 1);
      EXPECT_LE(day.month, 12);
    }
  }
}

class HolidayListFolder : public testing::Test {
 protected:
  void SetUp() override { MakeDataSet(folder_ / "set", MIRRELL_ASSETS_DIR, {2026, 11, 21}); }
  void TearDown() override { fs::remove_all(folder_); }
  std::string Set() const { return (folder_ / "set").string(); }
  static int Run(const std::string& words) {
    const int status = std::system((std::string(kNewdataProgram) + " " + words + " >/dev/null 2>&1").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  static std::string Note(int year, int month, int day) {
    char note[kNoteSize + 1];
    CalenNoteGet(year, month, day, note);
    return note;
  }
  void ReadBack() {
    UseProgramFolder(folder_ / "set");
    ASSERT_EQ(SysFileRead(), 0);
    ASSERT_EQ(CalenFileRead(), 0);
  }
  fs::path folder_ = fs::temp_directory_path() / ("newdata_list_" + std::to_string(getpid()));
};

TEST_F(HolidayListFolder, FlagsAndNamesStandInTheCalendarsAfterwards) {
  const HolidayList list = ReadHolidayList("2026/7/15,臨時の休日\n2027/1/1,元日\n");
  const HolidaysTaken taken = TakeHolidays(folder_ / "set", list.days);
  EXPECT_EQ(taken.set, 1);
  EXPECT_EQ(taken.outside, 1) << "the span is one year";
  ReadBack();
  EXPECT_TRUE(CalenHolidayFlag(0, 6, 14));
  EXPECT_EQ(Note(0, 6, 14), "臨時の休日");
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Calendar.CalenSheets[i][6].holidays[14], 1);
    EXPECT_STREQ(Calendar.CalenSheets[i][6].notes[14], "臨時の休日");
  }
  EXPECT_EQ(CheckDataSet(folder_ / "set"), std::vector<std::string>{});
}

TEST_F(HolidayListFolder, LaterYearsOfTheSpanAndNotesOfTheUsersOwnAreKept) {
  UseProgramFolder(folder_ / "set");
  ReadBack();
  CalenSpanSet(26, 3);
  CalenNoteSet(0, 6, 14, "私用");
  ASSERT_EQ(SysFileWrite(), 0);
  const HolidaysTaken taken =
      TakeHolidays(folder_ / "set", ReadHolidayList("2026/7/15,臨時の休日\n2027/7/14,a\n").days);
  EXPECT_EQ(taken.set, 2);
  EXPECT_EQ(taken.later, 1);
  EXPECT_EQ(taken.withNote, 1);
  ReadBack();
  EXPECT_EQ(Note(0, 6, 14), "私用");
  EXPECT_TRUE(CalenHolidayFlag(0, 6, 14));
  EXPECT_TRUE(CalenHolidayFlag(1, 6, 13));
}

// The count of the calendars, a number of four bytes at 2182 of the settings.
TEST_F(HolidayListFolder, TheCalendarsAreCountedByTheirFileAndNotByTheSettings) {
  ReadBack();
  ASSERT_EQ(Calendar.CalenCount, 3);
  const fs::path settings = folder_ / "set" / "mirrell_sys_file.svs";
  for (const int count : {2, 31, 255}) {
    Bytes bytes = ReadHostFile(settings);
    for (std::size_t i = 0; i < 3; ++i) bytes.at(2182 + i) = count < 255 ? 0 : 0x7F;
    bytes.at(2185) = static_cast<unsigned char>(count);
    WriteHostFile(settings, bytes);
    EXPECT_EQ(CheckDataSet(folder_ / "set"), std::vector<std::string>{}) << count;
    const std::string line = "2026/7/1" + std::to_string(count % 10) + ",x\n";
    EXPECT_EQ(TakeHolidays(folder_ / "set", ReadHolidayList(line).days).set, 1);
    ReadBack();
    EXPECT_EQ(Calendar.CalenCount, 3) << count;
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Calendar.CalenSheets[i][6].holidays[9 + count % 10], 1);
  }
}

TEST_F(HolidayListFolder, TheCommandTellsItsEndByItsExitCode) {
  const fs::path good = folder_ / "good.csv";
  const fs::path bad = folder_ / "bad.csv";
  const std::string text = "2026/7/15,x\n";
  const std::string faulty = text + "2026/7/32,x\n";
  WriteHostFile(good, Bytes(text.begin(), text.end()));
  WriteHostFile(bad, Bytes(faulty.begin(), faulty.end()));
  EXPECT_EQ(Run("holidays " + good.string() + " " + Set()), 0);
  EXPECT_EQ(Run("holidays " + bad.string() + " " + Set()), 1);
  EXPECT_EQ(Run("holidays " + good.string()), 2);
  EXPECT_EQ(Run("holidays " + (folder_ / "none.csv").string() + " " + Set()), 1);
  EXPECT_EQ(Run("holidays " + good.string() + " " + (folder_ / "none").string()), 1);
  ReadBack();
  EXPECT_EQ(Note(0, 6, 14), "x");
}

}  // namespace
