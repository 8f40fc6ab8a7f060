// mirrell_chara_file.dcx: which characters play which role, with their idle
// settings. The character editor writes it; this program reads it at start, when
// it has changed, and when a dialog needs it.
#pragma once

inline constexpr int kCharaFilePathSize = 400;

// Writes the program folder and the file's name into `buffer`, which holds
// kCharaFilePathSize bytes. Returns the length.
int CharaFilePath(char* buffer);

// Reads the file into the tables of character_tables.h. Returns 0; -1 with
// FileStatus -1 when it cannot be opened and with FileStatus -2 when it ends too
// early; -2 with FileStatus -2 when the magic is another one or a count is beyond
// its table. The tables are taken over only with result 0. A file of an older
// release ends before the blink intervals: it reads with 0, the intervals that are
// missing and the clock designs' list values stay as they were.
int CharaFileRead();

// Every clock design takes the values that the user gave it. CharaFileRead calls it
// at the end of a file; the clock, whose list they stand in, defines it.
void ClockDesignsTakeListValues();

// Puts the fixed values of a new data set into the tables and writes the file. It
// is the character editor's form of the file; nothing of this program calls it.
// Returns 0; -1 with FileStatus -1 when the file cannot be made and with
// FileStatus -2 when the disk is full. The old file is gone by then.
int CharaFileWrite();
