// Scrolling of the schedule table and the plan chart while the user drags past
// their edge: state set by the tables, stepped by the tick.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/tick_step.h"

// What a table shows. Lines count from 0.
struct TableView {
  WindowHandle scrollBar = nullptr;
  std::int32_t lines = 0;         // lines of the table
  std::int32_t firstLine = 0;     // the first on show
  std::int32_t pageLines = 0;     // lines that fit
  std::int32_t selectionEnd = 0;  // the end of the selection that moves
};

enum class ScrollDirection { None = 0, Down = 1, Up = 2 };
struct SclTableState {
  TableView SclTableView = {};  // of the schedule table
  TableView PlanView = {};      // of the plan chart
  ScrollDirection TableScrollDirection = ScrollDirection::None;
  WindowHandle hSclTableWnd = nullptr;  // ScheduleMakeDlg
  WindowHandle hPlanWnd = nullptr;      // SchedulePlan1Dlg
  std::int32_t AutoScrollDelay = 0;
};
extern SclTableState SclTable;

inline constexpr int kTableLineHeight = 20;

// One step, called on every tick. Uses the schedule table if it is open, else the
// plan chart.
void TableScrollTick();

// Clears the direction and the delay.
void TableScrollStop();

// Destroys the tables' scroll bar, if there is one.
void TableScrollBarDestroy();

int TableScrollDue();
inline constexpr TickStep kTableScrollStep{TableScrollTick, TableScrollDue};

// Ends the repeating scroll; the pause before the next one stays as it is.
void TableScrollForget();
