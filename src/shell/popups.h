// The popup menus of the schedule table, the calendar and the clock. A window puts
// the clicked place into PopupPoint (PopupPointSet) and sends the main window the menu's
// command.
#pragma once

#include "platform/types.h"
#include "services/popup_place.h"

struct PopupsState {
  // The clicked place, in the client area of the window that was clicked.
  Point PopupPoint = {};
};
extern PopupsState Popups;
