// Saving the settings and the calendars, for whoever has changed one, and reading them again. The shell,
// which knows the file, defines it.
#pragma once

// Replaces the settings file. Returns 0, or -1 with FileStatus -1 (cannot be created)
// or -2 (short write; the old file is gone by then).
int SysFileWrite();

// Reads the settings file over what is in memory: for a dialog that is cancelled after a
// live change. Returns 0, or -1 with FileStatus.
int SysFileRead();

// The program has written the calendar file itself: the watch on the files takes it as known.
void CalendarFileSaved();
