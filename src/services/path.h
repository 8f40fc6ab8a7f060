// Paths: code page 932 text with backslashes. A backslash byte that is the second
// half of a double-byte character separates nothing.
#pragma once

#include "platform/types.h"

inline constexpr int kPathSplitSize = 512;

struct PathPartsState {
  // What PathSplit left: the folder with its separator, and the name. Both are
  // terminated.
  char PathFolder[kPathSplitSize + 1] = {};
  char PathName[kPathSplitSize + 1] = {};
};
extern PathPartsState PathParts;

// Cuts the first 512 bytes of a path behind its last backslash. Without one the
// folder is the whole and the name is empty.
void PathSplit(const char* path);

// True if a name from a foreign file names a file of the folder it is put behind: it is
// not empty, holds no backslash, slash or colon, and is no device's ("NUL", "com1.txt").
bool PathIsBareName(const char* name);

// True if a path names its drive, or begins at a root; any other lies below a folder.
bool PathIsFull(const char* path);

// 1 if the file can be opened for read and write, else 0. Clears FileStatus.
int FileExists(const char* path);

// True if a file may be written: there is none of that name yet, or the user
// agrees that it is replaced. Clears FileStatus.
bool OverwriteAllowed(WindowHandle owner, const char* path);

// True if the folder lies in another one that can be shown: its last backslash
// stands neither at its start nor at its end.
bool PathCanGoUp(const char* folder);

// Cuts the last folder off; a drive root keeps its backslash. 0, or -1 when there
// is nowhere to go up to: the text is then as it was.
int PathGoUp(char* folder);

// Adds one folder's name to a folder in a buffer of `size` bytes. 0, or -1 when
// it does not fit: the text is then as it was.
int PathGoDown(char* folder, int size, const char* name);
