// The companion at the left upper corner with neither clock nor calendar: what the tests of
// large windows begin with.
#pragma once

#include <gtest/gtest.h>

#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/pointer.h"

class AloneOnTheDesktop : public testing::Test {
 protected:
  void SetUp() override {
    PointerAway();
    SettingsChange(companion_)
        .Number(kStageXAt, 20)
        .Number(kStageYAt, 20)
        .Byte(kClockShowAt, 0)
        .Byte(kCalenShowAt, 0);
    companion_.Start();
  }
  void TearDown() override {
    PointerAway();
    EXPECT_EQ(companion_.Close(), 0);
  }

  Companion companion_;
};
