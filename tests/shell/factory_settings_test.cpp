#include <gtest/gtest.h>

#include <cstring>

#include "character/character_tables.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "platform/posix/test_clock.h"
#include "schedule/schedule.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "shell/text.h"
#include "tests/support/records.h"

namespace {

class FactorySettingsTest : public RecordsTest {};

TEST_F(FactorySettingsTest, FourMainCharactersStandReadyWithTheFirstOneAt500And300) {
  CharaIndex = 3;
  SetFactorySettings();
  EXPECT_EQ(MainCharaCount, 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(MainCharas[i].charaNo, i + 1);
  EXPECT_EQ(CharaIndex, 0);
  EXPECT_EQ(StageX, 500);
  EXPECT_EQ(StageY, 300);
}

TEST_F(FactorySettingsTest, ThreeAlarmCharactersAndTheirSelections) {
  SetFactorySettings();
  EXPECT_EQ(AlarmCharaCount, 3);
  EXPECT_EQ(AlarmCharas[0], 6);
  EXPECT_EQ(AlarmCharas[1], 8);
  EXPECT_EQ(AlarmCharas[2], 9);
  EXPECT_EQ(AlarmCharaSel[0], 1);
  EXPECT_EQ(AlarmCharaSel[1], 1);
  EXPECT_EQ(AlarmCharaSel[2], 0);
}

TEST_F(FactorySettingsTest, TheCharacterRecordWalksFromTheScreensCorner) {
  std::memset(CharaSet, 0xAA, sizeof CharaSet);
  ScreenWidth = 1024;
  ScreenHeight = 768;
  SetFactorySettings();
  EXPECT_EQ(CharaSetNo(CharaSet), 1);
  EXPECT_EQ(CharaSet[54], 5);
  EXPECT_EQ(WalkRow(CharaSet), 1);
  EXPECT_EQ(WalkUse(CharaSet), 3);
  EXPECT_EQ(WalkStartPoint(CharaSet), 0);
  EXPECT_EQ(WalkStartX(CharaSet), 1024);
  EXPECT_EQ(WalkStartY(CharaSet), 768);
  EXPECT_EQ(WalkStepX(CharaSet), -14);
  EXPECT_EQ(WalkStepY(CharaSet), -12);
  EXPECT_EQ(WalkPeriod(CharaSet), 3);
  EXPECT_EQ(WalkCount(CharaSet), 49);
  EXPECT_EQ(EndWait(CharaSet), 30);
  EXPECT_EQ(WalkFrames(CharaSet, 0, 0), 1);
  EXPECT_EQ(WalkFrames(CharaSet, 0, 1), 2);
  EXPECT_EQ(WalkFrames(CharaSet, 0, 2), 0);
  EXPECT_EQ(EndFrames(CharaSet, 0, 0), 3);
  EXPECT_EQ(EndFrames(CharaSet, 0, 1), 0);
  // All else is zero, by the record's own offsets.
  unsigned char expected[676] = {};
  expected[0] = 1;
  expected[54] = 5;
  expected[324] = 1;
  expected[344] = 3;
  expected[355] = 4;  // 1024
  expected[375] = 3;  // 768
  std::memset(expected + 396, 0xFF, 4);
  expected[396] = 0xF2;  // -14
  std::memset(expected + 436, 0xFF, 4);
  expected[436] = 0xF4;  // -12
  expected[476] = 3;
  expected[496] = 49;
  expected[516] = 1;
  expected[517] = 2;
  expected[566] = 3;
  expected[616] = 30;
  EXPECT_EQ(std::memcmp(CharaSet, expected, sizeof expected), 0);
}

TEST_F(FactorySettingsTest, FourWalkingCharactersWithTheirSoundsAndNoFlags) {
  std::memset(WalkFlags, 7, sizeof WalkFlags);
  SetFactorySettings();
  EXPECT_EQ(WalkCharaCount, 4);
  const char* const kSounds[] = {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(WalkCharas[i].number, 10 + i);
    EXPECT_STREQ(WalkCharas[i].sound, kSounds[i]);
    EXPECT_EQ(WalkFlags[i], 0);
  }
}

TEST_F(FactorySettingsTest, FourClockDesignsOnCharacters15To18AndNoOther) {
  std::memset(ClockDesigns[30].record, 9, kClockDesignSize);
  SetFactorySettings();
  EXPECT_EQ(ClockDesignCount, 4);
  const char* const kSounds[] = {"kan.wav", "kan.wav", "po2.wav", "nya.wav"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(ClockDesigns[i].number, 15 + i);
    const ClockDesignFields design = ClockDesignGet(ClockDesigns[i].record);
    EXPECT_STREQ(design.sound, kSounds[i]);
    EXPECT_GE(design.hand, 0);
    EXPECT_LE(design.hand, 7);
  }
  for (int i = 4; i < kClockDesignMax; ++i) {
    for (const unsigned char byte : ClockDesigns[i].record) ASSERT_EQ(byte, 0) << i;
  }
}

TEST_F(FactorySettingsTest, NoClockIsSelectedAndTheFirstOneWanted) {
  ClockShow = 1;
  TextCopy(ClockSoundName, sizeof ClockSoundName, "x.wav");
  ClockDesign = 2;
  SetFactorySettings();
  EXPECT_EQ(ClockDesign, 255);
  EXPECT_EQ(ClockWanted, 0);
  EXPECT_EQ(ClockStrikeMode, 1);
  EXPECT_EQ(ClockSoundOn, 1);
  EXPECT_STREQ(ClockSoundName, "");
  EXPECT_EQ(ClockShow, 0);
  EXPECT_EQ(ClockX, 700);
  EXPECT_EQ(ClockY, 20);
}

TEST_F(FactorySettingsTest, CalendarNamesAreSetWhereASlotIsEmpty) {
  TextCopy(CalenNames[1], kCalenNameSize, "mine");
  CalenKinds[7] = 2;
  SetFactorySettings();
  const char* const kNames[] = {"月ごとカレンダー",        "mine",
                                "日めくりカレンダー",      "ユーザー設定カレンダー1",
                                "ユーザー設定カレンダー2", "ユーザー設定カレンダー3",
                                "ユーザー設定カレンダー4", "ユーザー設定カレンダー5"};
  const int kKinds[] = {0, 1, 2, 0, 0, 0, 0, 0};
  for (int i = 0; i < 8; ++i) {
    EXPECT_STREQ(CalenNames[i], kNames[i]);
    EXPECT_EQ(CalenKinds[i], kKinds[i]) << i;
  }
  CalenNames[1][0] = '\0';
  SetFactorySettings();
  EXPECT_STREQ(CalenNames[1], "1週間カレンダー(日付縦)");
}

TEST_F(FactorySettingsTest, TheCalendarStandsAt700And10WithTheFirstPictureSwitchOn) {
  CalenSel = 5;
  CalenYearCount = 3;
  std::memset(CalenPictures, 1, sizeof CalenPictures);
  SetFactorySettings();
  EXPECT_EQ(CalenSel, 0);
  EXPECT_EQ(CalenYearCount, 1);
  EXPECT_EQ(CalenX, 700);
  EXPECT_EQ(CalenY, 10);
  EXPECT_EQ(CalenW, 200);
  EXPECT_EQ(CalenH, 220);
  EXPECT_EQ(CalenPageSize, 1);
  EXPECT_EQ(CalenNoteMode, 1);
  EXPECT_EQ(CalenNearNote, 1);
  EXPECT_EQ(CalenPictures[0], 1);
  for (int i = 1; i < kCalenMax; ++i) EXPECT_EQ(CalenPictures[i], 0) << i;
}

TEST_F(FactorySettingsTest, TodayNoticesPlanTitlesAndTheScheduleName) {
  TextCopy(DefaultSclName, sizeof DefaultSclName, "a.GPI");
  SetFactorySettings();
  EXPECT_EQ(TodayYear, 26);
  EXPECT_EQ(TodayMonth, 10);
  EXPECT_EQ(TodayDay, 20);
  EXPECT_STREQ(DefaultSclName, "");
  EXPECT_EQ(NoticeX, 400);
  EXPECT_EQ(NoticeY, 100);
  EXPECT_EQ(NoticeW, 480);
  EXPECT_EQ(NoticeH, 300);
  EXPECT_STREQ(PlanTitles[0], "マイ トレーナー");
  EXPECT_STREQ(PlanTitles[1], "マイ マネージャー");
  EXPECT_EQ(FactorySpareValue, 10);
  EXPECT_EQ(FactoryKeptValue, 2);
}

TEST_F(FactorySettingsTest, DateDefaultsTakeScreenTodayYearsAndNoticeRectangle) {
  SetDateDefaults();
  EXPECT_EQ(ScreenWidth, 1024);
  EXPECT_EQ(ScreenHeight, 768);
  EXPECT_EQ(TodayYear, 26);
  EXPECT_EQ(TodayMonth, 10);
  EXPECT_EQ(TodayDay, 20);
  EXPECT_EQ(CalenFirstYear, 26);
  EXPECT_EQ(CalenYears[0], 26);
  EXPECT_EQ(CalenYears[1], 27);
  EXPECT_EQ(CalenYears[2], 28);
  EXPECT_EQ(NoticeX, 400);
  EXPECT_EQ(NoticeY, 100);
  EXPECT_EQ(NoticeW, 480);
  EXPECT_EQ(NoticeH, 300);
}

TEST_F(FactorySettingsTest, DateDefaultsPut100InPlaceOfYearsOf100OrMore) {
  TestClockSet({2098, 1, 1, 3, 0, 0, 0, 0});
  SetDateDefaults();
  EXPECT_EQ(CalenYears[0], 98);
  EXPECT_EQ(CalenYears[1], 99);
  EXPECT_EQ(CalenYears[2], 100);
  TestClockSet({2099, 1, 1, 4, 0, 0, 0, 0});
  SetDateDefaults();
  EXPECT_EQ(CalenYears[0], 99);
  EXPECT_EQ(CalenYears[1], 100);
  EXPECT_EQ(CalenYears[2], 100);
}

TEST_F(FactorySettingsTest, DateDefaultsBuildTheFirstYearOnlyWhereThereIsNone) {
  SetDateDefaults();
  EXPECT_EQ(CalenYearCount, 1);
  EXPECT_EQ(CalenMonths[0][10][kMonthDays], 30);
  EXPECT_EQ(CalenMonths[0][10][kMonthFirstWeekday], 6);  // 1 November 2026 is a Sunday
  CalenYearCount = 2;
  CalenMonths[0][10][kMonthDays] = 7;
  SetDateDefaults();
  EXPECT_EQ(CalenYearCount, 2);
  EXPECT_EQ(CalenMonths[0][10][kMonthDays], 7);
}

}  // namespace
