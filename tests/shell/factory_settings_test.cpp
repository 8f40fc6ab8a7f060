#include <gtest/gtest.h>

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/posix/test_clock.h"
#include "schedule/model/schedule.h"
#include "services/screen_figures.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/settings.h"
#include "tests/support/record_check.h"
#include "tests/support/records.h"

namespace {

class FactorySettingsTest : public RecordsTest {};

TEST_F(FactorySettingsTest, FourMainCharactersStandReadyWithTheFirstOneAt500And300) {
  Character.CharaIndex = 3;
  SetFactorySettings();
  EXPECT_EQ(CharaTables.MainCharaCount, 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(CharaTables.MainCharas[i].charaNo, i + 1);
  EXPECT_EQ(Character.CharaIndex, 0);
  EXPECT_EQ(Character.StageX, 500);
  EXPECT_EQ(Character.StageY, 300);
}

TEST_F(FactorySettingsTest, ThreeAlarmCharactersAndTheirSelections) {
  SetFactorySettings();
  EXPECT_EQ(CharaTables.AlarmCharaCount, 3);
  EXPECT_EQ(CharaTables.AlarmCharas[0], 6);
  EXPECT_EQ(CharaTables.AlarmCharas[1], 8);
  EXPECT_EQ(CharaTables.AlarmCharas[2], 9);
  EXPECT_EQ(Character.AlarmCharaSel[0], 1);
  EXPECT_EQ(Character.AlarmCharaSel[1], 1);
  EXPECT_EQ(Character.AlarmCharaSel[2], 0);
}

TEST_F(FactorySettingsTest, TheCharacterRecordWalksFromTheScreensCorner) {
  RecordFill(Character.CharaSet, '\xAA');
  Screen.ScreenWidth = 1024;
  Screen.ScreenHeight = 768;
  SetFactorySettings();
  EXPECT_EQ(Character.CharaSet.CharaNo, 1);
  EXPECT_EQ(Character.CharaSet.MotionE[0], 5);
  EXPECT_EQ(Character.CharaSet.WalkRow[0], 1);
  EXPECT_EQ(Character.CharaSet.WalkUse[0], 3);
  EXPECT_EQ(Character.CharaSet.WalkStartPoint, 0);
  EXPECT_EQ(Character.CharaSet.WalkStartX[0], 1024);
  EXPECT_EQ(Character.CharaSet.WalkStartY[0], 768);
  EXPECT_EQ(Character.CharaSet.WalkStepX[0], -14);
  EXPECT_EQ(Character.CharaSet.WalkStepY[0], -12);
  EXPECT_EQ(Character.CharaSet.WalkPeriod[0], 3);
  EXPECT_EQ(Character.CharaSet.WalkCount[0], 49);
  EXPECT_EQ(Character.CharaSet.EndWait[0], 30);
  EXPECT_EQ(Character.CharaSet.WalkFrames[0][0], 1);
  EXPECT_EQ(Character.CharaSet.WalkFrames[0][1], 2);
  EXPECT_EQ(Character.CharaSet.WalkFrames[0][2], 0);
  EXPECT_EQ(Character.CharaSet.EndFrames[0][0], 3);
  EXPECT_EQ(Character.CharaSet.EndFrames[0][1], 0);
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
  EXPECT_EQ(std::memcmp(RecordBytes(Character.CharaSet).data(), expected, sizeof expected), 0);
}

TEST_F(FactorySettingsTest, FourWalkingCharactersWithTheirSoundsAndNoFlags) {
  std::memset(CharaTables.WalkFlags, 7, sizeof CharaTables.WalkFlags);
  SetFactorySettings();
  EXPECT_EQ(CharaTables.WalkCharaCount, 4);
  const char* const kSounds[] = {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(CharaTables.WalkCharas[i].number, 10 + i);
    EXPECT_STREQ(CharaTables.WalkCharas[i].sound, kSounds[i]);
    EXPECT_EQ(CharaTables.WalkFlags[i], 0);
  }
}

TEST_F(FactorySettingsTest, FourClockDesignsOnCharacters15To18AndNoOther) {
  RecordFill(CharaTables.ClockDesigns[30].record, 9);
  SetFactorySettings();
  EXPECT_EQ(CharaTables.ClockDesignCount, 4);
  const char* const kSounds[] = {"kan.wav", "kan.wav", "po2.wav", "nya.wav"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(CharaTables.ClockDesigns[i].number, 15 + i);
    const ClockDesignRecord& design = CharaTables.ClockDesigns[i].record;
    EXPECT_STREQ(design.sound, kSounds[i]);
    EXPECT_GE(design.hand, 0);
    EXPECT_LE(design.hand, 7);
  }
  for (int i = 4; i < kClockDesignMax; ++i) {
    EXPECT_EQ(RecordBytes(CharaTables.ClockDesigns[i].record), std::string(464, '\0')) << i;
  }
}

TEST_F(FactorySettingsTest, NoClockIsSelectedAndTheFirstOneWanted) {
  Clock.ClockShow = 1;
  TextCopy(Clock.ClockSoundName, sizeof Clock.ClockSoundName, "x.wav");
  Clock.ClockDesign = 2;
  SetFactorySettings();
  EXPECT_EQ(Clock.ClockDesign, 255);
  EXPECT_EQ(Clock.ClockWanted, 0);
  EXPECT_EQ(Clock.ClockStrikeMode, 1);
  EXPECT_EQ(Clock.ClockSoundOn, 1);
  EXPECT_STREQ(Clock.ClockSoundName, "");
  EXPECT_EQ(Clock.ClockShow, 0);
  EXPECT_EQ(Clock.ClockX, 700);
  EXPECT_EQ(Clock.ClockY, 20);
}

TEST_F(FactorySettingsTest, CalendarNamesAreSetWhereASlotIsEmpty) {
  TextCopy(Calendar.CalenNames[1], kCalenNameSize, "mine");
  Calendar.CalenKinds[7] = 2;
  SetFactorySettings();
  const char* const kNames[] = {"月ごとカレンダー",        "mine",
                                "日めくりカレンダー",      "ユーザー設定カレンダー1",
                                "ユーザー設定カレンダー2", "ユーザー設定カレンダー3",
                                "ユーザー設定カレンダー4", "ユーザー設定カレンダー5"};
  const int kKinds[] = {0, 1, 2, 0, 0, 0, 0, 0};
  for (int i = 0; i < 8; ++i) {
    EXPECT_STREQ(Calendar.CalenNames[i], kNames[i]);
    EXPECT_EQ(Calendar.CalenKinds[i], kKinds[i]) << i;
  }
  Calendar.CalenNames[1][0] = '\0';
  SetFactorySettings();
  EXPECT_STREQ(Calendar.CalenNames[1], "1週間カレンダー(日付縦)");
}

TEST_F(FactorySettingsTest, TheCalendarStandsAt700And10WithTheFirstPictureSwitchOn) {
  Calendar.CalenSel = 5;
  Calendar.CalenYearCount = 3;
  std::memset(Calendar.CalenPictures, 1, sizeof Calendar.CalenPictures);
  SetFactorySettings();
  EXPECT_EQ(Calendar.CalenSel, 0);
  EXPECT_EQ(Calendar.CalenYearCount, 1);
  EXPECT_EQ(Calendar.CalenX, 700);
  EXPECT_EQ(Calendar.CalenY, 10);
  EXPECT_EQ(Calendar.CalenW, 200);
  EXPECT_EQ(Calendar.CalenH, 220);
  EXPECT_EQ(Calendar.CalenPageSize, 1);
  EXPECT_EQ(Calendar.CalenNoteMode, 1);
  EXPECT_EQ(Calendar.CalenNearNote, 1);
  EXPECT_EQ(Calendar.CalenPictures[0], 1);
  for (int i = 1; i < kCalenMax; ++i) EXPECT_EQ(Calendar.CalenPictures[i], 0) << i;
}

TEST_F(FactorySettingsTest, TodayNoticesPlanTitlesAndTheScheduleName) {
  TextCopy(Schedule.DefaultSclName, sizeof Schedule.DefaultSclName, "a.GPI");
  SetFactorySettings();
  EXPECT_EQ(Today.TodayYear, 26);
  EXPECT_EQ(Today.TodayMonth, 10);
  EXPECT_EQ(Today.TodayDay, 20);
  EXPECT_STREQ(Schedule.DefaultSclName, "");
  EXPECT_EQ(NoticePlace.NoticeX, 400);
  EXPECT_EQ(NoticePlace.NoticeY, 100);
  EXPECT_EQ(NoticePlace.NoticeW, 480);
  EXPECT_EQ(NoticePlace.NoticeH, 300);
  EXPECT_STREQ(Schedule.PlanTitles[0], "マイ トレーナー");
  EXPECT_STREQ(Schedule.PlanTitles[1], "マイ マネージャー");
  EXPECT_EQ(Factory.FactorySpareValue, 10);
  EXPECT_EQ(Factory.FactoryKeptValue, 2);
}

TEST_F(FactorySettingsTest, DateDefaultsTakeScreenTodayYearsAndNoticeRectangle) {
  SetDateDefaults();
  EXPECT_EQ(Screen.ScreenWidth, 1024);
  EXPECT_EQ(Screen.ScreenHeight, 768);
  EXPECT_EQ(Today.TodayYear, 26);
  EXPECT_EQ(Today.TodayMonth, 10);
  EXPECT_EQ(Today.TodayDay, 20);
  EXPECT_EQ(Calendar.CalenFirstYear, 26);
  EXPECT_EQ(Calendar.CalenYears[0], 26);
  EXPECT_EQ(Calendar.CalenYears[1], 27);
  EXPECT_EQ(Calendar.CalenYears[2], 28);
  EXPECT_EQ(NoticePlace.NoticeX, 400);
  EXPECT_EQ(NoticePlace.NoticeY, 100);
  EXPECT_EQ(NoticePlace.NoticeW, 480);
  EXPECT_EQ(NoticePlace.NoticeH, 300);
}

TEST_F(FactorySettingsTest, DateDefaultsPut100InPlaceOfYearsOf100OrMore) {
  TestClockSet({2098, 1, 1, 3, 0, 0, 0, 0});
  SetDateDefaults();
  EXPECT_EQ(Calendar.CalenYears[0], 98);
  EXPECT_EQ(Calendar.CalenYears[1], 99);
  EXPECT_EQ(Calendar.CalenYears[2], 100);
  TestClockSet({2099, 1, 1, 4, 0, 0, 0, 0});
  SetDateDefaults();
  EXPECT_EQ(Calendar.CalenYears[0], 99);
  EXPECT_EQ(Calendar.CalenYears[1], 100);
  EXPECT_EQ(Calendar.CalenYears[2], 100);
}

TEST_F(FactorySettingsTest, DateDefaultsBuildTheFirstYearOnlyWhereThereIsNone) {
  SetDateDefaults();
  EXPECT_EQ(Calendar.CalenYearCount, 1);
  EXPECT_EQ(Calendar.CalenMonths[0][10].days, 30);
  EXPECT_EQ(Calendar.CalenMonths[0][10].firstWeekday, 6);  // 1 November 2026 is a Sunday
  Calendar.CalenYearCount = 2;
  Calendar.CalenMonths[0][10].days = 7;
  SetDateDefaults();
  EXPECT_EQ(Calendar.CalenYearCount, 2);
  EXPECT_EQ(Calendar.CalenMonths[0][10].days, 7);
}

}  // namespace
