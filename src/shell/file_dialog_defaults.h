// What the platform's file dialogs start with.
#pragma once

struct FileDialogDefaultsState {
  char FileDialogFilter[64] = {};  // the one kind of file on offer
  char FileDialogPath[260] = {};
  char FileDialogTitle[512] = {};
};
extern FileDialogDefaultsState FileDialogDefaults;

// The state at start: schedule files, no path, no title.
void FileDialogDefaultsSet();
