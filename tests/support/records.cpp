#include "tests/support/records.h"

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "schedule/model/schedule.h"
#include "services/data_file.h"
#include "services/random.h"
#include "services/screen_figures.h"
#include "services/today.h"
#include "shell/settings.h"
#include "world/world_list.h"

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
  ZeroAll(Character.CharaIndex, Character.MenuFrame, Character.BlinkFrame, Character.Bored1Frames,
          Character.Bored2Frames, Character.BoredDelaySel, Character.BoredSpeedSel, Character.BoredRepeatSel,
          Character.BlinkSpeedSel, Character.StageX, Character.StageY, Character.AlarmCharaSel,
          Character.CharaSet);
  ZeroAll(CharaTables.MainCharaCount, CharaTables.MainCharas, CharaTables.AlarmCharaCount,
          CharaTables.AlarmCharas, CharaTables.WalkCharaCount, CharaTables.WalkCharas, CharaTables.WalkFlags,
          CharaTables.ClockDesignCount, CharaTables.ClockDesigns);
}

void ClearClock() {
  ZeroAll(Clock.ClockStrikeMode, Clock.ClockStrikeSel, Clock.ClockSoundOn, Clock.ClockSoundName,
          Clock.ClockShow, Clock.ClockX, Clock.ClockY, Clock.ClockReserved, Clock.ClockShowWanted,
          Clock.ClockEvents, Clock.ClockPerformanceCount, Clock.ClockPerformances, Clock.ClockListCount,
          Clock.ClockList);
  // Another number first, so that the activation empties what is in force.
  Clock.ClockDesign = 0;
  Clock.ClockWanted = kClockNone;
  ClockActivate();
  ZeroAll(Clock.ClockHour, Clock.ClockHour12, Clock.ClockMinute);
  ClockStrikeClear();
  Clock.ClockAlarmSlot = -1;
  ClockAlarmCheckReset();
  ClockAlarmForget();
}

void ClearCalendars() {
  ZeroAll(Calendar.CalenStickers, Calendar.CalenCount, Calendar.CalenNames, Calendar.CalenKinds,
          Calendar.CalenParts, Calendar.CalenPictures, Calendar.CalenSheets, Calendar.CalenSheetFlags,
          Calendar.CalenDefinitions);
  ZeroAll(Calendar.CalenSel, Calendar.CalenMonths, Calendar.CalenMonthFlags, Calendar.CalenYears,
          Calendar.CalenShow, Calendar.CalenYearPos, Calendar.CalenFirstYear, Calendar.CalenYearCount,
          Calendar.CalenKind, Calendar.CalenX, Calendar.CalenY, Calendar.CalenPageSize,
          Calendar.CalenNoteMode, Calendar.CalenNearNote, Calendar.CalenPictureOn, Calendar.CalenBackColour,
          Calendar.CalenW, Calendar.CalenH);
  ZeroAll(Calendar.CalenFigPhase, Calendar.CalenFigCount, Calendar.CalenFigPos1, Calendar.CalenFigPos2,
          Calendar.CalenFigPeriod, Calendar.CalenFigStep, Calendar.CalenFigTurn, Calendar.CalenFigDir);
}

}  // namespace

void ClearRecords() {
  ClearCharacters();
  ClearClock();
  ClearCalendars();
  ZeroAll(Schedule.DefaultSclName, Schedule.PlanTitles);
  ZeroAll(World.WorldCharaCount, World.WorldCharas, World.WorldFigureCount, World.WorldFigures);
  ZeroAll(Today.TodayYear, Today.TodayMonth, Today.TodayDay, NoticePlace.NoticeX, NoticePlace.NoticeY,
          NoticePlace.NoticeW, NoticePlace.NoticeH, Screen.ScreenWidth, Screen.ScreenHeight);
  ZeroAll(Factory.FactorySpareValue, Factory.FactoryKeptValue);
  FileResult.FileStatus = 0;
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
