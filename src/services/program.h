// The program as a whole: its main window, its folder, and whether it is ending.
#pragma once

#include "platform/types.h"

inline constexpr int kRootSize = 300;

// Set by the start and the shutdown.
struct ProgramState {
  WindowHandle hMainWnd = nullptr;  // the character's stage; target of all commands
  // The shutdown has run, perhaps from inside a modal loop of a tick: what that tick
  // has left to do stays undone.
  bool Quitting = false;
  bool Started = false;  // a start has been in this process
  char RootFolder[kRootSize] = {};  // the program folder: root of every data file name
};
extern ProgramState Program;

// Room for the program folder and the name of any data file in it.
inline constexpr int kRootPathSize = kRootSize + 100;

// Writes the program folder and `name` (which begins with a backslash) into
// `buffer` of `size` bytes. Returns the length.
int RootPath(char* buffer, int size, const char* name);
