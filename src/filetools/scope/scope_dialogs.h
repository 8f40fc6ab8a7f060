// The folder scope's dialogs, and what those of the statistics share.
#pragma once

#include "filetools/stepped_work.h"
#include "platform/canvas.h"
#include "platform/types.h"

// FolderStaticsDlg and FolderStaticsDlg2, modal over `owner`: the statistics of
// scopeFolder as pies and as bars.
void FolderStaticsDlgRun(WindowHandle owner);
void FolderStaticsDlg2Run(WindowHandle owner);

// Runs the search of the drive or of the folder, under SerchDrvDlg or SerchFolderDlg.
// Returns the number of entries; negative if the user stopped it, there are too
// many, other stepped work is running, or the dialog cannot be made.
int ScopeSearchRun(WindowHandle owner, SteppedWork search);

// The part of a statistics dialog that is drawn on: it is left to the code.
Rect StaticsArea(WindowHandle dialog);

// For the Init of a statistics dialog: shows the folder, searches and works the
// charts out. False when the search was stopped: the dialog is then to end.
bool StaticsOpen(WindowHandle dialog, bool barChart);

// Draws the area on the face colour, in one go where the memory for that is to be
// had. `draw` gets transparent black text and a black pen.
void StaticsPaint(WindowHandle dialog, void (*draw)(Canvas* canvas, const Rect& area));

// A name as the charts show it: its first 23 bytes, no pair split, behind `before`.
// Cut at `size`.
void StaticsName(char* to, int size, const char* before, const char* name);
