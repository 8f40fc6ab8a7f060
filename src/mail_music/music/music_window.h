// The window of the music table, EntertainmentBGMDlg.
#pragma once

#include "platform/types.h"
#include "schedule/table/table_layout.h"

// Opens the window unless it is open.
void BgmWindowOpen();

// Where the cells of the window lie.
TableLayout BgmLayout(WindowHandle window);

// Draws the window.
void BgmPaint(WindowHandle window);

// Lets the user pick a settings file and loads it; a failure is told. A good load opens the
// window.
void BgmLoadRun(WindowHandle owner);
// Asks for a name, asks again when there is such a file, and saves. A file that cannot be
// made is told; a short write is not.
void BgmSaveRun(WindowHandle owner);
// Lets the user pick the file of a row, from 0.
void BgmFileRun(WindowHandle owner, int row);
