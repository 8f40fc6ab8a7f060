// What the platform's file dialogs start with.
#pragma once

extern char FileDialogFilter[64];  // the one kind of file on offer
extern char FileDialogPath[260];
extern char FileDialogTitle[512];

// The state at start: schedule files, no path, no title.
void FileDialogDefaultsSet();
