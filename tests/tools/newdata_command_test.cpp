// The command line of mirrell-newdata, by its exit code: 0 done, 1 failed or
// faults found, 2 not understood.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/support/places.h"

namespace fs = std::filesystem;

namespace {

int RunTool(const std::string& words) {
  const int status = std::system((std::string(kNewdataProgram) + " " + words + " >/dev/null 2>&1").c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class NewDataCommand : public testing::Test {
 protected:
  void SetUp() override { fs::create_directories(folder); }
  void TearDown() override { fs::remove_all(folder); }

  fs::path folder = fs::temp_directory_path() / ("newdata_command_" + std::to_string(getpid()));
};

}  // namespace

TEST_F(NewDataCommand, WordsThatAreNotUnderstoodGiveTwo) {
  const std::string target = (folder / "set").string();
  EXPECT_EQ(RunTool(""), 2);
  EXPECT_EQ(RunTool("--unknown " + target), 2);
  EXPECT_EQ(RunTool(target + " " + target), 2);
  EXPECT_EQ(RunTool("--date"), 2);
  for (const char* date :
       {"2026", "2026-13-01", "2026-00-01", "2026-01-32", "2026/01/01", "20a6-01-01", "-026-01-01"}) {
    EXPECT_EQ(RunTool(std::string("--date ") + date + " " + target), 2) << date;
  }
  EXPECT_FALSE(fs::exists(target));
}

TEST_F(NewDataCommand, CheckOfAnEmptyFolderGivesOne) {
  EXPECT_EQ(RunTool("--check " + folder.string()), 1);
}

TEST_F(NewDataCommand, IconIsWritten) {
  const fs::path icon = folder / "x.ico";
  EXPECT_EQ(RunTool("--icon " + icon.string()), 0);
  EXPECT_TRUE(fs::exists(icon));
}

TEST_F(NewDataCommand, MissingAssetsGiveOne) {
  EXPECT_EQ(RunTool("--assets " + (folder / "none").string() + " " + (folder / "set").string()), 1);
}

TEST_F(NewDataCommand, YearBeyondTheCalendarsGivesOne) {
  EXPECT_EQ(RunTool("--date 2100-01-01 " + (folder / "set").string()), 1);
}
