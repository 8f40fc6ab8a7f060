#include "clock_calendar/calendar/calendar_records.h"

#include "tests/support/record_check.h"

TEST(CalendarRecords, LieAsTold) {
  RecordCheck<CalenMonthPicture>();
  RecordCheck<CalenMonth>();
  RecordCheck<CalenMonthChoices>();
  RecordCheck<CalenFont>();
  RecordCheck<CalenRuleParameters>();
  RecordCheck<CalenDefinition>();
  RecordCheck<CalenStickerList>();
  RecordCheck<CalenHead>();
}

TEST(CalendarRecords, AMonthHasItsFieldsInTheirPlaces) {
  EXPECT_EQ(RecordOffset<&CalenMonth::days>(), 0);
  EXPECT_EQ(RecordOffset<&CalenMonth::firstWeekday>(), 1);
  EXPECT_EQ(RecordOffset<&CalenMonth::holidays>(), 2);
  EXPECT_EQ(RecordOffset<&CalenMonth::notes>(), 34);
  // Its picture begins at 4130.
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::background>(), 4130);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::backColour>(), 4642);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::charas>(), 4646);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::figures>(), 4650);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::correctX>(), 4652);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::correctY>(), 4656);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::directions>(), 4660);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::byYear>(), 4662);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::periods>(), 4664);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::steps>(), 4666);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::colourOnly>(), 4668);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::pictureOn>(), 4669);
  EXPECT_EQ(4130 + RecordOffset<&CalenMonthPicture::starts>(), 4670);
}

// A note may fill its 128 bytes; the next day's begins right behind it.
TEST(CalendarRecords, ANoteKeepsAllItsBytes) {
  const auto month = std::make_unique<CalenMonth>();
  std::string bytes(4672, '\0');
  bytes.replace(34, 128, std::string(128, 'a'));
  bytes.replace(34 + 128, 1, "b");
  ASSERT_TRUE(RecordTake(*month, bytes.data(), 4672));
  EXPECT_EQ(month->notes[0], std::string(128, 'a'));
  EXPECT_STREQ(month->notes[1], "b");
  EXPECT_EQ(RecordBytes(*month), bytes);
}

TEST(CalendarRecords, ADefinitionHasItsFieldsInTheirPlaces) {
  EXPECT_EQ(RecordOffset<&CalenDefinition::valid>(), 0);
  EXPECT_EQ(RecordOffset<&CalenDefinition::charas>(), 12);
  EXPECT_EQ(RecordOffset<&CalenDefinition::figures>(), 108);
  EXPECT_EQ(RecordOffset<&CalenDefinition::figureModes>(), 156);
  EXPECT_EQ(RecordOffset<&CalenDefinition::startX>(), 204);
  EXPECT_EQ(RecordOffset<&CalenDefinition::startY>(), 396);
  EXPECT_EQ(RecordOffset<&CalenDefinition::ruleKinds>(), 588);
  EXPECT_EQ(RecordOffset<&CalenDefinition::reserved2>() + 11680, 12633);  // ruleParameters
  EXPECT_EQ(RecordOffset<&CalenDefinition::reserved3>(), 12633 + 730);
  EXPECT_EQ(RecordOffset<&CalenDefinition::colour1>(), 26138);
  EXPECT_EQ(RecordOffset<&CalenDefinition::colour2>(), 26141);
  EXPECT_EQ(RecordOffset<&CalenDefinition::design>(), 26144);
  EXPECT_EQ(RecordOffset<&CalenDefinition::figureSet1>(), 26208);  // the font is the 60 bytes before
  EXPECT_EQ(RecordOffset<&CalenDefinition::figureSet2>(), 26210);
  EXPECT_EQ(RecordOffset<&CalenDefinition::tickerPause>(), 26227);
  EXPECT_EQ(RecordOffset<&CalenDefinition::tickerSpeed>(), 26228);
  EXPECT_EQ(RecordOffset<&CalenDefinition::tickerFlags>(), 26229);
  EXPECT_EQ(RecordOffset<&CalenDefinition::tickerPlace>(), 26230);
  EXPECT_EQ(RecordOffset<&CalenDefinition::tickerColour>(), 26234);
  EXPECT_EQ(RecordOffset<&CalenDefinition::stickers>(), 26301);
  EXPECT_EQ(RecordOffset<&CalenDefinition::english>(), 26688);
  EXPECT_EQ(RecordOffset<&CalenStickerList::charas>(), 2);
  EXPECT_EQ(RecordOffset<&CalenStickerList::figures>(), 202);
}

// In the file the head stands behind a magic of 22 bytes.
TEST(CalendarRecords, TheHeadHasItsFieldsInTheirPlaces) {
  EXPECT_EQ(22 + RecordOffset<&CalenHead::count>(), 22);
  EXPECT_EQ(22 + RecordOffset<&CalenHead::names>(), 26);
  EXPECT_EQ(22 + RecordOffset<&CalenHead::kinds>(), 3896);
  EXPECT_EQ(22 + RecordOffset<&CalenHead::parts>(), 3926);
  EXPECT_EQ(22 + RecordOffset<&CalenHead::pictures>(), 3956);
}
