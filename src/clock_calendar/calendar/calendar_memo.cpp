// The memo panel: the note of a day, over the foot of the page.
#include "clock_calendar/calendar/calendar_memo.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/screen_figures.h"
#include "services/text_lines.h"

namespace {

constexpr int kPanelHeight = 160;
constexpr int kTitleX = 2;
constexpr int kTitleY = 20;
constexpr int kNoteY = 40;
constexpr int kLineStep = 18;
constexpr int kCloseWidth = 20;
constexpr int kCloseHeight = 18;
constexpr int kCrossFrom = 2;
constexpr int kCrossTo = 14;
constexpr int kArrowTextX = 5;

void CloseBoxDraw(Canvas* canvas) {
  const Rect hit = CalenMemoCloseBox();
  FillArea(canvas, Drawing.Brushes[kBrush0000E6],
           {hit.left, hit.top, hit.left + kCloseWidth, hit.top + kCloseHeight});
  const Point from = {hit.left + kCrossFrom, hit.top + kCrossFrom};
  const Point to = {hit.left + kCrossTo, hit.top + kCrossTo};
  CanvasPen(canvas, Drawing.Pens[kPenFFFFFF]);
  CanvasLine(canvas, from.x, from.y, to.x, to.y);
  CanvasLine(canvas, to.x, from.y, from.x, to.y);
}

void ArrowDraw(Canvas* canvas, int way, const char* sign) {
  const Rect box = CalenMemoArrow(way);
  CalenBoxDraw(canvas, box);
  CanvasText(canvas, box.left + kArrowTextX, box.top, sign);
}

}  // namespace

void CalenMemoDraw(Canvas* canvas) {
  const int top = CalenMemoTop();
  const int width = CalenLayoutWidth();
  FillArea(canvas, BrushFace(), {0, top, width, top + kPanelHeight});
  CanvasFont(canvas, nullptr);
  CanvasTextColour(canvas, 0);
  CanvasBackTransparent(canvas, true);
  // settled: the two arrows of the memo panel turn the week and the day page, as their buttons do.
  ArrowDraw(canvas, kHitMemoBack, "<");
  ArrowDraw(canvas, kHitMemoOn, ">");
  CloseBoxDraw(canvas);
  CanvasText(canvas, kTitleX, top + kTitleY, "----- メモ(書き込み) --------");
  char note[kNoteSize + 1];
  CalenNoteGet(CalenYearShown(), Calendar.CalenMonthPos, Calendar.CalenMemoDay - 1, note);
  TextLinesDraw(canvas, 0, top + kNoteY, kLineStep, note, kNoteSize,
                Screen.CharWidth > 0 ? width / Screen.CharWidth : width / 8);
}
