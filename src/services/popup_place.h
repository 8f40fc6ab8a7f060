// The popup menus of the windows that stand on the desktop. The shell, which knows every
// dialog and runs the menus, defines both.
#pragma once

#include "platform/types.h"

// Whether the clock and the calendar may open a popup: no panel, no dialog of the
// four families, no progress dialog and no file picker is open.
bool PopupMayOpen();

// Where the next menu opens: the clicked place, in the client area of the clicked window.
void PopupPointSet(Point at);
