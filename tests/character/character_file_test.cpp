#include "character/character_file.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "clock_calendar/clock/clock.h"
#include "platform/diagnostics.h"
#include "services/data_file.h"
#include "services/program.h"
#include "tests/character/chara_files.h"
#include "tests/support/failing_writes.h"

namespace {

constexpr char kName[] = "\\mirrell_chara_file.dcx";
constexpr char kMagic[] = "Mirrell Character File:";

// Strike mode of every record in the clock's own list: what a design has that
// took its values from there.
constexpr unsigned char kListStrikeMode = 77;
int DesignsTaken() {
  int count = 0;
  for (const ClockDesignRow& row : CharaTables.ClockDesigns) {
    if (row.record.strikeMode == kListStrikeMode) ++count;
  }
  return count;
}

// One main character record, 740 bytes; the numbers count up from `base`.
std::string MainRecord(int base) {
  std::string record;
  for (int i = 0; i < 16; ++i) record += BE32(base + i);
  std::string set(676, static_cast<char>(base));
  set[0] = static_cast<char>(base);
  set[1] = 0;
  return record + set;
}

std::string Field(const std::string& text, std::size_t size) {
  std::string field = text;
  field.resize(size);
  return field;
}

// Two main characters, one alarm character, two walking ones, one clock design.
std::string SmallFile() {
  std::string file = kMagic;
  file += BE32(2) + MainRecord(100) + MainRecord(50);
  file += BE32(1) + BE32(77);
  file += BE32(-5) + BE32(6);
  file += std::string(1, 2) + BE16(10) + BE16(300) + Field("a.wav", 256) + Field("b.wav", 256);
  file += std::string(1, 1) + BE16(15) + std::string(464, 'd');
  std::string flags(50, 0);
  flags[1] = 5;
  flags[49] = 7;
  return file + flags + BE32(9) + BE32(3);
}

// Where the fields of SmallFile end: 23 magic, 4 N, 2 * (64 numbers + 676), 4 A,
// 4, 8, 1 W, 4, 512, 1 C, 2, 464, 50, 8.
constexpr std::size_t kEndOf13 = 23 + 4 + 2 * 740 + 4 + 4 + 8 + 1 + 4 + 512 + 1 + 2 + 464 + 50;
constexpr std::size_t kEnd = kEndOf13 + 8;

class CharacterFileTest : public CharaFiles {
 protected:
  void SetUp() override {
    CharaFiles::SetUp();
    Clear();
    Clock.ClockListCount = kClockDesignMax;
    for (ClockListRow& row : Clock.ClockList) row.strikeMode = kListStrikeMode;
  }
  void TearDown() override {
    Clear();
    Clock.ClockListCount = 0;
    CharaFiles::TearDown();
  }
  static void Clear() {
    CharaTables.MainCharaCount = CharaTables.AlarmCharaCount = CharaTables.WalkCharaCount =
        CharaTables.ClockDesignCount = 0;
    for (MainChara& row : CharaTables.MainCharas) row = MainChara{};
    for (std::int32_t& number : CharaTables.AlarmCharas) number = 0;
    for (WalkChara& row : CharaTables.WalkCharas) row = WalkChara{};
    for (ClockDesignRow& row : CharaTables.ClockDesigns) row = ClockDesignRow{};
    std::memset(CharaTables.WalkFlags, 0, sizeof CharaTables.WalkFlags);
  }
  // Tables that a failed read must leave as they are.
  static void Fill() {
    CharaTables.MainCharaCount = 3;
    CharaTables.MainCharas[2].menuFrame = 1234;
    CharaTables.AlarmCharaCount = 4;
    CharaTables.AlarmCharas[3] = 55;
    CharaTables.WalkCharaCount = 5;
    TextCopy(CharaTables.WalkCharas[4].sound, kWalkSoundSize, "old.wav");
    CharaTables.ClockDesignCount = 6;
    CharaTables.ClockDesigns[5].number = 99;
    CharaTables.WalkFlags[7] = 1;
  }
  static bool IsAsFilled() {
    return CharaTables.MainCharaCount == 3 && CharaTables.MainCharas[2].menuFrame == 1234 &&
           CharaTables.AlarmCharaCount == 4 && CharaTables.AlarmCharas[3] == 55 &&
           CharaTables.WalkCharaCount == 5 && std::strcmp(CharaTables.WalkCharas[4].sound, "old.wav") == 0 &&
           CharaTables.ClockDesignCount == 6 && CharaTables.ClockDesigns[5].number == 99 &&
           CharaTables.WalkFlags[7] == 1;
  }
};

TEST_F(CharacterFileTest, ThePathIsTheProgramFolderAndTheName) {
  TextCopy(Program.RootFolder, kRootSize, "C:\\mirrell");
  char path[kCharaFilePathSize];
  EXPECT_EQ(CharaFilePath(path), 33);
  EXPECT_STREQ(path, "C:\\mirrell\\mirrell_chara_file.dcx");
}

TEST_F(CharacterFileTest, EveryFieldReachesItsTable) {
  const std::string file = SmallFile();
  ASSERT_EQ(file.size(), kEnd);
  Put(kName, file);
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(CharaTables.MainCharaCount, 2);
  const MainChara& first = CharaTables.MainCharas[0];
  EXPECT_EQ(first.charaNo, 100);
  EXPECT_EQ(first.menuFrame, 101);
  EXPECT_EQ(first.blinkFrame, 102);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(first.bored1Frames[i], 103 + i);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(first.bored2Frames[i], 108 + i);
  EXPECT_EQ(first.boredDelaySel, 113);
  EXPECT_EQ(first.boredSpeedSel, 114);
  EXPECT_EQ(first.boredRepeatSel, 115);
  EXPECT_EQ(first.charaSet.CharaNo, 100);
  EXPECT_EQ(first.charaSet.spare3[37], 100);
  EXPECT_EQ(first.secondNumber, -5);
  EXPECT_EQ(first.blinkSpeedSel, 9);
  EXPECT_EQ(CharaTables.MainCharas[1].charaNo, 50);
  EXPECT_EQ(CharaTables.MainCharas[1].boredRepeatSel, 65);
  EXPECT_EQ(CharaTables.MainCharas[1].secondNumber, 6);
  EXPECT_EQ(CharaTables.MainCharas[1].blinkSpeedSel, 3);
  EXPECT_EQ(CharaTables.AlarmCharaCount, 1);
  EXPECT_EQ(CharaTables.AlarmCharas[0], 77);
  EXPECT_EQ(CharaTables.WalkCharaCount, 2);
  EXPECT_EQ(CharaTables.WalkCharas[0].number, 10);
  EXPECT_EQ(CharaTables.WalkCharas[1].number, 300);
  EXPECT_STREQ(CharaTables.WalkCharas[0].sound, "a.wav");
  EXPECT_STREQ(CharaTables.WalkCharas[1].sound, "b.wav");
  EXPECT_EQ(CharaTables.ClockDesignCount, 1);
  EXPECT_EQ(CharaTables.ClockDesigns[0].number, 15);
  EXPECT_EQ(CharaTables.ClockDesigns[0].record.spare2[19], 'd');
  EXPECT_EQ(CharaTables.WalkFlags[1], 5);
  EXPECT_EQ(CharaTables.WalkFlags[49], 7);
  EXPECT_EQ(DesignsTaken(), 1);
}

TEST_F(CharacterFileTest, RowsBehindTheCountsKeepWhatTheyHeld) {
  Fill();
  Put(kName, SmallFile());
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(CharaTables.MainCharaCount, 2);
  EXPECT_EQ(CharaTables.MainCharas[2].menuFrame, 1234);
  EXPECT_EQ(CharaTables.AlarmCharas[3], 55);
  EXPECT_STREQ(CharaTables.WalkCharas[4].sound, "old.wav");
  EXPECT_EQ(CharaTables.ClockDesigns[5].number, 99);
}

TEST_F(CharacterFileTest, AFileThatEndsAmongTheBlinkIntervalsGivesThoseThatAreThere) {
  CharaTables.MainCharas[0].blinkSpeedSel = 4;
  CharaTables.MainCharas[1].blinkSpeedSel = 5;
  Put(kName, SmallFile().substr(0, kEndOf13 + 4 + 3));
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(CharaTables.MainCharas[0].blinkSpeedSel, 9);
  EXPECT_EQ(CharaTables.MainCharas[1].blinkSpeedSel, 5);
  EXPECT_EQ(DesignsTaken(), 0);
}

TEST_F(CharacterFileTest, AMissingFileGivesMinus1AndLeavesTheTables) {
  Fill();
  EXPECT_EQ(CharaFileRead(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_TRUE(IsAsFilled());
}

TEST_F(CharacterFileTest, AnotherMagicGivesMinus2) {
  Fill();
  std::string file = SmallFile();
  file[22] = ';';
  Put(kName, file);
  EXPECT_EQ(CharaFileRead(), -2);
  EXPECT_EQ(FileResult.FileStatus, -2);
  EXPECT_TRUE(IsAsFilled());
}

TEST_F(CharacterFileTest, AFileWithoutTheBlinkIntervalsWorksAndLeavesTheClockDesignsListValues) {
  CharaTables.MainCharas[0].blinkSpeedSel = 4;
  CharaTables.MainCharas[1].blinkSpeedSel = 5;
  Put(kName, SmallFile().substr(0, kEndOf13));
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_EQ(CharaTables.MainCharaCount, 2);
  EXPECT_EQ(CharaTables.WalkFlags[49], 7);
  EXPECT_EQ(CharaTables.MainCharas[0].blinkSpeedSel, 4);
  EXPECT_EQ(CharaTables.MainCharas[1].blinkSpeedSel, 5);
  EXPECT_EQ(DesignsTaken(), 0);
}

TEST_F(CharacterFileTest, EveryTruncationIsToldAndLeavesTheTables) {
  const std::string file = SmallFile();
  Put(kName, file);
  const std::string native = Native(kName);
  for (std::size_t size = file.size(); size-- > 0;) {
    ASSERT_EQ(truncate(native.c_str(), static_cast<off_t>(size)), 0);
    Fill();
    CharaTables.MainCharas[0].blinkSpeedSel = 0;
    FileResult.FileStatus = 0;
    const int result = CharaFileRead();
    if (size >= kEndOf13) {
      EXPECT_EQ(result, 0) << size;
      EXPECT_EQ(CharaTables.MainCharaCount, 2) << size;
      EXPECT_EQ(CharaTables.MainCharas[0].blinkSpeedSel, size >= kEndOf13 + 4 ? 9 : 0) << size;
      EXPECT_EQ(DesignsTaken(), 0) << size;
    } else {
      EXPECT_EQ(result, -1) << size;
      EXPECT_EQ(FileResult.FileStatus, -2) << size;
      EXPECT_TRUE(IsAsFilled()) << size;
    }
  }
}

TEST_F(CharacterFileTest, CountsBeyondTheTablesAreBadContent) {
  const std::string good = SmallFile();
  const std::size_t alarmCount = 23 + 4 + 2 * 740;
  const std::size_t walkCount = alarmCount + 4 + 4 + 8;
  const std::size_t designCount = walkCount + 1 + 4 + 512;
  const struct {
    std::size_t at;
    std::string count;
  } kAbsurd[] = {
      {23, BE32(51)},         {23, BE32(-1)},           {23, BE32(0x7FFFFFFF)},
      {alarmCount, BE32(-1)}, {alarmCount, BE32(-512)}, {walkCount, "\x33"},
      {walkCount, "\xFF"},    {designCount, "\x33"},    {designCount, "\xFF"},
  };
  for (const auto& absurd : kAbsurd) {
    std::string file = good;
    file.replace(absurd.at, absurd.count.size(), absurd.count);
    file += std::string(60000, 1);
    Put(kName, file);
    Fill();
    FileResult.FileStatus = 0;
    EXPECT_EQ(CharaFileRead(), -2) << absurd.at;
    EXPECT_EQ(FileResult.FileStatus, -2) << absurd.at;
    EXPECT_TRUE(IsAsFilled()) << absurd.at;
  }
}

TEST_F(CharacterFileTest, FiftyOfEverythingFit) {
  std::string file = kMagic;
  file += BE32(50);
  for (int i = 0; i < 50; ++i) file += MainRecord(i);
  file += BE32(50);
  for (int i = 0; i < 50; ++i) file += BE32(i + 1);
  for (int i = 0; i < 50; ++i) file += BE32(i + 2);
  file += std::string(1, 50);
  for (int i = 0; i < 50; ++i) file += BE16(i + 3);
  for (int i = 0; i < 50; ++i) file += std::string(256, 'w');
  file += std::string(1, 50);
  for (int i = 0; i < 50; ++i) file += BE16(i + 4);
  for (int i = 0; i < 50; ++i) file += std::string(464, 'x');
  file += std::string(50, 1);
  for (int i = 0; i < 50; ++i) file += BE32(i + 5);
  Put(kName, file);
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(CharaTables.MainCharas[49].charaNo, 49);
  EXPECT_EQ(CharaTables.AlarmCharas[49], 50);
  EXPECT_EQ(CharaTables.MainCharas[49].secondNumber, 51);
  EXPECT_EQ(CharaTables.WalkCharas[49].number, 52);
  EXPECT_EQ(CharaTables.ClockDesigns[49].number, 53);
  EXPECT_EQ(CharaTables.MainCharas[49].blinkSpeedSel, 54);
  EXPECT_EQ(DesignsTaken(), 50);
}

// The list of alarm characters has room for as many as there can be characters; those
// behind it cost nothing of what follows them.
TEST_F(CharacterFileTest, AlarmCharactersBeyondTheirTableArePassedOver) {
  const std::size_t alarms = 23 + 4 + 2 * 740;
  for (const int count : {51, 512, 513, 2000}) {
    std::string list = BE32(count);
    for (int i = 0; i < count; ++i) list += BE32(i + 1);
    std::string file = SmallFile();
    file.replace(alarms, 8, list);
    Put(kName, file);
    Clear();
    EXPECT_EQ(CharaFileRead(), 0) << count;
    EXPECT_EQ(CharaTables.AlarmCharaCount, count < 512 ? count : 512) << count;
    EXPECT_EQ(CharaTables.AlarmCharas[CharaTables.AlarmCharaCount - 1], CharaTables.AlarmCharaCount) << count;
    EXPECT_EQ(CharaTables.MainCharas[1].secondNumber, 6) << count;
    EXPECT_STREQ(CharaTables.WalkCharas[1].sound, "b.wav") << count;
    EXPECT_EQ(CharaTables.ClockDesigns[0].number, 15) << count;
    EXPECT_EQ(CharaTables.MainCharas[1].blinkSpeedSel, 3) << count;
  }
  // A list that ends before its count is a short file.
  std::string file = SmallFile();
  file.replace(alarms, 4, BE32(1000000));
  Put(kName, file);
  Fill();
  EXPECT_EQ(CharaFileRead(), -1);
  EXPECT_TRUE(IsAsFilled());
}

TEST_F(CharacterFileTest, RandomMutationsLeaveTheTablesWithinTheirCapacities) {
  const std::string file = SmallFile();
  Put(kName, file);
  const int native = open(Native(kName).c_str(), O_RDWR);
  ASSERT_GE(native, 0);
  std::mt19937 random(2);
  for (int round = 0; round < 100000; ++round) {
    // Half of the changes strike a byte of the counts.
    constexpr std::size_t kCounts[] = {23, 24, 25, 26, 1507, 1510, 1523, 2040};
    const std::size_t at = round % 2 == 0 ? random() % file.size() : kCounts[random() % 8];
    const char value = static_cast<char>(random() % 8 == 0 ? random() : random() % 5);
    ASSERT_EQ(pwrite(native, &value, 1, static_cast<off_t>(at)), 1);
    const int result = CharaFileRead();
    ASSERT_TRUE(result == 0 || result == -1 || result == -2);
    ASSERT_TRUE(CharaTables.MainCharaCount >= 0 && CharaTables.MainCharaCount <= kMainCharaMax);
    ASSERT_TRUE(CharaTables.AlarmCharaCount >= 0 && CharaTables.AlarmCharaCount <= kAlarmCharaMax);
    ASSERT_TRUE(CharaTables.WalkCharaCount >= 0 && CharaTables.WalkCharaCount <= kWalkCharaMax);
    ASSERT_TRUE(CharaTables.ClockDesignCount >= 0 && CharaTables.ClockDesignCount <= kClockDesignMax);
    ASSERT_EQ(pwrite(native, &file[at], 1, static_cast<off_t>(at)), 1);
  }
  close(native);
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(DiagnosticsLive().files, 0);
}

TEST_F(CharacterFileTest, EveryFailingReadGivesItsResult) {
  Put(kName, SmallFile());
  bool whole = false;
  int last = 0;
  for (int nth = 1; !whole; ++nth) {
    Fill();
    FileResult.FileStatus = 0;
    FaultArm(FaultKind::Read, nth);
    last = CharaFileRead();
    whole = !FaultWasMet();
    FaultClear();
    if (last != 0) {
      EXPECT_EQ(last, -1) << nth;
      EXPECT_EQ(FileResult.FileStatus, -2) << nth;
      EXPECT_TRUE(IsAsFilled()) << nth;
    }
  }
  EXPECT_EQ(last, 0);
  EXPECT_EQ(DiagnosticsLive().files, 0);
}

// --- Writing

TEST_F(CharacterFileTest, AWrittenFileHoldsTheTablesAndTheFixedValuesOfANewDataSet) {
  CharaTables.MainCharaCount = 4;
  for (int i = 0; i < 4; ++i) CharaTables.MainCharas[i].charaNo = static_cast<std::uint16_t>(i + 1);
  CharaTables.MainCharas[1].blinkSpeedSel = 8;
  CharaTables.WalkCharaCount = 4;
  TextCopy(CharaTables.WalkCharas[0].sound, kWalkSoundSize, "旗印.wav");
  CharaTables.ClockDesignCount = 1;
  for (int i = 0; i < 5; ++i) CharaTables.WalkFlags[i] = 7;
  Character.AlarmCharaSel[2] = 3;
  EXPECT_EQ(CharaFileWrite(), 0);
  EXPECT_EQ(Character.AlarmCharaSel[0], 1);
  EXPECT_EQ(Character.AlarmCharaSel[1], 1);
  EXPECT_EQ(Character.AlarmCharaSel[2], 0);
  // 23 + 4 + 4 * 740 + 4 + 3 * 4 + 4 * 4 + 1 + 4 * 2 + 4 * 256 + 1 + 2 + 464 + 50 + 4 * 4
  EXPECT_EQ(Get(kName).size(), 4585U);

  Clear();
  EXPECT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(CharaTables.MainCharaCount, 4);
  EXPECT_EQ(CharaTables.MainCharas[3].charaNo, 4);
  EXPECT_EQ(CharaTables.MainCharas[1].blinkSpeedSel, 8);
  EXPECT_EQ(CharaTables.AlarmCharaCount, 3);
  EXPECT_EQ(CharaTables.AlarmCharas[0], 6);
  EXPECT_EQ(CharaTables.AlarmCharas[1], 8);
  EXPECT_EQ(CharaTables.AlarmCharas[2], 9);
  EXPECT_EQ(CharaTables.MainCharas[3].secondNumber, 4);
  for (int i = 2; i < 4; ++i) {
    const CharaSetRecord& set = CharaTables.MainCharas[i].charaSet;
    EXPECT_EQ(set.WalkStepX[0], -28);
    EXPECT_EQ(set.WalkStepY[0], -24);
    EXPECT_EQ(set.WalkPeriod[0], 4);
    EXPECT_EQ(set.WalkCount[0], 24);
  }
  EXPECT_EQ(CharaTables.MainCharas[1].charaSet.WalkStepX[0], 0);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(CharaTables.WalkFlags[i], 0);
  EXPECT_EQ(CharaTables.WalkFlags[4], 7);
  EXPECT_STREQ(CharaTables.WalkCharas[0].sound, "旗印.wav");
  EXPECT_STREQ(CharaTables.WalkCharas[1].sound, "foot1.wav");
  EXPECT_STREQ(CharaTables.WalkCharas[2].sound, "foot2.wav");
}

TEST_F(CharacterFileTest, WhatWasReadIsWrittenAsItStood) {
  Clock.ClockListCount = 0;
  std::string file = SmallFile();
  Put(kName, file);
  ASSERT_EQ(CharaFileRead(), 0);
  EXPECT_EQ(CharaFileWrite(), 0);
  // The fixed values: the alarm list, the flags of rows 0 to 3, the sound of row 1.
  const std::size_t alarmCount = 23 + 4 + 2 * 740;
  std::string expected = file;
  const std::size_t flags = kEndOf13 - 50;
  expected.replace(flags, 4, std::string(4, '\0'));
  expected.replace(alarmCount + 8 + 8 + 1 + 4 + 256, 10, std::string("foot1.wav") + '\0');
  expected.replace(alarmCount, 8, BE32(3) + BE32(6) + BE32(8) + BE32(9));
  EXPECT_EQ(Get(kName), expected);
}

TEST_F(CharacterFileTest, EveryFailingCallOfTheWriterGivesItsResult) {
  Put(kName, SmallFile());
  ASSERT_EQ(CharaFileRead(), 0);
  // magic, N, its records, A, 3, 2, W, 2, 2, C, 1, 1, flags, 2
  EXPECT_EQ(FailingWrites(CharaFileWrite, -1), 20);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(CharaFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  ASSERT_EQ(CharaFileWrite(), 0);
  FaultArm(FaultKind::Open, 2);
  EXPECT_EQ(CharaFileWrite(), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  EXPECT_EQ(DiagnosticsLive().files, 0);
}

}  // namespace
