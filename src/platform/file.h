// Files, folders and drives.
//
// Paths are code page 932 bytes with backslashes. A file handle is a small
// number of 0 or more; kNoFile stands for "cannot be opened". Text results are
// always terminated and never cut inside a double-byte pair.
#pragma once

#include <cstdint>

inline constexpr int kNoFile = -1;

// How a file is opened. The numbers are those of the classic open call, so
// that a mode of 32 reads as "read only, deny write".
enum class OpenMode : int {
  Read = 0,            // read only, full sharing
  ReadWrite = 2,       // read and write, full sharing
  ReadDenyWrite = 32,  // read only, others may not write
};

// Opens an existing file. Returns the handle or kNoFile.
int FileOpen(const char* path, OpenMode mode);

// Creates an empty file or empties an existing one, open for read and write.
// Returns the handle or kNoFile.
int FileCreate(const char* path);

// Reads up to `size` bytes. Returns the number read (short at the end of the
// file) or -1.
int FileRead(int file, void* buffer, int size);

// Writes `size` bytes. Returns the number written (short on a full disk) or -1.
int FileWrite(int file, const void* buffer, int size);

// Closes the handle; kNoFile is accepted and does nothing.
void FileClose(int file);

// Size of an open file in bytes, low 32 bits as the classic call gives them;
// `high` (may be null) takes the high 32 bits. A bad handle gives 0.
std::uint32_t FileSize(int file, std::uint32_t* high);

// Last-write time of an open file in 100 ns units since 1601 (UTC). False on
// failure.
bool FileWriteTime(int file, std::uint64_t* time);

// The same of a file by its path, without opening it.
bool FileLastWrite(const char* path, std::uint64_t* time);

bool FileDelete(const char* path);
bool FileMove(const char* from, const char* to);  // fails if `to` exists
bool FileCopy(const char* from, const char* to, bool failIfExists);

bool FolderCreate(const char* path);

// The current folder, without a trailing backslash unless it is a drive root; by its
// short names when code page 932 cannot hold the long ones. Returns the length, 0 on
// failure, when it does not fit, and when it has no name that the code page can hold.
int FolderGetCurrent(char* buffer, int size);
bool FolderSetCurrent(const char* path);

// The user's desktop folder, named likewise. False when it cannot be told or does not fit.
bool FolderDesktop(char* buffer, int size);

inline constexpr std::uint32_t kAttributeFolder = 16;

// One entry of a folder search.
struct SearchEntry {
  std::uint32_t attributes;
  std::uint64_t creationTime;   // 100 ns since 1601, UTC
  std::uint64_t lastWriteTime;  // the same
  std::uint32_t sizeHigh;
  std::uint32_t sizeLow;
  char name[260];
};

using SearchHandle = int;
inline constexpr SearchHandle kNoSearch = -1;

// Begins a search ("folder\*.*", or the path of one file). Returns kNoSearch
// when nothing matches. The entries "." and ".." are part of a folder search.
SearchHandle SearchFirst(const char* pattern, SearchEntry* entry);
bool SearchNext(SearchHandle search, SearchEntry* entry);
void SearchClose(SearchHandle search);  // kNoSearch is accepted

// Room on a drive in bytes. False (and zeros) on failure.
bool DiskSpace(const char* root, std::uint64_t* total, std::uint64_t* free);
