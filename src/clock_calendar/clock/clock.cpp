#include "clock_calendar/clock/clock.h"

ClockState Clock;

void ClockPlaceSet(std::int32_t x, std::int32_t y) {
  Clock.ClockX = x;
  Clock.ClockY = y;
}

void ClockListCountSet(std::int32_t count) {
  Clock.ClockListCount = count;
}
