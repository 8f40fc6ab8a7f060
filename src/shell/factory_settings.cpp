// What a new data set holds.
#include <cstring>
#include <iterator>

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/screen.h"
#include "platform/time.h"
#include "schedule/model/schedule.h"
#include "services/screen_figures.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/settings.h"

FactoryState Factory;

namespace {

constexpr int kMainCharas = 4;
constexpr std::int32_t kAlarmNumbers[] = {6, 8, 9};
constexpr std::int32_t kAlarmSelections[kAlarmRowCount] = {1, 1, 0};
constexpr int kFirstWalkNumber = 10;
constexpr const char* kWalkSounds[] = {"旗印.wav", "foot1.wav", "foot2.wav", "ringout.wav"};

// The four designs, drawn on characters 15 to 18: where their dial is, and the
// hands that fit it. The last one is a display that letters shine in.
constexpr int kFirstClockNumber = 15;
struct FactoryDesign {
  std::uint8_t hand;
  std::uint16_t hourLength;
  std::uint16_t minuteLength;
  Point centre;
  unsigned char handColour[3];
  unsigned char faceColour[3];
  const char* sound;
};
constexpr FactoryDesign kDesigns[] = {
    {kHandDiamond, 27, 41, {72, 72}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "kan.wav"},
    {kHandDot, 15, 23, {70, 108}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "kan.wav"},
    {kHandBar, 16, 24, {68, 95}, {0x2A, 0x20, 0x36}, {0xFF, 0xF8, 0xE6}, "po2.wav"},
    {kHandAmPm, 0, 0, {25, 26}, {0xFF, 0xE0, 0x80}, {0x1D, 0x24, 0x33}, "nya.wav"},
};
// Every hour the seven frames behind the dial's own run through, ten ticks each.
constexpr std::uint16_t kStrikeTicks = 10;
constexpr int kFirstStrikeFrame = 2;

void SetCharacters() {
  CharaTables.MainCharaCount = kMainCharas;
  for (int i = 0; i < kMainCharas; ++i) CharaTables.MainCharas[i].charaNo = static_cast<std::uint16_t>(i + 1);
  Character.CharaIndex = 0;
  Character.StageX = 500;
  Character.StageY = 300;
  CharaTables.AlarmCharaCount = static_cast<std::int32_t>(std::size(kAlarmNumbers));
  std::memcpy(CharaTables.AlarmCharas, kAlarmNumbers, sizeof kAlarmNumbers);
  std::memcpy(Character.AlarmCharaSel, kAlarmSelections, sizeof kAlarmSelections);

  CharaSetRecord& set = Character.CharaSet;
  set = CharaSetRecord{};
  set.CharaNo = static_cast<std::uint16_t>(Character.CharaIndex + 1);
  set.MotionE[0] = 5;
  set.WalkRow[0] = 1;
  set.WalkUse[0] = kWalkUseOpen | kWalkUseMail;
  int x = 0;
  int y = 0;
  WalkStartPlace(set.WalkStartPoint, &x, &y);
  set.WalkStartX[0] = static_cast<std::uint16_t>(x);
  set.WalkStartY[0] = static_cast<std::uint16_t>(y);
  set.WalkStepX[0] = -14;
  set.WalkStepY[0] = -12;
  set.WalkPeriod[0] = 3;
  set.WalkCount[0] = 49;
  set.EndWait[0] = 30;
  set.WalkFrames[0][0] = 1;
  set.WalkFrames[0][1] = 2;
  set.EndFrames[0][0] = 3;

  CharaTables.WalkCharaCount = static_cast<std::int32_t>(std::size(kWalkSounds));
  for (int i = 0; i < CharaTables.WalkCharaCount; ++i) {
    CharaTables.WalkCharas[i].number = static_cast<std::uint16_t>(kFirstWalkNumber + i);
    TextCopy(CharaTables.WalkCharas[i].sound, sizeof CharaTables.WalkCharas[i].sound, kWalkSounds[i]);
    CharaTables.WalkFlags[i] = 0;
  }
}

void SetDesign(ClockDesignRecord& record, const FactoryDesign& design) {
  record.hand = design.hand;
  record.repeat = 1;
  record.strikeMode = kStrikeEveryHour;
  record.soundOn = 1;
  record.hourLength = design.hourLength;
  record.minuteLength = design.minuteLength;
  record.centreX = static_cast<std::int16_t>(design.centre.x);
  record.centreY = static_cast<std::int16_t>(design.centre.y);
  std::memcpy(record.handColour, design.handColour, sizeof record.handColour);
  std::memcpy(record.faceColour, design.faceColour, sizeof record.faceColour);
  for (int step = 0; step < kStrikeSteps; ++step) {
    record.strikeDelay[step] = kStrikeTicks;
    for (auto& hour : record.hourFigures) hour[step] = static_cast<std::uint8_t>(kFirstStrikeFrame + step);
  }
  TextCopy(record.sound, kDesignSoundSize, design.sound);
}

void SetClock() {
  CharaTables.ClockDesignCount = static_cast<std::int32_t>(std::size(kDesigns));
  for (ClockDesignRow& row : CharaTables.ClockDesigns) row.record = ClockDesignRecord{};
  for (int i = 0; i < CharaTables.ClockDesignCount; ++i) {
    CharaTables.ClockDesigns[i].number = static_cast<std::uint16_t>(kFirstClockNumber + i);
    SetDesign(CharaTables.ClockDesigns[i].record, kDesigns[i]);
  }
  Clock.ClockDesign = kClockNone;
  Clock.ClockWanted = 0;
  Clock.ClockStrikeMode = kStrikeEveryHour;
  Clock.ClockSoundOn = 1;
  Clock.ClockSoundName[0] = '\0';
  Clock.ClockShow = 0;
  Clock.ClockX = 700;
  Clock.ClockY = 20;
}

void SetCalendar() {
  Calendar.CalenSel = 0;
  CalenNameDefaults();
  Calendar.CalenYearCount = 1;
  Calendar.CalenX = 700;
  Calendar.CalenY = 10;
  Calendar.CalenW = 200;
  Calendar.CalenH = 220;
  Calendar.CalenPageSize = 1;
  Calendar.CalenNoteMode = 1;
  Calendar.CalenNearNote = 1;
  std::memset(Calendar.CalenPictures, 0, sizeof Calendar.CalenPictures);
  Calendar.CalenPictures[0] = 1;
}

void SetNoticeRectangle() {
  NoticePlace.NoticeX = 400;
  NoticePlace.NoticeY = 100;
  NoticePlace.NoticeW = 480;
  NoticePlace.NoticeH = 300;
}

void SetToday() {
  LocalTime now;
  TimeGetLocal(&now);
  Today.TodayYear = now.year - 2000;
  Today.TodayMonth = now.month - 1;
  Today.TodayDay = now.day - 1;
}

}  // namespace

void SetFactorySettings() {
  SetCharacters();
  SetClock();
  SetToday();
  SetCalendar();
  Factory.FactorySpareValue = 10;
  Schedule.DefaultSclName[0] = '\0';
  SetNoticeRectangle();
  Factory.FactoryKeptValue = 2;
  TextCopy(Schedule.PlanTitles[0], kPlanTitleSize, "マイ トレーナー");
  TextCopy(Schedule.PlanTitles[1], kPlanTitleSize, "マイ マネージャー");
}

void SetDateDefaults() {
  Screen.ScreenWidth = ScreenMetric(Metric::FullScreenWidth);
  Screen.ScreenHeight = ScreenMetric(Metric::FullScreenHeight);
  SetToday();
  CalenYearsSet(Today.TodayYear);
  if (Calendar.CalenYearCount == 0) {
    Calendar.CalenYearCount = 1;
    CalenYearInit(0);
  }
  SetNoticeRectangle();
}
