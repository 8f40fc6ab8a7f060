#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "clock_calendar/clock/clock.h"
#include "services/text.h"

namespace {

class ClockTimedTest : public ::testing::Test {
 protected:
  void SetUp() override { Timed.TimedCount = 0; }
  void TearDown() override { Timed.TimedCount = 0; }
  static TimedEvent Event(int hour, int minute, int second, const char* comment = "") {
    TimedEvent event{true, hour, minute, second, {}};
    TextCopy(event.comment, sizeof event.comment, comment);
    return event;
  }
  static std::string Order() {
    std::string text;
    for (int i = 0; i < Timed.TimedCount; ++i) text += std::to_string(Timed.TimedOrder[i]) + " ";
    return text;
  }
};

TEST_F(ClockTimedTest, ARowHas138BytesAndKeepsItsFields) {
  EXPECT_EQ(RecordSize<TimedEvent>(), 138);
  EXPECT_EQ(TimedAdd(Event(23, 59, 58, "茶")), 0);
  const TimedEvent event = TimedGet(0);
  EXPECT_TRUE(event.enabled);
  EXPECT_EQ(event.hour, 23);
  EXPECT_EQ(event.minute, 59);
  EXPECT_EQ(event.second, 58);
  EXPECT_STREQ(event.comment, "茶");
  TimedEvent full = event;
  std::memset(full.comment, 'x', sizeof full.comment);
  EXPECT_TRUE(TimedChange(0, full));
  EXPECT_EQ(std::strlen(TimedGet(0).comment), 127U);
}

TEST_F(ClockTimedTest, RowsAreOrderedByHourThenMinute) {
  TimedAdd(Event(9, 30, 0));
  TimedAdd(Event(8, 45, 0));
  TimedAdd(Event(9, 15, 0));
  TimedAdd(Event(10, 0, 0));
  EXPECT_EQ(Order(), "1 2 0 3 ");
}

TEST_F(ClockTimedTest, OfOneMinuteTheNewRowsMinuteIsHeldAgainstTheOthersSecond) {
  // 30 is not below 20: the later second stays behind ...
  TimedAdd(Event(9, 30, 20));
  TimedAdd(Event(9, 30, 10));
  EXPECT_EQ(Order(), "0 1 ");
  // ... but below 40: this one goes in front, later though it is.
  Timed.TimedCount = 0;
  TimedAdd(Event(9, 30, 40));
  TimedAdd(Event(9, 30, 50));
  EXPECT_EQ(Order(), "1 0 ");
}

TEST_F(ClockTimedTest, A25thRowIsRefused) {
  for (int i = 0; i < 24; ++i) EXPECT_EQ(TimedAdd(Event(23 - i, 0, 0)), i);
  EXPECT_EQ(TimedAdd(Event(0, 0, 0)), -1);
  EXPECT_EQ(Timed.TimedCount, 24);
  EXPECT_EQ(Timed.TimedOrder[0], 23);
  EXPECT_EQ(Timed.TimedOrder[23], 0);
}

TEST_F(ClockTimedTest, DeletingMovesTheRowsBehindUpByOne) {
  TimedAdd(Event(3, 0, 0, "a"));
  TimedAdd(Event(2, 0, 0, "b"));
  TimedAdd(Event(1, 0, 0, "c"));
  EXPECT_TRUE(TimedDelete(0));
  EXPECT_EQ(Timed.TimedCount, 2);
  EXPECT_STREQ(TimedGet(0).comment, "b");
  EXPECT_STREQ(TimedGet(1).comment, "c");
  EXPECT_EQ(Order(), "1 0 ");
}

TEST_F(ClockTimedTest, AChangeOrdersTheRowsAnew) {
  TimedAdd(Event(3, 0, 0));
  TimedAdd(Event(2, 0, 0));
  EXPECT_TRUE(TimedChange(0, Event(1, 0, 0)));
  EXPECT_EQ(Order(), "0 1 ");
}

TEST_F(ClockTimedTest, RowsThatAreNotThereAreHarmless) {
  TimedAdd(Event(3, 0, 0));
  for (const int row : {-1, 1, 24, 2147483647}) {
    EXPECT_FALSE(TimedChange(row, Event(1, 0, 0)));
    EXPECT_FALSE(TimedDelete(row));
    EXPECT_FALSE(TimedGet(row).enabled);
  }
  EXPECT_EQ(Timed.TimedCount, 1);
}

}  // namespace
