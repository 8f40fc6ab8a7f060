// The back-up from nothing.
#pragma once

#include <cstring>

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "tests/filetools/filetools_fixture.h"

class BackUpFixture : public FileToolsTest {
 protected:
  void SetUp() override {
    FileToolsTest::SetUp();
    MakeFolder("C:\\mirrell\\copies");
  }

  // Sources of the program folder, copied or not.
  static void AddSource(const std::string& name, const std::string& bytes) {
    PutFile(InProgram(name), bytes);
    SetFileTime(InProgram(name), 1700000000);
    EXPECT_EQ(BackUpAddSource(InProgram(name).c_str()), 0);
  }
  static void CopyTo(const std::string& folder) {
    Set(BackUp.destDir, sizeof BackUp.destDir, folder);
    BackUpRebuildDest();
  }
  static void RunSteps() {
    BackUp.fileCursor = 0;
    while (BackUpStep() == 0) {
    }
  }
};
