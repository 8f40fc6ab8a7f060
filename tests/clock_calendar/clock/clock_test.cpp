// The clock's designs, its time and strikes, and its alarms.
#include "clock_calendar/clock/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "character/character_tables.h"
#include "services/text.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"
#include "world/world_list.h"

namespace {

class ClockTest : public RecordsTest {
 protected:
  // Design 0 with hands of 40 and 60 pixels, made the current one.
  static void Design(int hand) {
    ClockDesignRecord fields{};
    fields.hand = static_cast<std::uint8_t>(hand);
    fields.hourLength = 40;
    fields.minuteLength = 60;
    fields.centreX = 70;
    fields.centreY = -5;
    fields.handColour[0] = 1;
    CharaTables.ClockDesignCount = 1;
    CharaTables.ClockDesigns[0].record = fields;
    Clock.ClockDesign = 0;
    ClockReactivate();
  }
};

std::string Points(const ClockHandShape& shape, int position) {
  std::string text;
  for (int i = 0; i < shape.pointCount; ++i) {
    const Point& point = shape.points[position][i];
    text += "(" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
  }
  return text;
}

// --- Records

TEST_F(ClockTest, ADesignRecordKeepsItsFieldsAtTheirOffsets) {
  std::string bytes(464, '\xEE');
  ClockDesignRecord fields{};
  RecordSet(fields, bytes);
  fields.hand = 3;
  fields.hourLength = 0x1234;
  fields.centreX = -2;
  fields.strikeDelay[6] = 1006;
  fields.hourFigures[12][6] = 90;
  ASSERT_TRUE(RecordPut(fields, bytes.data(), 464));
  EXPECT_EQ(bytes[0], 3);
  EXPECT_EQ(bytes[4], 0x34);  // low byte first
  EXPECT_EQ(bytes[5], 0x12);
  EXPECT_EQ(bytes[8], '\xFE');
  EXPECT_EQ(bytes[9], '\xFF');
  EXPECT_EQ(bytes[18 + 2 * 6], '\xEE');  // 1006 = 0x3EE
  EXPECT_EQ(bytes[18 + 2 * 6 + 1], 3);
  EXPECT_EQ(bytes[32 + 12 * 7 + 6], 90);
  EXPECT_EQ(bytes[123], '\xEE');  // the spare bytes stay
  EXPECT_EQ(bytes[463], '\xEE');
}

TEST_F(ClockTest, ADesignRecordOfRandomBytesGivesTerminatedTexts) {
  ClockDesignRecord fields{};
  RecordFill(fields, '\xE5');
  EXPECT_EQ(std::strlen(fields.sound), 256U);
  EXPECT_EQ(std::strlen(fields.name), 64U);
}

TEST_F(ClockTest, FiveValuesOfTheListGoIntoEachDesignThatTheListHolds) {
  CharaTables.ClockDesignCount = 2;
  Clock.ClockListCount = 1;
  Clock.ClockList[0] = ClockListRow{1, 2, 1, 0, "po2.wav", "鳩時計"};
  for (ClockDesignRow& row : CharaTables.ClockDesigns) {
    row.record = ClockDesignRecord{};
    row.record.hand = 4;
    TextCopy(row.record.sound, sizeof row.record.sound, "old.wav");
    TextCopy(row.record.name, sizeof row.record.name, "old");
  }
  for (int i = -1; i < kClockDesignMax + 1; ++i) ClockDesignTakeListValues(i);
  const ClockDesignRecord taken = CharaTables.ClockDesigns[0].record;
  EXPECT_TRUE(taken.repeat);
  EXPECT_EQ(taken.strikeMode, 2);
  EXPECT_TRUE(taken.soundOn);
  EXPECT_STREQ(taken.sound, "po2.wav");
  EXPECT_STREQ(taken.name, "鳩時計");
  EXPECT_EQ(taken.hand, 4);
  EXPECT_STREQ(CharaTables.ClockDesigns[1].record.sound, "old.wav");
}

TEST_F(ClockTest, TheListTakesTheDesignsAndGivesThemBack) {
  CharaTables.ClockDesignCount = 2;
  ClockDesignRecord fields{};
  fields.repeat = 1;
  fields.strikeMode = 1;
  TextCopy(fields.sound, sizeof fields.sound, "kan.wav");
  TextCopy(fields.name, sizeof fields.name, std::string(63, 'n').c_str());
  CharaTables.ClockDesigns[1].record = fields;
  ClockListTakeDesigns();
  EXPECT_EQ(Clock.ClockListCount, 2);
  EXPECT_EQ(Clock.ClockList[1].repeat, 1);
  EXPECT_EQ(Clock.ClockList[1].strikeMode, 1);
  EXPECT_EQ(Clock.ClockList[1].soundOn, 0);
  EXPECT_STREQ(Clock.ClockList[1].name, std::string(49, 'n').c_str());
  CharaTables.ClockDesigns[1].record = ClockDesignRecord{};
  ClockDesignTakeListValues(1);
  EXPECT_STREQ(CharaTables.ClockDesigns[1].record.sound, "kan.wav");
}

TEST_F(ClockTest, AnAlarmSlotKeepsItsFields) {
  AlarmSlot slot{};
  slot.enabled = 1;
  slot.hour = 23;
  slot.minute = 59;
  slot.performance = 0x0203;
  TextCopy(slot.comment, sizeof slot.comment, "起きる");
  const std::string record = RecordBytes(slot);
  EXPECT_EQ(record[0], 1);
  EXPECT_EQ(record[1], 23);
  EXPECT_EQ(record[2], 59);
  EXPECT_EQ(record[4], 3);
  EXPECT_EQ(record[5], 2);
  EXPECT_STREQ(record.c_str() + 6, "起きる");
  RecordFill(slot, 'x');
  EXPECT_EQ(std::strlen(slot.comment), 99U);
}

// --- The design in force

TEST_F(ClockTest, ActivationTakesKindCentreColoursAndStrikeTables) {
  ClockDesignRecord fields{};
  fields.hand = kHandArrow;
  fields.centreX = 11;
  fields.centreY = 22;
  const unsigned char hand[3] = {1, 2, 3};
  const unsigned char face[3] = {4, 5, 6};
  std::memcpy(fields.handColour, hand, 3);
  std::memcpy(fields.faceColour, face, 3);
  fields.strikeDelay[6] = 77;
  fields.hourFigures[12][6] = 9;
  CharaTables.ClockDesignCount = 2;
  CharaTables.ClockDesigns[1].record = fields;
  Clock.ClockWanted = 1;
  ClockActivate();
  EXPECT_EQ(Clock.ClockDesign, 1);
  EXPECT_EQ(Clock.ClockHandKind, kHandArrow);
  EXPECT_EQ(Clock.ClockCentre.x, 11);
  EXPECT_EQ(Clock.ClockCentre.y, 22);
  EXPECT_EQ(Clock.ClockHandColour, 0x030201U);
  EXPECT_EQ(Clock.ClockFaceColour, 0x060504U);
  EXPECT_EQ(Clock.ClockStrikeDelay[6], 77);
  EXPECT_EQ(Clock.ClockHourFigures[12][6], 9);
}

TEST_F(ClockTest, EqualHandAndFaceColoursGiveTheFaceItsComplement) {
  ClockDesignRecord fields{};
  const unsigned char colour[3] = {10, 0, 255};
  std::memcpy(fields.handColour, colour, 3);
  std::memcpy(fields.faceColour, colour, 3);
  CharaTables.ClockDesignCount = 1;
  CharaTables.ClockDesigns[0].record = fields;
  Clock.ClockWanted = 0;
  ClockActivate();
  EXPECT_EQ(Clock.ClockHandColour, 0xFF000AU);
  EXPECT_EQ(Clock.ClockFaceColour, 0x00FFF5U);
}

TEST_F(ClockTest, TheCurrentDesignIsNotActivatedAgainButAReactivationTakesIt) {
  Design(kHandBar);
  CharaTables.ClockDesigns[0].record.hand = kHandDot;
  Clock.ClockWanted = 0;
  ClockActivate();
  EXPECT_EQ(Clock.ClockHandKind, kHandBar);
  ClockReactivate();
  EXPECT_EQ(Clock.ClockHandKind, kHandDot);
  EXPECT_EQ(Clock.ClockDesign, 0);
}

TEST_F(ClockTest, AReactivationOfNoDesignLeavesNothingOfTheOneBefore) {
  Design(kHandBar);
  ASSERT_EQ(ClockHands.ClockHourHand.form, HandForm::Filled);
  Clock.ClockDesign = kClockNone;  // as the settings file may hold it
  ClockReactivate();
  EXPECT_EQ(Clock.ClockDesign, kClockNone);
  EXPECT_EQ(Clock.ClockWanted, kClockNone);
  EXPECT_EQ(Clock.ClockHandKind, -1);
  EXPECT_EQ(ClockHands.ClockHourHand.form, HandForm::None);
  EXPECT_EQ(ClockHands.ClockMinuteHand.form, HandForm::None);
}

TEST_F(ClockTest, ANumberWithoutADesignBecomesTheCurrentOneWithNothingToDraw) {
  Design(kHandBar);
  for (const int number : {1, 49, 50, 254, 255, -1, 100000}) {
    Clock.ClockDesign = 0;
    ClockReactivate();
    ASSERT_EQ(Clock.ClockHandKind, kHandBar);
    Clock.ClockWanted = number;
    ClockActivate();
    EXPECT_EQ(Clock.ClockDesign, number);
    EXPECT_EQ(Clock.ClockHandKind, -1);
    EXPECT_EQ(ClockHands.ClockHourHand.form, HandForm::None);
    EXPECT_EQ(ClockHands.ClockMinuteHand.form, HandForm::None);
    EXPECT_EQ(Clock.ClockHourFigures[0][0], 0);
  }
  // A count beyond the table does not lead out of it.
  CharaTables.ClockDesignCount = 1000;
  Clock.ClockWanted = 60;
  ClockActivate();
  EXPECT_EQ(Clock.ClockHandKind, -1);
}

TEST_F(ClockTest, EachKindHasItsOutlinesAtTwelve) {
  const struct {
    int hand;
    HandForm hourForm;
    const char* hour;
    HandForm minuteForm;
    const char* minute;
  } kKinds[] = {
      {0, HandForm::Line, "(0,0)(0,-40)", HandForm::Line, "(0,0)(0,-60)"},
      {1, HandForm::Filled, "(3,-3)(0,-40)(-3,-3)(0,0)", HandForm::Filled, "(3,-3)(0,-60)(-3,-3)(0,0)"},
      {2, HandForm::Arrow, "(0,0)(0,-40)(4,-36)(-4,-36)", HandForm::Line, "(0,0)(0,-60)"},
      {3, HandForm::Filled, "(2,-13)(0,-40)(-2,-13)", HandForm::None, ""},
      {4, HandForm::LineDot, "(0,0)(0,-40)", HandForm::Line, "(0,0)(0,-60)"},
      {5, HandForm::Filled, "(-2,0)(-2,-40)(2,-40)(2,0)", HandForm::Line, "(0,0)(0,-60)"},
      {6, HandForm::None, "", HandForm::None, ""},
      {7, HandForm::None, "", HandForm::None, ""},
      {8, HandForm::None, "", HandForm::None, ""},
      {255, HandForm::None, "", HandForm::None, ""},
  };
  for (const auto& kind : kKinds) {
    Design(kind.hand);
    EXPECT_EQ(ClockHands.ClockHourHand.form, kind.hourForm) << kind.hand;
    EXPECT_EQ(Points(ClockHands.ClockHourHand, 0), kind.hour) << kind.hand;
    EXPECT_EQ(ClockHands.ClockMinuteHand.form, kind.minuteForm) << kind.hand;
    EXPECT_EQ(Points(ClockHands.ClockMinuteHand, 0), kind.minute) << kind.hand;
  }
}

TEST_F(ClockTest, HandsTurnClockwiseThrough120And60Positions) {
  Design(kHandDiamond);
  // A quarter: x goes where minus y was, y where x was.
  EXPECT_EQ(Points(ClockHands.ClockHourHand, 30), "(3,3)(40,0)(3,-3)(0,0)");
  EXPECT_EQ(Points(ClockHands.ClockHourHand, 60), "(-3,3)(0,40)(3,3)(0,0)");
  EXPECT_EQ(Points(ClockHands.ClockHourHand, 90), "(-3,-3)(-40,0)(-3,3)(0,0)");
  EXPECT_EQ(Points(ClockHands.ClockMinuteHand, 15), "(3,3)(60,0)(3,-3)(0,0)");
  EXPECT_EQ(Points(ClockHands.ClockMinuteHand, 45), "(-3,-3)(-60,0)(-3,3)(0,0)");
  Design(kHandLine);
  // 60 degrees: 40 sin 60 = 34.64, 40 cos 60 = 20; 30 degrees of 60: 30, 51.96.
  EXPECT_EQ(Points(ClockHands.ClockHourHand, 20), "(0,0)(35,-20)");
  EXPECT_EQ(Points(ClockHands.ClockMinuteHand, 5), "(0,0)(30,-52)");
  for (int i = 0; i < 120; ++i) {
    const Point& tip = ClockHands.ClockHourHand.points[i][1];
    EXPECT_NEAR(std::hypot(tip.x, tip.y), 40, 0.8) << i;
  }
}

TEST_F(ClockTest, HandPositionsFollowHourAndMinute) {
  EXPECT_EQ(ClockHourPosition(0, 0), 0);
  EXPECT_EQ(ClockHourPosition(0, 5), 0);
  EXPECT_EQ(ClockHourPosition(0, 6), 1);
  EXPECT_EQ(ClockHourPosition(3, 30), 35);
  EXPECT_EQ(ClockHourPosition(11, 59), 119);
  EXPECT_EQ(ClockHourPosition(12, 59), 119);
  EXPECT_EQ(ClockMinutePosition(0), 0);
  EXPECT_EQ(ClockMinutePosition(59), 59);
  EXPECT_EQ(ClockMinutePosition(60), 59);
}

TEST_F(ClockTest, TheDesignDefaultsGoIntoTheSettings) {
  ClockDesignRecord fields{};
  fields.repeat = 1;
  fields.strikeMode = 2;
  fields.soundOn = 1;
  TextCopy(fields.sound, sizeof fields.sound, "po2.wav");
  CharaTables.ClockDesignCount = 1;
  CharaTables.ClockDesigns[0].record = fields;
  ClockStrikeSettings settings{};
  EXPECT_TRUE(ClockDesignDefaults(0, settings));
  ClockStrikeSettingsSet(settings);
  EXPECT_EQ(Clock.ClockStrikeMode, 2);
  EXPECT_EQ(Clock.ClockStrikeSel, 1);
  EXPECT_EQ(Clock.ClockSoundOn, 1);
  EXPECT_STREQ(Clock.ClockSoundName, "po2.wav");
  settings.mode = 1;
  EXPECT_FALSE(ClockDesignDefaults(1, settings));
  EXPECT_FALSE(ClockDesignDefaults(255, settings));
  EXPECT_EQ(settings.mode, 1);
}

TEST_F(ClockTest, ADesignIsCalledByItsNameOrElseByItsCharacters) {
  CharaTables.ClockDesignCount = 2;
  ClockDesignRecord fields{};
  TextCopy(fields.name, sizeof fields.name, "鳩時計");
  CharaTables.ClockDesigns[0].record = fields;
  CharaTables.ClockDesigns[1].number = 3;
  World.WorldCharaCount = 3;
  TextCopy(World.WorldCharas[2].name, sizeof World.WorldCharas[2].name, "電車");
  char name[kDesignNameSize + 1];
  ClockDesignName(0, name);
  EXPECT_STREQ(name, "鳩時計");
  ClockDesignName(1, name);
  EXPECT_STREQ(name, "電車");
  ClockDesignName(2, name);
  EXPECT_STREQ(name, "");
  CharaTables.ClockDesigns[1].number = 4;
  ClockDesignName(1, name);
  EXPECT_STREQ(name, "");
}

// --- Digits

std::string Digits(int hand, int hour, int minute) {
  char text[kClockTextSize];
  ClockTimeText(hand, hour, minute, text);
  return text;
}

TEST_F(ClockTest, NoonInTheAmPmDesignReadsPmWithHour0AndFivePastMidnightReadsAmWithHour0) {
  EXPECT_EQ(Digits(kHandAmPm, 12, 0), " PM  0:00");
  EXPECT_EQ(Digits(kHandAmPm, 0, 5), " AM  0:05");
  EXPECT_EQ(Digits(kHandAmPm, 11, 59), " AM 11:59");
  EXPECT_EQ(Digits(kHandAmPm, 23, 10), " PM 11:10");
}

TEST_F(ClockTest, The24HourDesignReadsTheHourModulo12) {
  EXPECT_EQ(Digits(kHandDigits, 0, 0), "   0:00");
  EXPECT_EQ(Digits(kHandDigits, 13, 7), "   1:07");
  EXPECT_EQ(Digits(kHandDigits, 23, 59), "  11:59");
}

// --- Redrawing

TEST_F(ClockTest, TheNeedToRedrawIs2ForTheHour1ForTheMinute0Else) {
  Design(kHandLine);
  ClockTimeTake(9, 30);
  EXPECT_EQ(ClockTimeTake(9, 30), 0);
  EXPECT_EQ(ClockTimeTake(9, 31), 1);
  EXPECT_EQ(ClockTimeTake(10, 31), 2);
  EXPECT_EQ(ClockTimeTake(11, 0), 2);
  // Twelve hours on, the dial is the same.
  EXPECT_EQ(ClockTimeTake(23, 0), 0);
  EXPECT_EQ(Clock.ClockHour, 23);
  EXPECT_EQ(Clock.ClockHour12, 11);
}

TEST_F(ClockTest, TheAmPmDesignIsRedrawnForTheHourOfTheDay) {
  Design(kHandAmPm);
  ClockTimeTake(11, 0);
  EXPECT_EQ(ClockTimeTake(23, 0), 2);
  EXPECT_EQ(ClockTimeTake(23, 0), 0);
}

// --- Strikes

class ClockStrikeTest : public ClockTest {
 protected:
  // Figures 1, 2, 0, 3 at every hour; one tick of wait in each step.
  void SetUp() override {
    ClockTest::SetUp();
    Design(kHandLine);
    for (auto& delay : Clock.ClockStrikeDelay) delay = 1;
    for (auto& hour : Clock.ClockHourFigures) {
      const unsigned char figures[7] = {1, 2, 0, 3, 0, 0, 0};
      std::memcpy(hour, figures, 7);
    }
    Clock.ClockStrikeMode = kStrikeEveryHour;
    Clock.ClockSoundOn = 1;
    TextCopy(Clock.ClockSoundName, sizeof Clock.ClockSoundName, "kan.wav");
  }
  // The hour strikes; returns the figures tick by tick until the strike is over.
  static std::string Strike(int hour) {
    ClockTimeTake((hour + 23) % 24, 59);
    std::string figures;
    for (int i = 0; i < 2000; ++i) {
      ClockTickCheck(hour, 0);
      if (!Clock.strike.on) return figures;
      figures += static_cast<char>('0' + ClockStrikeFigure());
    }
    return "endless";
  }
  static std::size_t Sounds() { return SoundsPlayed().size(); }
};

TEST_F(ClockStrikeTest, AStrikeRunsThroughItsSevenStepsWithTheirWaits) {
  // Each step lasts its wait and the tick that moves on.
  EXPECT_EQ(Strike(3), "11220033000000");
  EXPECT_EQ(Sounds(), 1U);
  EXPECT_EQ(SoundsPlayed()[0], "C:\\mirrell\\サウンド\\kan.wav");
  Clock.ClockStrikeDelay[1] = 4;
  Clock.ClockStrikeDelay[0] = 0;
  EXPECT_EQ(Strike(4), "1222220033000000");
}

TEST_F(ClockStrikeTest, Hour0Strikes12TimesWithTheRepeatFlagAndHour1Once) {
  Clock.ClockStrikeSel = 1;
  std::string twelve;
  for (int i = 0; i < 12; ++i) twelve += "11220033";
  EXPECT_EQ(Strike(0), twelve + "000000");
  EXPECT_EQ(Sounds(), 12U);
  EXPECT_EQ(Strike(1), "11220033000000");
  EXPECT_EQ(Sounds(), 13U);
  EXPECT_EQ(Strike(3), "112200331122003311220033000000");
  EXPECT_EQ(Sounds(), 16U);
  EXPECT_EQ(Strike(12), twelve + "000000");
}

TEST_F(ClockStrikeTest, WithoutTheRepeatFlagEveryHourStrikesOnce) {
  EXPECT_EQ(Strike(0), "11220033000000");
  EXPECT_EQ(Strike(11), "11220033000000");
}

TEST_F(ClockStrikeTest, ARepeatBeginsAtTheFirstStepWithAFigure) {
  for (auto& hour : Clock.ClockHourFigures) {
    const unsigned char figures[7] = {0, 5, 6, 0, 0, 0, 0};
    std::memcpy(hour, figures, 7);
  }
  Clock.ClockStrikeSel = 1;
  EXPECT_EQ(Strike(2), "005566556600000000");
}

TEST_F(ClockStrikeTest, StrikeMode0NeverStrikes) {
  Clock.ClockStrikeMode = kStrikeNever;
  EXPECT_EQ(Strike(12), "");
  EXPECT_EQ(Sounds(), 0U);
  EXPECT_EQ(ClockTickCheck(13, 0), 1);  // the dial is drawn all the same
}

TEST_F(ClockStrikeTest, StrikeMode2StrikesAtTwelveOnly) {
  Clock.ClockStrikeMode = kStrikeAtTwelve;
  EXPECT_EQ(Strike(11), "");
  EXPECT_EQ(Strike(12), "11220033000000");
  EXPECT_EQ(Strike(0), "11220033000000");
  EXPECT_EQ(Strike(1), "");
}

TEST_F(ClockStrikeTest, AnyOtherModeStrikesAtTwelveWithoutRepeatsAndEndsAtTheFirstZeroStep) {
  Clock.ClockStrikeMode = 3;
  Clock.ClockStrikeSel = 1;
  EXPECT_EQ(Strike(12), "1122");
  EXPECT_EQ(Sounds(), 1U);
  EXPECT_EQ(Strike(5), "");
}

TEST_F(ClockStrikeTest, AStrikeBeginsOnlyInMinute0AndOnlyOnce) {
  ClockTimeTake(2, 58);
  ClockTickCheck(2, 59);
  EXPECT_FALSE(Clock.strike.on);
  EXPECT_EQ(ClockTickCheck(3, 0), 1);
  EXPECT_TRUE(Clock.strike.on);
  EXPECT_EQ(ClockStrikeFigure(), 1);
  for (int i = 0; i < 100; ++i) ClockTickCheck(3, 0);
  EXPECT_FALSE(Clock.strike.on);
  EXPECT_EQ(Sounds(), 1U);
  EXPECT_EQ(ClockTickCheck(3, 0), 0);
}

TEST_F(ClockStrikeTest, TheClockIsDrawnWhenTheFigureChangesNotBetween) {
  ClockTimeTake(2, 59);
  EXPECT_EQ(ClockTickCheck(3, 0), 1);
  EXPECT_EQ(ClockTickCheck(3, 0), 0);
  EXPECT_EQ(ClockTickCheck(3, 0), 1);
  EXPECT_EQ(ClockStrikeFigure(), 2);
}

TEST_F(ClockStrikeTest, WithTheSoundOffOrWithoutANameNothingIsPlayed) {
  Clock.ClockSoundOn = 0;
  EXPECT_EQ(Strike(3), "11220033000000");
  Clock.ClockSoundOn = 1;
  Clock.ClockSoundName[0] = '\0';
  EXPECT_EQ(Strike(3), "11220033000000");
  EXPECT_EQ(Sounds(), 0U);
}

TEST_F(ClockStrikeTest, AnHourWithoutFiguresPlaysItsSoundAndEnds) {
  std::memset(Clock.ClockHourFigures, 0, sizeof Clock.ClockHourFigures);
  Clock.ClockStrikeSel = 1;
  EXPECT_EQ(Strike(12), "00000000000000");
  EXPECT_EQ(Sounds(), 1U);
}

// --- Alarms

class ClockAlarmTest : public ClockTest {
 protected:
  static void Alarm(int slot, int hour, int minute) {
    AlarmSlot& alarm = Clock.ClockEvents[slot];
    alarm = AlarmSlot{};
    alarm.enabled = 1;
    alarm.hour = static_cast<std::uint8_t>(hour);
    alarm.minute = static_cast<std::uint8_t>(minute);
  }
};

TEST_F(ClockAlarmTest, TheSlotWithThisMinuteFires) {
  Alarm(3, 7, 30);
  EXPECT_EQ(ClockAlarmCheck(7, 29), 0);
  EXPECT_EQ(Clock.ClockAlarmSlot, -1);
  EXPECT_EQ(ClockAlarmCheck(7, 30), 1);
  EXPECT_EQ(Clock.ClockAlarmSlot, 3);
  EXPECT_EQ(ClockAlarmCheck(7, 30), 0);
}

TEST_F(ClockAlarmTest, ASlotThatIsNotEnabledDoesNotFire) {
  Alarm(0, 7, 30);
  Clock.ClockEvents[0].enabled = 0;
  EXPECT_EQ(ClockAlarmCheck(7, 30), 0);
}

TEST_F(ClockAlarmTest, AnAlarmSetToTheCurrentMinuteAfterItsCheckDoesNotFireUntilTheNextDay) {
  EXPECT_EQ(ClockAlarmCheck(7, 30), 0);
  Alarm(0, 7, 30);
  for (int i = 0; i < 1000; ++i) EXPECT_EQ(ClockAlarmCheck(7, 30), 0);
  EXPECT_EQ(ClockAlarmCheck(7, 31), 0);
  EXPECT_EQ(ClockAlarmCheck(7, 30), 1);
}

TEST_F(ClockAlarmTest, OfTwoSlotsWithTheSameTimeTheFirstFiresAndTheNextDayTheSecond) {
  Alarm(1, 6, 0);
  Alarm(2, 6, 0);
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
  EXPECT_EQ(Clock.ClockAlarmSlot, 1);
  EXPECT_EQ(ClockAlarmCheck(6, 1), 0);
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
  EXPECT_EQ(Clock.ClockAlarmSlot, 2);
  EXPECT_EQ(ClockAlarmCheck(6, 1), 0);
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
  EXPECT_EQ(Clock.ClockAlarmSlot, 1);
}

TEST_F(ClockAlarmTest, ASlotDoesNotFireTwiceInARowUntilTheDialogWasConfirmed) {
  Alarm(0, 6, 0);
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
  EXPECT_EQ(ClockAlarmCheck(6, 1), 0);
  EXPECT_EQ(ClockAlarmCheck(6, 0), 0);
  EXPECT_EQ(ClockAlarmCheck(6, 1), 0);
  Clock.firedLast = -1;
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
}

TEST_F(ClockAlarmTest, AfterAResetTheSameMinuteIsComparedAfresh) {
  EXPECT_EQ(ClockAlarmCheck(6, 0), 0);
  Alarm(0, 6, 0);
  ClockAlarmCheckReset();
  EXPECT_EQ(ClockAlarmCheck(6, 0), 1);
}

}  // namespace
