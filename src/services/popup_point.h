// Where the popup menus of the schedule table, the calendar and the clock open: a window
// puts the clicked place there and sends the main window the menu's command.
#pragma once

// In pixels of the client area of the window that was clicked.
void PopupPointSet(int x, int y);
