// The border between paths of the program (code page 932, backslashes, drive
// letters) and paths of this system.
#pragma once

#include <string>

// A path of the program as one of this system. "C:\a" lies under the folder
// given to PosixDriveSet; "Z:\a" is "/a"; a path without a drive is relative
// to the current folder.
std::string PosixPath(const char* path);

// One name or path of this system as code page 932 bytes; characters outside
// the code page become "_".
std::string PosixToCp932(const std::string& utf8);

// The reverse.
std::string Cp932ToUtf8(const std::string& bytes);

// A path of this system as the program sees it.
std::string PosixToProgram(const std::string& path);

// The folder that stands for a drive. An empty folder takes the drive away.
void PosixDriveSet(char letter, const std::string& folder);

// The drives there are, in order; always with Z.
std::string PosixDrives();

// The folder that FolderDesktop tells; empty: it cannot be told.
void PosixDesktopSet(const std::string& folder);

// What DiskSpace tells of every drive that there is; a total of 0: what is true.
void PosixDiskSpaceSet(unsigned long long total, unsigned long long free);
