// The ticker: a strip of text that runs over the calendar's page.
#include <cstring>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_memo.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/canvas.h"
#include "platform/window.h"
#include "services/tick_step.h"

namespace {

constexpr int kRestTicks = 2000;

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

void TickerRewind(std::int32_t rests) {
  Calendar.tickerRests = rests;
  Calendar.tickerTicks = 0;
  Calendar.tickerPosition = 0;
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
  TickerRewind(0);
}

void CalenTickerTick() {
  if (!Calendar.CalenTickerOn) return;
  if (Calendar.tickerRests > 0) {
    if (++Calendar.tickerTicks < kRestTicks) return;
    Calendar.tickerTicks = 0;
    --Calendar.tickerRests;
    return;
  }
  ++Calendar.tickerPosition;
  Canvas* canvas = CanvasGet(Calendar.hCalenWnd);
  if (!canvas) return;
  const bool shows = CalenTickerDraw(canvas);
  CanvasRelease(canvas);
  if (shows) return;
  TickerRewind(Calendar.CalenTickerPause);
  SendPaint(Calendar.hCalenWnd);
}

int CalenTickerDue() {
  if (!Calendar.CalenTickerOn) return kTickNever;
  return Calendar.tickerRests > 0 ? kRestTicks - Calendar.tickerTicks : 1;
}
