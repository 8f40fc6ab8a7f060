// The calendars' years, sheets, holidays and their tick.
#include "clock_calendar/calendar/calendar.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/posix/test_clock.h"
#include "services/today.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"

namespace {

int TickCheck() {
  SharedTimeTake();
  return CalenTickCheck();
}

class CalendarTest : public RecordsTest {
 protected:
  static void Span(int firstYear, int count) {
    CalenYearsSet(firstYear);
    Calendar.CalenYearCount = count;
    for (int i = 0; i < kCalenYearMax; ++i) CalenYearInit(i);
  }
  static void SetToday(int year, int month, int day) {
    Today.TodayYear = year;
    Today.TodayMonth = month;
    Today.TodayDay = day;
  }
  static std::string Note(int yearIndex, int month, int day) {
    char note[kNoteSize + 1];
    CalenNoteGet(yearIndex, month, day, note);
    return note;
  }
};

// --- Dates

TEST(SclDates, MonthsHaveTheirDaysAndAFifthMonthBeyondHas30) {
  const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 0; month < 12; ++month) EXPECT_EQ(SclDaysInMonth(23, month), kDays[month]) << month;
  EXPECT_EQ(SclDaysInMonth(24, 1), 29);
  EXPECT_EQ(SclDaysInMonth(0, 1), 29);
  EXPECT_EQ(SclDaysInMonth(100, 1), 29);  // no rule for centuries
  EXPECT_EQ(SclDaysInMonth(24, 12), 30);
  EXPECT_EQ(SclDaysInMonth(24, -1), 30);
  EXPECT_EQ(SclDaysInMonth(24, 2147483647), 30);
}

TEST(SclDates, TheFirstWeekdayCountsFromSaturday1January2000) {
  EXPECT_EQ(SclFirstWeekday(0, 0), 5);
  EXPECT_EQ(SclFirstWeekday(0, 1), 1);    // 1 February 2000, Tuesday
  EXPECT_EQ(SclFirstWeekday(24, 0), 0);   // 1 January 2024, Monday
  EXPECT_EQ(SclFirstWeekday(24, 2), 4);   // 1 March 2024, Friday
  EXPECT_EQ(SclFirstWeekday(26, 10), 6);  // 1 November 2026, Sunday
  EXPECT_EQ(SclFirstWeekday(99, 11), 1);  // 1 December 2099, Tuesday
}

TEST(SclDates, TheFirstWeekdayOfAYearAbove99OrAMonthAbove11IsMinus1) {
  EXPECT_EQ(SclFirstWeekday(100, 0), -1);
  EXPECT_EQ(SclFirstWeekday(26, 12), -1);
  EXPECT_EQ(SclFirstWeekday(-1, 0), -1);
  EXPECT_EQ(SclFirstWeekday(26, -1), -1);
}

// --- Years

TEST_F(CalendarTest, AFreshYearHasLengthsWeekdaysAndSundaysAndNoNotes) {
  CalenYearsSet(26);
  RecordFill(Calendar.CalenMonths[1], 'x');
  CalenYearInit(1);
  const int kFirst2027[] = {4, 0, 0, 3, 5, 1, 3, 6, 2, 4, 0, 2};
  for (int month = 0; month < 12; ++month) {
    const std::string block = RecordBytes(Calendar.CalenMonths[1][month]);
    EXPECT_EQ(block[0], SclDaysInMonth(27, month)) << month;
    EXPECT_EQ(block[1], kFirst2027[month]) << month;
    for (int day = 0; day < 32; ++day) {
      const bool sunday = day < block[0] && (kFirst2027[month] + day) % 7 == 6;
      EXPECT_EQ(block[2 + day], sunday ? 1 : 0) << month << " " << day;
    }
    ASSERT_EQ(block.substr(34, 4096), std::string(4096, '\0'));
    ASSERT_EQ(block.substr(4130), std::string(542, 'x'));
  }
  EXPECT_EQ(Calendar.CalenMonths[0][0].days, 0);
}

TEST_F(CalendarTest, ABuildOfAYearThatIsNotThereDoesNothing) {
  CalenYearInit(-1);
  CalenYearInit(3);
  for (const auto& year : Calendar.CalenMonths) EXPECT_EQ(year[0].days, 0);
}

TEST_F(CalendarTest, YearsOf100OrMoreAreListedAs100) {
  CalenYearsSet(98);
  EXPECT_EQ(Calendar.CalenFirstYear, 98);
  EXPECT_EQ(Calendar.CalenYears[0], 98);
  EXPECT_EQ(Calendar.CalenYears[1], 99);
  EXPECT_EQ(Calendar.CalenYears[2], 100);
  CalenYearInit(2);
  EXPECT_EQ(Calendar.CalenMonths[2][1].days, 29);
}

TEST_F(CalendarTest, ASpanOf3YearsFrom2098IsCutTo2Years) {
  EXPECT_EQ(CalenSpanLength(98, 3), 2);
  EXPECT_EQ(CalenSpanLength(97, 3), 3);
  EXPECT_EQ(CalenSpanLength(99, 3), 1);
  EXPECT_EQ(CalenSpanLength(99, 1), 1);
  EXPECT_EQ(CalenSpanLength(10, 4), 3);
  EXPECT_EQ(CalenSpanLength(10, 0), 1);
  CalenSpanSet(98, 3);
  EXPECT_EQ(Calendar.CalenYearCount, 2);
}

TEST_F(CalendarTest, AnotherSpanRebuildsTheMonthTablesKeepsTheNotesAndGoesToItsFirstYear) {
  Span(26, 3);
  Calendar.CalenYearPos = 2;
  CalenNoteSet(0, 3, 4, "birthday");
  CalenHolidayFlagSet(0, 0, 0, true);  // 1 January 2026, a Thursday
  CalenSpanSet(27, 2);
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_EQ(Calendar.CalenFirstYear, 27);
  EXPECT_EQ(Calendar.CalenYearCount, 2);
  EXPECT_EQ(Note(0, 3, 4), "birthday");
  EXPECT_EQ(Calendar.CalenMonths[0][0].firstWeekday, 4);
  EXPECT_EQ(Calendar.CalenMonths[1][1].days, 29);
  // The Sundays are those of 2027, the other holiday stays.
  EXPECT_TRUE(CalenHolidayFlag(0, 0, 0));
  EXPECT_TRUE(CalenHolidayFlag(0, 0, 2));   // 3 January 2027
  EXPECT_FALSE(CalenHolidayFlag(0, 0, 3));  // 4 January 2026 was one
}

TEST_F(CalendarTest, ARebuildForTheSameYearsKeepsASundayThatIsNoHoliday) {
  Span(26, 3);
  CalenHolidayFlagSet(0, 10, 0, false);
  CalenYearsRebuild();
  EXPECT_FALSE(CalenHolidayFlag(0, 10, 0));
  EXPECT_TRUE(CalenHolidayFlag(0, 10, 7));
}

TEST_F(CalendarTest, TheFirstStartMakesThreeCalendarsOfOneYearFromThisYearOn) {
  CalenStartDefaults();
  EXPECT_EQ(Calendar.CalenCount, 3);
  EXPECT_EQ(Calendar.CalenYearCount, 1);
  EXPECT_EQ(Calendar.CalenFirstYear, 26);
  EXPECT_STREQ(Calendar.CalenNames[2], "日めくりカレンダー");
  EXPECT_EQ(Calendar.CalenKinds[1], kPageWeek);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Calendar.CalenMonths[i][0].firstWeekday, SclFirstWeekday(26 + i, 0)) << i;
    EXPECT_EQ(Calendar.CalenSheets[i][10].firstWeekday, 6) << i;
    EXPECT_EQ(Calendar.CalenDefinitions[i].valid, 1) << i;
  }
  EXPECT_EQ(Calendar.CalenDefinitions[3].valid, 0);
}

TEST_F(CalendarTest, ASheetGoesOverEachYearButKeepsHolidaysAndNotes) {
  Span(26, 3);
  for (int i = 0; i < 3; ++i) {
    CalenNoteSet(i, 5, 6, "kept");
    CalenHolidayFlagSet(i, 5, 1, true);
  }
  Calendar.CalenSel = 4;
  RecordFill(Calendar.CalenSheets[4], 's');
  RecordFill(Calendar.CalenSheetFlags[4], 'f');
  CalenUseSheet();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Note(i, 5, 6), "kept");
    EXPECT_TRUE(CalenHolidayFlag(i, 5, 1));
    for (int month = 0; month < 12; ++month) {
      EXPECT_EQ(RecordBytes(Calendar.CalenMonths[i][month].picture), std::string(542, 's'));
      EXPECT_EQ(Calendar.CalenMonths[i][month].days, SclDaysInMonth(26 + i, month));
      EXPECT_EQ(Calendar.CalenMonths[i][month].firstWeekday, SclFirstWeekday(26 + i, month));
      EXPECT_EQ(Calendar.CalenMonthFlags[i][month].choices[0], 'f');
      EXPECT_EQ(Calendar.CalenMonthFlags[i][month].choices[9], 'f');
    }
  }
  EXPECT_EQ(Calendar.CalenPictures[4], 1);
}

// --- Ways into the tables

TEST_F(CalendarTest, IndexesOutOfTheTablesAreHarmless) {
  Span(26, 3);
  const int kBad[][3] = {{-1, 0, 0}, {3, 0, 0}, {0, -1, 0}, {0, 12, 0}, {0, 0, -1}, {0, 0, 32}};
  for (const auto& bad : kBad) {
    CalenHolidayFlagSet(bad[0], bad[1], bad[2], true);
    EXPECT_FALSE(CalenHolidayFlag(bad[0], bad[1], bad[2]));
    CalenNoteSet(bad[0], bad[1], bad[2], "x");
    EXPECT_EQ(Note(bad[0], bad[1], bad[2]), "");
    EXPECT_EQ(CalenHolidayRule(bad[0], bad[1], bad[2], HolidayUse::Display), 0);
  }
  for (const int sel : {-1, 30, 2147483647}) {
    Calendar.CalenSel = sel;
    EXPECT_EQ(&CalenSelectedDefinition(), &Calendar.CalenDefinitions[0]);
  }
  for (const int pos : {-1, 3, 2147483647}) {
    Calendar.CalenYearPos = pos;
    EXPECT_EQ(CalenYearShown(), 0);
  }
}

TEST_F(CalendarTest, ANoteHoldsUpTo127BytesAndNeverHalfAPair) {
  CalenNoteSet(0, 0, 31, std::string(200, 'n').c_str());
  EXPECT_EQ(Note(0, 0, 31), std::string(127, 'n'));
  std::string pairs;
  for (int i = 0; i < 100; ++i) pairs += "日";
  CalenNoteSet(0, 0, 31, pairs.c_str());
  EXPECT_EQ(Note(0, 0, 31), pairs.substr(0, 126));
  CalenNoteSet(0, 0, 31, "");
  EXPECT_EQ(Note(0, 0, 31), "");
  // A field without a terminator is read to its end.
  RecordFill(Calendar.CalenMonths[0][0], 'q');
  EXPECT_EQ(Note(0, 0, 0), std::string(128, 'q'));
}

TEST_F(CalendarTest, TheSpanTellsTheIndexOfAYear) {
  Calendar.CalenFirstYear = 26;
  Calendar.CalenYearCount = 2;
  EXPECT_EQ(CalenSpanIndex(25), -1);
  EXPECT_EQ(CalenSpanIndex(26), 0);
  EXPECT_EQ(CalenSpanIndex(27), 1);
  EXPECT_EQ(CalenSpanIndex(28), -1);
  Calendar.CalenYearCount = 0;
  EXPECT_EQ(CalenSpanIndex(26), -1);
  Calendar.CalenYearCount = 2147483647;
  EXPECT_EQ(CalenSpanIndex(29), -1);
  Calendar.CalenFirstYear = -2147483647 - 1;
  EXPECT_EQ(CalenSpanIndex(2147483647), -1);
}

TEST_F(CalendarTest, StickersComeOutOfTheListHeldInside100) {
  Calendar.CalenStickers.count = 2;
  Calendar.CalenStickers.charas[1] = 0x0102;
  Calendar.CalenStickers.figures[1] = 9;
  int chara = -1;
  int figure = -1;
  CalenSticker(1, &chara, &figure);
  EXPECT_EQ(chara, 0x0102);
  EXPECT_EQ(figure, 9);
  for (const int place : {-1, 2, 100, 2147483647}) {
    CalenSticker(place, &chara, &figure);
    EXPECT_EQ(chara, 0) << place;
    EXPECT_EQ(figure, 0) << place;
  }
  Calendar.CalenStickers.count = 65535;
  EXPECT_EQ(CalenStickerCount(), 100);
}

TEST_F(CalendarTest, TheTickerPauseCodesHaveTheirRests) {
  const int kRests[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 15, 30, 60, 120, 1};
  for (int code = 0; code < 15; ++code) {
    Calendar.CalenDefinitions[0].tickerPause = static_cast<unsigned char>(code);
    CalenTickerSetup();
    EXPECT_EQ(Calendar.CalenTickerPause, kRests[code]) << code;
  }
  EXPECT_FALSE(Calendar.CalenTickerOn);
  EXPECT_EQ(Calendar.CalenTickerReach, 1);
  EXPECT_EQ(Calendar.CalenTickerStep, 1);
}

// --- Holidays by rule

class CalendarHolidayTest : public CalendarTest {
 protected:
  void SetUp() override {
    CalendarTest::SetUp();
    Span(26, 3);  // 2026, 2027, 2028 (a leap year)
  }
  void Rule(int kind, int month = 0, int value = 0) {
    Calendar.CalenDefinitions[0].ruleKinds[rules_] = static_cast<std::uint8_t>(kind);
    Calendar.CalenDefinitions[0].ruleParameters[rules_] = {static_cast<std::uint8_t>(month),
                                                           static_cast<std::uint8_t>(value)};
    ++rules_;
  }
  // The days of a month that a variant calls holidays, "day:answer", days from 1.
  static std::string Days(int yearIndex, int month, HolidayUse use) {
    std::string text;
    for (int day = 1; day <= 31; ++day) {
      const int answer = CalenHolidayRule(yearIndex, month - 1, day - 1, use);
      if (answer != 0) text += std::to_string(day) + ":" + std::to_string(answer) + " ";
    }
    return text;
  }
  int rules_ = 0;
};

TEST_F(CalendarHolidayTest, WithoutRulesNoDayIsAHoliday) {
  for (int month = 1; month <= 12; ++month) EXPECT_EQ(Days(0, month, HolidayUse::Display), "");
}

TEST_F(CalendarHolidayTest, AFixedDateIsAHolidayByDate) {
  Rule(1, 2, 11);
  EXPECT_EQ(Days(0, 2, HolidayUse::Schedule), "11:1 ");
  EXPECT_EQ(Days(0, 2, HolidayUse::Display), "11:1 ");  // a Wednesday in 2026
  EXPECT_EQ(Days(0, 3, HolidayUse::Schedule), "");
}

TEST_F(CalendarHolidayTest, AFixedHolidayOnASundayWithBit6ClearMakesTheMondayAHolidayInTheDrawingOnly) {
  Rule(1, 5, 3);  // 3 May 2026 is a Sunday
  EXPECT_EQ(Days(0, 5, HolidayUse::Display), "3:1 4:1 ");
  EXPECT_EQ(Days(0, 5, HolidayUse::Schedule), "3:1 ");
}

TEST_F(CalendarHolidayTest, Bit6TakesTheSubstituteAway) {
  Rule(1 | 64, 5, 3);
  EXPECT_EQ(Days(0, 5, HolidayUse::Display), "3:1 ");
}

TEST_F(CalendarHolidayTest, ASubstituteDoesNotPassTheMonthsEnd) {
  Rule(1, 5, 31);  // 31 May 2026 is a Sunday
  EXPECT_EQ(Days(0, 5, HolidayUse::Display), "31:1 ");
  EXPECT_EQ(Days(0, 6, HolidayUse::Display), "");
  EXPECT_EQ(CalenHolidayRule(0, 4, 31, HolidayUse::Display), 0);
}

TEST_F(CalendarHolidayTest, FixedRulesWithBit5MoveOneDayEarlierInLeapYears) {
  Rule(1 | 32, 3, 21);
  EXPECT_EQ(Days(0, 3, HolidayUse::Schedule), "21:1 ");
  // The schedule's variant asks the year asked about ...
  EXPECT_EQ(Days(2, 3, HolidayUse::Schedule), "20:1 ");
  // ... the drawing's the year on display.
  EXPECT_EQ(Days(2, 3, HolidayUse::Display), "21:1 ");
  Calendar.CalenYearPos = 2;
  EXPECT_EQ(Days(2, 3, HolidayUse::Display), "20:1 ");
  EXPECT_EQ(Days(0, 3, HolidayUse::Display), "20:1 ");
  EXPECT_EQ(Days(0, 3, HolidayUse::Schedule), "21:1 ");
}

TEST_F(CalendarHolidayTest, February29OfALeapYearMovesToThe28th) {
  Rule(1 | 32, 2, 29);
  EXPECT_EQ(Days(2, 2, HolidayUse::Schedule), "28:1 ");
}

TEST_F(CalendarHolidayTest, TheFirstOfAMonthWithBit5IsNowhereInALeapYear) {
  Rule(1 | 32, 3, 1);
  EXPECT_EQ(Days(2, 3, HolidayUse::Schedule), "");
  EXPECT_EQ(Days(2, 2, HolidayUse::Schedule), "");
}

TEST_F(CalendarHolidayTest, TheNthWeekdayIsAHolidayByDate) {
  Rule(2, 1, 0x21);  // the second Monday of January
  EXPECT_EQ(Days(0, 1, HolidayUse::Display), "12:1 ");
  EXPECT_EQ(Days(0, 1, HolidayUse::Schedule), "12:1 ");
  Rule(2, 5, 0x57);  // the fifth Sunday of May
  EXPECT_EQ(Days(0, 5, HolidayUse::Display), "31:1 ");
}

TEST_F(CalendarHolidayTest, WeekdaysAreThoseOfTheYearOnDisplayWhateverYearIsAskedAbout) {
  Rule(2, 1, 0x21);
  EXPECT_EQ(Days(1, 1, HolidayUse::Schedule), "12:1 ");  // in 2027 it is the 11th
  Calendar.CalenYearPos = 1;
  EXPECT_EQ(Days(1, 1, HolidayUse::Schedule), "11:1 ");
  EXPECT_EQ(Days(0, 1, HolidayUse::Schedule), "11:1 ");
}

TEST_F(CalendarHolidayTest, EverySuchWeekdayIsAHolidayByWeekday) {
  Rule(3);  // Mondays
  EXPECT_EQ(Days(0, 11, HolidayUse::Display), "2:2 9:2 16:2 23:2 30:2 ");
  Calendar.CalenDefinitions[0].ruleKinds[0] = 9;  // Sundays
  EXPECT_EQ(Days(0, 11, HolidayUse::Schedule), "1:2 8:2 15:2 22:2 29:2 ");
}

TEST_F(CalendarHolidayTest, EverySecondWeekdayIsCountedFromTheNthOneOfTheStartMonth) {
  Rule(16, 10, 2);  // Saturdays from the second one of October on: the 10th
  EXPECT_EQ(Days(0, 9, HolidayUse::Display), "");
  EXPECT_EQ(Days(0, 10, HolidayUse::Display), "10:2 24:2 ");
  EXPECT_EQ(Days(0, 11, HolidayUse::Display), "7:2 21:2 ");
  EXPECT_EQ(Days(0, 12, HolidayUse::Schedule), "5:2 19:2 ");
}

TEST_F(CalendarHolidayTest, EverySecondWeekdayStaysWithinItsYear) {
  Rule(11, 12, 1);
  EXPECT_EQ(Days(0, 12, HolidayUse::Display), "7:2 21:2 ");
  for (int month = 1; month < 12; ++month) EXPECT_EQ(Days(0, month, HolidayUse::Display), "") << month;
}

TEST_F(CalendarHolidayTest, ByteKindsOf128OrMoreAreSkippedAndA0EndsTheRules) {
  Rule(129, 1, 1);
  Rule(1, 1, 2);
  Rule(0);
  Rule(1, 1, 3);
  EXPECT_EQ(Days(0, 1, HolidayUse::Display), "2:1 ");
}

TEST_F(CalendarHolidayTest, TheFirstRuleThatMatchesAnswers) {
  Rule(9);
  Rule(1, 5, 3);
  EXPECT_EQ(CalenHolidayRule(0, 4, 2, HolidayUse::Display), 2);
  EXPECT_EQ(CalenHolidayRule(0, 4, 3, HolidayUse::Display), 1);
}

TEST_F(CalendarHolidayTest, All365RulesAreWalkedAndNotOneMore) {
  for (int i = 0; i < 364; ++i) Rule(1, 1, 1);
  Rule(1, 12, 24);
  EXPECT_EQ(Days(0, 12, HolidayUse::Display), "24:1 ");
  // The byte behind the rules belongs to something else.
  Calendar.CalenDefinitions[0].reserved2[0] = 3;
  EXPECT_EQ(Days(0, 11, HolidayUse::Display), "");
}

TEST_F(CalendarHolidayTest, TheSelectedCalendarsRulesCount) {
  Rule(1, 1, 1);
  Calendar.CalenSel = 1;
  EXPECT_EQ(Days(0, 1, HolidayUse::Display), "");
}

TEST_F(CalendarHolidayTest, AYearWithoutWeekdaysCountsFromMonday) {
  CalenYearsSet(99);
  Calendar.CalenYearPos = 1;  // listed as 100
  Rule(3);
  EXPECT_EQ(Days(1, 1, HolidayUse::Schedule), "1:2 8:2 15:2 22:2 29:2 ");
}

TEST_F(CalendarHolidayTest, RulesWithWildParametersAreHarmless) {
  for (int kind = 1; kind < 256; ++kind) {
    for (const int month : {0, 1, 12, 13, 255}) {
      for (const int value : {0, 1, 31, 32, 0x57, 255}) {
        rules_ = 0;
        Rule(kind, month, value);
        for (const int asked : {0, 1, 11}) {
          for (const int day : {0, 27, 31, 1000}) {
            const int answer = CalenHolidayRule(2, asked, day, HolidayUse::Display);
            ASSERT_TRUE(answer >= 0 && answer <= 2);
          }
        }
      }
    }
  }
}

// --- The tick

TEST_F(CalendarTest, ANewDayIsTakenOverOnce) {
  Span(26, 1);
  SetToday(26, 10, 20);
  EXPECT_EQ(TickCheck(), 0);
  TestClockSet({2026, 11, 22, 0, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Today.TodayDay, 21);
  EXPECT_EQ(TickCheck(), 0);
}

TEST_F(CalendarTest, ANewMonthIsTakenOver) {
  Span(26, 1);
  SetToday(26, 10, 29);
  TestClockSet({2026, 12, 1, 2, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Today.TodayMonth, 11);
  EXPECT_EQ(Today.TodayDay, 0);
  EXPECT_EQ(Calendar.CalenYearPos, 0);
}

TEST_F(CalendarTest, ANewYearInsideTheSpanGoesOnDisplay) {
  Span(26, 2);
  SetToday(26, 11, 30);
  TestClockSet({2027, 1, 1, 5, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Today.TodayYear, 27);
  EXPECT_EQ(Calendar.CalenYearPos, 1);
  EXPECT_EQ(Calendar.CalenFirstYear, 26);
}

TEST_F(CalendarTest, ANewYearOutsideTheSpanBecomesItsFirstYear) {
  Span(26, 1);
  SetToday(26, 11, 30);
  TestClockSet({2027, 1, 1, 5, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_EQ(Calendar.CalenFirstYear, 27);
  EXPECT_EQ(Calendar.CalenYears[0], 27);
  EXPECT_EQ(Calendar.CalenYears[1], 28);
  EXPECT_EQ(Calendar.CalenMonths[0][0].firstWeekday, 4);
}

TEST_F(CalendarTest, ASpanThatBeginsAnewEndsBy2099) {
  Span(96, 3);
  SetToday(98, 11, 30);
  TestClockSet({2099, 1, 1, 3, 0, 0, 0, 0});
  EXPECT_EQ(TickCheck(), 1);
  EXPECT_EQ(Calendar.CalenFirstYear, 99);
  EXPECT_EQ(Calendar.CalenYearCount, 1);
}

TEST_F(CalendarTest, APlaceOutOfTheSettingsFileBringsASpanThatHoldsIt) {
  Span(26, 1);
  Today.TodayYear = 26;
  Calendar.CalenYearPos = 2;
  CalenPrepareMonth();
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_EQ(Calendar.CalenFirstYear, 28);
  for (const int pos : {-1000, 2147483647, -2147483647 - 1}) {
    Calendar.CalenYearPos = pos;
    CalenPrepareMonth();
    EXPECT_EQ(Calendar.CalenYearPos, 0) << pos;
    EXPECT_EQ(Calendar.CalenFirstYear, 26) << pos;
    Calendar.CalenFirstYear = 2147483647;
  }
}

}  // namespace
