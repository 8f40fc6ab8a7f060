// The records of a schedule, by their tables of offsets.
#include "schedule/model/scl_records.h"

#include "tests/support/record_check.h"

namespace {

TEST(SclRecords, LieAsTold) {
  RecordCheck<SclWorkDayRow>();
  RecordCheck<SclHeaderState>();
  RecordCheck<SclItemRec>();
  RecordCheck<SclMapPath>();
  RecordCheck<SclMapPlace>();
}

// Behind the magic of 16 bytes: kind at 16 of the file, count at 17 ...
TEST(SclRecords, TheHeadHasItsFieldsWhereTheFileTellsThem) {
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::kind>(), 16);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::count>(), 17);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::spare>(), 37);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::dayLength>(), 38);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::dayBegin>(), 42);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::dayEnd>(), 46);
  EXPECT_EQ(16 + RecordOffset<&SclHeaderState::title>(), 146);
  EXPECT_EQ(16 + RecordSize<SclHeaderState>(), 275);
}

TEST(SclRecords, AnItemHasItsFieldsWhereTheFileTellsThem) {
  EXPECT_EQ(RecordOffset<&SclItemRec::alarmOn>(), 0);
  EXPECT_EQ(RecordOffset<&SclItemRec::endFixed>(), 1);
  EXPECT_EQ(RecordOffset<&SclItemRec::showDays>(), 10);
  EXPECT_EQ(RecordOffset<&SclItemRec::hours>(), 12);
  EXPECT_EQ(RecordOffset<&SclItemRec::doneState>(), 16);
  EXPECT_EQ(RecordOffset<&SclItemRec::mirrorFlag>(), 26);
  EXPECT_EQ(RecordOffset<&SclItemRec::mirrorHours>(), 28);
  EXPECT_EQ(RecordOffset<&SclItemRec::text>(), 32);
}

TEST(SclRecords, NumbersOfTheHeadHaveTheirHighByteFirstAndThoseOfAnItemTheirLowByte) {
  SclHeaderState header = {};
  header.count = 0x0102;
  EXPECT_EQ(RecordBytes(header).substr(1, 4), std::string("\0\0\1\2", 4));
  SclItemRec item = {};
  item.hours = 0x0102;
  EXPECT_EQ(RecordBytes(item).substr(12, 4), std::string("\2\1\0\0", 4));
}

}  // namespace
