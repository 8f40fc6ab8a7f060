#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <random>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "tests/support/failing_writes.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"

namespace {

const std::string kName = "C:\\mirrell\\mirrell_calen_file.dcd";
const std::string kMagic = "Mirrell Calender File:";

std::string BE32(std::uint32_t value) {
  return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
          static_cast<char>(value)};
}

// Random bytes, the same for the same seed.
std::string Noise(std::size_t size, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

// What stands before the sheets; the names are terminated.
std::string Head(std::uint32_t count) {
  std::string head = kMagic + BE32(count);
  for (std::uint32_t i = 0; i < 30; ++i) {
    std::string name = "calendar " + std::to_string(i);
    name.resize(129, '\0');
    head += name;
  }
  return head + Noise(30, 1) + Noise(30, 2) + Noise(30, 3);
}

// A whole file with `count` calendars and `designs` clock design records.
std::string WholeFile(std::uint32_t count, std::uint32_t designs) {
  return Head(count) + Noise(count * 56064, 4) + Noise(count * 120, 5) + Noise(count * 26728, 6) +
         Noise(302, 7) + BE32(designs) + Noise(designs * 104, 8);
}

template <typename T>
std::string Bytes(const T& table) {
  return {reinterpret_cast<const char*>(&table), sizeof table};
}

class CalendarFileTest : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    // Today, which the reader brings on show, is in the span.
    Today.TodayYear = 26;
    Calendar.CalenFirstYear = 26;
    Calendar.CalenYearCount = 1;
  }
};

TEST_F(CalendarFileTest, ThePathIsTheRootFolderAndTheName) {
  char path[kRootPathSize];
  CalenFilePath(path, sizeof path);
  EXPECT_EQ(path, kName);
}

TEST_F(CalendarFileTest, EveryPartStandsAtItsOffset) {
  const std::string file = WholeFile(3, 2);
  ASSERT_EQ(file.size(), 3986U + 3 * (56064 + 120 + 26728) + 302 + 4 + 2 * 104);
  PutFile(kName, file);
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(Calendar.CalenCount, 3);
  for (int i = 0; i < 30; ++i) {
    EXPECT_STREQ(Calendar.CalenNames[i], file.substr(26 + 129 * static_cast<std::size_t>(i), 129).c_str())
        << i;
  }
  EXPECT_EQ(Bytes(Calendar.CalenKinds), file.substr(3896, 30));
  EXPECT_EQ(Bytes(Calendar.CalenParts), file.substr(3926, 30));
  EXPECT_EQ(Bytes(Calendar.CalenPictures), file.substr(3956, 30));
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_TRUE(RecordBytes(Calendar.CalenSheets[i]) == file.substr(3986 + 56064 * i, 56064)) << i;
    EXPECT_TRUE(RecordBytes(Calendar.CalenSheetFlags[i]) == file.substr(3986 + 3 * 56064 + 120 * i, 120))
        << i;
    EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[i]) == file.substr(3986 + 3 * 56184 + 26728 * i, 26728))
        << i;
  }
  const std::size_t tail = 3986 + 3 * (56064 + 120 + 26728);
  EXPECT_TRUE(RecordBytes(Calendar.CalenStickers) == file.substr(tail, 302));
  EXPECT_EQ(Clock.ClockListCount, 2);
  EXPECT_TRUE(RecordBytes(Clock.ClockList[0]) + RecordBytes(Clock.ClockList[1]) ==
              file.substr(tail + 306, 208));
  EXPECT_EQ(Calendar.CalenDefinitions[3].reserved1[4], 0);
}

TEST_F(CalendarFileTest, SavingCopiesTheFirstWorkingYearIntoTheSelectedSheetAndSetsTheFirstPictureSwitch) {
  PutFile(kName, WholeFile(3, 2));
  ASSERT_EQ(CalenFileRead(), 0);
  std::string expected = FileBytes(kName);
  const std::string year = Noise(56064, 9);
  const std::string flags = Noise(120, 10);
  RecordSet(Calendar.CalenMonths[0], year);
  RecordSet(Calendar.CalenMonthFlags[0], flags);
  Calendar.CalenPictures[0] = 0;
  Calendar.CalenSel = 1;
  EXPECT_EQ(CalenFileWrite(), 0);
  expected.replace(3986 + 56064, 56064, year);
  expected.replace(3986 + 3 * 56064 + 120, 120, flags);
  expected[3956] = 1;
  EXPECT_TRUE(FileBytes(kName) == expected);
}

TEST_F(CalendarFileTest, SavingTwiceGivesTheSameFile) {
  PutFile(kName, WholeFile(2, 1));
  ASSERT_EQ(CalenFileRead(), 0);
  ASSERT_EQ(CalenFileWrite(), 0);
  const std::string first = FileBytes(kName);
  ASSERT_EQ(CalenFileRead(), 0);
  ASSERT_EQ(CalenFileWrite(), 0);
  EXPECT_TRUE(FileBytes(kName) == first);
}

TEST_F(CalendarFileTest, ASelectionThatIsNoCalendarSavesIntoTheFirstSheet) {
  Calendar.CalenCount = 1;
  Calendar.CalenMonths[0][0].holidays[3] = 77;
  for (const int sel : {-1, 30, 2147483647}) {
    Calendar.CalenSel = sel;
    Calendar.CalenSheets[0][0].holidays[3] = 0;
    EXPECT_EQ(CalenFileWrite(), 0);
    EXPECT_EQ(Calendar.CalenSheets[0][0].holidays[3], 77) << sel;
  }
}

TEST_F(CalendarFileTest, ACountOutOfTheSettingsFileIsHeldInsideTheTableWhenWriting) {
  const struct {
    std::int32_t count;
    std::size_t size;
  } kCases[] = {{-1, 3986 + 306}, {31, 3986 + 30 * 82912 + 306}, {2147483647, 3986 + 30 * 82912 + 306}};
  for (const auto& item : kCases) {
    Calendar.CalenCount = item.count;
    EXPECT_EQ(CalenFileWrite(), 0);
    EXPECT_EQ(FileBytes(kName).size(), item.size) << item.count;
    EXPECT_EQ(CalenFileRead(), 0);
  }
}

TEST_F(CalendarFileTest, AMissingFileGivesMinus1AndLeavesTheCalendars) {
  Calendar.CalenCount = 5;
  TextCopy(Calendar.CalenNames[0], kCalenNameSize, "old");
  EXPECT_EQ(CalenFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_EQ(Calendar.CalenCount, 5);
  EXPECT_STREQ(Calendar.CalenNames[0], "old");
}

TEST_F(CalendarFileTest, AShortMagicGivesFileStatusMinus2AndReturnsMinus1AndAWrongOneGivesMinus2) {
  PutFile(kName, kMagic.substr(0, 21));
  EXPECT_EQ(CalenFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -2);
  std::string file = WholeFile(1, 0);
  file[21] = ';';
  PutFile(kName, file);
  EXPECT_EQ(CalenFileRead(), -2);
  EXPECT_EQ(FileResult.FileStatus, -2);
}

TEST_F(CalendarFileTest, CountsBeyondTheTableAreBadContent) {
  for (const std::uint32_t count : {31U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    Calendar.CalenCount = 4;
    PutFile(kName, Head(count) + std::string(100000, 'x'));
    EXPECT_EQ(CalenFileRead(), -2) << count;
    EXPECT_EQ(FileResult.FileStatus, -2) << count;
    EXPECT_EQ(Calendar.CalenCount, 4) << count;
  }
}

TEST_F(CalendarFileTest, AListThatCountsMoreDesignsThanThereCanBeIsNoList) {
  for (const std::uint32_t designs : {51U, 0xFFFFFFFFU, 0x7FFFFFFFU}) {
    Clock.ClockListCount = 9;
    PutFile(kName, WholeFile(1, 0).substr(0, 3986 + 82912 + 302) + BE32(designs) + Noise(60 * 104, 1));
    EXPECT_EQ(CalenFileRead(), 0);
    EXPECT_EQ(Clock.ClockListCount, 0) << designs;
  }
  PutFile(kName, WholeFile(1, 50));
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_EQ(Clock.ClockListCount, 50);
}

TEST_F(CalendarFileTest, ThirtyCalendarsFit) {
  const std::string file = WholeFile(30, 50);
  PutFile(kName, file);
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_EQ(Calendar.CalenCount, 30);
  EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[29]) ==
              file.substr(3986 + 30 * 56184 + 29 * 26728, 26728));
}

TEST_F(CalendarFileTest, FromTheDefinitionsOnAShortFileIsFilledWithZeros) {
  const std::string file = WholeFile(2, 1);
  const std::size_t definitions = 3986 + 2 * 56184;
  const std::size_t stickers = definitions + 2 * 26728;
  const auto fill = [] {
    RecordFill(Calendar.CalenDefinitions, 'o');
    RecordFill(Calendar.CalenStickers, 'o');
    RecordFill(Clock.ClockList, 'o');
    Clock.ClockListCount = 3;
  };
  fill();
  PutFile(kName, file.substr(0, definitions));
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[0]) == std::string(26728, '\0'));
  EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[1]) == std::string(26728, '\0'));
  EXPECT_EQ(Calendar.CalenDefinitions[2].valid, 'o');
  EXPECT_TRUE(RecordBytes(Calendar.CalenStickers) == std::string(302, '\0'));
  EXPECT_EQ(Clock.ClockListCount, 0);
  fill();
  PutFile(kName, file.substr(0, definitions + 26728 + 100));
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[0]) == file.substr(definitions, 26728));
  EXPECT_TRUE(RecordBytes(Calendar.CalenDefinitions[1]) == std::string(26728, '\0'));
  fill();
  PutFile(kName, file.substr(0, stickers + 302 + 4 + 103));
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_TRUE(RecordBytes(Calendar.CalenStickers) == file.substr(stickers, 302));
  EXPECT_EQ(Clock.ClockListCount, 1);
  EXPECT_TRUE(RecordBytes(Clock.ClockList[0]) == std::string(104, '\0'));
}

TEST_F(CalendarFileTest, EveryTruncationIsToldAndLeavesTheCalendarsUpToTheDefinitions) {
  const std::string file = WholeFile(1, 2);
  PutFile(kName, file);
  const std::string native = PosixPath(kName.c_str());
  const std::size_t strict = 3986 + 56184;
  std::vector<std::size_t> sizes;
  for (std::size_t size = file.size(); size-- > 0;) {
    // Each byte of the head and of the tail's ends; every 97th of the long blocks.
    const bool near = size < 4100 || (size > strict - 300 && size < strict + 300) || size > file.size() - 600;
    if (near || size % 97 == 0) sizes.push_back(size);
  }
  RecordFill(Calendar.CalenSheets[0], 'o');
  for (const std::size_t size : sizes) {
    ASSERT_EQ(truncate(native.c_str(), static_cast<off_t>(size)), 0);
    if (size < strict) {
      Calendar.CalenCount = 7;
      TextCopy(Calendar.CalenNames[0], kCalenNameSize, "old");
      Calendar.CalenSheets[0][0].days = Calendar.CalenSheets[0][11].picture.starts[1] = 'o';
      Calendar.CalenSheetFlags[0][0].choices[0] = 'o';
    }
    const int result = CalenFileRead();
    ASSERT_EQ(result, size >= strict ? 0 : size < 22 ? -1 : -2) << size;
    ASSERT_EQ(FileResult.FileStatus, size >= strict ? 0 : -2) << size;
    if (size < strict) {
      ASSERT_EQ(Calendar.CalenCount, 7) << size;
      ASSERT_STREQ(Calendar.CalenNames[0], "old") << size;
      ASSERT_EQ(Calendar.CalenSheets[0][0].days, 'o') << size;
      ASSERT_EQ(Calendar.CalenSheets[0][11].picture.starts[1], 'o') << size;
      ASSERT_EQ(Calendar.CalenSheetFlags[0][0].choices[0], 'o') << size;
    }
  }
}

TEST_F(CalendarFileTest, RandomMutationsStayInsideTheTables) {
  // With no calendar the file is short and each round cheap; the counts are in it.
  const std::string image = WholeFile(0, 2);
  PutFile(kName, image);
  std::FILE* file = std::fopen(PosixPath(kName.c_str()).c_str(), "r+b");
  ASSERT_NE(file, nullptr);
  std::mt19937 random(11);
  int good = 0;
  for (int round = 0; round < 100000; ++round) {
    off_t places[3];
    for (off_t& place : places) {
      switch (random() % 8) {
        case 0:
          place = 22 + static_cast<off_t>(random() % 4);
          break;
        case 1:
          place = 3986 + 302 + static_cast<off_t>(random() % 4);
          break;
        default:
          place = 26 + static_cast<off_t>(random() % (image.size() - 26));
      }
      const char byte = static_cast<char>(random() % 4 == 0 ? random() % 64 : random());
      ASSERT_EQ(pwrite(fileno(file), &byte, 1, place), 1);
    }
    const int result = CalenFileRead();
    ASSERT_TRUE(result == 0 || result == -2) << round;
    if (result == 0) ++good;
    ASSERT_TRUE(Calendar.CalenCount >= 0 && Calendar.CalenCount <= kCalenMax) << round;
    ASSERT_TRUE(Clock.ClockListCount >= 0 && Clock.ClockListCount <= kClockDesignMax) << round;
    for (const auto& name : Calendar.CalenNames) ASSERT_EQ(name[kCalenNameSize - 1], '\0') << round;
    int chara = 0;
    int figure = 0;
    CalenSticker(CalenStickerCount() - 1, &chara, &figure);
    for (const off_t place : places) {
      ASSERT_EQ(pwrite(fileno(file), &image[static_cast<std::size_t>(place)], 1, place), 1);
    }
  }
  std::fclose(file);
  EXPECT_GT(good, 10000);
}

TEST_F(CalendarFileTest, RandomMutationsOfCalendarsReadAsTheyAre) {
  const std::string image = WholeFile(2, 2);
  PutFile(kName, image);
  std::FILE* file = std::fopen(PosixPath(kName.c_str()).c_str(), "r+b");
  ASSERT_NE(file, nullptr);
  std::mt19937 random(12);
  for (int round = 0; round < 2000; ++round) {
    const off_t place = 3986 + static_cast<off_t>(random() % (image.size() - 3986 - 306 - 208));
    const char byte = static_cast<char>(random());
    ASSERT_EQ(pwrite(fileno(file), &byte, 1, place), 1);
    Calendar.CalenSel = static_cast<std::int32_t>(random());
    ASSERT_EQ(CalenFileRead(), 0);
    for (int day = 0; day < 31; ++day) CalenHolidayRule(0, round % 12, day, HolidayUse::Display);
    ASSERT_EQ(pwrite(fileno(file), &image[static_cast<std::size_t>(place)], 1, place), 1);
  }
  std::fclose(file);
}

TEST_F(CalendarFileTest, EveryFailingCallOfTheWriterGivesItsResult) {
  Calendar.CalenCount = 2;
  Clock.ClockListCount = 1;
  const int calls = FailingWrites(CalenFileWrite, -2);
  // Magic and head; for each calendar its months in batches of three, its choices and
  // its definition; stickers, the list's count and the list.
  EXPECT_EQ(calls, 2 + 2 * (4 + 1 + 1) + 3);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(CalenFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  EXPECT_FALSE(FileThere(kName));
  FaultArm(FaultKind::Open, 2);
  EXPECT_EQ(CalenFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
}

TEST_F(CalendarFileTest, EveryFailingReadUpToTheDefinitionsLeavesTheCalendars) {
  PutFile(kName, WholeFile(1, 1));
  const int strict = 2 + 4 + 1;  // magic, head, months, choices
  for (int nth = 1; nth <= strict; ++nth) {
    Calendar.CalenCount = 9;
    FaultArm(FaultKind::Read, nth);
    EXPECT_EQ(CalenFileRead(), nth == 1 ? -1 : -2) << nth;
    EXPECT_EQ(FileResult.FileStatus, -2) << nth;
    EXPECT_EQ(Calendar.CalenCount, 9) << nth;
  }
  FaultArm(FaultKind::Read, strict + 1);
  EXPECT_EQ(CalenFileRead(), 0);
  FaultClear();
  EXPECT_EQ(Calendar.CalenCount, 1);
}

TEST_F(CalendarFileTest, AfterTheLoadTodayIsOnDisplayIfItIsInTheSpan) {
  PutFile(kName, WholeFile(1, 0));
  Today.TodayMonth = 10;
  CalenYearsSet(25);
  Calendar.CalenYearCount = 2;
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_EQ(Calendar.CalenFirstYear, 25);
  EXPECT_EQ(Calendar.CalenYearPos, 1);
  EXPECT_EQ(Calendar.CalenMonthPos, 10);
}

// The span is the user's: only the window moves it, and only to show a month.
TEST_F(CalendarFileTest, TheLoadMovesNoSpanWhenTodayLiesOutside) {
  PutFile(kName, WholeFile(1, 0));
  Today.TodayMonth = 10;
  for (const std::int32_t first : {20, 27, -2147483647 - 1, 2147483647}) {
    Calendar.CalenFirstYear = first;
    Calendar.CalenYears[0] = 77;
    Calendar.CalenYearPos = 0;
    Calendar.CalenMonths[0][10].firstWeekday = 5;
    EXPECT_EQ(CalenFileRead(), 0);
    EXPECT_EQ(Calendar.CalenFirstYear, first);
    EXPECT_EQ(Calendar.CalenYearCount, 1) << first;
    EXPECT_EQ(Calendar.CalenYears[0], 77) << first;
    EXPECT_EQ(Calendar.CalenYearPos, 0) << first;
    EXPECT_EQ(Calendar.CalenMonths[0][10].firstWeekday, 5) << first;
  }
  Calendar.CalenFirstYear = 20;
  CalenShowToday();
  EXPECT_EQ(Calendar.CalenFirstYear, 26);
  EXPECT_EQ(Calendar.CalenMonths[0][10].firstWeekday, 6);
}

TEST_F(CalendarFileTest, AfterTheLoadTheTickerIsThatOfTheSelectedCalendar) {
  std::string file = WholeFile(2, 0);
  const std::size_t definition = 3986 + 2 * 56184 + 26728;
  file[definition + 26227] = 12;
  file[definition + 26228] = 4;
  file[definition + 26229] = static_cast<char>(0x81);
  file[definition + 26230] = 3;
  file.replace(definition + 26234, 3, "\x01\x02\x03");
  PutFile(kName, file);
  Calendar.CalenSel = 1;
  EXPECT_EQ(CalenFileRead(), 0);
  EXPECT_TRUE(Calendar.CalenTickerOn);
  EXPECT_EQ(Calendar.CalenTickerReach, 7);
  EXPECT_EQ(Calendar.CalenTickerStep, 5);
  EXPECT_EQ(Calendar.CalenTickerPause, 60);
  EXPECT_EQ(Calendar.CalenTickerPlace, 3);
  EXPECT_EQ(Calendar.CalenTickerColour[0], 1);
  EXPECT_EQ(Calendar.CalenTickerColour[2], 3);
}

}  // namespace
