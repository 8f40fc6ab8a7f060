// What a new data set holds.
#include "character/character_settings.h"
#include "character/notice_window.h"
#include "clock_calendar/calendar/calendar_settings.h"
#include "clock_calendar/clock/clock_settings.h"
#include "platform/time.h"
#include "schedule/model/schedule_settings.h"
#include "services/screen_figures.h"
#include "services/today.h"
#include "shell/settings.h"

FactoryState Factory;

namespace {

void TodayTake() {
  LocalTime now;
  TimeGetLocal(&now);
  TodaySet(now);
}

}  // namespace

void SetFactorySettings() {
  CharacterSettingsFactory();
  ClockSettingsFactory();
  TodayTake();
  CalendarSettingsFactory();
  ScheduleSettingsFactory();
  NoticePlaceDefault();
  Factory.FactorySpareValue = 10;
  Factory.FactoryKeptValue = 2;
}

void SetDateDefaults() {
  ScreenSizeTake();
  TodayTake();
  CalendarYearsBegin(Today.TodayYear);
  NoticePlaceDefault();
}
