// The conversion of a plan into a schedule: the worked examples and the edges.
#include "clock_calendar/calendar/calendar.h"
#include "schedule/model/scl_dates.h"
#include "tests/schedule/plan/plan_fixture.h"

namespace {

class PlanConvert : public PlanTest {
 protected:
  // Converts, with this in the table of items before.
  static Rows Convert(int result = 0) {
    for (SclItemRec& item : Schedule.SclItemTable) TextCopy(item.text, sizeof item.text, "old");
    EXPECT_EQ(ScpConvertToSchedule(), result);
    return ItemTexts();
  }
};

// --- Study

TEST_F(PlanConvert, TheWorkedExampleOfAStudyPlanItemByItem) {
  Study();
  Line(0, 5, 2, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 8 - 2026/11/23 12 = 4 A",
                           "2026/11/23 12 - 2026/11/23 13 = 1 月曜日 - 休憩1",
                           "2026/11/23 13 - 2026/11/23 14 = 1 A",
                           "2026/11/23 14 - 2026/11/25 8 = 22",
                           "2026/11/25 8 - 2026/11/25 12 = 4 A",
                           "2026/11/25 12 - 2026/11/25 13 = 1 水曜日 - 休憩1",
                           "2026/11/25 13 - 2026/11/25 14 = 1 A",
                           "2026/11/25 14 - 2026/12/2 8 = 92",
                           "2026/12/2 8 - 2026/12/2 12 = 4 A",
                           "2026/12/2 12 - 2026/12/2 13 = 1 水曜日 - 休憩1",
                           "2026/12/2 13 - 2026/12/2 14 = 1 A",
                       }));
}

TEST_F(PlanConvert, TheScheduleTakesTitleRowsAndStartAndForgetsItsFile) {
  Study();
  Line(0, 1, 0, "A");
  Plan.head.rows[3] = {5, 21, 0};
  TextCopy(Plan.head.title, sizeof Plan.head.title, "計画");
  SclCurrentFileSet("C:\\mirrell\\old.GPI");
  SclConvertedSet(false);
  Convert();
  EXPECT_STREQ(Schedule.SclHeader.title, "計画");
  EXPECT_EQ(Schedule.SclHeader.rows[0], (SclWorkDayRow{14, 8, 22}));
  EXPECT_EQ(Schedule.SclHeader.rows[3], (SclWorkDayRow{5, 21, 24}));
  EXPECT_EQ(SclItemDateOf(Schedule.SclHeader.start), (SclItemDate{26, 10, 22, 8}));
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_TRUE(Schedule.SclConverted);
  EXPECT_STREQ(Schedule.SclItemTable[999].text, "");
}

TEST_F(PlanConvert, APlanWithNoHoursAnywhereConvertsToAnEmptyScheduleAtOnce) {
  Study();
  for (int line = 0; line < 300; ++line) Line(line, 0, 10, "text");
  SclCurrentFileSet("C:\\mirrell\\old.GPI");
  EXPECT_EQ(Convert(), Rows());
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
}

TEST_F(PlanConvert, APlanLeftAtItsDefaultsGivesAnEmptySchedule) {
  ScpStudyDefaults();
  EXPECT_EQ(Convert(), Rows());
  ScpTrainDefaults();
  EXPECT_EQ(Convert(), Rows());
}

TEST_F(PlanConvert, ALineStopsAtTheStartOfARestAndGoesOnBehindItAsAnotherItem) {
  Study({26, 10, 22, 16});
  Line(0, 3, 0, "A");  // to 18 exactly, and one more hour
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 16 - 2026/11/23 18 = 2 A",
                           "2026/11/23 18 - 2026/11/23 19 = 1 月曜日 - 休憩2",
                           "2026/11/23 19 - 2026/11/23 20 = 1 A",
                       }));
}

TEST_F(PlanConvert, ALineThatEndsExactlyWhereARestStartsHasNoRestBehindIt) {
  Study({26, 10, 22, 16});
  Line(0, 2, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/23 16 - 2026/11/23 18 = 2 A"}));
}

TEST_F(PlanConvert, ALineBehindItBeginsWithTheRest) {
  Study({26, 10, 22, 16});
  Line(0, 2, 0, "A");
  Line(1, 1, 0, "B");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 16 - 2026/11/23 18 = 2 A",
                           "2026/11/23 18 - 2026/11/23 19 = 1 月曜日 - 休憩2",
                           "2026/11/23 19 - 2026/11/23 20 = 1 B",
                       }));
}

TEST_F(PlanConvert, ARestItemCountsAllItsHours) {
  Study({26, 10, 22, 11});
  Plan.head.ScpRestTable[0][0].length = 3;
  Line(0, 2, 0, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 11 - 2026/11/23 12 = 1 A",
                           "2026/11/23 12 - 2026/11/23 15 = 3 月曜日 - 休憩1",
                           "2026/11/23 15 - 2026/11/23 16 = 1 A",
                       }));
}

// The first rest in the row's order that starts at the hour; then an item without hours and
// without a start where a second rest follows at once.
TEST_F(PlanConvert, TwoRestsBehindEachOtherHaveAnItemOfNoHoursBetween) {
  Study({26, 10, 22, 11});
  Plan.head.ScpRestTable[0][2] = {13, 14, 2};
  Line(0, 2, 0, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 11 - 2026/11/23 12 = 1 A",
                           "2026/11/23 12 - 2026/11/23 13 = 1 月曜日 - 休憩1",
                           "2000/1/1 0 - 2026/11/23 13 = 0 A",
                           "2026/11/23 13 - 2026/11/23 15 = 2 月曜日 - 休憩3",
                           "2026/11/23 15 - 2026/11/23 16 = 1 A",
                       }));
}

TEST_F(PlanConvert, TheHolidaysRestsAreNamedByTheirRow) {
  ScpStudyDefaults();
  SclConversionBegin("", Plan.head.rows);
  SclDate date{26, 10, 22, 18};
  ScpAddRestLine(4, 8, date);
  EXPECT_STREQ(Schedule.SclItemTable[4].text, "休日 - 休憩2");
  EXPECT_EQ(date.hour, 19);
  date.hour = 21;
  ScpAddRestLine(5, 7, date);
  EXPECT_STREQ(Schedule.SclItemTable[5].text, "日曜日 - 休憩3");
}

TEST_F(PlanConvert, WhereTwoPlacementsCouldStartTheOneDueByWaitComesFirst) {
  Study();
  NoRests();
  Intervals(1);
  Line(0, 14, 0, "A");  // fills Monday
  Line(1, 10, 1, "B");  // stands on Tuesday from 8 to 18, due again on Wednesday
  Line(2, 14, 0, "C");  // still fresh on Tuesday at 18; goes on to Wednesday at 18
  Line(3, 1, 0, "D");   // fresh too, but B has waited
  const Rows items = Convert();
  ASSERT_EQ(items.size(), 5U);
  EXPECT_EQ(items[2], "2026/11/24 18 - 2026/11/25 18 = 14 C");
  EXPECT_EQ(items[3], "2026/11/25 18 - 2026/11/26 14 = 10 B");
  EXPECT_EQ(items[4], "2026/11/26 14 - 2026/11/26 15 = 1 D");
}

TEST_F(PlanConvert, AStudyLineWithRepeatTenUsesTheTenthIntervalAfterTheTenthPlacement) {
  Study();
  NoRests();
  for (int i = 0; i < 10; ++i) Plan.head.ScpIntervalTable[i] = i + 1;
  Line(0, 1, 10, "A");
  int remaining = 11;
  int wait = 0;
  for (int placement = 1; placement <= 10; ++placement) {
    ScpNextRepeat(0, remaining, wait);
    EXPECT_EQ(wait, placement) << placement;
    EXPECT_EQ(remaining, 11 - placement);
  }
  // The wait behind the last placement has no effect: nothing remains.
  ScpNextRepeat(0, remaining, wait);
  EXPECT_EQ(remaining, 0);
  const Rows items = Convert();
  ASSERT_EQ(items.size(), 21U);  // 11 placements, 10 waits
  // 1 + 2 + ... + 10 = 55 days on: 17 January.
  EXPECT_EQ(items[20], "2027/1/17 8 - 2027/1/17 9 = 1 A");
}

TEST_F(PlanConvert, AStudyLineWithRepeatZeroIsPlacedOnceWithNoWaitingLineBehind) {
  Study();
  Line(0, 1, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/23 8 - 2026/11/23 9 = 1 A"}));
}

TEST_F(PlanConvert, APlanStartAfterTheEndOfTheDayMovesToTheNextDay) {
  for (const int hour : {22, 23, 24}) {
    Study({26, 10, 22, hour});
    Line(0, 1, 0, "A");
    WorkRow(1, 9, 10);
    EXPECT_EQ(Convert(), (Rows{"2026/11/24 9 - 2026/11/24 10 = 1 A"})) << hour;
    EXPECT_EQ(SclItemDateOf(Schedule.SclHeader.start), (SclItemDate{26, 10, 23, 9}));
  }
}

// An hour before the day's begin is no end of the day: the plan starts there.
TEST_F(PlanConvert, APlanStartBeforeTheBeginOfTheDayStays) {
  Study({26, 10, 22, 5});
  Line(0, 1, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/23 5 - 2026/11/23 6 = 1 A"}));
}

TEST_F(PlanConvert, ASundayMarkedAsAHolidayUsesTheSundayRowASaturdayTheHolidayRow) {
  CalenYearsSet(26);
  CalenSpanSet(26, 1);
  ASSERT_EQ(CalenSpanIndex(26), 0);
  CalenHolidayFlagSet(0, 10, 27, true);  // Saturday 28
  CalenHolidayFlagSet(0, 10, 28, true);  // Sunday 29
  Study({26, 10, 27, 22});
  NoRests();
  WorkRow(5, 8, 14);
  WorkRow(6, 10, 4);  // Sunday
  WorkRow(7, 14, 2);  // holiday
  Plan.head.start.hour = 14;
  Line(0, 4, 0, "A");
  // Two hours of the holiday's row, then two of Sunday's.
  EXPECT_EQ(Convert(), (Rows{"2026/11/28 14 - 2026/11/29 12 = 4 A"}));
  Plan.head.ScpRestTable[7][0] = {15, 16, 1};
  Plan.head.ScpRestTable[5][0] = {15, 16, 1};
  EXPECT_EQ(Convert()[1], "2026/11/28 15 - 2026/11/28 16 = 1 休日 - 休憩1");
}

// --- The table of items is full

TEST_F(PlanConvert, AThousandItemsReachedAtTheEndOfTheLastLineAreAFailureStill) {
  Study();
  NoRests();
  Intervals(1);
  // Each placement is one item, and so is each wait: 300 + 300 + 300 + 99 and one more.
  for (int line = 0; line < 300; ++line) Line(line, 1, 0, "A");
  EXPECT_EQ(Convert().size(), 300U);
  Intervals(0);
  for (int line = 0; line < 300; ++line) Line(line, 1, line < 100 ? 3 : 2, "A");
  Line(0, 1, 2, "A");
  EXPECT_EQ(Convert().size(), 999U);  // 99 * 4 + 201 * 3
  Line(0, 1, 3, "A");
  SclCurrentFileSet("C:\\mirrell\\old.GPI");
  SclConvertedSet(false);
  const Rows items = Convert(-1);
  EXPECT_EQ(items.size(), 1000U);
  EXPECT_EQ(items[999].substr(items[999].size() - 3), "1 A");
  // What comes behind a conversion that has gone well has not been done.
  EXPECT_STREQ(Schedule.SclCurrentFile, "C:\\mirrell\\old.GPI");
  EXPECT_FALSE(Schedule.SclConverted);
}

TEST_F(PlanConvert, AWaitThatFillsTheTableIsAFailure) {
  Study();
  NoRests();
  Intervals(0);
  for (int line = 0; line < 300; ++line) Line(line, 1, line < 99 ? 3 : 2, "A");
  EXPECT_EQ(Convert().size(), 999U);
  // The same again, but the last line waits once: the wait is the thousandth item.
  Plan.head.ScpIntervalTable[3] = 1;
  Line(298, 1, 1, "A");  // one item less
  Line(299, 1, 4, "A");  // two more, the last of them behind a wait
  EXPECT_EQ(Convert(-1).size(), 1000U);
  EXPECT_EQ(Schedule.SclItemTable[999].text[0], '\0');
}

// The table is full before the placement is through: nothing of it is counted.
TEST_F(PlanConvert, APlacementThatFillsTheTableOnItsWayKeepsWhatWasCountedBefore) {
  Study();
  Line(0, 200, 0, "B");
  SclConversionBegin("", Plan.head.rows);
  SclCountSet(990);
  SclDate current = kMonday8;
  EXPECT_EQ(ScpAddLine(current, 0), -2);  // by the rest: five hours, five rests
  EXPECT_EQ(Schedule.SclHeader.count, 990);
  EXPECT_EQ(current.hour, 8);
  EXPECT_EQ(ItemText(990), "2026/11/23 8 - 2026/11/23 12 = 4 B");
  EXPECT_EQ(ItemText(999), "2026/11/24 18 - 2026/11/24 19 = 1 火曜日 - 休憩2");
  SclCountSet(991);
  EXPECT_EQ(ScpAddLine(current, 0), -2);  // by the hours before it
  EXPECT_EQ(Schedule.SclHeader.count, 991);
  EXPECT_STREQ(Schedule.SclItemTable[999].text, "B");
}

TEST_F(PlanConvert, ARestBeforeAPlacementThatFillsTheTableIsAFailureToo) {
  Study({26, 10, 22, 12});
  SclConversionBegin("", Plan.head.rows);
  SclCountSet(999);
  Line(0, 1, 0, "A");
  SclDate current{26, 10, 22, 12};
  EXPECT_EQ(ScpAddLine(current, 0), -3);
  EXPECT_EQ(Schedule.SclHeader.count, 999);
  EXPECT_STREQ(Schedule.SclItemTable[999].text, "月曜日 - 休憩1");
}

// --- Work rows of no hours

TEST_F(PlanConvert, ADayOfNoHoursIsPassedOver) {
  Study({26, 10, 22, 20});
  NoRests();
  WorkRow(1, 8, 0);
  Line(0, 4, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/23 20 - 2026/11/25 10 = 4 A"}));
}

TEST_F(PlanConvert, RowsOfNoHoursAtAllPlaceEveryHourAtTheStart) {
  Study({26, 10, 22, 8});
  NoRests();
  for (int row = 0; row < 8; ++row) WorkRow(row, 8, 0);
  Line(0, 3, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/24 8 - 2026/11/24 8 = 3 A"}));
}

// --- Waiting

TEST_F(PlanConvert, OfLinesThatAreDueOnTheSameDayTheFirstInTheListIsWaitedFor) {
  Study();
  NoRests();
  Intervals(2);
  Line(0, 1, 1, "A");
  Line(1, 1, 1, "B");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 8 - 2026/11/23 9 = 1 A",
                           "2026/11/23 9 - 2026/11/23 10 = 1 B",
                           "2026/11/23 10 - 2026/11/25 8 = 26",
                           "2026/11/25 8 - 2026/11/25 9 = 1 A",
                           "2026/11/25 9 - 2026/11/25 10 = 1 B",
                       }));
}

TEST_F(PlanConvert, AnIntervalOfNoDaysPlacesTheLineAgainAtOnce) {
  Study();
  NoRests();
  Intervals(0);
  Line(0, 1, 2, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 8 - 2026/11/23 9 = 1 A",
                           "2026/11/23 9 - 2026/11/23 10 = 1 A",
                           "2026/11/23 10 - 2026/11/23 11 = 1 A",
                       }));
}

// A wait of 20000 days, which only a file can hold, is not waited for: the line ends.
TEST_F(PlanConvert, ALineThatIsDueInTwentyThousandDaysIsLeftOut) {
  Study();
  NoRests();
  Plan.head.ScpIntervalTable[0] = 20000;
  Line(0, 1, 1, "A");
  EXPECT_EQ(Convert(), (Rows{"2026/11/23 8 - 2026/11/23 9 = 1 A"}));
}

TEST_F(PlanConvert, AWaitOfLessThanNoDaysFillsTheTable) {
  Study();
  NoRests();
  Intervals(-3);
  Line(0, 1, 1, "A");
  EXPECT_EQ(Convert(-1).size(), 1000U);
}

TEST_F(PlanConvert, RepeatsAndLoadsThatTheTableHasNotTakeItsLastWait) {
  Study();
  NoRests();
  Plan.head.ScpIntervalTable[9] = 4;
  Line(0, 1, 255, "A");
  int remaining = 3;
  int wait = 0;
  ScpNextRepeat(0, remaining, wait);
  EXPECT_EQ(wait, 4);
  EXPECT_EQ(remaining, 2);
  Training();
  Plan.ScpPlanTable[0].load = 0xFFFFFFFFU;
  ScpNextRepeat(0, remaining, wait);
  EXPECT_EQ(wait, 11);
}

TEST_F(PlanConvert, DayDistancesCrossMonthsAndYears) {
  EXPECT_EQ(ScpDayDistance({26, 10, 22, 8}, {26, 10, 24, 8}), 2);
  EXPECT_EQ(ScpDayDistance({26, 10, 22, 8}, {26, 11, 1, 8}), 9);
  EXPECT_EQ(ScpDayDistance({28, 1, 27, 8}, {28, 2, 0, 8}), 2);  // 28 February 2028 to 1 March
  EXPECT_EQ(ScpDayDistance({26, 0, 0, 0}, {27, 0, 0, 0}), 365);
  EXPECT_EQ(ScpDayDistance({26, 11, 30, 0}, {29, 0, 0, 0}), 1 + 365 + 366);
}

// --- Training

TEST_F(PlanConvert, AWorkoutOfTwoHoursHasARestBetween) {
  Training();
  Line(0, 2, 0, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 17 - 2026/11/23 18 = 1 A",
                           "2026/11/23 18 - 2026/11/23 19 = 1 月曜日 - 休憩1",
                           "2026/11/23 19 - 2026/11/23 20 = 1 A",
                       }));
}

TEST_F(PlanConvert, AWorkoutOfFourHoursStopsAtTheEndOfTheDayTheOthersAreDropped) {
  Training();
  Line(0, 4, 1, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 17 - 2026/11/23 18 = 1 A",
                           "2026/11/23 18 - 2026/11/23 19 = 1 月曜日 - 休憩1",
                           "2026/11/23 19 - 2026/11/23 20 = 1 A",
                           "2026/11/23 20 - 2026/11/26 17 = 6",  // nothing of Monday, 3 hours a day
                           "2026/11/26 17 - 2026/11/26 18 = 1 A",
                           "2026/11/26 18 - 2026/11/26 19 = 1 木曜日 - 休憩1",
                           "2026/11/26 19 - 2026/11/26 20 = 1 A",
                       }));
}

TEST_F(PlanConvert, ATrainingLineWithRepeatTenIsPlacedElevenTimes) {
  Training();
  NoRests();
  Line(0, 1, 10, "A");
  const Rows items = Convert();
  ASSERT_EQ(items.size(), 21U);
  EXPECT_EQ(items[20], "2026/12/23 17 - 2026/12/23 18 = 1 A");  // 10 times 3 days
}

TEST_F(PlanConvert, TheWaitOfATrainingLineGoesByItsLoad) {
  for (std::uint32_t load = 0; load < 3; ++load) {
    Training();
    NoRests();
    Line(0, 1, 1, "A");
    Plan.ScpPlanTable[0].load = load;
    const char* const days[] = {"25", "26", "27"};  // 2, 3, 4 days on
    const std::string day = days[load];
    EXPECT_EQ(Convert()[2], "2026/11/" + day + " 17 - 2026/11/" + day + " 18 = 1 A");
  }
}

TEST_F(PlanConvert, OfLinesOfTheSameLoadTheLaterMovesBehindAndWaitsFromItsOwnLastDay) {
  Training();
  Line(0, 2, 1, "A");
  Line(1, 1, 1, "B");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 17 - 2026/11/23 18 = 1 A",
                           "2026/11/23 18 - 2026/11/23 19 = 1 月曜日 - 休憩1",
                           "2026/11/23 19 - 2026/11/23 20 = 1 A",
                           "2026/11/23 20 - 2026/11/24 18 = 1 B",
                           // A is due on Thursday, B a day after: it was placed on Tuesday.
                           "2026/11/24 18 - 2026/11/26 17 = 5",
                           "2026/11/26 17 - 2026/11/26 18 = 1 A",
                           "2026/11/26 18 - 2026/11/26 19 = 1 木曜日 - 休憩1",
                           "2026/11/26 19 - 2026/11/26 20 = 1 A",
                           "2026/11/26 20 - 2026/11/27 17 = 0",
                           "2026/11/27 17 - 2026/11/27 18 = 1 B",
                       }));
}

// --- Numbers that only a file can hold

TEST_F(PlanConvert, AStartThatIsNoDateIsHeldInsideTheCalendar) {
  Study({-5, 99, 400, 77});
  Line(0, 1, 0, "A");
  EXPECT_EQ(Convert(), (Rows{"2001/1/1 8 - 2001/1/1 9 = 1 A"}));  // behind 31 December 2000
}

TEST_F(PlanConvert, RestsOfImpossibleLengthsAreNoneOrADay) {
  Study({26, 10, 22, 11});
  for (int row = 0; row < 8; ++row) WorkRow(row, 0, 24);
  Plan.head.ScpRestTable[0][0] = {12, 0, -1};
  Plan.head.ScpRestTable[0][1] = {13, 0, 2000000000};
  Line(0, 3, 0, "A");
  EXPECT_EQ(Convert(), (Rows{
                           "2026/11/23 11 - 2026/11/23 13 = 2 A",
                           "2026/11/23 13 - 2026/11/24 13 = 24 月曜日 - 休憩2",
                           "2026/11/24 13 - 2026/11/24 14 = 1 A",
                       }));
}

TEST_F(PlanConvert, MoreHoursThanCanBeTypedAreAsManyAsCanBeTyped) {
  Study();
  NoRests();
  Line(0, 4000000000U, 0, "A");
  Convert();
  EXPECT_EQ(Schedule.SclHeader.count, 1);
  EXPECT_EQ(Schedule.SclItemTable[0].hours, 16665U);
}

}  // namespace
