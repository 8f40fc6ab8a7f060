// Schedule files, "*.GPI", numbers of the head big-endian:
//
//   0       16        magic "SCL Data File : "
//   16     259        SclHeaderState; the writer stores kind 1
//   275    160 each   SclItemRec, as many as the head counts
//   then   600        SclMapFile, only when it is not empty
//   then     2 each   SclMapColumn, only with the path
//   then     2 each   SclMapRow, the same
#pragma once

inline constexpr char kSclMask[] = "*.GPI";

// Writes the schedule on display and takes the path for SclCurrentFile; the executing
// copy is refreshed when it is of that file. Returns FileStatus: 0, -1 cannot be created,
// -2 short write; the file stays as far as it got.
int SclSaveFile(const char* path);

// Reads a schedule straight into the state. SclCurrentFile is the path as soon as the file
// opens. Returns FileStatus: 0, -1 cannot be opened, -2 wrong magic, too many items or
// short; what was read stays then. A file without the path is whole; the path that is
// there stays.
int SclLoadFile(const char* path);
