// The watch on the data files that sibling programs write.
#pragma once

enum class WatchedFile { CalendarFile, CharacterFile, ClockAlarmFile };

// Keeps the file's last-write time as it is now. A time that cannot be read
// leaves the kept one as it was.
void FileWatchStampTake(WatchedFile file);

// One look at the three files, with everything that a change brings about.
void FileWatch();
