#include "tests/support/desktop.h"

#include "platform/file.h"

namespace {

class DesktopFixtureTest : public DesktopTest {};

TEST_F(DesktopFixtureTest, ProgramFolderIsCurrentAndOnDriveC) {
  char folder[300];
  ASSERT_GT(FolderGetCurrent(folder, sizeof folder), 0);
  EXPECT_STREQ(folder, "C:\\mirrell");
}

}  // namespace
