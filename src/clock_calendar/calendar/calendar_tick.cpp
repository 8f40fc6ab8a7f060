// The calendar's part of a tick: a new day, a new month on show.
#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "platform/time.h"
#include "services/dialog_family.h"
#include "services/today.h"

namespace {

void BeginSpanAt(int year) {
  CalenSpanSet(year, Calendar.CalenYearCount);
}

// Puts the month of today on display, and its year if the span has it. False if not.
bool DisplayTodayInSpan() {
  Calendar.CalenMonthPos = std::clamp<std::int32_t>(Today.TodayMonth, 0, kMonthsOfYear - 1);
  const int index = CalenSpanIndex(Today.TodayYear);
  if (index >= 0) Calendar.CalenYearPos = index;
  return index >= 0;
}

// settled: a calendar whose years are over begins anew with the year of today; one whose years
// are yet to come shows the first of them, and no day of it is today.
void DisplayToday() {
  if (DisplayTodayInSpan()) return;
  if (Today.TodayYear > Calendar.CalenFirstYear) {
    BeginSpanAt(Today.TodayYear);
  } else {
    Calendar.CalenYearPos = 0;
  }
}

// The editing dialog works on the month and the year on display.
bool IsEdited() {
  return Dialogs.hToolDlg && Dialogs.DlgIdTool == ToolDialog::CalenderAdustDlg;
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
  if (!CalenPicturesAreLoaded()) LoadMonth();
}

int CalenTodayShown() {
  const bool shown =
      CalenSpanIndex(Today.TodayYear) == CalenYearShown() && Today.TodayMonth == Calendar.CalenMonthPos;
  return shown ? Today.TodayDay : -1;
}

void CalenPrepareMonth() {
  if (Calendar.CalenYearPos < 0 ||
      Calendar.CalenYearPos >= std::min<std::int32_t>(Calendar.CalenYearCount, kCalenYearMax)) {
    const std::int64_t year = std::int64_t{Calendar.CalenFirstYear} + Calendar.CalenYearPos;
    // bounded: the settings file may hold any first year and any place in the years; where they
    // make no year, the calendar begins with this one.
    BeginSpanAt(year >= 0 && year <= 99 ? static_cast<int>(year) : Today.TodayYear);
  }
  LoadMonth();
  for (int figure = 0; figure < kFigureCount; ++figure) CalenFigurePlace(figure);
}

int CalenTickCheck() {
  const LocalTime& now = Today.SharedTime;
  const SclDate today = SclDateOf(now);
  const bool otherMonth = today.year != Today.TodayYear || today.month != Today.TodayMonth;
  const bool otherDay = otherMonth || today.day != Today.TodayDay;
  TodaySet(now);
  Calendar.monthIsOver = Calendar.monthIsOver || otherMonth;
  if (Calendar.monthIsOver && !IsEdited()) {
    Calendar.monthIsOver = false;
    DisplayToday();
    CalenPrepareMonth();
  }
  const bool moved = CalenFiguresMove();
  return otherDay || moved ? 1 : 0;
}
