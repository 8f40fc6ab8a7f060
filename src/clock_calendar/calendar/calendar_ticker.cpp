// The ticker: a strip of text that runs over the calendar's page.
#include <cstring>

#include "clock_calendar/calendar/calendar.h"

namespace {

int PauseOf(int code) {
  if (code >= 1 && code <= 9) return code + 1;
  switch (code) {
    case 10:
      return 15;
    case 11:
      return 30;
    case 12:
      return 60;
    case 13:
      return 120;
    default:
      return 1;
  }
}

}  // namespace

void CalenTickerSetup() {
  const CalenDefinition& definition = CalenSelectedDefinition();
  const unsigned flags = definition.tickerFlags;
  Calendar.CalenTickerOn = (flags & kTickerOn) != 0;
  Calendar.CalenTickerReach = (flags & kTickerWeek) != 0 ? kDaysOfWeek : 1;
  Calendar.CalenTickerStep = definition.tickerSpeed + 1;
  Calendar.CalenTickerPause = PauseOf(definition.tickerPause);
  Calendar.CalenTickerPlace = definition.tickerPlace;
  std::memcpy(Calendar.CalenTickerColour, definition.tickerColour, sizeof Calendar.CalenTickerColour);
}
