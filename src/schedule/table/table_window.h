// What the windows with such a table do alike: which cell was clicked, where the keyboard
// goes, and the popup menu of their rows.
#pragma once

#include "platform/event.h"
#include "schedule/table/row_selection.h"

// The cell that a press highlights; None for what is no cell of a row.
TableCell TableCellOf(TableHit hit);

// Gives the keyboard to the scroll bar, whose keys are the table's.
void TableFocus(WindowHandle window, const TableView& view, int bar);

// A press of the right button on a row's number: selects it as told and opens the menu of
// the rows there.
void TableMenuOpen(const Event& event, int row);
