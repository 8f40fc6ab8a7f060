// What the folder scope works on: the program, started without data files, a drive C:
// whose room is told, and a hand that drives the searches.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_bars.h"
#include "filetools/scope/scope_pie.h"
#include "filetools/scope/scope_tables.h"
#include "filetools/stepped_work.h"
#include "platform/file.h"
#include "platform/memory.h"
#include "platform/posix/posix_paths.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/drawing_objects.h"
#include "services/screen_figures.h"
#include "services/text.h"
#include "services/work_blocks.h"
#include "shell/tick.h"
#include "tests/support/program.h"

// A file of that many bytes, without a byte on the disk.
inline void MakeSized(const std::string& path, std::uintmax_t size) {
  ASSERT_TRUE(PutFile(path, ""));
  std::filesystem::resize_file(PosixPath(path.c_str()), size);
}

// A folder with that many empty files, "0" and so on: one file by many names, which
// is made faster.
inline void MakeMany(const std::string& folder, int count) {
  MakeFolder(folder);
  ASSERT_TRUE(PutFile(folder + "\\0", ""));
  const std::string path = PosixPath(folder.c_str()) + "/";
  for (int i = 1; i < count; ++i) std::filesystem::create_hard_link(path + "0", path + std::to_string(i));
}

inline std::string CurrentOne() {
  char folder[512];
  return FolderGetCurrent(folder, sizeof folder) > 0 ? folder : "";
}

// The names of a folder in the order of the search.
inline std::vector<std::string> SearchOrder(const std::string& folder) {
  std::vector<std::string> names;
  SearchEntry entry;
  const SearchHandle search = SearchFirst((folder + "\\*.*").c_str(), &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    if (entry.name[0] != '.') names.emplace_back(entry.name);
  }
  SearchClose(search);
  return names;
}

class ScopeFixture : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    // What the start has written takes no room on the drive.
    for (const std::string& name : FolderNames("C:\\mirrell")) RemoveFile("C:\\mirrell\\" + name);
    PosixDiskSpaceSet(8388608, 1048576);
  }
  void TearDown() override {
    PosixDiskSpaceSet(0, 0);
    ProgramTest::TearDown();
  }

  static void Choose(const std::string& folder) {
    TextCopy(Scope.scopeFolder, sizeof Scope.scopeFolder, folder.c_str());
    ScopeSplitPath();
  }

  // Steps a search to its end; what the last step gave.
  static int RunSteps(int (*step)()) {
    int result = 0;
    while (result == 0) result = step();
    return result;
  }

  // As the dialogs do, without them.
  static void SearchDrive() {
    ScopeStepReset();
    Scope.scopeDriveCount = RunSteps(ScopeDriveStep) - 1;
    ScopeSortDrive();
  }
  static void SearchFolder() {
    ScopeStepReset();
    Scope.scopeFolderCount = RunSteps(ScopeFolderStep) - 1;
    ScopeSortFolder();
  }

  // The names of an area by rank.
  static std::vector<std::string> Ranked(ScopeArea area, int count) {
    std::vector<std::string> names;
    for (int rank = 0; rank < count; ++rank) {
      names.emplace_back(ScopeEntryGet(area, ScopeOrder(area, rank, count)).name);
    }
    return names;
  }

  // The tick's part in a search, until its dialog has closed.
  static void TicksOfSearch() {
    while (Stepped.hSearchDlg) {
      ASSERT_TRUE(Stepped.progressMode == 1 || Stepped.progressMode == 2);
      MainTick();
    }
  }
};
