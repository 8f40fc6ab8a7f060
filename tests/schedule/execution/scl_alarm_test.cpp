// The alarms of the executing schedule: the list of a day and what it announces.
//
// All days work from 8 to 18. Monday is 23 November 2026.
#include "schedule/execution/scl_alarm.h"

#include "schedule/model/scl_exec.h"
#include "tests/schedule/schedule_fixture.h"

namespace {

class SclAlarmTest : public SclModelTest {
 protected:
  // A line from one hour and minute to another of Monday, with an alarm.
  static SclItemRec Line(int startHour, int startMinute, int endHour, int endMinute, int days = 0) {
    SclItemRec item{};
    item.alarmOn = 1;
    item.hours = 1;
    item.start = {26, 10, 22, static_cast<std::uint8_t>(startHour)};
    item.end = {26, 10, static_cast<std::uint8_t>(22 + days), static_cast<std::uint8_t>(endHour)};
    item.mirrorStart.minute = static_cast<std::uint8_t>(startMinute);
    item.mirrorEnd.minute = static_cast<std::uint8_t>(endMinute);
    return item;
  }
  static void Execute(const std::vector<SclItemRec>& lines) {
    SclCountSet(static_cast<int>(lines.size()));
    for (std::size_t i = 0; i < lines.size(); ++i) SclItem(static_cast<int>(i)) = lines[i];
    SclExecRefresh();
    SclAlarmsForget();
  }
  static LocalTime At(int day, int hour, int minute) { return {2026, 11, day, 0, hour, minute, 0, 0}; }
  // The item announced, 0 for none.
  static int Check(int hour, int minute, int day = 23) {
    return SclTickCheck(At(day, hour, minute)) != 0 ? SclAlarm.announce : 0;
  }
  // The list: "item 9:00-12:30 fired".
  static Rows List() {
    Rows rows;
    for (int i = 0; i < SclAlarm.count; ++i) {
      const SclAlarmEntry& entry = SclAlarm.entries[i];
      char text[80];
      TextFormat(text, sizeof text, "%d %d:%02d-%d:%02d%s", entry.item + 1, entry.startHour,
                 entry.startMinute, entry.endHour, entry.endMinute, entry.fired ? " fired" : "");
      rows.emplace_back(text);
    }
    return rows;
  }
};

// --- SclDaySpan

TEST_F(SclAlarmTest, ASpanTellsWhereADayLies) {
  SclItemRec item{};
  item.start = {26, 10, 22, 8};
  item.end = {26, 10, 24, 8};
  const auto span = [&](int year, int month, int day) {
    return static_cast<int>(SclDaySpan(item, {year, month, day, 0}));
  };
  EXPECT_EQ(span(26, 10, 21), 0);
  EXPECT_EQ(span(26, 10, 22), 2);
  EXPECT_EQ(span(26, 10, 23), 1);
  EXPECT_EQ(span(26, 10, 24), 3);
  EXPECT_EQ(span(26, 10, 25), 0);
  EXPECT_EQ(span(25, 10, 23), 0);
  item.end = item.start;
  EXPECT_EQ(span(26, 10, 22), 4);
  // Over the ends of months and years.
  item.start = {26, 11, 30, 8};
  item.end = {27, 1, 0, 8};
  EXPECT_EQ(span(26, 11, 30), 2);
  EXPECT_EQ(span(27, 0, 15), 1);
  EXPECT_EQ(span(27, 1, 0), 3);
}

// --- The check of a day that goes on

TEST_F(SclAlarmTest, AnAlarmFiresOnceWhenItsTimeHasCome) {
  Execute({Line(10, 30, 12, 0)});
  EXPECT_EQ(Check(8, 0), 0);
  EXPECT_EQ(List(), Rows{"1 10:30-12:00"});
  EXPECT_EQ(Check(10, 29), 0);
  EXPECT_EQ(Check(10, 30), 1);
  EXPECT_EQ(Check(10, 30), 0);
  EXPECT_EQ(List(), Rows{"1 10:30-12:00 fired"});
}

TEST_F(SclAlarmTest, TwoAlarmsAtTheSameHourAndMinuteFireOnConsecutiveTicks) {
  Execute({Line(10, 0, 12, 0), Line(10, 0, 11, 0), Line(10, 1, 11, 0)});
  EXPECT_EQ(Check(9, 0), 0);
  EXPECT_EQ(Check(10, 0), 1);
  EXPECT_EQ(Check(10, 0), 2);
  EXPECT_EQ(Check(10, 0), 0);
  EXPECT_EQ(Check(10, 1), 3);
}

TEST_F(SclAlarmTest, AnAlarmThatWasMissedInItsHourFiresLaterInThatHourAndNotAfterIt) {
  Execute({Line(10, 5, 12, 0)});
  EXPECT_EQ(Check(9, 59), 0);
  EXPECT_EQ(Check(10, 58), 1);  // not only within five minutes
  Execute({Line(10, 5, 12, 0)});
  EXPECT_EQ(Check(9, 59), 0);
  EXPECT_EQ(Check(11, 0), 0);
}

TEST_F(SclAlarmTest, AfterTheDaysEndHourTheListIsEmptiedAndNothingFiresUntilTheNextDate) {
  Execute({Line(17, 0, 17, 30, 1)});
  EXPECT_EQ(Check(9, 0), 0);
  EXPECT_EQ(List().size(), 1U);
  EXPECT_EQ(Check(18, 0), 0);
  EXPECT_EQ(List().size(), 0U);
  EXPECT_EQ(Check(17, 0), 0) << "not even if the clock goes back";
  EXPECT_EQ(Check(23, 59), 0);
  EXPECT_EQ(Check(8, 0, 24), 1) << "the second day begins with its work";
}

// --- Another date

TEST_F(SclAlarmTest, AtAStartInTheMiddleOfARunningItemTheItemIsAnnouncedAtOnceAndOnce) {
  Execute({Line(9, 0, 12, 0)});
  EXPECT_EQ(Check(10, 15), 1);
  EXPECT_EQ(Check(10, 15), 0);
  EXPECT_EQ(Check(11, 0), 0);
}

TEST_F(SclAlarmTest, BeforeWorkBeginsNothingIsListedAndTheDayIsLookedAtAgain) {
  Execute({Line(8, 0, 12, 0)});
  EXPECT_EQ(Check(7, 59), 0);
  EXPECT_EQ(SclAlarm.year, 0);
  EXPECT_EQ(List(), Rows());
  EXPECT_EQ(Check(8, 0), 1);
}

TEST_F(SclAlarmTest, OnADayWhoseWorkIsOverNothingIsListed) {
  Execute({Line(9, 0, 12, 0)});
  EXPECT_EQ(Check(18, 0), 0);
  EXPECT_EQ(SclAlarm.year, 0);
  Execute({Line(9, 0, 12, 0)});
  EXPECT_EQ(Check(17, 59), 0);
  EXPECT_EQ(SclAlarm.year, 2026);
  EXPECT_EQ(SclAlarm.month, 11);
  EXPECT_EQ(SclAlarm.day, 23);
}

TEST_F(SclAlarmTest, EarlierInTheSameHourWaitsForTheNextTickAndLaterFiresAtOnce) {
  Execute({Line(10, 5, 12, 0)});
  EXPECT_EQ(Check(10, 20), 0);
  EXPECT_EQ(Check(10, 20), 1);
  Execute({Line(10, 45, 12, 0)});
  EXPECT_EQ(Check(10, 20), 1);
  Execute({Line(10, 20, 12, 0)});
  EXPECT_EQ(Check(10, 20), 1) << "at this very minute too";
}

TEST_F(SclAlarmTest, WhatIsOverIsListedAndDoesNotFire) {
  Execute({Line(9, 0, 10, 20), Line(9, 0, 10, 21), Line(8, 0, 9, 59)});
  EXPECT_EQ(Check(10, 20), 2);
  EXPECT_EQ(List(), (Rows{"1 9:00-10:20", "2 9:00-10:21 fired", "3 8:00-9:59"}));
}

TEST_F(SclAlarmTest, OfSeveralThatFireAtOnceTheLastIsAnnounced) {
  Execute({Line(9, 0, 12, 0), Line(11, 0, 12, 0), Line(9, 30, 12, 0)});
  EXPECT_EQ(Check(10, 0), 3);
  EXPECT_EQ(List(), (Rows{"1 9:00-12:00 fired", "2 11:00-12:00", "3 9:30-12:00 fired"}));
  EXPECT_EQ(Check(11, 0), 2);
}

TEST_F(SclAlarmTest, OnlyOpenItemsWithHoursAndAnAlarmAreListed) {
  SclItemRec silent = Line(9, 0, 12, 0);
  silent.alarmOn = 0;
  SclItemRec done = Line(9, 0, 12, 0);
  done.doneState = 1;
  SclItemRec status = Line(9, 0, 12, 0);
  status.doneState = 7;
  SclItemRec empty = Line(9, 0, 12, 0);
  empty.hours = 0;
  SclItemRec mirrored = empty;
  mirrored.mirrorHours = 3;
  Execute({silent, done, status, empty, mirrored, Line(9, 0, 12, 0)});
  Check(8, 0);
  EXPECT_EQ(List(), (Rows{"5 9:00-12:00", "6 9:00-12:00"}));
}

TEST_F(SclAlarmTest, ADoneItemStaysSilentUntilTheExecutionIsChosenAnew) {
  SclItemRec done = Line(9, 0, 12, 0);
  done.doneState = 1;
  Execute({done});
  EXPECT_EQ(Check(10, 0), 0);
  SclExecChoose();
  SclAlarmsForget();
  EXPECT_EQ(Check(10, 0), 1);
  EXPECT_EQ(SclItem(0).doneState, 1) << "in the schedule it stays done";
  EXPECT_EQ(Schedule.SclExecTable.items[0].doneState, 0);
}

TEST_F(SclAlarmTest, ASaveOfTheExecutingFileLeavesTheListAsItIsUntilTheDateChanges) {
  Execute({Line(9, 0, 12, 0, 1)});
  EXPECT_EQ(Check(10, 0), 1);
  SclItem(0).end.hour = 11;
  SclExecRefresh();
  EXPECT_EQ(List(), Rows{"1 9:00-18:00 fired"});
  EXPECT_EQ(Check(10, 1), 0);
  EXPECT_EQ(Check(8, 0, 24), 1);
  EXPECT_EQ(List(), Rows{"1 8:00-11:00 fired"});
}

// --- The times of one day

TEST_F(SclAlarmTest, TheFirstOfSeveralDaysGoesToTheEndOfWork) {
  Execute({Line(10, 15, 9, 45, 2), Line(7, 15, 9, 45, 2)});
  Check(8, 0);
  EXPECT_EQ(List(), (Rows{"1 10:15-18:00", "2 8:00-18:00 fired"}));
}

TEST_F(SclAlarmTest, ADayInsideIsTheWholeDay) {
  Execute({Line(10, 15, 9, 45, 2)});
  Check(8, 0, 24);
  EXPECT_EQ(List(), Rows{"1 8:00-18:00 fired"});
}

TEST_F(SclAlarmTest, TheLastOfSeveralDaysBeginsWithWork) {
  Execute({Line(10, 15, 9, 45, 2), Line(10, 15, 18, 45, 2)});
  Check(8, 0, 25);
  EXPECT_EQ(List(), (Rows{"1 8:00-9:45 fired", "2 8:00-18:00 fired"}));
}

TEST_F(SclAlarmTest, AnItemWithinOneDayHasItsOwnTimes) {
  Execute({Line(10, 15, 12, 45), Line(7, 15, 12, 45), Line(8, 15, 20, 45)});
  Check(8, 0);
  EXPECT_EQ(List(), (Rows{"1 10:15-12:45", "2 8:00-12:45 fired", "3 8:15-20:45 fired"}));
}

TEST_F(SclAlarmTest, AnItemOutsideTheWorkOfItsDayOrOfNoTimeIsSkipped) {
  Execute({Line(19, 0, 20, 0), Line(5, 0, 7, 0), Line(9, 30, 9, 30), Line(5, 0, 8, 0)});
  Check(9, 0);
  EXPECT_EQ(List(), Rows());
}

TEST_F(SclAlarmTest, TheHoursAreThoseOfTheDaysOwnRow) {
  Row(0, 6, 4);  // Mondays from 6 to 10
  Execute({Line(7, 0, 9, 0), Line(11, 0, 12, 0)});
  EXPECT_EQ(Check(6, 0), 0);
  EXPECT_EQ(List(), Rows{"1 7:00-9:00"});
  EXPECT_EQ(Check(10, 0), 0);
  EXPECT_EQ(List(), Rows());
}

TEST_F(SclAlarmTest, AStartAtTheEndOfADayIsAnnouncedAtTheBeginOfTheNext) {
  Execute({Line(18, 0, 12, 0, 1)});
  Check(9, 0);
  EXPECT_EQ(List(), Rows()) << "the copy begins on Tuesday";
  EXPECT_EQ(Check(8, 0, 24), 1);
}

TEST_F(SclAlarmTest, AThousandAlarmsAreListed) {
  Execute(std::vector<SclItemRec>(1000, Line(10, 0, 12, 0)));
  EXPECT_EQ(Check(9, 0), 0);
  EXPECT_EQ(SclAlarm.count, 1000);
  for (int item = 1; item <= 1000; ++item) EXPECT_EQ(Check(10, 0), item);
  EXPECT_EQ(Check(10, 0), 0);
}

TEST_F(SclAlarmTest, ACountThatIsNoneIsHeldInsideTheTable) {
  Execute(std::vector<SclItemRec>(1000, Line(10, 0, 12, 0)));
  Schedule.SclExecTable.count = 2000000;
  Check(9, 0);
  EXPECT_EQ(SclAlarm.count, 1000);
  SclAlarmsForget();
  Schedule.SclExecTable.count = -5;
  Check(9, 0);
  EXPECT_EQ(SclAlarm.count, 0);
}

}  // namespace
