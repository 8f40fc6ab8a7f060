#include "clock_calendar/clock/clock_records.h"

#include "tests/support/record_check.h"

TEST(ClockRecords, LieAsTold) {
  RecordCheck<AlarmSlot>();
  RecordCheck<ClockPerformance>();
  RecordCheck<ClockListRow>();
  RecordCheck<TimedEvent>();
}

TEST(ClockRecords, HaveTheirFieldsInTheirPlaces) {
  EXPECT_EQ(RecordOffset<&AlarmSlot::enabled>(), 0);
  EXPECT_EQ(RecordOffset<&AlarmSlot::hour>(), 1);
  EXPECT_EQ(RecordOffset<&AlarmSlot::minute>(), 2);
  EXPECT_EQ(RecordOffset<&AlarmSlot::performance>(), 4);
  EXPECT_EQ(RecordOffset<&AlarmSlot::comment>(), 6);
  EXPECT_EQ(RecordOffset<&ClockPerformance::flags>(), 0);
  EXPECT_EQ(RecordOffset<&ClockPerformance::figureMode>(), 4);
  EXPECT_EQ(RecordOffset<&ClockPerformance::durations>(), 24);
  EXPECT_EQ(RecordOffset<&ClockPerformance::sound>(), 424);
  EXPECT_EQ(RecordOffset<&ClockPerformance::reserved4>(), 1924);
  EXPECT_EQ(RecordOffset<&ClockPerformance::title>(), 1928);
  EXPECT_EQ(RecordOffset<&ClockListRow::repeat>(), 0);
  EXPECT_EQ(RecordOffset<&ClockListRow::strikeMode>(), 1);
  EXPECT_EQ(RecordOffset<&ClockListRow::soundOn>(), 2);
  EXPECT_EQ(RecordOffset<&ClockListRow::sound>(), 4);
  EXPECT_EQ(RecordOffset<&ClockListRow::name>(), 54);
  EXPECT_EQ(RecordOffset<&TimedEvent::hour>(), 2);
  EXPECT_EQ(RecordOffset<&TimedEvent::minute>(), 4);
  EXPECT_EQ(RecordOffset<&TimedEvent::second>(), 6);
  EXPECT_EQ(RecordOffset<&TimedEvent::comment>(), 8);
}
