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
  const unsigned char* definition = CalenDefinition();
  const unsigned flags = definition[kDefinitionTickerFlags];
  Calendar.CalenTickerOn = (flags & kTickerOn) != 0;
  Calendar.CalenTickerReach = (flags & kTickerWeek) != 0 ? kDaysOfWeek : 1;
  Calendar.CalenTickerStep = definition[kDefinitionTickerSpeed] + 1;
  Calendar.CalenTickerPause = PauseOf(definition[kDefinitionTickerPause]);
  Calendar.CalenTickerPlace = definition[kDefinitionTickerPlace];
  std::memcpy(Calendar.CalenTickerColour, definition + kDefinitionTickerColour,
              sizeof Calendar.CalenTickerColour);
}
