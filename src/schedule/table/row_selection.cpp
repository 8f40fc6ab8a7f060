#include "schedule/table/row_selection.h"

#include <algorithm>

#include "platform/window.h"

RowSelectionState RowSelection;

namespace {

// The rows on show end above this y.
int BottomOf(const TableLayout& layout) {
  return layout.rowsTop + layout.visible * kTableLineHeight;
}

// Scrolls towards the pointer by one row; the tick goes on with it while it stays there.
void DragPast(const Event& event, TableView& view, ScrollDirection direction) {
  TableScrollStart(direction);
  RowsScroll(event.window, view, direction);
}

}  // namespace

RowRange RowSelectionRange() {
  const auto [first, last] = std::minmax(RowSelection.selectionAnchor, RowSelection.selectionEnd);
  return {first, last};
}

bool RowIsSelected(int row) {
  const RowRange range = RowSelectionRange();
  return row > 0 && row >= range.first && row <= range.last;
}

void RowChoose(int row, TableCell cell) {
  // settled: a click on any cell makes its row the selection too, so that what is copied,
  // inserted or deleted is always the row that was clicked last.
  RowSelection.currentRow = row;
  RowSelection.selectionAnchor = row;
  RowSelection.selectionEnd = row;
  RowSelection.highlightedCell = cell;
}

void RowsForget() {
  RowChoose(0);
  RowSelection.dragging = false;
}

void RowPress(const Event& event, int row) {
  if ((event.keys & kShiftHeld) == 0) {
    RowChoose(row);
    RowSelection.dragging = true;
    PointerCapture(event.window);
  } else if (RowSelection.currentRow == 0) {
    RowChoose(row);
  } else {
    RowSelection.selectionEnd = row;
    RowSelection.highlightedCell = TableCell::None;
  }
  SendPaint(event.window);
}

void RowDrag(const Event& event, const TableLayout& layout, TableView& view) {
  if (!RowSelection.dragging) return;
  const TablePlace place = TablePlaceAt(layout, view.firstLine, view.lines, event.x, event.y);
  if (place.hit == TableHit::Number) {
    TableScrollForget();
    if (RowSelection.selectionEnd == place.row) return;
    RowSelection.selectionEnd = place.row;
    SendPaint(event.window);
  } else if (event.y >= BottomOf(layout)) {
    DragPast(event, view, ScrollDirection::Down);
  } else if (event.y < layout.rowsTop) {
    DragPast(event, view, ScrollDirection::Up);
  } else {
    TableScrollForget();
  }
}

void RowRelease(const Event& event, const TableLayout& layout, const TableView& view) {
  TableScrollStop();
  if (!RowSelection.dragging) return;
  RowSelection.dragging = false;
  PointerRelease();
  const int row = TableRowAt(layout, view.firstLine, view.lines, event.y);
  if (row > 0) RowSelection.selectionEnd = row;
  RowSelection.currentRow = RowSelection.selectionEnd;
  SendPaint(event.window);
}

bool RowMenuMayOpen(int row) {
  if (RowSelection.selectionAnchor != RowSelection.selectionEnd) return RowIsSelected(row);
  RowChoose(row);
  return true;
}

void RowsMarkCopied(CopyMark mark) {
  const RowRange range = RowSelectionRange();
  RowSelection.copyFirst = range.first;
  RowSelection.copyLast = range.last;
  RowSelection.copyMark = mark;
}

void RowsMarkClear() {
  RowSelection.copyMark = CopyMark::None;
}

bool RowIsCopied(int row, CopyMark mark) {
  return mark != CopyMark::None && RowSelection.copyMark == mark && row >= RowSelection.copyFirst &&
         row <= RowSelection.copyLast;
}

bool RowsScroll(WindowHandle window, TableView& view, ScrollDirection direction) {
  const bool down = direction == ScrollDirection::Down;
  if (!TableScrollMove(view, down ? Scroll::LineDown : Scroll::LineUp)) return false;
  RowSelection.selectionEnd = std::clamp(RowSelection.selectionEnd + (down ? 1 : -1), 1, view.lines);
  TableScrollShow(window, view);
  return true;
}
