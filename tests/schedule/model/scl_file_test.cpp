// Schedule files, byte by byte.
#include "schedule/model/scl_file.h"

#include <random>

#include "platform/posix/faults.h"
#include "schedule/model/scl_exec.h"
#include "tests/schedule/schedule_fixture.h"
#include "tests/support/byte_order.h"
#include "tests/support/failing_writes.h"

namespace {

std::string Number(int value) {
  char bytes[4];
  PutBE32(bytes, static_cast<std::uint32_t>(value));
  return std::string(bytes, sizeof bytes);
}

std::string Text(std::string text, std::size_t size) {
  text.resize(size);
  return text;
}

std::string Byte(int value) {
  return std::string(1, static_cast<char>(value));
}

// An item of that length, with every field another value.
std::string Item(int hours, const std::string& text) {
  return std::string("\1\2\x1a\x0a\x16\x08\x1a\x0a\x17\x09\3\4", 12) + Byte(hours) + std::string(3, '\0') +
         std::string("\5\6\x21\x22\x23\x24\x25\x26\x27\x28\7\x08\x09\0\0\0", 16) + Text(text, 128);
}

// Three items, as the table of the format tells them.
std::string Head(int count = 3, int kind = 1) {
  std::string bytes = "SCL Data File : " + Byte(kind) + Number(count) + Number(26) + Number(10) + Number(22) +
                      Number(8) + Byte(9) + Number(10) + Number(8) + Number(18);
  for (int row = 0; row < 8; ++row) bytes += Number(row) + Number(row + 1) + Number(2 * row + 1);
  return bytes + Text("月間の予定", 129);
}
std::string ItemBytes() {
  return Item(5, "買い物") + Item(6, "") + Item(7, "z");
}
std::string Tail() {
  return Text("C:\\地図\\map.exe", 600) + std::string("\1\0\2\0\3\1", 6) + std::string("\4\0\5\0\6\2", 6);
}

constexpr char kPath[] = "C:\\mirrell\\月.GPI";

class SclFileTest : public SclModelTest {
 protected:
  static int LoadBytes(const std::string& bytes) {
    PutFile(kPath, bytes);
    return SclLoadFile(kPath);
  }
};

TEST_F(SclFileTest, AFileIsReadFieldByField) {
  const std::string bytes = Head() + ItemBytes() + Tail();
  ASSERT_EQ(bytes.size(), 275U + 3 * 160 + 600 + 12);
  ASSERT_EQ(LoadBytes(bytes), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  const SclHeaderState& header = Schedule.SclHeader;
  EXPECT_EQ(header.kind, 1);
  EXPECT_EQ(header.count, 3);
  EXPECT_EQ(Shown(header.start), "26/10/22 8");
  EXPECT_EQ(header.spare, 9);
  EXPECT_EQ(header.dayLength, 10);
  EXPECT_EQ(header.dayBegin, 8);
  EXPECT_EQ(header.dayEnd, 18);
  EXPECT_EQ(header.rows[7], (SclWorkDayRow{7, 8, 15}));
  EXPECT_STREQ(header.title, "月間の予定");
  const SclItemRec& item = SclItem(0);
  EXPECT_EQ(item.alarmOn, 1);
  EXPECT_EQ(item.endFixed, 2);
  EXPECT_EQ(Shown(item.start), "26/10/22 8");
  EXPECT_EQ(Shown(item.end), "26/10/23 9");
  EXPECT_EQ(item.showDays, 3);
  EXPECT_EQ(item.hours, 5U);
  EXPECT_EQ(item.doneState, 5);
  EXPECT_EQ(item.mirrorStart, (SclMirrorDate{0x21, 0x22, 0x23, 0x24}));
  EXPECT_EQ(item.mirrorEnd, (SclMirrorDate{0x25, 0x26, 0x27, 0x28}));
  EXPECT_EQ(item.mirrorHours, 9U);
  EXPECT_STREQ(item.text, "買い物");
  EXPECT_STREQ(SclItem(2).text, "z");
  EXPECT_STREQ(Schedule.SclMapFile, "C:\\地図\\map.exe");
  EXPECT_EQ(Schedule.SclMapColumn[2], 0x103);
  EXPECT_EQ(Schedule.SclMapRow[2], 0x206);
  EXPECT_STREQ(Schedule.SclCurrentFile, kPath);
}

TEST_F(SclFileTest, AFileIsWrittenByteForByte) {
  const std::string bytes = Head() + ItemBytes() + Tail();
  ASSERT_EQ(LoadBytes(bytes), 0);
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\other.GPI"), 0);
  EXPECT_EQ(FileBytes("C:\\mirrell\\other.GPI"), bytes);
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\mirrell\\other.GPI");
}

TEST_F(SclFileTest, WithoutAMapTheFileEndsBehindItsItems) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes()), 0);
  ASSERT_EQ(SclSaveFile(kPath), 0);
  EXPECT_EQ(FileBytes(kPath), Head() + ItemBytes());
}

TEST_F(SclFileTest, TheWriterStoresKind1WhateverTheKind) {
  ASSERT_EQ(LoadBytes(Head(3, 0) + ItemBytes()), 0);
  EXPECT_EQ(Schedule.SclHeader.kind, 0);
  ASSERT_EQ(SclSaveFile(kPath), 0);
  EXPECT_EQ(FileBytes(kPath), Head(3, 1) + ItemBytes());
  EXPECT_EQ(Schedule.SclHeader.kind, 0);
}

TEST_F(SclFileTest, AFileThatEndsExactlyBehindItsItemsIsWholeAndKeepsTheMapOfTheOneBefore) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes() + Tail()), 0);
  ASSERT_EQ(LoadBytes(Head() + ItemBytes()), 0);
  EXPECT_STREQ(Schedule.SclMapFile, "C:\\地図\\map.exe");
  EXPECT_EQ(Schedule.SclMapColumn[2], 0x103);
}

// Cut anywhere: inside magic, head and items it is bad content; behind them a path that is
// not whole is none; with a path the places must be there.
TEST_F(SclFileTest, AFileCutAtEveryByteGivesTheStatusOfItsPart) {
  const std::string whole = Head() + ItemBytes() + Tail();
  const std::size_t items = 275 + 3 * 160;
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const bool good = (size >= items && size < items + 600) || size == whole.size();
    ASSERT_EQ(LoadBytes(whole.substr(0, size)), good ? 0 : -2) << size;
    ASSERT_EQ(FileResult.FileStatus, good ? 0 : -2) << size;
    ASSERT_GE(Schedule.SclHeader.count, 0);
    ASSERT_LE(Schedule.SclHeader.count, 3);
  }
}

TEST_F(SclFileTest, AFileThatEndsInsideTheItemAreaLeavesWhatWasReadInPlace) {
  TextCopy(SclItem(2).text, kSclItemTextSize, "as before");
  ASSERT_EQ(LoadBytes(Head() + ItemBytes().substr(0, 320)), -2);
  EXPECT_EQ(Schedule.SclHeader.count, 3);
  EXPECT_STREQ(Schedule.SclHeader.title, "月間の予定");
  EXPECT_EQ(SclItem(1).hours, 6U);
  EXPECT_STREQ(SclItem(2).text, "as before");
  EXPECT_STREQ(Schedule.SclCurrentFile, kPath) << "taken as soon as the file opened";
}

TEST_F(SclFileTest, AnotherMagicIsBadContentAndChangesNothingButThePath) {
  ASSERT_EQ(LoadBytes("SCP Data File : " + Head().substr(16)), -2);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  EXPECT_STREQ(Schedule.SclCurrentFile, kPath);
}

TEST_F(SclFileTest, AFileThatIsNotThereChangesNothing) {
  SclCurrentFileSet("C:\\old.GPI");
  EXPECT_EQ(SclLoadFile("C:\\mirrell\\none.GPI"), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\old.GPI");
}

TEST_F(SclFileTest, ACountThatTheTableDoesNotHoldIsBadContent) {
  SclCountSet(7);
  for (const int count : {1001, 0x7fffffff, -1, -0x7fffffff - 1}) {
    ASSERT_EQ(LoadBytes(Head(count) + std::string(1001 * 160, '\1')), -2) << count;
    EXPECT_EQ(Schedule.SclHeader.count, 7);
  }
  ASSERT_EQ(LoadBytes(Head(1000) + std::string(1000 * 160, '\1')), 0);
  EXPECT_EQ(Schedule.SclHeader.count, 1000);
  ASSERT_EQ(LoadBytes(Head(0)), 0);
}

TEST_F(SclFileTest, AStartThatNoCalendarHasIsHeldAtOne) {
  std::string head = Head(0);
  head.replace(21, 16, Number(-1) + Number(12) + Number(0x7fffffff) + Number(25));
  ASSERT_EQ(LoadBytes(head), 0);
  EXPECT_EQ(Shown(Schedule.SclHeader.start), "0/11/30 24");
}

TEST_F(SclFileTest, TextsWithoutATerminatorAreEndedInTheirField) {
  std::string bytes = Head(1) + Item(1, std::string(128, 'x'));
  bytes.replace(146, 129, std::string(129, 'y'));
  ASSERT_EQ(LoadBytes(bytes), 0);
  EXPECT_EQ(std::string(Schedule.SclHeader.title), std::string(128, 'y'));
  EXPECT_EQ(std::string(SclItem(0).text), std::string(127, 'x'));
}

TEST_F(SclFileTest, AHundredThousandDamagedFilesDoNoHarm) {
  const std::string whole = Head() + ItemBytes() + Tail();
  PutFile(kPath, whole);
  std::mt19937 random(31);
  const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
  for (int round = 0; round < 100000; ++round) {
    std::string bytes = whole;
    for (std::size_t hits = 1 + below(8); hits > 0; --hits) {
      bytes[below(below(2) == 0 ? 160 : bytes.size())] = static_cast<char>(below(256));
    }
    const int file = FileOpen(kPath, OpenMode::ReadWrite);
    FileWrite(file, bytes.data(), static_cast<int>(bytes.size()));
    FileClose(file);
    const int status = SclLoadFile(kPath);
    ASSERT_TRUE(status == 0 || status == -2) << status;
    ASSERT_TRUE(Schedule.SclHeader.count >= 0 && Schedule.SclHeader.count <= kSclItemMax);
    ASSERT_EQ(Schedule.SclHeader.title[kSclTitleSize - 1], '\0');
    if (round % 50 != 0) continue;
    SclExecRefresh();
    SclRecalcAll();
    char text[32];
    SclHoursText(SclItem(0), text, sizeof text);
    SclWorkHoursBetween(Schedule.SclHeader.start, SclDateOf(SclItem(2).end));
  }
}

// --- Writing

TEST_F(SclFileTest, EachFailingWriteStopsTheWriterAndLeavesTheFileAsFarAsItGot) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes() + Tail()), 0);
  const std::string whole = FileBytes(kPath);
  SclCurrentFileSet("");
  const int writes = FailingWrites(
      [] {
        const int status = SclSaveFile(kPath);
        if (status != 0) {
          EXPECT_STREQ(Schedule.SclCurrentFile, "");
        }
        return status;
      },
      -2);
  EXPECT_GE(writes, 6) << "magic, head, items, path, columns, rows";
  EXPECT_EQ(FileBytes(kPath), whole);
  FaultArm(FaultKind::Write, 3);
  EXPECT_EQ(SclSaveFile(kPath), -2);
  FaultClear();
  EXPECT_EQ(FileBytes(kPath), whole.substr(0, 275 + 3 * 160 - 1));
}

TEST_F(SclFileTest, AFileThatCannotBeMadeGivesMinus1AndTheOldOneIsGone) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes()), 0);
  FaultArm(FaultKind::Create, 1);
  EXPECT_EQ(SclSaveFile(kPath), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  FaultClear();
  EXPECT_FALSE(FileThere(kPath));
  FaultArm(FaultKind::Open, 2);  // the first look finds none, the second is for writing
  EXPECT_EQ(SclSaveFile(kPath), -1);
  FaultClear();
  EXPECT_EQ(SclSaveFile(""), -1);
}

TEST_F(SclFileTest, AFailedDeletionGoesUnnoticed) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes() + Tail()), 0);
  Schedule.SclMapFile[0] = '\0';
  FaultArm(FaultKind::Delete, 1);
  EXPECT_EQ(SclSaveFile(kPath), 0);
  FaultClear();
  EXPECT_EQ(FileBytes(kPath), Head() + ItemBytes());
}

TEST_F(SclFileTest, EachFailingReadIsBadContent) {
  PutFile(kPath, Head() + ItemBytes() + Tail());
  int failed = 0;
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Read, nth);
    const int status = SclLoadFile(kPath);
    if (!FaultWasMet()) break;
    // The path that is not whole is none.
    EXPECT_EQ(status, nth == 4 ? 0 : -2) << nth;
    ++failed;
    FaultClear();
  }
  FaultClear();
  EXPECT_EQ(failed, 6);
}

// --- The executing copy

TEST_F(SclFileTest, ASaveOfTheExecutingFileRefreshesItsCopyAndAnotherDoesNot) {
  ASSERT_EQ(LoadBytes(Head() + ItemBytes()), 0);
  ASSERT_EQ(SclExecLoad(kPath), 0);
  TextCopy(SclItem(0).text, kSclItemTextSize, "new");
  ASSERT_EQ(SclSaveFile("C:\\mirrell\\other.GPI"), 0);
  EXPECT_STREQ(Schedule.SclExecTable.items[0].text, "買い物");
  ASSERT_EQ(SclSaveFile(kPath), 0);
  EXPECT_STREQ(Schedule.SclExecTable.items[0].text, "new");
}

}  // namespace
