// The process entry.
#pragma once

// Runs the program: makes the main window, shows it, runs the message loop.
// Returns the quit code; 0 when the window cannot be made.
int ProcessEntry(const char* commandLine, int showMode);

// The command line that waits for the first tick; empty when it has been taken.
inline constexpr int kCommandLineSize = 600;
struct EntryState {
  char PendingCommandLine[kCommandLineSize] = {};
  // The command line that command 2373 looks at.
  char CommandLine[kCommandLineSize] = {};
};
extern EntryState Entry;

// Moves the waiting command line into CommandLine and clears it.
void CommandLineTake();
