// The records of characters, clock, calendars, schedule and world, emptied and
// counted for tests of the files that hold them.
#pragma once

#include "tests/support/desktop.h"

// Everything as it stands before the program has read or set anything.
void ClearRecords();

// A desktop on which they are so before each test; what a test has loaded is freed.
class RecordsTest : public DesktopTest {
 protected:
  void TearDown() override;
};
