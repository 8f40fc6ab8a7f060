// What the window of the schedule shows: the table, the mark of the executing schedule and
// the details of the current row.
#include <algorithm>

#include "platform/window.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_items.h"
#include "schedule/table/schedule_table.h"
#include "schedule/table/status_names.h"
#include "schedule/table/table_draw.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

// Above the lower edge of the window, beside the buttons.
constexpr int kLeft = 10;
constexpr int kMarkUp = 86;
constexpr int kMarkWidth = 120;
constexpr int kDetailUp = 62;
constexpr int kDetailWidth = 272;
constexpr int kDetailHeight = 54;
constexpr int kDetailLine = 17;
constexpr int kDetailIn = 4;
constexpr int kDetailDown = 2;
constexpr Colour kWhite = 0xFFFFFF;

void CheckText(const SclItemRec& item, char* text, int size) {
  if (SclStatusName(item.doneState, text, size)) return;
  TextCopy(text, static_cast<std::size_t>(size), item.doneState == 1 ? " 済み" : "     ");
}

void RowText(int line, TableRowText& text) {
  const SclItemRec& item = Schedule.SclItemTable[std::clamp(line, 0, kSclItemMax - 1)];
  TextFormat(text.content, sizeof text.content, "%.*s", kSclItemTextSize, item.text);
  SclHoursText(item, text.hours, sizeof text.hours);
  CheckText(item, text.check, sizeof text.check);
  if (item.alarmOn) TextCopy(text.alarm, sizeof text.alarm, "  ◎");
}

constexpr TableLook kLook{"   内  容 ", "予定時間", "ﾁｪｯｸ", "ｱﾗｰﾑ", CopyMark::InSchedule, RowText};

void StartText(char* text, int size) {
  const SclDate& start = Schedule.SclHeader.start;
  char year[8];
  SclYearText(start.year, year, sizeof year);
  TextFormat(text, static_cast<std::size_t>(size), "開始: 20%s年%2d月%2d日%2d時", year, start.month + 1,
             start.day + 1, start.hour);
}

void TitleDraw(Canvas* canvas, const TableLayout& layout) {
  char start[80];
  StartText(start, sizeof start);
  char title[kSclTitleSize];
  TextFormat(title, sizeof title, "%.*s", kSclTitleSize - 1, Schedule.SclHeader.title);
  CanvasTextColour(canvas, kWhite);
  TableCellDraw(canvas, layout.title, Drawing.Brushes[kBrush0000E6], title);
  TableCellDraw(canvas, layout.start, Drawing.Brushes[kBrush0000E6], start);
}

void MarkDraw(Canvas* canvas, const Rect& client) {
  if (Schedule.SclExecMark == SclMark::None) return;
  const int top = client.bottom - kMarkUp;
  CanvasTextColour(canvas, kWhite);
  TableCellDraw(canvas, {kLeft, top, kLeft + kMarkWidth, top + kTableLineHeight},
                Drawing.Brushes[kBrush0000E6], "< 実行指定中 >");
}

void DetailLine(Canvas* canvas, int top, const char* text) {
  CanvasText(canvas, kLeft + kDetailIn, top, text);
}

// "開始時間: 2026年 11月 21日 8時"
void DateLine(Canvas* canvas, int top, const char* format, const SclDate& date) {
  char text[80];
  TextFormat(text, sizeof text, format, date.year + 2000, date.month + 1, date.day + 1, date.hour);
  DetailLine(canvas, top, text);
}

void DetailDraw(Canvas* canvas, const Rect& client) {
  const int row = RowSelection.currentRow;
  if (row <= 0 || row > Schedule.SclHeader.count) return;
  const SclItemRec& item = Schedule.SclItemTable[row - 1];
  const int top = client.bottom - kDetailUp;
  CanvasTextColour(canvas, 0);
  TableCellDraw(canvas, {kLeft, top, kLeft + kDetailWidth, top + kDetailHeight},
                Drawing.Brushes[kBrushFFFFFF], "");
  char number[40];
  TextFormat(number, sizeof number, "[項目%d]", row);
  DetailLine(canvas, top + kDetailDown, number);
  DateLine(canvas, top + kDetailDown + kDetailLine, "開始時間: %d年 %2d月 %2d日 %d時", SclShownStart(item));
  DateLine(canvas, top + kDetailDown + 2 * kDetailLine, "終了時間: %d年 %2d月 %2d日 %d時",
           SclDateOf(item.end));
}

void Draw(Canvas* canvas, const Rect& area) {
  const TableLayout layout = ScheduleTableLayout(SclTable.hSclTableWnd);
  FillAround(canvas, Drawing.FaceBrush, area, TableAreaOf(layout));
  TableDraw(canvas, layout, SclTable.SclTableView, kLook);
  TitleDraw(canvas, layout);
  MarkDraw(canvas, area);
  DetailDraw(canvas, area);
}

}  // namespace

void ScheduleTablePaint(WindowHandle window) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  DrawSteady(screen, WindowClientRect(window), Draw);
  CanvasRelease(screen);
}
