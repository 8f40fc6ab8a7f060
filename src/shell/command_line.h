// The command line, which the first tick obeys.
#pragma once

#include "services/tick_step.h"

inline constexpr int kCommandLineSize = 600;
struct CommandLineState {
  // Waits for the first tick; empty when it has been taken.
  char PendingCommandLine[kCommandLineSize] = {};
  // What command 2373 looks at.
  char CommandLine[kCommandLineSize] = {};
};
extern CommandLineState ProgramLine;

// Keeps the command line for the first tick, cut to 599 bytes.
void CommandLineKeep(const char* text);

// A waiting command line is taken and obeyed.
void CommandLineTick();
int CommandLineDue();
inline constexpr TickStep kCommandLineStep{CommandLineTick, CommandLineDue};
