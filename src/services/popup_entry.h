// What the windows on the desktop ask of the popup menus, which the shell shows.
#pragma once

#include "platform/types.h"

// Whether the clock and the calendar may open a popup: no panel, no dialog of the
// four families, no progress dialog and no file picker is open.
bool PopupMayOpen();

// Where the next popup opens: a point of the client area of the window that it belongs to.
void PopupPointSet(const Point& point);
