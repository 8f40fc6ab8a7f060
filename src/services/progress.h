// The dialog of a work that the tick drives step by step: it shows that the work runs,
// and its button stops it between two steps.
#pragma once

#include "platform/types.h"
#include "services/commands.h"

struct Progress {
  int templateId;
  WindowHandle* handle;  // stands while the work runs; who drives it sends there ...
  Command stepCommand;   // ... this
  void (*begin)();       // when the dialog has come up; may be null
  // Does one step. True when the work is through; `result` is then what ProgressRun gives.
  bool (*step)(int* result);
  // The work is taken away from the tick: it is through, or the user or the end of the
  // program has stopped it. Runs once, before anything is told; may be null.
  void (*end)(bool stopped);
  // Tells how the work that is through has ended; its boxes have the dialog as owner. May
  // be null.
  void (*tell)(WindowHandle dialog, int result);
  int stopped;  // the result of a work that was stopped, or whose dialog did not come up
};

// Runs the dialog until the work is through or stopped. The tick drives one work of a
// kind at a time: while its handle stands, another is not begun and counts as stopped.
int ProgressRun(const Progress& progress, WindowHandle owner);
