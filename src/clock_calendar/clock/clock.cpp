#include "clock_calendar/clock/clock.h"

#include <algorithm>

#include "services/text.h"

ClockState Clock;
ClockHandsState ClockHands;
PerformanceTableState PerformanceTable;

void ClockPlaceSet(std::int32_t x, std::int32_t y) {
  Clock.ClockX = x;
  Clock.ClockY = y;
}

void ClockListCountSet(std::int32_t count) {
  Clock.ClockListCount = count;
}

void ClockWantedSet(bool show, int design) {
  Clock.ClockShowWanted = show ? 1 : 0;
  Clock.ClockWanted = design;
}

void ClockWantedTake() {
  Clock.ClockShow = Clock.ClockShowWanted;
  ClockActivate();
}

void ClockWantedDrop() {
  Clock.ClockShowWanted = Clock.ClockShow;
  Clock.ClockWanted = Clock.ClockDesign;
}

ClockStrikeSettings ClockStrikeSettingsNow() {
  ClockStrikeSettings settings{Clock.ClockStrikeMode, Clock.ClockStrikeSel, Clock.ClockSoundOn, {}};
  TextCopy(settings.sound, sizeof settings.sound, Clock.ClockSoundName);
  return settings;
}

void ClockStrikeSettingsSet(const ClockStrikeSettings& settings) {
  Clock.ClockStrikeMode = settings.mode;
  Clock.ClockStrikeSel = settings.repeat;
  Clock.ClockSoundOn = settings.soundOn;
  std::fill_n(Clock.ClockSoundName, sizeof Clock.ClockSoundName, '\0');
  TextCopy(Clock.ClockSoundName, sizeof Clock.ClockSoundName, settings.sound);
}

void ClockAlarmsSet(const AlarmSlot (&slots)[kAlarmSlotCount]) {
  std::copy_n(slots, kAlarmSlotCount, Clock.ClockEvents);
  Clock.firedLast = -1;
}
