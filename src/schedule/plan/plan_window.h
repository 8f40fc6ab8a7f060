// The plan window, SchedulePlan1Dlg and its form for a training plan, SCHEDULEPLAN2DLG:
// what its files share.
#pragma once

#include "platform/types.h"
#include "schedule/table/row_commands.h"
#include "schedule/table/table_layout.h"

// Opens the window with a new plan of its kind; nothing when it is open.
void PlanWindowOpenStudy();
void PlanWindowOpenTraining();

// Shows the lines anew; nothing without a window.
void PlanWindowShow();
// The field of the window has the plan's title.
void PlanTitleShow();
// The plan's title becomes what stands in the window's field; nothing without a window.
void PlanTitleTake();

// The lines of the plan, for the commands of its table.
const RowTable& PlanRowTable();

TableLayout PlanLayout(WindowHandle window);
// Draws the whole window, with the columns of the plan's kind.
void PlanPaint(WindowHandle window);
// Draws it after it has scrolled, with the columns of a study plan.
void PlanRedraw(WindowHandle window);
