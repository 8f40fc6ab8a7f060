#include "schedule/table/table_draw.h"

#include <algorithm>

#include "services/drawing_objects.h"
#include "services/text.h"

namespace {

constexpr int kTextIn = 2;
constexpr int kColumnWidth = 8;
constexpr int kCutMargin = 8;
constexpr int kTextMost = 128;

// A column of the table, from the left.
struct Column {
  int left;
  int right;
};
struct Columns {
  Column number;
  Column content;
  Column hours;
  Column check;
  Column alarm;
};
Columns ColumnsOf(const TableLayout& layout) {
  return {{layout.left, layout.numberRight},
          {layout.numberRight, layout.contentRight},
          {layout.contentRight, layout.hoursRight},
          {layout.hoursRight, layout.checkRight},
          {layout.checkRight, layout.right}};
}

Rect CellOf(const Column& column, int top) {
  return {column.left, top, column.right, top + kTableLineHeight};
}

int RowTop(const TableLayout& layout, int place) {
  return layout.rowsTop + place * kTableLineHeight;
}

// Edges are shared with the neighbours.
void Box(Canvas* canvas, const Rect& rect, BrushHandle brush) {
  if (rect.right <= rect.left) return;
  CanvasPen(canvas, Drawing.Pens[kPen646464]);
  CanvasBrush(canvas, brush);
  CanvasRectangle(canvas, rect.left, rect.top, rect.right + 1, rect.bottom + 1);
}

void Text(Canvas* canvas, const Rect& cell, const char* text) {
  const int fits = std::clamp((RectWidth(cell) - kCutMargin) / kColumnWidth, 0, kTextMost);
  const std::size_t length = TextPrefix(text, TextLength(text, static_cast<std::size_t>(fits)));
  if (length == 0) return;
  CanvasText(canvas, cell.left + kTextIn, cell.top + kTextIn, text, static_cast<int>(length));
}

void HeadsDraw(Canvas* canvas, const TableLayout& layout, const Columns& columns, const TableLook& look) {
  const BrushHandle grey = Drawing.Brushes[kBrushC8C8C8];
  const int top = layout.headTop;
  TableCellDraw(canvas, CellOf(columns.number, top), Drawing.Brushes[kBrushFFFF00], "項目");
  TableCellDraw(canvas, CellOf(columns.content, top), grey, look.content);
  TableCellDraw(canvas, CellOf(columns.hours, top), grey, look.hours);
  TableCellDraw(canvas, CellOf(columns.check, top), grey, look.check);
  TableCellDraw(canvas, CellOf(columns.alarm, top), grey, look.alarm);
}

// The white body with its lines.
void GridDraw(Canvas* canvas, const TableLayout& layout, const Columns& columns) {
  const int bottom = RowTop(layout, layout.visible);
  Box(canvas, {layout.left, layout.rowsTop, layout.right, bottom}, Drawing.Brushes[kBrushFFFFFF]);
  for (const Column& column : {columns.content, columns.hours, columns.check, columns.alarm}) {
    CanvasLine(canvas, column.left, layout.rowsTop, column.left, bottom + 1);
  }
  CanvasPen(canvas, Drawing.Pens[kPenE6E6E6]);
  for (int place = 1; place < layout.visible; ++place) {
    CanvasLine(canvas, layout.left + 1, RowTop(layout, place), layout.right, RowTop(layout, place));
  }
}

const Column* HighlightedColumn(const Columns& columns) {
  switch (RowSelection.highlightedCell) {
    case TableCell::Content:
      return &columns.content;
    case TableCell::Hours:
      return &columns.hours;
    case TableCell::Check:
      return &columns.check;
    case TableCell::Alarm:
      return &columns.alarm;
    case TableCell::None:
      break;
  }
  return nullptr;
}

// The number cells of selected rows, and the cell that was clicked.
void MarksDraw(Canvas* canvas, int row, int top, const Columns& columns) {
  const BrushHandle mark = Drawing.Brushes[kBrushFF8080];
  if (RowIsSelected(row)) Box(canvas, CellOf(columns.number, top), mark);
  const Column* column = row == RowSelection.currentRow ? HighlightedColumn(columns) : nullptr;
  if (column) Box(canvas, CellOf(*column, top), mark);
}

void RowDraw(Canvas* canvas, int row, int top, const Columns& columns, const TableLook& look) {
  TableRowText text{};
  look.row(row - 1, text);
  char number[16];
  TextFormat(number, sizeof number, "%3d", row);
  Text(canvas, CellOf(columns.number, top), number);
  Text(canvas, CellOf(columns.content, top), text.content);
  Text(canvas, CellOf(columns.hours, top), text.hours);
  Text(canvas, CellOf(columns.check, top), text.check);
  Text(canvas, CellOf(columns.alarm, top), text.alarm);
}

// One bracket around the number cells of all copied rows, open where they go on.
void BracketDraw(Canvas* canvas, int row, int top, const Column& number) {
  const int bottom = top + kTableLineHeight;
  CanvasPen(canvas, Drawing.Pens[kPen0000FF]);
  CanvasLine(canvas, number.left, top, number.left, bottom + 1);
  CanvasLine(canvas, number.right, top, number.right, bottom + 1);
  if (row == RowSelection.copyFirst) CanvasLine(canvas, number.left, top, number.right + 1, top);
  if (row == RowSelection.copyLast) CanvasLine(canvas, number.left, bottom, number.right + 1, bottom);
}

}  // namespace

void TableCellDraw(Canvas* canvas, const Rect& cell, BrushHandle brush, const char* text) {
  if (RectWidth(cell) <= 0) return;
  Box(canvas, cell, brush);
  Text(canvas, cell, text);
}

void TableDraw(Canvas* canvas, const TableLayout& layout, const TableView& view, const TableLook& look) {
  const Columns columns = ColumnsOf(layout);
  const int rows = std::clamp(view.lines - view.firstLine, 0, layout.visible);
  CanvasFont(canvas, nullptr);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  HeadsDraw(canvas, layout, columns, look);
  GridDraw(canvas, layout, columns);
  for (int place = 0; place < rows; ++place) {
    MarksDraw(canvas, view.firstLine + place + 1, RowTop(layout, place), columns);
    RowDraw(canvas, view.firstLine + place + 1, RowTop(layout, place), columns, look);
  }
  for (int place = 0; place < rows; ++place) {
    const int row = view.firstLine + place + 1;
    if (RowIsCopied(row, look.mark)) BracketDraw(canvas, row, RowTop(layout, place), columns.number);
  }
}
