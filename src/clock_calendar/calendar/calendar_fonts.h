// The fonts of the calendar's page.
#pragma once

#include "clock_calendar/calendar/calendar_records.h"
#include "platform/canvas.h"

struct CalendarFontsState {
  FontHandle page = nullptr;   // of the selected calendar's definition
  FontHandle small = nullptr;  // 6 wide and 8 high
  CalenFont pageIs = {};       // what `page` was made from
};
extern CalendarFontsState CalendarFonts;

// The font of the page's text: the definition's, or the small one for a definition
// without.
FontHandle CalenPageFont();
int CalenPageLineHeight();
FontHandle CalenSmallFont();
inline constexpr int kCalenSmallLine = 10;  // 8 * 1.14 + 1
