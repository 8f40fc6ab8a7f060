// How the schedule table and the tables that are built like it are drawn: heads, rows,
// the selection, and the bracket around what is copied.
#pragma once

#include "platform/canvas.h"
#include "schedule/table/row_selection.h"
#include "schedule/table/table_layout.h"
#include "schedule/table/table_scroll.h"

inline constexpr int kTableTextSize = 129;

// The texts of one row behind its number; empty for a column that the table has not.
struct TableRowText {
  char content[kTableTextSize];
  char hours[40];
  char check[40];
  char alarm[16];
};

// What a table shows: the heads of its columns, and the text of each line, from 0.
struct TableLook {
  const char* content;
  const char* hours;
  const char* check;
  const char* alarm;
  CopyMark mark;
  void (*row)(int line, TableRowText& text);
};

// Heads and rows; the canvas is the window's or one with its pixels in the same places.
void TableDraw(Canvas* canvas, const TableLayout& layout, const TableView& view, const TableLook& look);

// A cell with a filling, edged in grey, and a text 2 pixels from its edge that is cut to
// what fits, at most 128 bytes, without splitting a pair.
void TableCellDraw(Canvas* canvas, const Rect& cell, BrushHandle brush, const char* text);
