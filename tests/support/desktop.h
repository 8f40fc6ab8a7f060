// A desktop of its own for each test: a fresh program folder, nothing on the
// screen, a clock that stands still, and a check at the end that nothing went
// wrong and nothing was left.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/diagnostics.h"
#include "platform/headless/headless.h"

// What stands around each test:
//
//   current and program folder   "C:\mirrell", empty; RootFolder says so
//   drive D:                     none; tests add drives with PosixDriveSet
//   clock                        Saturday 2026-11-21, 09:30:15, standing
//   screen                       1024 x 768
//   faults                       none
//
// The state of all features is as in a fresh process. What a test leaves behind
// is freed by its fixture before that calls TearDown here.
class DesktopTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The program folder as a path of this system.
  const std::string& Folder() const { return folder_; }

 private:
  std::string before_;  // the current folder outside
  std::string drive_;
  std::string folder_;
  LiveObjects live_{};
};

// --- Files, by paths of the program ("C:\mirrell\a.bin", or relative).

// The whole file; empty if it cannot be read.
std::string FileBytes(const std::string& path);
// Makes or replaces a file. False on failure.
bool PutFile(const std::string& path, const std::string& bytes);
bool FileThere(const std::string& path);
bool FolderThere(const std::string& path);
void RemoveFile(const std::string& path);
// Makes a folder and those above it.
void MakeFolder(const std::string& path);
// The names in a folder, sorted by bytes, without "." and "..".
std::vector<std::string> FolderNames(const std::string& path);
// Sets the last-write time of a file, in seconds since 1970.
void SetFileTime(const std::string& path, long long seconds);
// "C:\mirrell\" and the name.
std::string InProgram(const std::string& name);

// The live counts, readable; the same text for the same counts.
std::string LiveText(const LiveObjects& live);
