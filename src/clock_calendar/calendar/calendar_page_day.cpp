// The day page: a leaf with one day.
#include <algorithm>

#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr int kUnitsWide = 4;
constexpr int kHeadInset = 2;
constexpr int kHeadHeight = 18;
constexpr int kDistanceTop = 38;
constexpr int kDistanceBottom = 70;
constexpr int kDistanceStep = 12;  // to the second line
constexpr int kBodyRows = 8;
constexpr int kNumberBelow = 8;  // the head and a row
constexpr int kNumberRows = 2;
constexpr int kNoteLineShorter = 4;

Rect Body(Point at, const CalenLeaf& leaf) {
  return {at.x - 2, at.y + leaf.row + 2, at.x + kUnitsWide * leaf.unit + 1, at.y + kBodyRows * leaf.row + 10};
}

void HeadDraw(Canvas* canvas, const CalenPage& page, Point at, const CalenLeaf& leaf) {
  char head[kCalenTextSize];
  CalenHeadText(page, head);
  const Point box = {at.x + kHeadInset, at.y + kHeadInset};
  CalenBoxDraw(canvas, {box.x, box.y, box.x + kUnitsWide * leaf.unit + 1, box.y + kHeadHeight});
  CanvasText(canvas, box.x + 1, box.y + 2, head);
}

void DistanceDraw(Canvas* canvas, Point at, const CalenLeaf& leaf, int offset) {
  const int left = at.x + leaf.pageWidth - leaf.distanceWidth;
  const Rect box = {left, at.y + kDistanceTop, left + leaf.distanceWidth, at.y + kDistanceBottom};
  CalenBoxDraw(canvas, box);
  const CalenDistance text = CalenDistanceText(offset);
  CanvasText(canvas, box.left + 2, box.top + 2, text.first);
  if (text.second[0] != '\0') CanvasText(canvas, box.left + 2, box.top + 2 + kDistanceStep, text.second);
}

// Values 1 and 2 of the page size name the day and its weekday more fully.
bool NamesFully() {
  return Calendar.CalenPageSize == 1 || Calendar.CalenPageSize == 2;
}

void NumberText(int day, char (&text)[kCalenTextSize]) {
  const bool fully = NamesFully() && CalenSelectedDefinition().english == 0;
  TextFormat(text, sizeof text, fully ? "%d日" : "%d", day + 1);
}

void WeekdayText(int column, char (&text)[kCalenTextSize]) {
  TextCopy(text, sizeof text, CalenWeekdayName(column));
  if (NamesFully() && CalenSelectedDefinition().english == 0) TextAppend(text, sizeof text, "曜");
}

// In the middle of the leaf, at least one pixel from its left.
int Middle(const CalenLeaf& leaf, int width) {
  return std::max((kUnitsWide * leaf.unit - width) / 2, 1);
}

void LeafDraw(Canvas* canvas, const CalenPage& page, int day, Point at, const CalenLeaf& leaf) {
  const int top = at.y + kNumberRows * leaf.row + kNumberBelow;
  CalenStickerDraw(canvas, page, day, {at.x + leaf.margin, top});
  char text[kCalenTextSize];
  NumberText(day, text);
  const CalenExtent extent = CalenNumberExtent(canvas, page, day, text);
  CalenNumberDraw(canvas, page, day, {at.x + Middle(leaf, extent.width), top}, text);
  const int foot = top + extent.height;
  if (CalenDayHasNote(page, day)) {
    const int left = at.x + leaf.margin;
    CanvasPen(canvas, Drawing.Pens[kPen646464]);
    CanvasLine(canvas, left, foot, left + leaf.unit - kNoteLineShorter, foot);
  }
  WeekdayText(CalenColumnOf(page, day), text);
  CanvasTextColour(canvas, CalenDayColour(page, day));
  CanvasText(canvas, at.x + Middle(leaf, CanvasTextWidth(canvas, text)), foot + 2, text);
}

// kept: a day page past the month's end shows the last day and tells its distance from today
// as one day more.
void OffsetHold(const CalenPage& page) {
  const int days = CalenPageDays(page);
  if (page.viewFrom + Calendar.CalenDayOffset >= days) CalenDayOffsetSet(days - page.viewFrom);
}

}  // namespace

void CalenDayPageDraw(Canvas* canvas, const CalenPage& page, Point at) {
  const CalenLeaf leaf = CalenDayLeaf();
  const Rect body = Body(at, leaf);
  const int view = CalenViewDay(page);
  if (!page.preview) OffsetHold(page);
  CanvasTextColour(canvas, kCalenBlack);
  DistanceDraw(canvas, at, leaf, page.preview ? 0 : Calendar.CalenDayOffset);
  CanvasClip(canvas, body);
  CalenBoxDraw(canvas, body);
  LeafDraw(canvas, page, view, at, leaf);
  CalenFrameDraw(canvas, page, view, body);
  CanvasClipNone(canvas);
  CanvasTextColour(canvas, kCalenBlack);
  HeadDraw(canvas, page, at, leaf);
  if (page.preview) return;
  CalenHitsBegin(RectWidth(body), RectHeight(body));
  CalenHitSet(view, {std::max(body.left, 0), body.top});
  CalenNearDaysCollect(page.yearIndex, page.month, page.today, CalenPageDays(page));
}
