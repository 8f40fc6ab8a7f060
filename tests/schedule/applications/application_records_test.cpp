#include "schedule/applications/application_records.h"

#include "tests/support/record_check.h"

TEST(ApplicationRecords, LieAsTold) {
  RecordCheck<ApliHead>();
  RecordCheck<ApliEntry>();
  // Behind a magic of 24 bytes.
  EXPECT_EQ(24 + RecordOffset<&ApliHead::count>(), 24);
  EXPECT_EQ(24 + RecordOffset<&ApliHead::second>(), 28);
  EXPECT_EQ(24 + RecordOffset<&ApliHead::selected>(), 32);
}
