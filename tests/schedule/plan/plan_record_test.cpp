// How a plan lies in its file, and what a new one holds.
#include "schedule/plan/plan_records.h"
#include "tests/schedule/plan/plan_fixture.h"
#include "tests/support/record_check.h"

namespace {

TEST(PlanRecord, LiesAsTold) {
  RecordCheck<ScpRestPeriod>();
  RecordCheck<ScpPlanHead>();
  RecordCheck<ScpPlanRec>();
  // In the file 16 bytes of magic come first.
  EXPECT_EQ(RecordOffset<&ScpPlanHead::ScpPlanKind>() + 16, 16);
  EXPECT_EQ(RecordOffset<&ScpPlanHead::count>() + 16, 17);
  EXPECT_EQ(RecordOffset<&ScpPlanHead::ScpIntervalTable>() + 16, 133);
  EXPECT_EQ(RecordOffset<&ScpPlanHead::title>() + 16, 461);
  EXPECT_EQ(RecordSize<ScpPlanHead>() + 16, 590);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::repeat>(), 0);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::kind>(), 1);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::hours>(), 4);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::load>(), 8);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::text>(), 12);
  EXPECT_EQ(RecordOffset<&ScpPlanRec::spare>(), 140);
  EXPECT_EQ(RecordSize<ScpPlanRec>(), 152);
}

class PlanDefaults : public PlanTest {};

TEST_F(PlanDefaults, AStudyPlanBeginsWithItsTables) {
  ScpStudyDefaults();
  EXPECT_STREQ(Plan.head.title, "Plan to Study");
  EXPECT_EQ(Plan.head.ScpPlanKind, 0);
  EXPECT_EQ(Plan.head.count, 300);
  // The clock stands at 2026-11-21, 9:30.
  EXPECT_EQ(Plan.head.start.year, 26);
  EXPECT_EQ(Plan.head.start.month, 10);
  EXPECT_EQ(Plan.head.start.day, 20);
  EXPECT_EQ(Plan.head.start.hour, 9);
  const std::vector<int> intervals(Plan.head.ScpIntervalTable, Plan.head.ScpIntervalTable + 10);
  EXPECT_EQ(intervals, (std::vector<int>{2, 7, 14, 28, 56, 56, 56, 56, 56, 56}));
  for (int row = 0; row < 8; ++row) {
    EXPECT_EQ(Plan.head.rows[row], (SclWorkDayRow{14, 8, 22}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][0], (ScpRestPeriod{12, 13, 1}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][1], (ScpRestPeriod{18, 19, 1}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][2], (ScpRestPeriod{21, 22, 1}));
  }
  for (const ScpPlanRec& line : Plan.ScpPlanTable) {
    EXPECT_EQ(line.repeat, 2);
    EXPECT_EQ(line.kind, 0);
    EXPECT_EQ(line.hours, 0U);
    EXPECT_EQ(line.load, 0U);
  }
  EXPECT_STREQ(Plan.ScpPlanTable[0].text, "Instunce: Study English Words Book page 1 1-50words");
  EXPECT_STREQ(Plan.ScpPlanTable[1].text, "");
  EXPECT_STREQ(Plan.ScpPlanTable[299].text, "");
}

TEST_F(PlanDefaults, ATrainingPlanBeginsWithItsTables) {
  ScpTrainDefaults();
  EXPECT_STREQ(Plan.head.title, "Plan to Train");
  EXPECT_EQ(Plan.head.ScpPlanKind, 1);
  EXPECT_EQ(Plan.head.count, 300);
  EXPECT_EQ(Plan.head.start.hour, 9);
  const std::vector<int> intervals(Plan.head.ScpIntervalTable, Plan.head.ScpIntervalTable + 10);
  EXPECT_EQ(intervals, (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  for (int row = 0; row < 8; ++row) {
    EXPECT_EQ(Plan.head.rows[row], (SclWorkDayRow{3, 17, 20}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][0], (ScpRestPeriod{18, 19, 1}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][1], (ScpRestPeriod{0, 0, 0}));
    EXPECT_EQ(Plan.head.ScpRestTable[row][2], (ScpRestPeriod{0, 0, 0}));
  }
  for (const ScpPlanRec& line : Plan.ScpPlanTable) {
    EXPECT_EQ(line.repeat, 10);
    EXPECT_EQ(line.kind, 1);
    EXPECT_EQ(line.hours, 0U);
    EXPECT_EQ(line.load, 1U);
  }
  EXPECT_STREQ(Plan.ScpPlanTable[0].text, "Training for arm 70per");
  EXPECT_STREQ(Plan.ScpPlanTable[1].text, "");
}

TEST_F(PlanDefaults, ALinePutInByHandIsAStudyLineInBothKinds) {
  for (void (*defaults)() : {ScpStudyDefaults, ScpTrainDefaults}) {
    defaults();
    const ScpPlanRec line = ScpNewLine();
    EXPECT_EQ(line.repeat, 2);
    EXPECT_EQ(line.kind, 0);
    EXPECT_EQ(line.hours, 0U);
    EXPECT_EQ(line.load, 0U);
    EXPECT_STREQ(line.text, "");
  }
}

TEST_F(PlanDefaults, TheDefaultsLeaveNothingOfThePlanBefore) {
  std::memset(Plan.ScpPlanTable, 0x41, sizeof Plan.ScpPlanTable);
  Plan.head.count = 7;
  ScpStudyDefaults();
  EXPECT_EQ(Plan.head.count, 300);
  for (int line = 1; line < 300; ++line) EXPECT_STREQ(Plan.ScpPlanTable[line].text, "");
}

}  // namespace
