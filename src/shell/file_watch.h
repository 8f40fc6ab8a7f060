// The watch on the data files that sibling programs write.
#pragma once

#include <cstdint>

#include "clock_calendar/calendar/calendar.h"
#include "services/tick_step.h"

enum class WatchedFile { CalendarFile, CharacterFile, ClockAlarmFile };
inline constexpr int kWatchedFileCount = 3;

struct FileWatchState {
  std::int32_t FileWatchCount = 0;               // up to 201 ticks
  std::uint64_t stamps[kWatchedFileCount] = {};  // last-write times
  // Flags of the watch: set by a change, cleared by what answers it. They are here
  // because answering sends commands, inside which a tick may come by.
  bool calendarReload = false;
  bool calendarTell = false;  // the schedule program must be told
  bool telling = false;       // the box that says so is up
  bool clockRestart = false;
  bool alarmReload = false;
  bool characterReload = false;
  // What the schedule program knows of the selected calendar.
  CalenDefinition calendarBefore = {};
  CalenMonth monthsBefore[kMonthsOfYear] = {};
};
extern FileWatchState Watch;

// Keeps the file's last-write time as it is now. A time that cannot be read
// leaves the kept one as it was.
void FileWatchStampTake(WatchedFile file);

// One look at the three files, with everything that a change brings about.
void FileWatch();

// The watch's step of the tick: every 201 ticks one look.
void FileWatchTick();
int FileWatchDue();
inline constexpr TickStep kFileWatchStep{FileWatchTick, FileWatchDue};
