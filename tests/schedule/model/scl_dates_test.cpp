// Work rows of days, and work hours added up.
#include "schedule/model/scl_dates.h"

#include "clock_calendar/calendar/calendar.h"
#include "tests/schedule/schedule_fixture.h"

namespace {

class SclDatesTest : public SclModelTest {
 protected:
  // The years from `first` on are the calendar's; no day but Sunday is a holiday.
  static void Span(int first, int length) {
    Calendar.CalenSel = 0;
    CalenSpanSet(first, length);
  }
  static int RowOf(SclDate date, int offset = 0) { return SclDayRowOf(date, offset); }
  static std::string Added(std::uint32_t hours, const SclDate& start) {
    SclDate end = {};
    SclAddWorkHours(hours, start, end);
    return Shown(end);
  }
};

// --- Months and weekdays

TEST_F(SclDatesTest, FebruaryOfAYearDivisibleByFourHas29DaysAlsoAtTheCentury) {
  EXPECT_EQ(SclDaysInMonth(28, 1), 29);
  EXPECT_EQ(SclDaysInMonth(27, 1), 28);
  EXPECT_EQ(SclDaysInMonth(0, 1), 29);
  EXPECT_EQ(SclDaysInMonth(100, 1), 29) << "2100";
  EXPECT_EQ(SclDaysInMonth(26, 12), 30) << "no month";
}

TEST_F(SclDatesTest, TheFirstWeekdayOfEveryMonthIsThatOfDaysCountedFrom2000) {
  int weekday = 5;
  for (int year = 0; year < 100; ++year) {
    for (int month = 0; month < 12; ++month) {
      ASSERT_EQ(SclFirstWeekday(year, month), weekday) << year << " " << month;
      weekday = (weekday + SclDaysInMonth(year, month)) % 7;
    }
  }
  EXPECT_EQ(SclFirstWeekday(100, 0), -1);
  EXPECT_EQ(SclFirstWeekday(26, 12), -1);
}

// --- The row of a day

TEST_F(SclDatesTest, TheDateReallyMoves) {
  SclDate date = kMonday;
  EXPECT_EQ(SclDayRowOf(date, 2), 2);
  EXPECT_EQ(Shown(date), "26/10/24 8");
  EXPECT_EQ(SclDayRowOf(date, 6), 1) << "Tuesday, 1 December";
  EXPECT_EQ(Shown(date), "26/11/0 8");
  EXPECT_EQ(SclDayRowOf(date, 31), 4) << "Friday, 1 January 2027";
  EXPECT_EQ(Shown(date), "27/0/0 8");
}

// 1461 days are four years: the same day, five weekdays later.
TEST_F(SclDatesTest, LongOffsetsEndWhereDaysCountedOneByOneDo) {
  for (const SclDate from : {kMonday, SclDate{24, 1, 28, 8}, SclDate{0, 0, 0, 0}}) {
    SclDate step = from;
    int row = 0;
    for (int offset = 1; offset <= 10000; ++offset) {
      row = SclDayRowOf(step, 1);
      SclDate leap = from;
      ASSERT_EQ(SclDayRowOf(leap, offset), row) << offset;
      ASSERT_EQ(Shown(leap), Shown(step)) << offset;
    }
  }
}

// After 2400 months, 73050 days, what is left stands in the day.
TEST_F(SclDatesTest, TheWalkEndsAfter2400Months) {
  SclDate date = {0, 0, 0, 0};
  SclDayRowOf(date, 73049);
  EXPECT_EQ(Shown(date), "199/11/30 0");
  date = {0, 0, 0, 0};
  SclDayRowOf(date, 73050 + 500);
  EXPECT_EQ(Shown(date), "200/0/500 0");
}

TEST_F(SclDatesTest, ASundayThatIsMarkedAsAHolidayHasTheSundayRow) {
  Span(26, 1);
  const SclDate sunday = {26, 10, 28, 8};
  CalenHolidayFlagSet(0, 10, 28, true);
  EXPECT_EQ(RowOf(sunday), 6);
}

TEST_F(SclDatesTest, ASaturdayThatIsMarkedHasTheHolidayRow) {
  Span(26, 1);
  EXPECT_EQ(RowOf({26, 10, 27, 8}), 5);
  CalenHolidayFlagSet(0, 10, 27, true);
  EXPECT_EQ(RowOf({26, 10, 27, 8}), 7);
}

TEST_F(SclDatesTest, ADayOfTheHolidayRulesHasTheHolidayRow) {
  Span(26, 1);
  CalenDefinition& definition = CalenSelectedDefinition();
  definition.ruleKinds[0] = static_cast<std::uint8_t>(kRuleDate);
  definition.ruleParameters[0] = {11, 23};
  EXPECT_EQ(RowOf(kMonday), 7);
  EXPECT_EQ(RowOf(kMonday, 1), 1);
}

// A fixed holiday on a Sunday has a substitute on the calendar's page only.
TEST_F(SclDatesTest, ASubstituteHolidayIsNone) {
  Span(26, 1);
  CalenDefinition& definition = CalenSelectedDefinition();
  definition.ruleKinds[0] = static_cast<std::uint8_t>(kRuleDate);
  definition.ruleParameters[0] = {11, 29};
  EXPECT_EQ(CalenHolidayRule(0, 10, 29, HolidayUse::Display), 1);
  EXPECT_EQ(RowOf({26, 10, 29, 8}), 0) << "Monday, 30 November";
}

TEST_F(SclDatesTest, OutsideTheCalendarsYearsThereAreNoHolidays) {
  Span(26, 1);
  CalenHolidayFlagSet(0, 10, 22, true);
  EXPECT_EQ(RowOf(kMonday), 7);
  EXPECT_EQ(RowOf({27, 10, 21, 8}), 0) << "Monday, 22 November 2027";
  Calendar.CalenYearCount = 0;
  EXPECT_EQ(RowOf(kMonday), 0) << "no calendar at all";
}

TEST_F(SclDatesTest, From2100OnTheWeekdayCarriesMinusOne) {
  EXPECT_EQ(RowOf({99, 11, 30, 8}), 3) << "Thursday, 31 December 2099";
  SclDate date = {99, 11, 30, 8};
  EXPECT_EQ(SclDayRowOf(date, 1), -1);
  EXPECT_EQ(Shown(date), "100/0/0 8");
  EXPECT_EQ(SclDayRowOf(date, 1), 0);
  EXPECT_EQ(SclDayRowOf(date, 6), 6);
  // A row that is none works like a Monday.
  Row(0, 3, 4);
  EXPECT_EQ(SclRowOfDay(Schedule.SclHeader.rows, {100, 0, 0, 0}).begin, 3);
}

TEST_F(SclDatesTest, InsideTheCalendarsYearsMinusOneCountsAsZero) {
  Calendar.CalenFirstYear = 100;
  Calendar.CalenYearCount = 1;
  EXPECT_EQ(RowOf({100, 0, 0, 8}), 0);
  EXPECT_EQ(RowOf({100, 0, 6, 8}), 6);
}

TEST_F(SclDatesTest, ThePlainWeekdayMovesTheDateOverWholeMonthsOnly) {
  Span(26, 1);
  CalenHolidayFlagSet(0, 10, 24, true);
  SclDate date = kMonday;
  EXPECT_EQ(SclPlainWeekdayOf(date, 2), 2) << "no holidays";
  EXPECT_EQ(Shown(date), "26/10/22 8");
  EXPECT_EQ(SclPlainWeekdayOf(date, 12), 5) << "Saturday, 5 December";
  EXPECT_EQ(Shown(date), "26/11/0 8");
}

TEST_F(SclDatesTest, TheCountedRowLeavesTheDayAndTakesTheOffsetBackAtAMonthsEnd) {
  SclDate date = kMonday;
  int offset = 2;
  EXPECT_EQ(SclDayRowCount(date, offset), 2);
  EXPECT_EQ(Shown(date), "26/10/22 8");
  EXPECT_EQ(offset, 2);
  offset = 8;
  EXPECT_EQ(SclDayRowCount(date, offset), 1) << "Tuesday, 1 December";
  EXPECT_EQ(Shown(date), "26/11/0 8");
  EXPECT_EQ(offset, 0);
}

TEST_F(SclDatesTest, TheCountedRowKnowsTheHolidayFlagsAndNotTheRules) {
  Span(26, 1);
  CalenDefinition& definition = CalenSelectedDefinition();
  definition.ruleKinds[0] = static_cast<std::uint8_t>(kRuleDate);
  definition.ruleParameters[0] = {11, 23};
  SclDate date = kMonday;
  int offset = 0;
  EXPECT_EQ(SclDayRowCount(date, offset), 0);
  CalenHolidayFlagSet(0, 10, 22, true);
  EXPECT_EQ(SclDayRowCount(date, offset), 7);
}

// --- Hours added

TEST_F(SclDatesTest, HoursRunOnFromDayToDay) {
  EXPECT_EQ(Added(3, kMonday), "26/10/22 11");
  EXPECT_EQ(Added(10, kMonday), "26/10/22 18") << "exactly at the end of the day";
  EXPECT_EQ(Added(11, kMonday), "26/10/23 9");
  EXPECT_EQ(Added(25, kMonday), "26/10/24 13");
}

TEST_F(SclDatesTest, AStartAtOrBehindTheEndOfItsDayBeginsTheDayAfter) {
  EXPECT_EQ(Added(1, {26, 10, 22, 18}), "26/10/23 9");
  EXPECT_EQ(Added(1, {26, 10, 22, 23}), "26/10/23 9");
  EXPECT_EQ(Added(0, {26, 10, 22, 18}), "26/10/23 8");
}

TEST_F(SclDatesTest, AStartBeforeTheBeginOfItsDayWorksFromThereOn) {
  EXPECT_EQ(Added(18, {26, 10, 22, 0}), "26/10/22 18");
  EXPECT_EQ(Added(19, {26, 10, 22, 0}), "26/10/23 9");
}

TEST_F(SclDatesTest, ALeapDayIsCountedAndItsEndRollsToMarch) {
  EXPECT_EQ(Added(20, {28, 1, 27, 8}), "28/1/28 18");
  EXPECT_EQ(Added(21, {28, 1, 27, 8}), "28/2/0 9");
  EXPECT_EQ(Added(11, {27, 1, 27, 8}), "27/2/0 9");
  EXPECT_EQ(Added(11, {99, 11, 30, 8}), "100/0/0 9") << "2099 rolls into 2100";
  EXPECT_EQ(Added(21, {100, 1, 27, 8}), "100/2/0 9") << "2100 is a leap year here";
}

// From Monday the rows looked at are Monday, Tuesday, Thursday, Sunday: 10 hours of Monday
// and 10 of Tuesday leave 10; Thursday's 4 leave 6, which fit into Sunday's. The days
// counted are three, which is Thursday.
TEST_F(SclDatesTest, TheProbeDriftsAndTheDaysCountedDoNot) {
  Row(2, 8, 2);
  Row(3, 8, 4);
  EXPECT_EQ(Added(30, kMonday), "26/10/25 14");
}

// Tuesday gives nothing, and then Thursday is looked at: two days on, 13 o'clock.
TEST_F(SclDatesTest, ARowOfLength0IsSkippedByTheWalk) {
  Row(1, 8, 0);
  EXPECT_EQ(Added(15, kMonday), "26/10/24 13");
}

TEST_F(SclDatesTest, WithEightRowsOfLength0TheEndIsTheStart) {
  AllRows(8, 0);
  EXPECT_EQ(Added(1, kMonday), "26/10/22 8");
  EXPECT_EQ(Added(9999, {26, 10, 22, 3}), "26/10/22 3");
}

// Hours that the walk cannot place within 73000 days have no end.
TEST_F(SclDatesTest, WorkOfCenturiesHasNoEnd) {
  AllRows(8, 1);
  EXPECT_EQ(Added(73001, {0, 0, 0, 8}), "199/10/11 9") << "73000 days on";
  EXPECT_EQ(Added(73002, {0, 0, 0, 8}), "0/0/0 8");
  EXPECT_EQ(Added(0xffffffff, kMonday), "26/10/22 8");
}

// Of the seven weekdays the probe meets those 0, 1, 3 and 6 days on, for ever.
TEST_F(SclDatesTest, ARowThatTheWalkMeetsOnlyBehind2099IsFoundThere) {
  AllRows(8, 0);
  Row(4, 8, 10);  // Friday, four days on
  // After some 230 days counted the probe stands behind 2099, where the weekdays are those
  // of months that begin on a Monday's eve.
  SclDate end = {};
  SclAddWorkHours(1, kMonday, end);
  EXPECT_EQ(end.hour, 9);
  EXPECT_GT(SclDayDistance(kMonday, end), 200);
}

TEST_F(SclDatesTest, RowsThatNoScheduleHasDoNoHarm) {
  for (const SclWorkDayRow row :
       {SclWorkDayRow{-5, 40, 24}, SclWorkDayRow{24, -3, 21}, SclWorkDayRow{0, 2000000000, 24},
        SclWorkDayRow{0, -2000000000, -2000000000}}) {
    AllRows(8, 10);
    for (const int day : {0, 1, 3}) Schedule.SclHeader.rows[day] = row;
    SclDate end = {};
    SclAddWorkHours(100, kMonday, end);
    EXPECT_GE(SclDayDistance(kMonday, end), 0);
  }
}

TEST_F(SclDatesTest, EndsAreBeginAndLengthAndNotPast24) {
  SclWorkDayRow rows[kSclRowCount] = {{10, 8, 0}, {24, 20, 0}, {0, 5, 9}, {2147483647, 2147483647, 0}};
  SclRowEndsRefresh(rows);
  EXPECT_EQ(rows[0].end, 18);
  EXPECT_EQ(rows[1].end, 24);
  EXPECT_EQ(rows[2].end, 5);
  EXPECT_EQ(rows[3].end, 24);
}

// --- Hours between

TEST_F(SclDatesTest, HoursBetweenTwoDaysAreThoseOfBothAndOfTheDaysBetween) {
  EXPECT_EQ(SclWorkHoursBetween(kMonday, {26, 10, 24, 13}), 25);
  EXPECT_EQ(SclWorkHoursBetween(kMonday, {26, 10, 24, 8}), 20);
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 22, 10}, {26, 10, 23, 20}), 18)
      << "the last day gives at most its length";
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 22, 20}, {26, 10, 23, 9}), 1) << "the first day is over";
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 29, 8}, {26, 11, 1, 13}), 25) << "over the end of a month";
  EXPECT_EQ(SclWorkHoursBetween({26, 11, 30, 8}, {27, 1, 1, 9}), 331) << "33 days on";
}

TEST_F(SclDatesTest, HoursBetweenTwoHoursOfADayAreAtMostItsLength) {
  EXPECT_EQ(SclWorkHoursBetween(kMonday, {26, 10, 22, 13}), 5);
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 22, 0}, {26, 10, 22, 23}), 10);
  EXPECT_EQ(SclWorkHoursBetween(kMonday, kMonday), 0);
}

// The first day counts 0 hours, is then looked at as a whole one, and the last of the days
// between is left out.
TEST_F(SclDatesTest, AStartBeforeTheBeginOfWorkCountsTheFirstDayAsNoHours) {
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 22, 6}, {26, 10, 24, 13}), 15);
  // With no hours of either day no day is taken off: Monday and Tuesday.
  EXPECT_EQ(SclWorkHoursBetween({26, 10, 22, 6}, {26, 10, 24, 8}), 20);
}

TEST_F(SclDatesTest, EachDayBetweenHasItsOwnRow) {
  Row(1, 8, 3);
  EXPECT_EQ(SclWorkHoursBetween(kMonday, {26, 10, 24, 13}), 18);
  Span(26, 1);
  CalenHolidayFlagSet(0, 10, 23, true);
  Row(7, 8, 1);
  EXPECT_EQ(SclWorkHoursBetween(kMonday, {26, 10, 24, 13}), 16);
}

TEST_F(SclDatesTest, ALaterDateThatComesFirstIsRefusedByItsField) {
  const SclDate later = {26, 5, 10, 12};
  EXPECT_EQ(SclWorkHoursBetween({27, 0, 0, 0}, later), -2);
  EXPECT_EQ(SclWorkHoursBetween({26, 6, 0, 0}, later), -3);
  EXPECT_EQ(SclWorkHoursBetween({26, 5, 11, 0}, later), -4);
  EXPECT_EQ(SclWorkHoursBetween({26, 5, 10, 13}, later), -5);
  EXPECT_GE(SclWorkHoursBetween({25, 11, 30, 23}, later), 0) << "an earlier year, all else later";
}

TEST_F(SclDatesTest, DatesAreComparedFieldByField) {
  EXPECT_EQ(SclDateCompare(kMonday, kMonday), 0);
  EXPECT_EQ(SclDateCompare(kMonday, {26, 10, 22, 9}), -1);
  EXPECT_EQ(SclDateCompare({27, 0, 0, 0}, kMonday), 1);
  EXPECT_EQ(SclDayDistance({26, 10, 22, 8}, {26, 10, 24, 0}), 2);
  EXPECT_EQ(SclDayDistance({26, 10, 29, 8}, {27, 0, 0, 0}), 32);
}

TEST_F(SclDatesTest, AStartMovesOnlyFromExactlyTheEndOfItsDay) {
  EXPECT_EQ(Shown(SclStartMoved(Schedule.SclHeader.rows, {26, 10, 22, 18})), "26/10/23 8");
  EXPECT_EQ(Shown(SclStartMoved(Schedule.SclHeader.rows, {26, 10, 22, 17})), "26/10/22 17");
  EXPECT_EQ(Shown(SclStartMoved(Schedule.SclHeader.rows, {26, 10, 22, 19})), "26/10/22 19");
  EXPECT_EQ(Shown(SclStartMoved(Schedule.SclHeader.rows, {26, 11, 30, 18})), "27/0/0 8");
}

}  // namespace
