// FlyingBat4 with a note of the calendar.
#include "character/alarm_images.h"
#include "character/character.h"
#include "clock_calendar/calendar/calendar.h"
#include "platform/posix/test_clock.h"
#include "schedule/execution/scl_notice.h"
#include "services/today.h"
#include "tests/character/notices_fixture.h"

namespace {

int NoteCheck() {
  SharedTimeTake();
  return CalenNoteCheck();
}

TEST_F(NoticesTest, WithNoNoteDueNoNoticeOpens) {
  Send(kNoteNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
}

TEST_F(NoticesTest, TheFirstNoteThatIsDueOpensAndItsFlagIsCleared) {
  NoteDue(1, "明日");
  NoteDue(2, "明後日");
  Send(kNoteNotice);
  EXPECT_EQ(Notices.SclNoticeKind, 3);
  EXPECT_FALSE(Calendar.CalenNotes[1].due);
  EXPECT_TRUE(Calendar.CalenNotes[2].due);
  ExpectPlace(Notices.hSclNoticeWnd);
  Send(kNoteNotice);
  EXPECT_EQ(Notices.SclNoticeKind, 4);
  EXPECT_FALSE(Calendar.CalenNotes[2].due);
  const WindowHandle last = Notices.hSclNoticeWnd;
  Send(kNoteNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, last);
}

// What the check finds on a day is what the command announces, once.
TEST_F(NoticesTest, TheNoteThatTheCheckHasFoundIsAnnounced) {
  TestClockSet({2026, 4, 10, 0, 12, 0, 0, 0});
  CalenYearsSet(26);
  Calendar.CalenYearCount = 1;
  CalenYearInit(0);
  CalenNoteSet(0, 3, 9, "誕生日");
  Calendar.CalenNoteMode = 1;
  ASSERT_EQ(NoteCheck(), 1);
  Send(kNoteNotice);
  EXPECT_EQ(Notices.SclNoticeKind, 2);
  Repaint(Notices.hSclNoticeWnd);
  // kept: the day stands in the place of the month too.
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定日 : 2026年10月10日  本日です", 10, 40));
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "誕生日", 10, 84));
  EXPECT_EQ(NoteCheck(), 0);
  Calendar.CalenNoteMode = 0;
  CalenNoteSet(0, 3, 9, "");
}

TEST_F(NoticesTest, TodaysNoteIsAnnouncedForTodayWithTheDayInThePlaceOfTheMonthToo) {
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(Dibs(Notices.hSclNoticeWnd).empty());
  ExpectText(Notices.hSclNoticeWnd, {{20, "<< カレンダー書き込み >>"},
                                     {40, "予定日 : 2026年21月21日  本日です"},
                                     {64, "( 内 容 )"},
                                     {84, "誕生日"}});
}

TEST_F(NoticesTest, LaterNotesAreAnnouncedWithTheirDaysAhead) {
  for (const int note : {1, 2}) {
    NoteDue(note, "誕生日");
    Send(kNoteNotice);
    Repaint(Notices.hSclNoticeWnd);
    const std::string date = "予定日 : 2026年21月21日  " + std::to_string(note) + "日前です";
    EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, date.c_str(), 10, 40));
  }
}

// A picture that is lower than the one before moves the text up and leaves nothing of it.
TEST_F(NoticesTest, EachPaintingOfANoteBeginsWithTheBackground) {
  PutFrame(kClockCharacter, 1, 40, 79);
  PutFrame(kClockCharacter, 2, 40, 30);
  Character.AlarmCharaSel[2] = 2;
  AlarmCharaLoad();
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 99));
  Notices.noteFrame = 1;
  SendPaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 50));
  EXPECT_FALSE(TextStands(Notices.hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 99));
}

TEST_F(NoticesTest, ANotesTextStartsTenBelowThePictureAndAtMostAtAHundred) {
  PutFrame(kClockCharacter, 1, 40, 30);
  PutFrame(kClockCharacter, 2, 40, 79);
  PutFrame(kClockCharacter, 3, 40, 80);
  PutFrame(kClockCharacter, 4, 40, 200);
  Character.AlarmCharaSel[2] = 2;
  AlarmCharaLoad();
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 50));
  // Drawn with the mask and without a box.
  for (const DrawCall& dib : Dibs(Notices.hSclNoticeWnd)) EXPECT_FALSE(dib.clipped);
  ExpectMasked(Notices.hSclNoticeWnd, 10, 10, AlarmImages.AlarmRows[2].pictures[0],
               AlarmImages.AlarmRows[2].masks[0]);
  for (const int y : {99, 100, 100}) {
    DrawingClear();
    SclNoticeFrameStep();
    EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "<< カレンダー書き込み >>", 10, y));
  }
}

TEST_F(NoticesTest, ANotesTextIsBrokenAtFiftySixColumns) {
  NoteDue(0, std::string(128, 'x').c_str());
  Send(kNoteNotice);
  Repaint(Notices.hSclNoticeWnd);
  const std::vector<DrawCall> texts = DrawnTexts(Notices.hSclNoticeWnd);
  ASSERT_EQ(texts.size(), 6U);
  EXPECT_EQ(texts[3].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].y, 104);
  EXPECT_EQ(texts[5].text, std::string(16, 'x'));
}

}  // namespace
