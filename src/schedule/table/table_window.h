// What the windows with such a table do alike: which cell was clicked, where the keyboard
// goes, and the popup menu of their rows.
#pragma once

#include "platform/event.h"
#include "schedule/table/row_selection.h"
#include "schedule/table/table_layout.h"
#include "schedule/table/table_scroll.h"

// The cell that a press highlights; None for what is no cell of a row.
TableCell TableCellOf(TableHit hit);

// Gives the keyboard to the scroll bar, whose keys are the table's.
void TableFocus(WindowHandle window, const TableView& view, int bar);

// A press of the right button on a row's number: selects it as told and opens the menu of
// the rows there.
void TableMenuOpen(const Event& event, int row);

// A window with such a table.
struct TableWindow {
  TableView& view;
  int bar;
  TableLayout (*layout)(WindowHandle window);
  int (*rows)();  // how many the table has
};

// Puts the scroll bar and the view where the window's size and the rows want them.
void TableWindowFit(const TableWindow& table, WindowHandle window);

// What is under the pointer of an event.
TablePlace TablePlaceOf(const TableWindow& table, const Event& event);

// Does what scrolling and the pointer do in the windows of schedule and plan, but for a double
// click: rows are selected, dragged over and have a menu. False for other events.
bool TableWindowEvent(const TableWindow& table, const Event& event);
