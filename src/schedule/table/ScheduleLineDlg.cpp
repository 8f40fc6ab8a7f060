// ScheduleLineDlg, "計画-線表": the bars of the line chart, under the dates on which they
// begin and beside the numbers of their items.
#include <algorithm>

#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/schedule_table_ids.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_items.h"
#include "schedule/table/line_chart.h"
#include "schedule/table/schedule_dialogs.h"
#include "schedule/table/table_draw.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"
#include "services/today.h"

namespace {

constexpr int kRow = 20;
constexpr int kLeft = 10;
constexpr int kBandWidth = 200;
constexpr int kHeadTop = 10;
constexpr int kHeadRows = 4;
constexpr int kRightMargin = 26;   // the standing scroll bar and the window's edge
constexpr int kBottomMargin = 56;  // the lying scroll bar and the buttons
constexpr int kTextUp = 18;        // a bar's text over its line
constexpr int kTextIn = 2;
constexpr int kTextWidth = 8;
constexpr int kPage = 10;
constexpr Colour kRed = 0x0000FF;

// --- Where things lie

Rect BodyOf(const Rect& client) {
  return {kLeft + kBandWidth, kHeadTop + kHeadRows * kRow, client.right - kRightMargin,
          client.bottom - kBottomMargin};
}

int HoursShown(const Rect& body) {
  return RectWidth(body) / LineChart.hourWidth;
}

int BarsShown(const Rect& body) {
  return RectHeight(body) / kRow;
}

int HourX(const Rect& body, int hour) {
  return body.left + (hour - LineChart.firstHour) * LineChart.hourWidth;
}

// The line of a bar is the lower edge of its row.
int BarY(const Rect& body, int bar) {
  return body.top + (bar - LineChart.firstBar + 1) * kRow;
}

int LastBar(const Rect& body) {
  return std::min(LineChart.count, LineChart.firstBar + BarsShown(body));
}

const SclItemRec& ItemOf(const LineBar& bar) {
  return Schedule.SclItemTable[bar.item];
}

// --- The head

struct DateTexts {
  char rows[kHeadRows][24];  // year, month, day, hour
};

const char* WeekdayText(SclDate date) {
  constexpr const char* kWeekdays[] = {"(月)", "(火)", "(水)", "(木)", "(金)", "(土)", "(日)"};
  const int weekday = SclPlainWeekdayOf(date, 0);
  // bounded: from 2100 on a date of the chart may have no day of the week.
  return weekday >= 0 && weekday < kDaysOfWeek ? kWeekdays[weekday] : "";
}

DateTexts TextsOf(const SclDate& date) {
  DateTexts texts{};
  char year[8];
  SclYearText(date.year, year, sizeof year);
  TextFormat(texts.rows[0], sizeof texts.rows[0], "20%s", year);
  TextFormat(texts.rows[1], sizeof texts.rows[1], "%d", date.month + 1);
  TextFormat(texts.rows[2], sizeof texts.rows[2], "%d%s", date.day + 1, WeekdayText(date));
  TextFormat(texts.rows[3], sizeof texts.rows[3], "%d", date.hour);
  return texts;
}

int WidthOf(const char* text) {
  return static_cast<int>(TextLength(text, 100)) * kTextWidth;
}

// Goes through the dates of the bars that begin in the hours on show, from the left:
// visit(row of the head, x, text, date). A visit that answers true ends the walk.
// settled: bars of the chart that begin close to each other have no room for all their dates; one that
// would run into the one before it in its row is left out.
template <class Visit>
void DatesVisit(const Rect& body, Visit visit) {
  int free[kHeadRows] = {body.left, body.left, body.left, body.left};
  for (int i = 0; i < LineChart.count; ++i) {
    const LineBar& bar = LineChart.bars[i];
    if (bar.start < LineChart.firstHour || bar.start >= LineChart.firstHour + HoursShown(body)) continue;
    const SclDate date = SclShownStart(ItemOf(bar));
    const DateTexts texts = TextsOf(date);
    const int x = HourX(body, bar.start) + kTextIn;
    for (int row = 0; row < kHeadRows; ++row) {
      if (x < free[row]) continue;
      free[row] = x + WidthOf(texts.rows[row]) + kTextWidth;
      if (visit(row, x, texts.rows[row], date)) return;
    }
  }
}

void HeadDraw(Canvas* canvas, const Rect& body) {
  constexpr const char* kHeads[kHeadRows] = {"年", "月", "日", "時"};
  for (int row = 0; row < kHeadRows; ++row) {
    const int top = kHeadTop + row * kRow;
    TableCellDraw(canvas, {kLeft, top, body.left, top + kRow}, Drawing.Brushes[kBrushFFFF00], kHeads[row]);
    TableCellDraw(canvas, {body.left, top, body.right, top + kRow}, Drawing.Brushes[kBrushC8C8C8], "");
  }
  CanvasClip(canvas, {body.left, kHeadTop, body.right, body.top});
  const SclDate today = SclDateNow();
  DatesVisit(body, [&](int row, int x, const char* text, const SclDate& date) {
    CanvasTextColour(canvas, row == 2 && SclSameDay(date, today) ? kRed : 0);
    CanvasText(canvas, x, kHeadTop + row * kRow + kTextIn, text);
    return false;
  });
  CanvasClipNone(canvas);
  CanvasTextColour(canvas, 0);
}

// --- The bars

// The number of the item and its text, in the band on the left.
void BandDraw(Canvas* canvas, const Rect& body) {
  for (int i = LineChart.firstBar; i < LastBar(body); ++i) {
    const LineBar& bar = LineChart.bars[i];
    char content[kSclItemTextSize + 1];
    TextFormat(content, sizeof content, "%.*s", kSclItemTextSize, ItemOf(bar).text);
    char text[sizeof content + 20];
    TextFormat(text, sizeof text, "(%d) %s", bar.item + 1, content);
    const std::size_t fits = TextPrefix(text, (kBandWidth - 2 * kTextIn) / kTextWidth);
    CanvasText(canvas, kLeft + kTextIn, BarY(body, i) - kTextUp, text,
               static_cast<int>(std::min(fits, TextLength(text, sizeof text))));
  }
}

void BarDraw(Canvas* canvas, const Rect& body, int place) {
  const LineBar& bar = LineChart.bars[place];
  const SclItemRec& item = ItemOf(bar);
  const int y = BarY(body, place);
  // Only what is on show: far ends would leave the canvas's numbers.
  const int left = std::max(bar.start, LineChart.firstHour);
  const int right = std::min(bar.end, LineChart.firstHour + HoursShown(body) + 1);
  CanvasPen(canvas, Drawing.Pens[item.doneState != 0 ? kPenThick0000FF : kPenThick000000]);
  if (right > left) CanvasLine(canvas, HourX(body, left), y, HourX(body, right), y);
  if (bar.start < LineChart.firstHour || bar.start > LineChart.firstHour + HoursShown(body)) return;
  const std::size_t length = TextPrefix(item.text, TextLength(item.text, kSclItemTextSize));
  if (length > 0)
    CanvasText(canvas, HourX(body, bar.start), y - kTextUp, item.text, static_cast<int>(length));
}

void BodyDraw(Canvas* canvas, const Rect& body) {
  const BrushHandle white = Drawing.Brushes[kBrushFFFFFF];
  TableCellDraw(canvas, {kLeft, body.top, body.left, body.bottom}, white, "");
  TableCellDraw(canvas, body, white, "");
  CanvasPen(canvas, Drawing.Pens[kPenE6E6E6]);
  for (int hour = 1; hour <= HoursShown(body); ++hour) {
    const int x = body.left + hour * LineChart.hourWidth;
    CanvasLine(canvas, x, body.top + 1, x, body.bottom);
  }
  BandDraw(canvas, body);
  CanvasClip(canvas, body);
  for (int i = LineChart.firstBar; i < LastBar(body); ++i) BarDraw(canvas, body, i);
  CanvasClipNone(canvas);
}

void Draw(Canvas* canvas, const Rect& area) {
  const Rect body = BodyOf(area);
  FillArea(canvas, Drawing.FaceBrush, area);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  HeadDraw(canvas, body);
  BodyDraw(canvas, body);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, WindowClientRect(dialog), Draw);
  CanvasRelease(screen);
}

// --- Scrolling

struct Axis {
  int bar;
  int first;
  int count;
  int page;
  void (*set)(int first, int page);
};

Axis DownOf(const Rect& body) {
  return {IDC_CHART_DOWN, LineChart.firstBar, LineChart.count, BarsShown(body), LineChartBarSet};
}

Axis AcrossOf(const Rect& body) {
  return {IDC_CHART_ACROSS, LineChart.firstHour, LineChart.hours, HoursShown(body), LineChartHourSet};
}

void BarShow(WindowHandle dialog, const Axis& axis) {
  const WindowHandle bar = Control(dialog, axis.bar);
  ScrollBarEnable(bar, axis.count > axis.page);
  if (axis.count > axis.page) ScrollBarSet(bar, axis.count, axis.page, axis.first);
}

void Show(WindowHandle dialog) {
  const Rect body = BodyOf(WindowClientRect(dialog));
  BarShow(dialog, DownOf(body));
  BarShow(dialog, AcrossOf(body));
  SendPaint(dialog);
}

// The bars stand right of the body and below it.
void Open(WindowHandle dialog) {
  const Rect body = BodyOf(WindowClientRect(dialog));
  WindowMove(Control(dialog, IDC_CHART_DOWN), body.right, body.top, kTableBarWidth, RectHeight(body), false);
  WindowMove(Control(dialog, IDC_CHART_ACROSS), body.left, body.bottom, RectWidth(body), kTableBarWidth,
             false);
  Show(dialog);
}

int FirstAfter(const Axis& axis, const Event& event) {
  switch (event.scroll) {
    case Scroll::LineUp:
      return axis.first - 1;
    case Scroll::LineDown:
      return axis.first + 1;
    case Scroll::PageUp:
      return axis.first - kPage;
    case Scroll::PageDown:
      return axis.first + kPage;
    case Scroll::Thumb:
      return event.scrollPosition;
    case Scroll::Top:
      return 0;
    case Scroll::Bottom:
      return axis.count;
    case Scroll::End:
      break;
  }
  return axis.first;
}

void ScrollAlong(const Event& event, const Axis& axis) {
  if (event.control != Control(event.window, axis.bar)) return;
  axis.set(FirstAfter(axis, event), axis.page);
  Show(event.window);
}

void ScrollDown(const Event& event) {
  ScrollAlong(event, DownOf(BodyOf(WindowClientRect(event.window))));
}

void ScrollAcross(const Event& event) {
  ScrollAlong(event, AcrossOf(BodyOf(WindowClientRect(event.window))));
}

void Wheel(const Event& event) {
  constexpr int kRows = 3;
  const Axis axis = DownOf(BodyOf(WindowClientRect(event.window)));
  axis.set(axis.first - event.wheel * kRows, axis.page);
  Show(event.window);
}

void ToFirst(WindowHandle dialog) {
  LineChartHourSet(0, 0);
  LineChartBarSet(0, 0);
  Show(dialog);
}

void ToLast(WindowHandle dialog) {
  const Rect body = BodyOf(WindowClientRect(dialog));
  LineChartHourSet(LineChart.hours, HoursShown(body));
  LineChartBarSet(LineChart.count, BarsShown(body));
  Show(dialog);
}

// --- Double clicks

// The date in the head at that place. False for none.
bool DateAt(const Rect& body, int x, int y, SclDate& found) {
  bool any = false;
  DatesVisit(body, [&](int row, int left, const char* text, const SclDate& date) {
    const int top = kHeadTop + row * kRow;
    any = RectHas({left, top, left + WidthOf(text), top + kRow}, x, y);
    if (any) found = date;
    return any;
  });
  return any;
}

// The item whose bar, text or number is at that place; -1 for none. A bar's text begins a
// little below the top of its row, and its line, which is thick, ends as far below the row.
int ItemAt(const Rect& body, int x, int y) {
  const int down = y - body.top - kTextIn;
  const int place = LineChart.firstBar + down / kRow;
  if (down < 0 || place >= LastBar(body)) return -1;
  const LineBar& bar = LineChart.bars[place];
  if (x >= kLeft && x < body.left) return bar.item;
  if (x < body.left || x >= body.right) return -1;
  const int left = HourX(body, std::max(bar.start, LineChart.firstHour));
  const int right = HourX(body, std::min(bar.end, LineChart.firstHour + HoursShown(body) + 1));
  const bool begins = bar.start >= LineChart.firstHour;
  const int text =
      begins ? left + static_cast<int>(TextLength(ItemOf(bar).text, kSclItemTextSize)) * kTextWidth : left;
  return x >= left && x <= std::max(right, text) ? bar.item : -1;
}

void LeftDouble(const Event& event) {
  const Rect body = BodyOf(WindowClientRect(event.window));
  SclDate date{};
  if (DateAt(body, event.x, event.y, date)) {
    ScheduleDayRun(event.window, date);
  } else if (const int item = ItemAt(body, event.x, event.y); item >= 0) {
    DspSclClickLineDataRun(event.window, item);
  }
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},          {EventKind::Paint, Paint},
    {EventKind::VScroll, ScrollDown}, {EventKind::HScroll, ScrollAcross},
    {EventKind::Wheel, Wheel},        {IDC_CHART_FIRST, ToFirst},
    {IDC_CHART_LAST, ToLast},         {EventKind::LeftDouble, LeftDouble},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void ScheduleLineDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::ScheduleLineDlg, IDD_ScheduleLineDlg, owner, Handle);
}
