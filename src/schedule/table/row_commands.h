// Insert, delete, copy and paste of rows, the four commands of the popup menu that the
// schedule table and the plan chart share.
#pragma once

#include "schedule/table/row_selection.h"

// The rows of a window, as the commands need them. Rows count from 0 here.
struct RowTable {
  CopyMark mark;
  int limit;     // a table of so many rows takes no insertion
  int capacity;  // that there is room for
  int (*count)();
  // Makes room for a row that begins empty; the rows from there on move down.
  void (*insert)(int row);
  void (*remove)(int row, int count);
  void (*copy)(int to, int from);
  void (*recalculate)();  // after a deletion; null for nothing
};

// The rows of the schedule on display.
const RowTable& SclRowTable();

// The window whose rows the commands act on: the one that was clicked last, else the
// schedule table, else the plan chart; null when neither is open.
WindowHandle RowWindow();
// That window's rows were clicked.
void RowWindowClicked(WindowHandle window);

void CommandRowDelete();  // 2209
void CommandRowInsert();  // 2040
void CommandRowCopy();    // 2210
void CommandRowPaste();   // 2211
