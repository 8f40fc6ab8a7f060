#include "schedule/table/table_layout.h"

#include <algorithm>

#include "schedule/table/table_scroll.h"

namespace {

constexpr int kLeft = 10;
constexpr int kNumberWidth = 40;
constexpr int kStartWidth = 214;

// The column of a row at that x.
TableHit ColumnAt(const TableLayout& layout, int x) {
  if (x < layout.left || x >= layout.right) return TableHit::None;
  if (x < layout.numberRight) return TableHit::Number;
  if (x < layout.contentRight) return TableHit::Content;
  if (x < layout.hoursRight) return TableHit::Hours;
  return x < layout.checkRight ? TableHit::Check : TableHit::Alarm;
}

TableHit HeadAt(const TableLayout& layout, int x) {
  const TableHit column = ColumnAt(layout, x);
  if (column == TableHit::Number) return TableHit::NumberHead;
  return column == TableHit::Alarm ? TableHit::AlarmHead : TableHit::None;
}

}  // namespace

TableLayout TableLayoutOf(const Rect& client, const TableShape& shape) {
  TableLayout layout{};
  const int band = shape.titled ? kTableLineHeight : 0;
  layout.left = kLeft;
  layout.headTop = shape.top + band;
  layout.rowsTop = layout.headTop + kTableLineHeight;
  layout.visible = std::max(0, (client.bottom - shape.reserved) / kTableLineHeight);
  layout.numberRight = kLeft + kNumberWidth;
  // A window that is narrower than its columns has no room for the content.
  const int columns = shape.hours + shape.check + shape.alarm;
  layout.right = std::max(client.right - shape.rightMargin - kTableBarWidth, layout.numberRight + columns);
  layout.contentRight = layout.right - columns;
  layout.hoursRight = layout.contentRight + shape.hours;
  layout.checkRight = layout.hoursRight + shape.check;
  if (shape.titled) {
    const int split = std::max(layout.right - kStartWidth, kLeft);
    layout.title = {kLeft, shape.top, split, layout.headTop};
    layout.start = {split, shape.top, layout.right, layout.headTop};
  }
  return layout;
}

Rect TableAreaOf(const TableLayout& layout) {
  const int top = RectHeight(layout.start) > 0 ? layout.start.top : layout.headTop;
  return {layout.left, top, layout.right + 1, layout.rowsTop + layout.visible * kTableLineHeight + 1};
}

Rect TableBarPlaceOf(const TableLayout& layout) {
  return {layout.right, layout.rowsTop, layout.right + kTableBarWidth,
          layout.rowsTop + layout.visible * kTableLineHeight};
}

int TableRowAt(const TableLayout& layout, int firstLine, int lines, int y) {
  if (y < layout.rowsTop) return 0;
  const int down = (y - layout.rowsTop) / kTableLineHeight;
  const int line = firstLine + down;
  return down < layout.visible && line < lines ? line + 1 : 0;
}

TablePlace TablePlaceAt(const TableLayout& layout, int firstLine, int lines, int x, int y) {
  if (RectHas(layout.start, x, y)) return {TableHit::Start, 0};
  if (RectHas(layout.title, x, y)) return {TableHit::Title, 0};
  if (y >= layout.headTop && y < layout.rowsTop) return {HeadAt(layout, x), 0};
  const int row = TableRowAt(layout, firstLine, lines, y);
  const TableHit column = row > 0 ? ColumnAt(layout, x) : TableHit::None;
  return {column, column == TableHit::None ? 0 : row};
}
