#include "tests/support/records.h"

#include <string>

#include "services/program.h"
#include "services/text.h"
#include "shell/states.h"

void ClearRecords() {
  const std::string root = Program.RootFolder;
  StatesReset();
  TextCopy(Program.RootFolder, sizeof Program.RootFolder, root.c_str());
}

void RecordsTest::TearDown() {
  StatesReset();
  DesktopTest::TearDown();
}
