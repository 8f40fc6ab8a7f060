// The calendar's part of a tick: a new day, a new month on show.
#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "platform/time.h"
#include "services/today.h"

namespace {

void BeginSpanAt(int year) {
  CalenYearsSet(year);
  CalenYearsRebuild();
  Calendar.CalenYearPos = 0;
}

// Puts the month of today on display, and its year if the span has it. False if not.
bool DisplayTodayInSpan() {
  Calendar.CalenMonthPos = std::clamp<std::int32_t>(Today.TodayMonth, 0, kMonthsOfYear - 1);
  const int index = CalenSpanIndex(Today.TodayYear);
  if (index >= 0) Calendar.CalenYearPos = index;
  return index >= 0;
}

void DisplayToday() {
  if (!DisplayTodayInSpan()) BeginSpanAt(Today.TodayYear);
}

void LoadMonth() {
  CalenStickersPrepare();
  CalenPicturesLoad();
}

}  // namespace

void CalenTodayTake() {
  LocalTime now;
  TimeGetLocal(&now);
  TodaySet(now);
  DisplayTodayInSpan();
}

void CalenTakeDefinition() {
  CalenTickerSetup();
  DisplayTodayInSpan();
  LoadMonth();
}

void CalenShowToday() {
  DisplayToday();
  LoadMonth();
}

void CalenPrepareMonth() {
  if (Calendar.CalenYearPos < 0 ||
      Calendar.CalenYearPos >= std::min<std::int32_t>(Calendar.CalenYearCount, kCalenYearMax)) {
    const std::int64_t year = std::int64_t{Calendar.CalenFirstYear} + Calendar.CalenYearPos;
    // bounded: the settings file may hold any place; today is always a year.
    BeginSpanAt(year >= 0 && year <= 99 ? static_cast<int>(year) : Today.TodayYear);
  }
  LoadMonth();
  for (int figure = 0; figure < kFigureCount; ++figure) CalenFigurePlace(figure);
}

int CalenTickCheck() {
  LocalTime now;
  TimeGetLocal(&now);
  const SclDate today = SclDateOf(now);
  const bool otherMonth = today.year != Today.TodayYear || today.month != Today.TodayMonth;
  const bool otherDay = otherMonth || today.day != Today.TodayDay;
  TodaySet(now);
  if (otherMonth) {
    DisplayToday();
    CalenPrepareMonth();
  }
  const bool moved = CalenFiguresMove();
  return otherDay || moved ? 1 : 0;
}
