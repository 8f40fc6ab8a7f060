// FlyingBat4 with a note of the calendar.
#include "tests/character/notices_fixture.h"

namespace {

TEST_F(NoticesTest, WithNoNoteDueNoNoticeOpens) {
  Send(kNoteNotice);
  EXPECT_EQ(hSclNoticeWnd, nullptr);
}

TEST_F(NoticesTest, TheFirstNoteThatIsDueOpensAndItsFlagIsCleared) {
  NoteDue(1, "明日");
  NoteDue(2, "明後日");
  Send(kNoteNotice);
  EXPECT_EQ(SclNoticeKind, 3);
  EXPECT_FALSE(NoteNotices[1].due);
  EXPECT_TRUE(NoteNotices[2].due);
  ExpectPlace(hSclNoticeWnd);
  Send(kNoteNotice);
  EXPECT_EQ(SclNoticeKind, 4);
  EXPECT_FALSE(NoteNotices[2].due);
  const WindowHandle last = hSclNoticeWnd;
  Send(kNoteNotice);
  EXPECT_EQ(hSclNoticeWnd, last);
}

TEST_F(NoticesTest, TodaysNoteIsAnnouncedForTodayWithTheDayInThePlaceOfTheMonthToo) {
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_EQ(Drawings(hSclNoticeWnd).size(), 4U);
  ExpectText(hSclNoticeWnd, {{20, "<< カレンダー書き込み >>"},
                             {40, "予定日 : 2026年21月21日  本日です"},
                             {64, "( 内 容 )"},
                             {84, "誕生日"}});
}

TEST_F(NoticesTest, LaterNotesAreAnnouncedWithTheirDaysAhead) {
  for (const int note : {1, 2}) {
    NoteDue(note, "誕生日");
    Send(kNoteNotice);
    Repaint(hSclNoticeWnd);
    const std::string date = "予定日 : 2026年21月21日  " + std::to_string(note) + "日前です";
    EXPECT_TRUE(TextStands(hSclNoticeWnd, date.c_str(), 10, 40));
  }
}

TEST_F(NoticesTest, ANotesTextStartsTenBelowThePictureAndAtMostAtAHundred) {
  PutFrame(kClockCharacter, 1, 40, 30);
  PutFrame(kClockCharacter, 2, 40, 79);
  PutFrame(kClockCharacter, 3, 40, 80);
  PutFrame(kClockCharacter, 4, 40, 200);
  AlarmCharaSel[2] = 2;
  AlarmCharaLoad();
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  EXPECT_TRUE(TextStands(hSclNoticeWnd, "<< カレンダー書き込み >>", 10, 50));
  // Drawn with the mask and without a box.
  const std::vector<DrawCall> drawn = Drawings(hSclNoticeWnd);
  EXPECT_EQ(drawn.size(), 6U);
  ExpectMasked(hSclNoticeWnd, 10, 10, AlarmRows[2].pictures[0], AlarmRows[2].masks[0]);
  for (const int y : {99, 100, 100}) {
    DrawingClear();
    SclNoticeFrameStep();
    EXPECT_TRUE(TextStands(hSclNoticeWnd, "<< カレンダー書き込み >>", 10, y));
  }
}

TEST_F(NoticesTest, ANotesTextIsBrokenAtFiftySixColumns) {
  NoteDue(0, std::string(128, 'x').c_str());
  Send(kNoteNotice);
  Repaint(hSclNoticeWnd);
  const std::vector<DrawCall> texts = DrawnTexts(hSclNoticeWnd);
  ASSERT_EQ(texts.size(), 6U);
  EXPECT_EQ(texts[3].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].text, std::string(56, 'x'));
  EXPECT_EQ(texts[4].y, 104);
  EXPECT_EQ(texts[5].text, std::string(16, 'x'));
}

}  // namespace
