#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <random>

#include "clock_calendar/clock/clock.h"
#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "services/data_file.h"
#include "tests/support/failing_writes.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"

namespace {

const std::string kName = "C:\\mirrell\\mirrell_ClcAlmPerFile.clc";
const std::string kMagic = "Mirrell Clock Alarm File:";

std::string BE32(std::uint32_t value) {
  return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
          static_cast<char>(value)};
}

void PutText(std::string& record, std::size_t at, const std::string& text) {
  record.replace(at, text.size(), text);
}

// A performance record, with the given durations in its first steps.
std::string Record(int figureMode, int steps, int duration, const std::string& sound,
                   const std::string& title) {
  std::string record(2008, '\0');
  record[0] = 1;
  record[4] = static_cast<char>(figureMode);
  for (int i = 0; i < steps; ++i) {
    record[static_cast<std::size_t>(24 + 4 * i)] = static_cast<char>(duration & 255);
    record[static_cast<std::size_t>(25 + 4 * i)] = static_cast<char>(duration >> 8);
  }
  PutText(record, 424, sound);
  PutText(record, 1928, title);
  return record;
}

std::string DefaultRecords() {
  return Record(5, 20, 90, "kan.wav", "キャラクタ+音") + Record(5, 18, 1000, "", "キャラクタのみ") +
         Record(0, 18, 0, "kan.wav", "音のみ");
}

std::string DefaultFile() {
  return kMagic + BE32(3) + DefaultRecords();
}

class ClockAlarmFileTest : public RecordsTest {
 protected:
  static std::string Table(int count = 3) {
    return RecordBytes(PerformanceTable.ClockPerformances).substr(0, static_cast<std::size_t>(2008 * count));
  }
};

TEST_F(ClockAlarmFileTest, TheDefaultFileHolds25MagicBytesACountOf3AndThreeRecords) {
  EXPECT_EQ(ClockAlarmFileWrite(), 0);
  const std::string file = FileBytes(kName);
  ASSERT_EQ(file.size(), 29U + 3 * 2008);
  EXPECT_TRUE(file == DefaultFile());
}

TEST_F(ClockAlarmFileTest, TheFileContentNeverReachesTheProgram) {
  std::string other = Record(9, 3, 5, "other.wav", "other") + Record(8, 1, 1, "b.wav", "b");
  PutFile(kName, kMagic + BE32(2) + other);
  EXPECT_EQ(ClockAlarmFileRead(), 0);
  EXPECT_EQ(PerformanceTable.ClockPerformanceCount, 3);
  EXPECT_TRUE(Table() == DefaultRecords());
  // Nor does a changed table reach the file.
  RecordFill(PerformanceTable.ClockPerformances, 'x');
  PerformanceTable.ClockPerformanceCount = 7;
  EXPECT_EQ(ClockAlarmFileWrite(), 0);
  EXPECT_TRUE(FileBytes(kName) == DefaultFile());
  EXPECT_EQ(PerformanceTable.ClockPerformanceCount, 3);
}

TEST_F(ClockAlarmFileTest, ARecordGivesItsFields) {
  ClockAlarmFileWrite();
  const ClockPerformance(&records)[kPerformanceMax] = PerformanceTable.ClockPerformances;
  EXPECT_EQ(records[0].flags, 1);
  EXPECT_EQ(records[0].figureMode, 5);
  EXPECT_EQ(records[0].durations[19], 90);
  EXPECT_EQ(records[1].durations[17], 1000);
  EXPECT_EQ(records[1].durations[18], 0);
  EXPECT_EQ(records[2].figureMode, 0);
  EXPECT_STREQ(records[0].sound, "kan.wav");
  EXPECT_STREQ(records[1].sound, "");
  EXPECT_STREQ(records[2].title, "音のみ");
  RecordFill(PerformanceTable.ClockPerformances[2], 'x');
  EXPECT_EQ(std::strlen(records[2].sound), 1500U);
  EXPECT_EQ(std::strlen(records[2].title), 80U);
}

TEST_F(ClockAlarmFileTest, AMissingFileGivesMinus1AndIsSilentlyMadeNewByTheLoad) {
  EXPECT_EQ(ClockAlarmFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_FALSE(FileThere(kName));
  EXPECT_EQ(ClockAlarmFileLoad(), 0);
  EXPECT_TRUE(FileBytes(kName) == DefaultFile());
  EXPECT_EQ(PerformanceTable.ClockPerformanceCount, 3);
  EXPECT_TRUE(Table() == DefaultRecords());
}

TEST_F(ClockAlarmFileTest, WrongContentGivesMinus2AndIsMadeNewByTheLoad) {
  for (const std::string& bad :
       {std::string("Mirrell Clock Alarm File;") + BE32(0), std::string(),
        kMagic + BE32(51) + std::string(51 * 2008, 'x'), kMagic + BE32(0xFFFFFFFF), kMagic + BE32(0x7FFFFFFF),
        kMagic + BE32(3) + std::string(3 * 2008 - 1, 'x')}) {
    PutFile(kName, bad);
    EXPECT_EQ(ClockAlarmFileRead(), -2);
    EXPECT_EQ(FileResult.FileStatus, -2);
    EXPECT_TRUE(FileBytes(kName) == bad);
    EXPECT_EQ(ClockAlarmFileLoad(), 0);
    EXPECT_TRUE(FileBytes(kName) == DefaultFile());
  }
}

TEST_F(ClockAlarmFileTest, AGoodFileIsNotWrittenByTheLoad) {
  const std::string file = kMagic + BE32(50) + std::string(50 * 2008, 'x');
  PutFile(kName, file);
  EXPECT_EQ(ClockAlarmFileLoad(), 0);
  EXPECT_TRUE(FileBytes(kName) == file);
}

TEST_F(ClockAlarmFileTest, EveryTruncationGivesMinus2AndLeavesTheTable) {
  const std::string file = DefaultFile();
  PutFile(kName, file);
  const std::string native = PosixPath(kName.c_str());
  RecordFill(PerformanceTable.ClockPerformances, 'k');
  PerformanceTable.ClockPerformanceCount = 2;
  const std::string before = Table(kPerformanceMax);
  for (std::size_t size = file.size(); size-- > 0;) {
    ASSERT_EQ(truncate(native.c_str(), static_cast<off_t>(size)), 0);
    ASSERT_EQ(ClockAlarmFileRead(), -2) << size;
  }
  EXPECT_EQ(PerformanceTable.ClockPerformanceCount, 2);
  EXPECT_TRUE(Table(kPerformanceMax) == before);
}

TEST_F(ClockAlarmFileTest, RandomMutationsGive0OrMinus2AndTheTableHoldsTheDefaults) {
  const std::string image = DefaultFile();
  PutFile(kName, image);
  const std::string defaults = DefaultRecords();
  std::FILE* file = std::fopen(PosixPath(kName.c_str()).c_str(), "r+b");
  ASSERT_NE(file, nullptr);
  std::mt19937 random(5);
  ClockAlarmFileRead();
  for (int round = 0; round < 100000; ++round) {
    off_t places[4];
    for (off_t& place : places) {
      place = static_cast<off_t>(random() % (round % 2 == 0 ? 32 : image.size()));
      const char byte = static_cast<char>(random());
      ASSERT_EQ(pwrite(fileno(file), &byte, 1, place), 1);
    }
    const int result = ClockAlarmFileRead();
    ASSERT_TRUE(result == 0 || result == -2);
    ASSERT_EQ(PerformanceTable.ClockPerformanceCount, 3);
    for (const off_t place : places) {
      ASSERT_EQ(pwrite(fileno(file), &image[static_cast<std::size_t>(place)], 1, place), 1);
    }
  }
  std::fclose(file);
  EXPECT_TRUE(Table() == defaults);
}

TEST_F(ClockAlarmFileTest, EveryFailingCallOfTheWriterGivesItsResult) {
  EXPECT_EQ(FailingWrites(ClockAlarmFileWrite, -2), 3);  // magic, count, the records
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(ClockAlarmFileWrite(), -1);
  FaultClear();
  FaultArm(FaultKind::Open, 2);
  EXPECT_EQ(ClockAlarmFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  // The defaults stand in the table whatever became of the file.
  EXPECT_TRUE(Table() == DefaultRecords());
}

}  // namespace
