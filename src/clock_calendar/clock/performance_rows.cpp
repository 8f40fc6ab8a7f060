#include "clock_calendar/clock/performance_rows.h"

#include "clock_calendar/clock/clock.h"
#include "services/text.h"

void PerformanceTitle(int place, char* text, int size) {
  const int number = PerformanceAt(place);
  const char* title = number == 0 ? "" : PerformanceTable.ClockPerformances[number - 1].title;
  TextCopy(text, static_cast<std::size_t>(size), title);
}
