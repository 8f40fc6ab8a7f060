// The whole program in memory: its main window, its start, its ticks.
#pragma once

#include "tests/support/desktop.h"

// Stands on a desktop of its own with the program not started yet; the tables and
// counters of the shell and the character are as a fresh process has them.
class ProgramTest : public DesktopTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The process entry, whose message loop returns at once: the test goes on in its place.
  void StartProgram(const char* commandLine = "", int showMode = 1);
};

// Runs the tick handler `times` times.
void Ticks(int times);

// Opens a modeless test dialog with controls; its handler keeps what it hears, with
// the listener's name in front if it has one.
WindowHandle OpenListener(const char* name = "");
// From now on the commands of the main window are heard too ("main 2293"), and what
// programs were started in between ("start").
void ListenToEverything();
// What was heard since the last call: "command 2375", "paint", "close" ...
std::vector<std::string> TakeHeard();
