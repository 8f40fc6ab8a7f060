// The week page: the week of the view day with the dates down the side.
#include <algorithm>

#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/commands.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr int kBesideHead = 70;  // the room of the two buttons
constexpr int kHeadHeight = 18;
constexpr int kRowsTop = 20;
constexpr int kLabelX = 2;
constexpr int kCellX = 10;  // behind the first column
constexpr int kCellShorter = 6;
constexpr int kNoteX = 6;  // behind a column from the cell on
constexpr int kLineLonger = 4;

// How far the page stands to the left of its place.
int LeftBy() {
  if (Calendar.CalenPageSize == 0) return 7;
  return Calendar.CalenPageSize == 2 ? 12 : 10;
}

void HeadDraw(Canvas* canvas, const CalenPage& page, int left, int top, const CalenMeasure& measure) {
  char head[kCalenTextSize];
  CalenHeadText(page, head);
  CalenBoxDraw(canvas, {left, top, left + measure.pageWidth - kBesideHead, top + kHeadHeight});
  CanvasTextColour(canvas, kCalenBlack);
  CanvasText(canvas, left + kLabelX, top + 2, head);
}

int RowTop(int top, int column, const CalenMeasure& measure) {
  return top + kRowsTop + column * (measure.row + 2);
}

void LabelsDraw(Canvas* canvas, int left, int top, const CalenMeasure& measure) {
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  for (int column = 0; column < kDaysOfWeek; ++column) {
    const int y = RowTop(top, column, measure);
    CanvasTextColour(canvas, column == 0 ? kCalenRed : kCalenBlack);
    CanvasText(canvas, left + kLabelX, y + 1, CalenWeekdayName(column));
    CanvasLine(canvas, left, y + measure.row + 1, left + kDaysOfWeek * measure.column + kLineLonger,
               y + measure.row + 1);
  }
}

void DayDraw(Canvas* canvas, const CalenPage& page, int day, Point at, const CalenMeasure& measure) {
  const Rect cell = {at.x, at.y, at.x + measure.column - kCellShorter, at.y + measure.row + 2};
  char number[kCalenTextSize];
  TextFormat(number, sizeof number, "%2d", day + 1);
  CalenTodayDraw(canvas, page, day, cell);
  CalenStickerDraw(canvas, page, day, at);
  CalenNumberDraw(canvas, page, day, {at.x + 1, at.y + 1}, number);
  CanvasTextColour(canvas, kCalenBlack);
  CanvasText(canvas, at.x + measure.column + kNoteX, at.y + 1, CalenPageMonth(page).notes[day]);
  CalenFrameDraw(canvas, page, day, cell);
}

}  // namespace

void CalenWeekPageDraw(Canvas* canvas, const CalenPage& page, Point at) {
  const CalenMeasure measure = CalenPageMeasure();
  const int left = at.x - LeftBy();
  HeadDraw(canvas, page, left, at.y, measure);
  LabelsDraw(canvas, left, at.y, measure);
  if (!page.preview) CalenHitsBegin(measure.column - kCellShorter, measure.row + 2);
  const int view = CalenViewDay(page);
  const int column = CalenColumnOf(page, view);
  const int days = CalenPageDays(page);
  const int end = std::min(view + kDaysOfWeek - column, days);
  CanvasClip(canvas,
             {left, RowTop(at.y, 0, measure), left + measure.pageWidth, RowTop(at.y, kDaysOfWeek, measure)});
  for (int day = std::max(view - column, 0); day < end; ++day) {
    const Point place = {left + measure.column + kCellX, RowTop(at.y, CalenColumnOf(page, day), measure)};
    DayDraw(canvas, page, day, place, measure);
    if (!page.preview) CalenHitSet(day, place);
  }
  CanvasClipNone(canvas);
  if (!page.preview) CalenNearDaysCollect(page.yearIndex, page.month, page.today, days);
}

namespace {

constexpr int kButtonWidth = 28;
constexpr int kButtonGap = 4;

// The day page has its buttons above the box that tells the distance.
constexpr int kDayButtonsTop = 8;

Rect ButtonAt(int left, int top) {
  return {left, top, left + kButtonWidth, top + kHeadHeight};
}

}  // namespace

bool CalenStepButtonsOf(CalenStepButtons* buttons) {
  const Point at = CalenPageCorner();
  if (Calendar.CalenKind == kPageWeek) {
    const int left = at.x - LeftBy() + CalenPageMeasure().pageWidth - kBesideHead + kButtonGap;
    *buttons = {static_cast<int>(Command::CalendarWeekBack), static_cast<int>(Command::CalendarWeekOn),
                ButtonAt(left, at.y), ButtonAt(left + kButtonWidth + kButtonGap, at.y)};
    return true;
  }
  if (Calendar.CalenKind != kPageDay) return false;
  const CalenLeaf leaf = CalenDayLeaf();
  const int left = at.x + leaf.pageWidth - leaf.distanceWidth - kButtonGap;
  *buttons = {static_cast<int>(Command::CalendarDayBack), static_cast<int>(Command::CalendarDayOn),
              ButtonAt(left, at.y + kDayButtonsTop), ButtonAt(left + kButtonWidth, at.y + kDayButtonsTop)};
  return true;
}
