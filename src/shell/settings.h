// The settings file, mirrell_sys_file.svs: the state that survives a restart.
// The variables that it holds belong to the character, the clock, the calendar
// and the schedule; they are the truth while the program runs, and every
// confirmed change writes the file.
#pragma once

#include <cstdint>

#include "services/settings_save.h"

inline constexpr int kSysFileSize = 172720;
inline constexpr int kSysFileMagicSize = 20;

// Writes the path of the file into a buffer of kRootPathSize bytes. Returns its
// length.
int SysFilePath(char* buffer);

// Writes the magic, without a terminator, into a buffer of kSysFileMagicSize
// bytes. Returns its length.
int SysFileMagic(char* buffer);

// Reads all variables and activates the clock's design. Returns 0, or -1 with
// FileStatus -1 (cannot be opened) or -2 (short). A wrong magic gives 0 with
// FileStatus -2 and leaves the variables as they were.
int SysFileRead();

// Fills the variables with what a new data set holds. Nothing in the program
// calls it; the tool that makes data sets does.
void SetFactorySettings();

// The screen's size, today's date, the calendar's years, and the default notice
// rectangle: what the start sets before it reads the files.
void SetDateDefaults();

struct FactoryState {
  // Two numbers of the factory settings that nothing reads.
  std::int32_t FactorySpareValue = 0;
  std::int32_t FactoryKeptValue = 0;
};
extern FactoryState Factory;
