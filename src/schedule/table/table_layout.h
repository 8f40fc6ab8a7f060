// Where the cells of a table lie, in pixels of its window, and what is under the pointer.
#pragma once

#include "platform/types.h"

// What makes one table's layout different from another's.
struct TableShape {
  int top = 10;          // of the band above the rows: title and start, or of the heads
  bool titled = true;    // there is a band with title and start over the heads
  int reserved = 140;    // the height of the window that is not rows
  int rightMargin = 10;  // from the table to the window's edge, besides the scroll bar
  int hours = 90;        // the widths of the columns from the right
  int check = 58;
  int alarm = 56;
};

// Left and top are in, right and bottom are not. A column that a table has not is empty.
struct TableLayout {
  int left;
  int right;
  Rect title;  // empty without a title
  Rect start;
  int headTop;
  int rowsTop;
  int visible;  // rows that fit
  // The right edges of the columns, each the left edge of the next.
  int numberRight;
  int contentRight;
  int hoursRight;
  int checkRight;  // behind it the alarms, up to `right`
};

TableLayout TableLayoutOf(const Rect& client, const TableShape& shape);

// All that the heads, the title and the rows cover, with their edges.
Rect TableAreaOf(const TableLayout& layout);

// Where the scroll bar stands: beside the rows, right of the table.
Rect TableBarPlaceOf(const TableLayout& layout);

enum class TableHit {
  None = 0,
  Start = 1,
  Content = 2,
  Hours = 3,
  Check = 4,
  NumberHead = 5,
  Number = 6,
  Title = 7,
  Alarm = 8,
  AlarmHead = 9,
};

// What is at a place of the window. The row counts from 1; 0 where there is none.
struct TablePlace {
  TableHit hit = TableHit::None;
  int row = 0;
};
TablePlace TablePlaceAt(const TableLayout& layout, int firstLine, int lines, int x, int y);

// The row at that height alone, from 1; 0 above and below the rows.
int TableRowAt(const TableLayout& layout, int firstLine, int lines, int y);
