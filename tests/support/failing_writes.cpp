#include "tests/support/failing_writes.h"

#include <gtest/gtest.h>

#include "platform/posix/faults.h"
#include "services/data_file.h"

int FailingWrites(int (*writer)(), int result) {
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Write, nth);
    FileResult.FileStatus = 0;
    const int given = writer();
    const bool met = FaultWasMet();
    FaultClear();
    if (!met) {
      EXPECT_EQ(given, 0);
      return nth - 1;
    }
    EXPECT_EQ(given, result) << nth;
    EXPECT_EQ(FileResult.FileStatus, -2) << nth;
  }
}
