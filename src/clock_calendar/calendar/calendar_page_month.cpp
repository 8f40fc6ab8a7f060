// The month page: a head, the weekdays, a cell for each day.
#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/text.h"

namespace {

constexpr int kHeadX = 2;
constexpr int kHeadRows = 2;  // the head and the weekdays

// The place of a text in the middle of a cell.
int Middle(Canvas* canvas, int left, int width, const char* text) {
  return left + (width - CanvasTextWidth(canvas, text)) / 2;
}

void HeadDraw(Canvas* canvas, const CalenPage& page, Point at, const CalenMeasure& measure) {
  char head[kCalenTextSize];
  CalenHeadText(page, head);
  CanvasTextColour(canvas, kCalenBlack);
  CanvasText(canvas, at.x + kHeadX, at.y + 1, head);
  for (int column = 0; column < kDaysOfWeek; ++column) {
    const char* name = CalenWeekdayName(column);
    CanvasTextColour(canvas, column == 0 ? kCalenRed : kCalenBlack);
    CanvasText(canvas, Middle(canvas, at.x + column * measure.column, measure.column, name),
               at.y + measure.row + 1, name);
  }
}

// The cell of a day; the rows are a little apart.
Rect CellOf(const CalenPage& page, int day, Point at, const CalenMeasure& measure) {
  const int place = CalenColumnOf(page, 0) + day;
  const int left = at.x + place % kDaysOfWeek * measure.column;
  const int top = at.y + (kHeadRows + place / kDaysOfWeek) * (measure.row + 2);
  return {left, top, left + measure.column - 1, top + measure.row + 1};
}

void DayDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& cell) {
  char number[kCalenTextSize];
  TextFormat(number, sizeof number, "%2d", day + 1);
  const CalenExtent extent = CalenNumberExtent(canvas, page, day, number);
  CalenTodayDraw(canvas, page, day, cell);
  CalenStickerDraw(canvas, page, day, {cell.left, cell.top});
  CalenNumberDraw(canvas, page, day, {cell.left + (RectWidth(cell) - extent.width) / 2, cell.top + 1},
                  number);
  if (CalenDayHasNote(page, day)) CanvasLine(canvas, cell.left, cell.bottom - 1, cell.right, cell.bottom - 1);
  CalenFrameDraw(canvas, page, day, cell);
}

}  // namespace

void CalenMonthPageDraw(Canvas* canvas, const CalenPage& page, Point at) {
  const CalenMeasure measure = CalenPageMeasure();
  HeadDraw(canvas, page, at, measure);
  const int days = CalenPageDays(page);
  if (!page.preview) CalenHitsBegin(measure.column - 1, measure.row + 1);
  for (int day = 0; day < days; ++day) {
    const Rect cell = CellOf(page, day, at, measure);
    DayDraw(canvas, page, day, cell);
    if (!page.preview) CalenHitSet(day, {cell.left, cell.top});
  }
  if (!page.preview) CalenNearDaysCollect(page.yearIndex, page.month, page.today, days);
}
