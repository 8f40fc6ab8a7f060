// The schedule table, ScheduleMakeDlg: its window, its rows and its picture.
#pragma once

#include "platform/types.h"
#include "schedule/table/row_commands.h"
#include "schedule/table/table_layout.h"

// Opens the window unless it is open; an open one is drawn anew, with no row chosen.
void ScheduleTableOpen();

// Draws the window if it is open.
void ScheduleTableShow();

// The window's layout, by the kind of the schedule: kind 0 has wider hours and no checks.
TableLayout ScheduleTableLayout(WindowHandle window);

// Draws the whole window.
void ScheduleTablePaint(WindowHandle window);

// Whom the dialogs of the schedule belong to: its window if it is open, else the stage.
WindowHandle ScheduleOwner();
