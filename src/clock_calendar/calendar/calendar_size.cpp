#include "clock_calendar/calendar/calendar_size.h"

#include "clock_calendar/calendar/calendar.h"

namespace {

// Pages are square; 0, 1 and 2 are the sizes of the settings.
// kept: the first of the calendar's page sizes, which the list calls " 大", is the smallest.
int PageWidth() {
  if (Calendar.CalenPageSize == 0) return 150;
  return Calendar.CalenPageSize == 2 ? 250 : 200;
}
constexpr int kBelowPage = 20;

}  // namespace

int CalenLayoutWidth() {
  return Calendar.CalenW > 0 ? Calendar.CalenW : PageWidth();
}

int CalenLayoutHeight() {
  return Calendar.CalenH > 0 ? Calendar.CalenH : PageWidth() + kBelowPage;
}
