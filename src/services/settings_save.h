// Saving the settings and the calendars, for whoever has changed one, and reading them again. The shell,
// which knows the file, defines it.
#pragma once

#include "platform/types.h"

// Replaces the settings file. Returns 0, or -1 with FileStatus -1 (cannot be created)
// or -2 (short write; the old file is gone by then).
int SysFileWrite();

// settled: a dialog whose changes cannot be saved says so under its caption, and ends all the
// same.
void SaveTold(WindowHandle dialog, bool saved, const char* caption);

// Reads the settings file over what is in memory: for a dialog that is cancelled after a
// live change. Returns 0, or -1 with FileStatus.
int SysFileRead();

// The program has written the calendar file itself: the watch on the files takes it as known.
void CalendarFileSaved();
