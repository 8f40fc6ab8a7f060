// The calendar's part of a tick: a new day, a new month on show.
#include <algorithm>

#include "clock_calendar/calendar_picture.h"
#include "platform/time.h"
#include "shell/shell.h"

namespace {

void BeginSpanAt(int year) {
  CalenYearsSet(year);
  CalenYearsRebuild();
  CalenYearPos = 0;
}

void DisplayToday() {
  CalenMonthPos = std::clamp<std::int32_t>(TodayMonth, 0, kMonthsOfYear - 1);
  const int index = CalenSpanIndex(TodayYear);
  if (index >= 0) {
    CalenYearPos = index;
  } else {
    BeginSpanAt(TodayYear);
  }
}

}  // namespace

void CalenTakeDefinition() {
  CalenTickerSetup();
  CalenShowToday();
}

void CalenShowToday() {
  DisplayToday();
  CalenStickersPrepare();
  CalenPicturesLoad();
}

void CalenPrepareMonth() {
  if (CalenYearPos < 0 || CalenYearPos >= std::min<std::int32_t>(CalenYearCount, kCalenYearMax)) {
    const std::int64_t year = std::int64_t{CalenFirstYear} + CalenYearPos;
    // bounded: the settings file may hold any place; today is always a year.
    BeginSpanAt(year >= 0 && year <= 99 ? static_cast<int>(year) : TodayYear);
  }
  CalenStickersPrepare();
  CalenPicturesLoad();
  for (int figure = 0; figure < kFigureCount; ++figure) CalenFigurePlace(figure);
}

int CalenTickCheck() {
  LocalTime now;
  TimeGetLocal(&now);
  const SclDate today = {now.year - 2000, now.month - 1, now.day - 1, now.hour};
  const bool otherMonth = today.year != TodayYear || today.month != TodayMonth;
  const bool otherDay = otherMonth || today.day != TodayDay;
  TodayYear = today.year;
  TodayMonth = today.month;
  TodayDay = today.day;
  if (otherMonth) {
    DisplayToday();
    CalenPrepareMonth();
  }
  const bool moved = CalenFiguresMove();
  return otherDay || moved ? 1 : 0;
}
