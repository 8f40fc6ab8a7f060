// CalenCommentDlg: the note of the clicked day.
#include "tests/clock_calendar/calendar/calendar_dialogs_fixture.h"

namespace {

TEST_F(CalendarDialogsTest, TheNoteOfTheClickedDayIsWrittenAndSaved) {
  Open();
  CalenClickedDaySet(25);
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "カレンダー書き込み");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::CalenCommentDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_CALEN_NOTE_DAY), "2026年 11月 25日");
    Type(TopDialog(), IDC_CALEN_NOTE, "給料日");
    PressEnter(TopDialog());
  });
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(Note(0, 10, 24), "給料日");
  EXPECT_TRUE(SavedNote("給料日"));
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
}

// As after a sibling's change of the calendar file.
TEST_F(CalendarDialogsTest, ANoteIsWrittenThoughTheCalendarIsOpenedAnewUnderItsDialog) {
  Calendar.CalenShow = 1;
  Open();
  CalenClickedDaySet(25);
  Then([] {
    Type(TopDialog(), IDC_CALEN_NOTE, "給料日");
    CalenWindowRenew();
    Press(TopDialog(), 1);
  });
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(Note(0, 10, 24), "給料日");
  EXPECT_TRUE(SavedNote("給料日"));
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
}

TEST_F(CalendarDialogsTest, ANoteGoesToItsOwnMonthWhenThatEndsUnderTheDialog) {
  Date(2026, 12, 31, 23, 59);
  Open();
  CalenClickedDaySet(25);
  Then([] {
    Type(TopDialog(), IDC_CALEN_NOTE, "給料日");
    TestClockSet({2027, 1, 1, 0, 0, 0, 0, 0});
    MainTick();
    EXPECT_EQ(Calendar.CalenMonthPos, 0);
    Press(TopDialog(), 1);
  });
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(Note(0, 11, 24), "給料日");
  EXPECT_EQ(Note(1, 0, 24), "");
}

TEST_F(CalendarDialogsTest, ANoteOfAYearThatTheSpanHasLeftIsToldAsNotSaved) {
  CalenSpanSet(26, 1);
  Date(2026, 12, 31, 23, 59);
  Open();
  CalenClickedDaySet(25);
  Then([] {
    Type(TopDialog(), IDC_CALEN_NOTE, "給料日");
    TestClockSet({2027, 1, 1, 0, 0, 0, 0, 0});
    MainTick();
    ExpectBox("ファイルセーブできません", "カレンダー書き込み");
    Press(TopDialog(), 1);
  });
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(Note(0, 11, 24), "");
}

TEST_F(CalendarDialogsTest, ACancelledNoteStaysAsItWas) {
  CalenNoteSet(0, 10, 24, "old");
  for (const int way : {0, 1, 2}) {
    CalenClickedDaySet(25);
    Then([way] {
      EXPECT_EQ(ControlText(TopDialog(), IDC_CALEN_NOTE), "old");
      Type(TopDialog(), IDC_CALEN_NOTE, "new");
      way == 0 ? Press(TopDialog(), 2) : way == 1 ? PressEscape(TopDialog()) : PressClose(TopDialog());
    });
    CommandSend(Command::CalendarNote);
    EXPECT_EQ(Note(0, 10, 24), "old");
  }
}

TEST_F(CalendarDialogsTest, WithNoClickedDayThereIsNoNoteToWrite) {
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(TopDialog(), nullptr);
}

TEST_F(CalendarDialogsTest, ANoteThatCannotBeSavedIsTold) {
  CalenClickedDaySet(25);
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルセーブできません", "カレンダー書き込み");
  ThenPress(1);
  CommandSend(Command::CalendarNote);
}

// --- Another program's change

TEST_F(CalendarDialogsTest, ChangedFlagsAndNotesOfTheSheetReachTheCalendarOnTheDesktop) {
  CalenNoteSet(0, 4, 5, "mine");
  CalenMonth before[kMonthsOfYear];
  std::copy_n(Calendar.CalenSheets[0], kMonthsOfYear, before);
  Calendar.CalenSheets[0][2].holidays[19] = 1;
  TextCopy(Calendar.CalenSheets[0][2].notes[19], kNoteSize, "春分の日");
  CalenSheetChangesTake(before);
  EXPECT_TRUE(CalenHolidayFlag(0, 2, 19));
  EXPECT_EQ(Note(0, 2, 19), "春分の日");
  EXPECT_EQ(Note(0, 4, 5), "mine") << "what the sheet does not hold stays";
  EXPECT_FALSE(CalenHolidayFlag(1, 2, 19)) << "the sheet is of the first year";
}

}  // namespace
