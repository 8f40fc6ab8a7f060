// Rows that are selected and copied, in the schedule table, in the plan chart and in the
// tables that are built like them: all of them share one selection and one copy mark.
// Rows count from 1; 0 is none.
#pragma once

#include <cstdint>

#include "platform/event.h"
#include "schedule/table/table_layout.h"
#include "schedule/table/table_scroll.h"

enum class CopyMark { None = 0, InSchedule = 1, InPlan = 2 };
enum class TableCell { None = 0, Content = 1, Hours = 2, Check = 3, Alarm = 4 };

struct RowSelectionState {
  std::int32_t currentRow = 0;  // of the last click
  // A range, in either order; both the same row when a single one is selected.
  std::int32_t selectionAnchor = 0;
  std::int32_t selectionEnd = 0;
  bool dragging = false;  // over the row numbers, with the left button
  TableCell highlightedCell = TableCell::None;
  CopyMark copyMark = CopyMark::None;
  std::int32_t copyFirst = 0;
  std::int32_t copyLast = 0;
};
extern RowSelectionState RowSelection;

// First and last, in order, both in.
struct RowRange {
  int first;
  int last;
};
RowRange RowSelectionRange();
bool RowIsSelected(int row);

// --- What the pointer does

// A row as the only one, with one of its cells or none.
void RowChoose(int row, TableCell cell = TableCell::None);
// No row and no cell; a window does so when it opens.
void RowsForget();

// A press on a number cell: selects the row and starts a drag, or with shift moves the
// end of the selection there.
void RowPress(const Event& event, int row);
// A move of the pointer, which may belong to a drag; the table is drawn as needed.
void RowDrag(const Event& event, const TableLayout& layout, TableView& view);
// The left button is let go, which ends a drag.
void RowRelease(const Event& event, const TableLayout& layout, const TableView& view);
// A press of the right button on a number cell. True when the popup menu is to open:
// always for a single selection, which moves to that row, else inside the range only.
bool RowMenuMayOpen(int row);

// --- What the commands do

// Marks the selected range as copied.
void RowsMarkCopied(CopyMark mark);
void RowsMarkClear();
// A copied row of the window that has this mark.
bool RowIsCopied(int row, CopyMark mark);

// Scrolls a table under the pointer by one row, and draws it; the end of the selection goes
// along, as far as the first and the last of its rows. False at the table's end.
bool RowsScroll(WindowHandle window, TableView& view, ScrollDirection direction);
