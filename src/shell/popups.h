// The popup menus of the schedule table, the calendar and the clock. A window puts
// the clicked place into PopupPoint (PopupPointSet) and sends the main window the menu's
// command.
#pragma once

#include "platform/types.h"

struct PopupsState {
  // The clicked place, in the client area of the window that was clicked.
  Point PopupPoint = {};
};
extern PopupsState Popups;

// Whether the clock and the calendar may open a popup: no panel, no dialog of the
// four families, no progress dialog and no file picker is open.
bool PopupMayOpen();
