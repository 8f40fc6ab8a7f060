#include "tests/support/records.h"

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "scenario/world_list.h"
#include "schedule/schedule.h"
#include "shell/data_file.h"
#include "shell/random.h"
#include "shell/settings.h"
#include "shell/shell.h"

namespace {

template <typename T>
void Zero(T& value) {
  std::memset(static_cast<void*>(&value), 0, sizeof value);
}

template <typename... T>
void ZeroAll(T&... values) {
  (Zero(values), ...);
}

void ClearCharacters() {
  ZeroAll(CharaIndex, MenuFrame, BlinkFrame, Bored1Frames, Bored2Frames, BoredDelaySel, BoredSpeedSel,
          BoredRepeatSel, BlinkSpeedSel, StageX, StageY, AlarmCharaSel, CharaSet);
  ZeroAll(MainCharaCount, MainCharas, AlarmCharaCount, AlarmCharas, WalkCharaCount, WalkCharas, WalkFlags,
          ClockDesignCount, ClockDesigns);
}

void ClearClock() {
  ZeroAll(ClockStrikeMode, ClockStrikeSel, ClockSoundOn, ClockSoundName, ClockShow, ClockX, ClockY,
          ClockReserved, ClockShowWanted, ClockEvents, ClockPerformanceCount, ClockPerformances,
          ClockListCount, ClockList);
  // Another number first, so that the activation empties what is in force.
  ClockDesign = 0;
  ClockWanted = kClockNone;
  ClockActivate();
  ZeroAll(ClockHour, ClockHour12, ClockMinute);
  ClockStrikeClear();
  ClockAlarmSlot = -1;
  ClockAlarmCheckReset();
  ClockAlarmForget();
}

void ClearCalendars() {
  ZeroAll(CalenStickers, CalenCount, CalenNames, CalenKinds, CalenParts, CalenPictures, CalenSheets,
          CalenSheetFlags, CalenDefinitions);
  ZeroAll(CalenSel, CalenMonths, CalenMonthFlags, CalenYears, CalenShow, CalenYearPos, CalenFirstYear,
          CalenYearCount, CalenKind, CalenX, CalenY, CalenPageSize, CalenNoteMode, CalenNearNote,
          CalenPictureOn, CalenBackColour, CalenW, CalenH);
  ZeroAll(CalenFigPhase, CalenFigCount, CalenFigPos1, CalenFigPos2, CalenFigPeriod, CalenFigStep,
          CalenFigTurn, CalenFigDir);
}

}  // namespace

void ClearRecords() {
  ClearCharacters();
  ClearClock();
  ClearCalendars();
  ZeroAll(DefaultSclName, PlanTitles);
  ZeroAll(WorldCharaCount, WorldCharas, WorldFigureCount, WorldFigures);
  ZeroAll(TodayYear, TodayMonth, TodayDay, NoticeX, NoticeY, NoticeW, NoticeH, ScreenWidth, ScreenHeight);
  ZeroAll(FactorySpareValue, FactoryKeptValue);
  FileStatus = 0;
  RandomSeed(1);
}

void RecordsTest::SetUp() {
  DesktopTest::SetUp();
  ClearRecords();
}

void RecordsTest::TearDown() {
  ClearRecords();
  DesktopTest::TearDown();
}
