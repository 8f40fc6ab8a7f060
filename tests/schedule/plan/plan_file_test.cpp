// Plan files: what they hold, cut and damaged ones, and writing that fails.
#include <random>

#include "platform/posix/faults.h"
#include "tests/schedule/plan/plan_fixture.h"
#include "tests/support/byte_order.h"
#include "tests/support/failing_writes.h"
#include "tests/support/record_check.h"

namespace {

constexpr int kHead = 590;
constexpr int kLine = 152;

std::string Path() {
  return InProgram("a.GPP");
}

class PlanFile : public PlanTest {
 protected:
  // A plan of three lines in a file.
  static std::string ThreeLines() {
    Study();
    Line(0, 5, 2, "一");
    Line(1, 0x01020304, 3, "two");
    Plan.ScpPlanTable[1].load = 2;
    Line(2, 7, 4, "three");
    TextCopy(Plan.head.title, sizeof Plan.head.title, "三つの計画");
    Plan.head.count = 3;
    EXPECT_EQ(ScpSaveFile(Path().c_str()), 0);
    return FileBytes(Path());
  }
  static std::string State() { return RecordBytes(Plan.head) + RecordBytes(Plan.ScpPlanTable); }
};

TEST_F(PlanFile, BytesLieAtTheirOffsets) {
  const std::string bytes = ThreeLines();
  ASSERT_EQ(bytes.size(), static_cast<std::size_t>(kHead + 3 * kLine));
  EXPECT_EQ(bytes.substr(0, 16), "SCP Data File : ");
  EXPECT_EQ(bytes[16], 0);
  EXPECT_EQ(GetBE32(&bytes[17]), 3U);
  EXPECT_EQ(GetBE32(&bytes[21]), 26U);
  EXPECT_EQ(GetBE32(&bytes[25]), 10U);
  EXPECT_EQ(GetBE32(&bytes[29]), 22U);
  EXPECT_EQ(GetBE32(&bytes[33]), 8U);
  EXPECT_EQ(GetBE32(&bytes[37]), 14U);  // length, begin, end
  EXPECT_EQ(GetBE32(&bytes[41]), 8U);
  EXPECT_EQ(GetBE32(&bytes[45]), 22U);
  EXPECT_EQ(GetBE32(&bytes[133]), 2U);
  EXPECT_EQ(GetBE32(&bytes[145]), 28U);
  EXPECT_EQ(GetBE32(&bytes[173]), 12U);  // start, end, length
  EXPECT_EQ(GetBE32(&bytes[177]), 13U);
  EXPECT_EQ(GetBE32(&bytes[181]), 1U);
  EXPECT_EQ(GetBE32(&bytes[449]), 21U);  // the holiday's third rest
  EXPECT_STREQ(&bytes[461], "三つの計画");
  const char* second = &bytes[kHead + kLine];
  EXPECT_EQ(second[0], 3);
  EXPECT_EQ(second[1], 0);
  EXPECT_EQ(std::string(second + 4, 4), "\4\3\2\1");
  EXPECT_EQ(GetLE32(second + 8), 2U);
  EXPECT_STREQ(second + 12, "two");
}

TEST_F(PlanFile, APlanComesBackWholeAndUnchanged) {
  ThreeLines();
  const std::string saved = State();
  ScpTrainDefaults();
  Plan.dirty = true;
  EXPECT_EQ(ScpLoadFile(Path().c_str()), 0);
  EXPECT_EQ(FileResult.FileStatus, 0);
  EXPECT_FALSE(Plan.dirty);
  EXPECT_EQ(Plan.head.count, 3);
  // The lines behind the third are empty ones; those of the saved plan had no hours.
  EXPECT_EQ(State().substr(0, 574 + 3 * kLine), saved.substr(0, 574 + 3 * kLine));
  for (int line = 3; line < 300; ++line) EXPECT_EQ(Plan.ScpPlanTable[line], ScpNewLine()) << line;
}

TEST_F(PlanFile, ASavedPlanIsNotChangedAnyMore) {
  Plan.dirty = true;
  EXPECT_EQ(ScpSaveFile(Path().c_str()), 0);
  EXPECT_FALSE(Plan.dirty);
  EXPECT_EQ(FileBytes(Path()).size(), static_cast<std::size_t>(kHead + 300 * kLine));
}

TEST_F(PlanFile, ALongerOldFileIsReplaced) {
  PutFile(Path(), std::string(100000, 'x'));
  EXPECT_EQ(ThreeLines().size(), static_cast<std::size_t>(kHead + 3 * kLine));
}

TEST_F(PlanFile, WhatCannotBeOpenedIsMinusOne) {
  Plan.dirty = true;
  const std::string before = State();
  EXPECT_EQ(ScpLoadFile(InProgram("none.GPP").c_str()), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_EQ(State(), before);
  EXPECT_EQ(ScpSaveFile(InProgram("no folder\\a.GPP").c_str()), -1);
  EXPECT_EQ(FileResult.FileStatus, -1);
  EXPECT_TRUE(Plan.dirty);
}

TEST_F(PlanFile, AnotherMagicIsRefusedAndChangesNothing) {
  std::string bytes = ThreeLines();
  for (int at = 0; at < 16; ++at) {
    std::string other = bytes;
    other[static_cast<std::size_t>(at)] ^= 1;
    PutFile(Path(), other);
    ScpTrainDefaults();
    const std::string before = State();
    EXPECT_EQ(ScpLoadFile(Path().c_str()), -2) << at;
    EXPECT_EQ(State(), before) << at;
  }
}

// Cut inside the head or a line: the fields before the cut are in place.
TEST_F(PlanFile, CutAtEveryByteIsRefusedAndKeepsWhatCameBefore) {
  const std::string bytes = ThreeLines();
  for (int cut = 0; cut < static_cast<int>(bytes.size()); ++cut) {
    PutFile(Path(), bytes.substr(0, static_cast<std::size_t>(cut)));
    ScpTrainDefaults();
    Plan.dirty = true;
    ASSERT_EQ(ScpLoadFile(Path().c_str()), -2) << cut;
    ASSERT_EQ(FileResult.FileStatus, -2);
    ASSERT_TRUE(Plan.dirty);
    ASSERT_EQ(Plan.head.ScpPlanKind, cut > 16 ? 0 : 1) << cut;
    ASSERT_EQ(Plan.head.count, cut >= 21 ? 3 : 300) << cut;
    ASSERT_EQ(Plan.head.start.month, 10) << cut;
    ASSERT_EQ(Plan.head.start.day, cut >= 33 ? 22 : 20) << cut;
    ASSERT_EQ(Plan.head.ScpIntervalTable[1], cut >= 141 ? 7 : 3) << cut;
    ASSERT_EQ(Plan.ScpPlanTable[0].hours, cut >= kHead + 8 ? 5U : 0U) << cut;
    ASSERT_EQ(Plan.ScpPlanTable[2].repeat, cut > kHead + 2 * kLine ? 4 : 10) << cut;
  }
}

TEST_F(PlanFile, CountsThatTheTableHasNotAreRefused) {
  const std::string bytes = ThreeLines();
  for (const std::uint32_t count : {301U, 1000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    std::string other = bytes + std::string(400 * kLine, 'x');
    PutBE32(&other[17], count);
    PutFile(Path(), other);
    ScpStudyDefaults();
    EXPECT_EQ(ScpLoadFile(Path().c_str()), -2) << count;
    EXPECT_EQ(Plan.head.count, 300) << count;
    EXPECT_STREQ(Plan.ScpPlanTable[0].text, "Instunce: Study English Words Book page 1 1-50words");
    // Such a count in a file that ends behind it.
    PutFile(Path(), other.substr(0, 25));
    EXPECT_EQ(ScpLoadFile(Path().c_str()), -2) << count;
    EXPECT_EQ(Plan.head.count, 300) << count;
  }
}

TEST_F(PlanFile, NoLinesAndThreeHundredLinesAreRead) {
  std::string bytes = ThreeLines().substr(0, kHead);
  PutBE32(&bytes[17], 0);
  PutFile(Path(), bytes);
  Line(0, 9, 9, "old");
  EXPECT_EQ(ScpLoadFile(Path().c_str()), 0);
  EXPECT_EQ(Plan.head.count, 0);
  EXPECT_EQ(ScpConvertToSchedule(), 0);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  Study();
  Line(299, 1, 0, "last");
  EXPECT_EQ(ScpSaveFile(Path().c_str()), 0);
  ScpTrainDefaults();
  EXPECT_EQ(ScpLoadFile(Path().c_str()), 0);
  EXPECT_STREQ(Plan.ScpPlanTable[299].text, "last");
}

// Whatever stands in the file, it is read or refused, and converted, without harm.
TEST_F(PlanFile, MutatedAHundredThousandTimesItDoesNoHarm) {
  const std::string bytes = ThreeLines();
  std::mt19937 random(3201);
  const std::string path = Path();
  for (int round = 0; round < 100000; ++round) {
    std::string other = bytes;
    for (int n = 1 + static_cast<int>(random() % 4); n > 0; --n) {
      other[random() % other.size()] = static_cast<char>(random());
    }
    if (random() % 8 == 0) other.resize(random() % (other.size() + 1));
    ASSERT_TRUE(PutFile(path, other));
    const int status = ScpLoadFile(path.c_str());
    ASSERT_TRUE(status == 0 || status == -2);
    ASSERT_GE(Plan.head.count, 0);
    ASSERT_LE(Plan.head.count, 300);
    ASSERT_EQ(Plan.head.title[kScpTitleSize - 1], '\0');
    if (round % 500 != 0) continue;
    ScpConvertToSchedule();
    ASSERT_GE(Schedule.SclHeader.count, 0);
    ASSERT_LE(Schedule.SclHeader.count, 1000);
  }
}

int Save() {
  return ScpSaveFile("C:\\mirrell\\a.GPP");
}

TEST_F(PlanFile, EachWriteThatFailsIsMinusTwoAndThePlanStaysChanged) {
  Study();
  Plan.dirty = true;
  EXPECT_GE(FailingWrites(Save, -2), 3);
  Plan.dirty = true;
  FaultArm(FaultKind::Write, 1);
  EXPECT_EQ(Save(), -2);
  EXPECT_TRUE(Plan.dirty);
}

}  // namespace
