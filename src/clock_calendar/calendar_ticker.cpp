// The ticker: a strip of text that runs over the calendar's page.
#include <cstring>

#include "clock_calendar/calendar.h"

bool CalenTickerOn;
std::int32_t CalenTickerReach;
std::int32_t CalenTickerStep;
std::int32_t CalenTickerPause;
unsigned char CalenTickerColour[3];
std::int32_t CalenTickerPlace;

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
  CalenTickerOn = (flags & kTickerOn) != 0;
  CalenTickerReach = (flags & kTickerWeek) != 0 ? kDaysOfWeek : 1;
  CalenTickerStep = definition[kDefinitionTickerSpeed] + 1;
  CalenTickerPause = PauseOf(definition[kDefinitionTickerPause]);
  CalenTickerPlace = definition[kDefinitionTickerPlace];
  std::memcpy(CalenTickerColour, definition + kDefinitionTickerColour, sizeof CalenTickerColour);
}
