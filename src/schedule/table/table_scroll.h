// Scrolling of the schedule table and the tables that are built like it, and the two
// windows' handles. The tick scrolls on while the user drags past an edge.
#pragma once

#include <cstdint>

#include "platform/event.h"
#include "platform/types.h"

// What a table shows. Lines count from 0.
struct TableView {
  WindowHandle scrollBar = nullptr;
  std::int32_t lines = 0;      // lines of the table
  std::int32_t firstLine = 0;  // the first on show
  std::int32_t pageLines = 0;  // lines that fit
  // Draws the table after it has scrolled; without one it is painted whole.
  void (*redraw)(WindowHandle window) = nullptr;
};

enum class ScrollDirection { None = 0, Down = 1, Up = 2 };

struct RowTable;  // row_commands.h

struct SclTableState {
  TableView SclTableView = {};  // of the schedule table
  TableView PlanView = {};      // of the plan chart
  ScrollDirection TableScrollDirection = ScrollDirection::None;
  WindowHandle hSclTableWnd = nullptr;  // ScheduleMakeDlg
  WindowHandle hPlanWnd = nullptr;      // SchedulePlan1Dlg
  std::int32_t AutoScrollDelay = 0;
  // What the commands of the popup menu act on: the rows of the plan chart, while it is
  // open, or those of the schedule, by the window whose rows were clicked last.
  const RowTable* planRows = nullptr;
  WindowHandle clicked = nullptr;
  // A window without rows of its own, whose menu is that of the schedule's.
  WindowHandle guest = nullptr;
  // Of the schedule's window: the height that its buttons stand by, and that it is asking
  // whether to save before it closes.
  std::int32_t clientHeight = 0;
  bool closing = false;
};
extern SclTableState SclTable;

inline constexpr int kTableLineHeight = 20;
inline constexpr int kTableBarWidth = 16;
inline constexpr int kTableBar = 100;  // the bar's number as a control

// --- The windows. Each tells itself at its Init, and null at its end; `redraw` is that of
// its view.

void SclTableWindowSet(WindowHandle window);
void PlanWindowSet(WindowHandle window, const RowTable* rows, void (*redraw)(WindowHandle) = nullptr);
// Of another window that opens the menu of the schedule's rows.
void RowGuestSet(WindowHandle window);

// --- Scrolling

// The table has so many lines now, of which so many fit. The bar is set, and a first line
// that would leave places behind the last one empty is pulled back.
void TableViewFit(TableView& view, int lines, int pageLines);

// Carries out what the scroll bar or the wheel asks for. True when the event is one of
// them; the table is drawn if it has moved. A table in a window that is no schedule has a
// view of its own.
bool TableScrollEvent(const Event& event, TableView& view);

// Moves the first line as one request of a scroll bar tells. True when it has moved.
// `position` is the thumb's.
bool TableScrollMove(TableView& view, Scroll scroll, int position = 0);

// Draws the table and sets its bar after a move.
void TableScrollShow(WindowHandle window, TableView& view);

// Makes the bar at that place of the window, or moves the one that is there. The stage
// takes the bar away when it changes its size.
void TableBarPlace(WindowHandle window, TableView& view, int id, const Rect& place);

// --- The drag past an edge

// From now on the tick scrolls that way, until the end is reached or the drag is over.
void TableScrollStart(ScrollDirection direction);

// Clears the direction and the delay.
void TableScrollStop();

// Destroys the tables' scroll bar, if there is one.
void TableScrollBarDestroy();

// Ends the repeating scroll; the pause before the next one stays as it is.
void TableScrollForget();
