// The tick announces the calendar's notes.
#include "schedule/execution/note_check.h"

#include "platform/posix/test_clock.h"
#include "schedule/execution/scl_notice.h"
#include "shell/tick.h"
#include "tests/character/notices_fixture.h"

namespace {

class NoteCheckTest : public NoticesTest {
 protected:
  void SetUp() override {
    NoticesTest::SetUp();
    CalenYearsSet(26);
    Calendar.CalenYearCount = 1;
    CalenYearInit(0);
    Calendar.CalenNoteMode = 1;
    TestClockSet({2026, 4, 10, 5, 12, 0, 0, 0});
  }
  static bool IsShown() { return Notices.hSclNoticeWnd != nullptr; }
};

TEST_F(NoteCheckTest, TodaysNoteIsAnnouncedByTheTickOnce) {
  CalenNoteSet(0, 3, 9, "誕生日");
  MainTick();
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(Notices.SclNoticeKind, 2);
  SendClose(Notices.hSclNoticeWnd);
  Ticks(10);
  EXPECT_FALSE(IsShown());
  TestClockSet({2026, 4, 11, 6, 0, 0, 0, 0});
  Ticks(3);
  EXPECT_FALSE(IsShown()) << "that day has no note";
}

TEST_F(NoteCheckTest, WithTheSettingOffNothingIsAnnounced) {
  Calendar.CalenNoteMode = 0;
  CalenNoteSet(0, 3, 9, "誕生日");
  Ticks(3);
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(NoteCheckDue(), kTickNever);
}

TEST_F(NoteCheckTest, OneNoteIsAnnouncedAfterTheOther) {
  Calendar.CalenNoteMode = 3;
  CalenNoteSet(0, 3, 9, "a");
  CalenNoteSet(0, 3, 10, "b");
  CalenNoteSet(0, 3, 11, "c");
  for (const int kind : {2, 3, 4}) {
    Ticks(3);
    ASSERT_TRUE(IsShown()) << kind;
    EXPECT_EQ(Notices.SclNoticeKind, kind);
    EXPECT_EQ(NoteCheckDue(), kTickNever) << "not while one is showing";
    SendClose(Notices.hSclNoticeWnd);
  }
  Ticks(3);
  EXPECT_FALSE(IsShown());
}

TEST_F(NoteCheckTest, TodayOutOfTheSpanNoAnnouncement) {
  CalenNoteSet(0, 3, 9, "a");
  TestClockSet({2027, 4, 10, 5, 12, 0, 0, 0});
  Ticks(3);
  EXPECT_FALSE(IsShown());
}

TEST_F(NoteCheckTest, AnnouncementsAreLookedForAtOnceOnANewDayAndThenRest) {
  EXPECT_EQ(NoteCheckDue(), 1);
  MainTick();
  // Twelve hours are left of the day: 43,200,000 milliseconds.
  EXPECT_EQ(NoteCheckDue(), 43200000 / 30);
  TestClockSet({2026, 4, 11, 6, 0, 0, 0, 0});
  EXPECT_EQ(NoteCheckDue(), 1);
  TestClockSet({2027, 4, 11, 6, 0, 0, 0, 0});
  EXPECT_EQ(NoteCheckDue(), 86400000 / 30) << "out of the span";
}

}  // namespace
