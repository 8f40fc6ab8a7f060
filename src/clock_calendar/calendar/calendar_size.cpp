#include "clock_calendar/calendar/calendar_size.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"

namespace {

// kept: the first of the calendar's page sizes, which the list calls " 大", is the smallest.
enum PageSize { kSmallest = 0, kLargest = 2 };

constexpr int kTextRows = 8;  // the head, the weekdays, six weeks
constexpr int kTextMargin = 24;

int TextHeight() {
  return kTextRows * CalenPageMeasure().row + kTextMargin;
}

}  // namespace

CalenMeasure CalenPageMeasure() {
  if (Calendar.CalenPageSize == kSmallest) return {21, 150, 12};
  if (Calendar.CalenPageSize == kLargest) return {35, 250, 20};
  return {28, 200, 16};
}

CalenLeaf CalenDayLeaf() {
  if (Calendar.CalenPageSize == kSmallest) return {21, 150, 12, 57, 14};
  if (Calendar.CalenPageSize == kLargest) return {35, 250, 20, 90, 14};
  return {24, 200, 16, 80, CalenSelectedDefinition().english != 0 ? 14 : 1};
}

int CalenPageHeight() {
  return CalenPictureHeight() + TextHeight();
}

int CalenLayoutWidth() {
  return Calendar.CalenW > 0 ? Calendar.CalenW : CalenPageMeasure().pageWidth;
}

int CalenLayoutHeight() {
  return Calendar.CalenH > 0 ? Calendar.CalenH : CalenPageHeight() + kCalenBelowPage;
}
