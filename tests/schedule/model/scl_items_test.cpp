// Items laid end to end, and what the table shows of them.
#include "schedule/model/scl_items.h"

#include <random>

#include "tests/schedule/schedule_fixture.h"

namespace {

class SclItemsTest : public SclModelTest {
 protected:
  static std::string Hours(std::uint32_t hours, bool days = false) {
    SclItemRec item = {};
    item.hours = hours;
    item.showDays = days ? 1 : 0;
    char text[16];
    SclHoursText(item, text, sizeof text);
    return text;
  }
};

TEST_F(SclItemsTest, TheFirstItemStartsWithTheScheduleAndEachNextOneWhereTheLastEnds) {
  Items({3, 4, 5});
  EXPECT_EQ(Start(0), "26/10/22 8");
  EXPECT_EQ(End(0), "26/10/22 11");
  EXPECT_EQ(Start(1), "26/10/22 11");
  EXPECT_EQ(End(1), "26/10/22 15");
  EXPECT_EQ(Start(2), "26/10/22 15");
  EXPECT_EQ(End(2), "26/10/23 10");
}

TEST_F(SclItemsTest, AnItemThatEndsAtTheEndOfItsRowLetsTheNextStartTheDayAfterAndKeepsItsEnd) {
  Row(1, 9, 9);
  Items({10, 1});
  EXPECT_EQ(End(0), "26/10/22 18");
  EXPECT_EQ(Start(1), "26/10/23 9");
  EXPECT_EQ(End(1), "26/10/23 10");
}

TEST_F(SclItemsTest, AnItemThatEndsALeapDayLetsTheNextStartOnTheFirstOfMarch) {
  SclStart() = {28, 1, 28, 8};
  Items({10, 2});
  EXPECT_EQ(End(0), "28/1/28 18");
  EXPECT_EQ(Start(1), "28/2/0 8");
}

// Monday 22 o'clock lies behind the end of Monday's row.
TEST_F(SclItemsTest, AnEndBehindTheEndOfItsRowLeavesTheNextStartUnchanged) {
  SclItem(0).endFixed = 1;
  SclItem(0).end = {26, 10, 22, 22};
  Items({3, 2});
  EXPECT_EQ(Start(1), "26/10/22 22");
  EXPECT_EQ(End(1), "26/10/23 10");
}

// The same from rows alone: Thursday's work ends at 12, and the drifting walk has put the
// end of the first item to Thursday at 14.
TEST_F(SclItemsTest, RowsThatDifferCanLetAnItemEndBehindItsDay) {
  Row(2, 8, 2);
  Row(3, 8, 4);
  Items({30, 1});
  EXPECT_EQ(End(0), "26/10/25 14");
  EXPECT_EQ(Start(1), "26/10/25 14");
  EXPECT_EQ(End(1), "26/10/26 9");
}

TEST_F(SclItemsTest, AFixedEndIsNotWorkedOut) {
  SclItem(1).endFixed = 1;
  SclItem(1).end = {27, 0, 4, 9};
  Items({3, 4, 5});
  EXPECT_EQ(Start(1), "26/10/22 11");
  EXPECT_EQ(End(1), "27/0/4 9");
  EXPECT_EQ(Start(2), "27/0/4 9");
}

TEST_F(SclItemsTest, ALineOf0HoursKeepsTheFlow) {
  Items({3, 0, 0, 7, 0, 1});
  for (const int item : {1, 2}) {
    EXPECT_EQ(Start(item), "26/10/22 11");
    EXPECT_EQ(End(item), "26/10/22 11");
  }
  EXPECT_EQ(End(3), "26/10/22 18");
  EXPECT_EQ(Start(4), "26/10/23 8");
  EXPECT_EQ(End(4), "26/10/23 8");
  EXPECT_EQ(End(5), "26/10/23 9");
}

TEST_F(SclItemsTest, ALineOf0HoursBehindTheEndOfADayEndsWhereItStarts) {
  SclStart() = {26, 10, 22, 20};
  Items({0, 1});
  EXPECT_EQ(End(0), "26/10/22 20");
  EXPECT_EQ(End(1), "26/10/23 9");
}

TEST_F(SclItemsTest, WithEightRowsOfLength0EveryItemEndsWhereItStarts) {
  AllRows(8, 0);
  Items({1, 9999, 5});
  for (const int item : {0, 1, 2}) {
    EXPECT_EQ(End(item), Start(item)) << item;
  }
  EXPECT_EQ(Start(0), "26/10/22 8");
}

TEST_F(SclItemsTest, TheRowsEndsAreRefreshedFirst) {
  Schedule.SclHeader.rows[0] = {4, 22, 0};
  Items({3});
  EXPECT_EQ(Schedule.SclHeader.rows[0].end, 24);
  // Monday from 8 on has hours until 24.
  EXPECT_EQ(End(0), "26/10/22 11");
}

TEST_F(SclItemsTest, ItemsBehindTheCountStay) {
  SclItem(1).start = {1, 2, 3, 4};
  Items({3});
  EXPECT_EQ(Start(1), "1/2/3 4");
}

TEST_F(SclItemsTest, AFullTableIsRecalculatedToItsLastItem) {
  Items(std::vector<std::uint32_t>(kSclItemMax, 10));
  EXPECT_EQ(Start(999), "29/7/17 8") << "Monday, 23 November 2026, and 999 days";
  SclRecalcItem(1000);
  SclRecalcItem(-1);
}

// --- Against a calendar of days counted one by one

// What happens to a schedule of one length after the other, told in days since 2000.
class CountedDays {
 public:
  CountedDays() {
    for (int year = 0, first = 0; year < 100; ++year) {
      for (int month = 0; month < 12; ++month) {
        for (int day = 0; day < SclDaysInMonth(year, month); ++day, ++first) {
          days_.push_back({year, month, day, 0});
        }
      }
    }
  }
  SclDate At(int day, int hour) const {
    SclDate date = days_[static_cast<std::size_t>(day)];
    date.hour = hour;
    return date;
  }
  const SclWorkDayRow& RowAt(int day) const { return Schedule.SclHeader.rows[(5 + day) % 7]; }

  // Where an item of `hours` ends.
  void Work(int hours, int* day, int* hour) const {
    int probe = *day;
    int counted = 0;
    if (*hour >= RowAt(probe).end) {
      probe += ++counted;
      *hour = RowAt(probe).begin;
    }
    while (*hour + hours > RowAt(probe).end) {
      hours -= RowAt(probe).end - *hour;
      probe += ++counted;
      *hour = RowAt(probe).begin;
    }
    *hour += hours;
    *day += counted;
  }

 private:
  std::vector<SclDate> days_;
};

TEST_F(SclItemsTest, TenThousandTablesOfRowsAndItemsEndAsDaysCountedOneByOne) {
  const CountedDays calendar;
  std::mt19937 random(20261122);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int round = 0; round < 10000; ++round) {
    for (int row = 0; row < kSclRowCount; ++row) {
      const int begin = below(24);
      Row(row, begin, 1 + below(24 - begin));
    }
    // The walk meets four of the weekdays, so two without work leave it two.
    Schedule.SclHeader.rows[below(7)].length = 0;
    Schedule.SclHeader.rows[below(7)].length = 0;
    int day = below(8000);  // so that no walk gets to 2100
    int hour = below(24);
    SclStart() = calendar.At(day, hour);
    std::vector<std::uint32_t> hours;
    for (int i = 0; i < 12; ++i) hours.push_back(static_cast<std::uint32_t>(below(4) == 0 ? 0 : below(60)));
    Items(hours);
    for (int i = 0; i < 12; ++i) {
      if (i > 0 && hour == calendar.RowAt(day).end) hour = calendar.RowAt(++day).begin;
      ASSERT_EQ(Start(i), Shown(calendar.At(day, hour))) << round << " " << i;
      if (hours[static_cast<std::size_t>(i)] != 0) {
        calendar.Work(static_cast<int>(hours[static_cast<std::size_t>(i)]), &day, &hour);
      }
      ASSERT_EQ(End(i), Shown(calendar.At(day, hour))) << round << " " << i;
    }
  }
}

// --- Shown

TEST_F(SclItemsTest, AStartAtTheEndOfItsDayIsShownAtTheBeginOfTheNext) {
  Row(1, 9, 9);
  SclItemRec item = {};
  item.start = {26, 10, 22, 18};
  EXPECT_EQ(Shown(SclShownStart(item)), "26/10/23 9");
  EXPECT_EQ(Shown(item.start), "26/10/22 18");
  item.start.hour = 17;
  EXPECT_EQ(Shown(SclShownStart(item)), "26/10/22 17");
}

TEST_F(SclItemsTest, HoursShowAsHours) {
  EXPECT_EQ(Hours(5), "  5H");
  EXPECT_EQ(Hours(9999), "9999H");
}

TEST_F(SclItemsTest, HoursOf0ShowAsALine) {
  EXPECT_EQ(Hours(0), "----");
  EXPECT_EQ(Hours(0, true), "----");
}

TEST_F(SclItemsTest, DaysShowWithTheDaysLengthByTheRest) {
  EXPECT_EQ(Hours(25, true), "  2.200D") << "25 hours of a 10-hour day";
  EXPECT_EQ(Hours(30, true), "  3D");
  EXPECT_EQ(Hours(4, true), "  0.250D");
  Schedule.SclHeader.dayLength = 24;
  EXPECT_EQ(Hours(47, true), "  1.104D");
  Schedule.SclHeader.dayLength = 0;
  EXPECT_EQ(Hours(25, true), " 25H") << "a file may say so";
}

TEST_F(SclItemsTest, AYearsLeadingBlankIsA0) {
  char text[8];
  SclYearText(7, text, sizeof text);
  EXPECT_STREQ(text, "07");
  SclYearText(26, text, sizeof text);
  EXPECT_STREQ(text, "26");
  SclYearText(100, text, sizeof text);
  EXPECT_STREQ(text, "100");
}

TEST_F(SclItemsTest, TypedHoursAreReadAsTold) {
  const std::pair<const char*, std::uint32_t> kTyped[] = {
      {"", 0},    {"12", 12}, {"  12", 12}, {"-5", 0},       {" -5", 0}, {"9999", 9999},
      {"a", 10},  {"f", 15},  {"1a", 20},   {"ff", 165},     {"A", 1},   {"x", 1},
      {"1x", 11}, {"5 ", 51}, {"1-", 11},   {"ffff", 16665}, {"表", 11},
  };
  for (const auto& [text, hours] : kTyped) EXPECT_EQ(SclHoursParse(text), hours) << text;
}

// --- New schedules

TEST_F(SclItemsTest, ANewScheduleHasItsDefaults) {
  for (int i = 0; i < kSclItemMax; ++i) SclItem(i).hours = 7;
  AllRows(1, 2);
  TextCopy(SclTitle(), kSclTitleSize, "古い");
  SclCurrentFileSet("C:\\a.GPI");
  Schedule.SclExecMark = SclMark::Running;
  SclKindSet(1);
  SclNewDefaults(26, 10, 20);
  const SclHeaderState& header = Schedule.SclHeader;
  EXPECT_EQ(header.dayLength, 10);
  EXPECT_EQ(header.dayBegin, 8);
  EXPECT_EQ(header.dayEnd, 18);
  EXPECT_EQ(header.count, 31);
  EXPECT_EQ(Shown(header.start), "26/10/20 8");
  EXPECT_STREQ(header.title, "");
  for (const SclWorkDayRow& row : header.rows) EXPECT_EQ(row, (SclWorkDayRow{10, 8, 18}));
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
  EXPECT_EQ(SclItem(199), SclItemRec{});
  EXPECT_EQ(SclItem(200).hours, 7U) << "only the first 200 rows are cleared";
  EXPECT_EQ(SclItem(999).hours, 7U);
}

TEST_F(SclItemsTest, AnotherKindHasDaysOf24HoursAndTheSameRows) {
  SclKindSet(0);
  SclNewDefaults(26, 10, 20);
  EXPECT_EQ(Schedule.SclHeader.dayLength, 24);
  EXPECT_EQ(Schedule.SclHeader.dayBegin, 0);
  EXPECT_EQ(Schedule.SclHeader.dayEnd, 24);
  EXPECT_EQ(Schedule.SclHeader.rows[7], (SclWorkDayRow{10, 8, 18}));
  EXPECT_EQ(Schedule.SclHeader.start.hour, 8);
}

TEST_F(SclItemsTest, TheCommandsNewScheduleIsOfKind1AndStartsToday) {
  SclKindSet(0);
  SclNew();
  EXPECT_EQ(Schedule.SclHeader.kind, 1);
  EXPECT_EQ(Shown(Schedule.SclHeader.start), "26/10/20 8") << "21 November 2026";
}

TEST_F(SclItemsTest, AConversionClearsAllItemsAndTakesTitleAndRows) {
  for (int i = 0; i < kSclItemMax; ++i) SclItem(i).hours = 7;
  SclCountSet(5);
  SclWorkDayRow rows[kSclRowCount] = {};
  rows[7] = {14, 8, 0};
  SclConversionBegin("計画", rows);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  EXPECT_STREQ(Schedule.SclHeader.title, "計画");
  EXPECT_EQ(Schedule.SclHeader.rows[7], (SclWorkDayRow{14, 8, 22}));
  EXPECT_EQ(SclItem(999), SclItemRec{});
  EXPECT_FALSE(Schedule.SclConverted);
  SclCurrentFileSet("C:\\a.GPI");
  Schedule.SclExecMark = SclMark::Running;
  SclConversionEnd();
  EXPECT_TRUE(Schedule.SclConverted);
  EXPECT_STREQ(Schedule.SclCurrentFile, "");
  EXPECT_EQ(Schedule.SclExecMark, SclMark::None);
}

TEST_F(SclItemsTest, IndexesOutsideTheTableAreHeldInside) {
  SclItem(-1).hours = 3;
  SclItem(kSclItemMax).hours = 4;
  EXPECT_EQ(SclItem(0).hours, 3U);
  EXPECT_EQ(SclItem(999).hours, 4U);
  SclCountSet(-1);
  EXPECT_EQ(Schedule.SclHeader.count, 0);
  SclCountSet(1001);
  EXPECT_EQ(Schedule.SclHeader.count, 1000);
  SclMapPlaceSet(2, 3, 4);
  EXPECT_EQ(Schedule.SclMapColumn[2], 3);
  EXPECT_EQ(Schedule.SclMapRow[2], 4);
}

}  // namespace
