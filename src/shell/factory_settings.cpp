// What a new data set holds.
#include <cstring>
#include <iterator>

#include "character/character_tables.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "platform/screen.h"
#include "platform/time.h"
#include "schedule/schedule.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "shell/text.h"

std::int32_t FactorySpareValue;
std::int32_t FactoryKeptValue;

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
  int hand;
  int hourLength;
  int minuteLength;
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
  MainCharaCount = kMainCharas;
  for (int i = 0; i < kMainCharas; ++i) MainCharas[i].charaNo = static_cast<std::uint16_t>(i + 1);
  CharaIndex = 0;
  StageX = 500;
  StageY = 300;
  AlarmCharaCount = static_cast<std::int32_t>(std::size(kAlarmNumbers));
  std::memcpy(AlarmCharas, kAlarmNumbers, sizeof kAlarmNumbers);
  std::memcpy(AlarmCharaSel, kAlarmSelections, sizeof kAlarmSelections);

  std::memset(CharaSet, 0, kCharaSetSize);
  SetCharaSetNo(CharaSet, CharaIndex + 1);
  CharaSet[kCharaSetMotionE] = 5;
  SetWalkRow(CharaSet, 0, 1);
  SetWalkUse(CharaSet, 0, kWalkUseOpen | kWalkUseMail);
  int x = 0;
  int y = 0;
  WalkStartPlace(WalkStartPoint(CharaSet), &x, &y);
  SetWalkStart(CharaSet, 0, x, y);
  SetWalkStep(CharaSet, 0, -14, -12);
  SetWalkPeriod(CharaSet, 0, 3);
  SetWalkCount(CharaSet, 0, 49);
  SetEndWait(CharaSet, 0, 30);
  SetWalkFrames(CharaSet, 0, 0, 1);
  SetWalkFrames(CharaSet, 0, 1, 2);
  SetEndFrames(CharaSet, 0, 0, 3);

  WalkCharaCount = static_cast<std::int32_t>(std::size(kWalkSounds));
  for (int i = 0; i < WalkCharaCount; ++i) {
    WalkCharas[i].number = static_cast<std::uint16_t>(kFirstWalkNumber + i);
    TextCopy(WalkCharas[i].sound, sizeof WalkCharas[i].sound, kWalkSounds[i]);
    WalkFlags[i] = 0;
  }
}

void SetClock() {
  ClockDesignCount = static_cast<std::int32_t>(std::size(kDesigns));
  for (ClockDesignRow& row : ClockDesigns) std::memset(row.record, 0, sizeof row.record);
  for (int i = 0; i < ClockDesignCount; ++i) {
    const FactoryDesign& design = kDesigns[i];
    ClockDesignFields fields{};
    fields.hand = design.hand;
    fields.repeat = true;
    fields.strikeMode = kStrikeEveryHour;
    fields.soundOn = true;
    fields.hourLength = design.hourLength;
    fields.minuteLength = design.minuteLength;
    fields.centreX = design.centre.x;
    fields.centreY = design.centre.y;
    std::memcpy(fields.handColour, design.handColour, sizeof fields.handColour);
    std::memcpy(fields.faceColour, design.faceColour, sizeof fields.faceColour);
    for (int step = 0; step < kStrikeSteps; ++step) {
      fields.strikeDelay[step] = kStrikeTicks;
      for (unsigned char(&hour)[kStrikeSteps] : fields.hourFigures) {
        hour[step] = static_cast<unsigned char>(kFirstStrikeFrame + step);
      }
    }
    TextCopy(fields.sound, sizeof fields.sound, design.sound);
    ClockDesigns[i].number = static_cast<std::uint16_t>(kFirstClockNumber + i);
    ClockDesignPut(ClockDesigns[i].record, fields);
  }
  ClockDesign = kClockNone;
  ClockWanted = 0;
  ClockStrikeMode = kStrikeEveryHour;
  ClockSoundOn = 1;
  ClockSoundName[0] = '\0';
  ClockShow = 0;
  ClockX = 700;
  ClockY = 20;
}

void SetCalendar() {
  CalenSel = 0;
  CalenNameDefaults();
  CalenYearCount = 1;
  CalenX = 700;
  CalenY = 10;
  CalenW = 200;
  CalenH = 220;
  CalenPageSize = 1;
  CalenNoteMode = 1;
  CalenNearNote = 1;
  std::memset(CalenPictures, 0, sizeof CalenPictures);
  CalenPictures[0] = 1;
}

void SetNoticeRectangle() {
  NoticeX = 400;
  NoticeY = 100;
  NoticeW = 480;
  NoticeH = 300;
}

void SetToday() {
  LocalTime now;
  TimeGetLocal(&now);
  TodayYear = now.year - 2000;
  TodayMonth = now.month - 1;
  TodayDay = now.day - 1;
}

}  // namespace

void SetFactorySettings() {
  SetCharacters();
  SetClock();
  SetToday();
  SetCalendar();
  FactorySpareValue = 10;
  DefaultSclName[0] = '\0';
  SetNoticeRectangle();
  FactoryKeptValue = 2;
  TextCopy(PlanTitles[0], kPlanTitleSize, "マイ トレーナー");
  TextCopy(PlanTitles[1], kPlanTitleSize, "マイ マネージャー");
}

void SetDateDefaults() {
  ScreenWidth = ScreenMetric(Metric::FullScreenWidth);
  ScreenHeight = ScreenMetric(Metric::FullScreenHeight);
  SetToday();
  CalenYearsSet(TodayYear);
  if (CalenYearCount == 0) {
    CalenYearCount = 1;
    CalenYearInit(0);
  }
  SetNoticeRectangle();
}
