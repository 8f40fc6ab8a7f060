// CalenderAdustDlg, and SelectCalenSheelDialog that it opens: editing a calendar.
#include "tests/clock_calendar/calendar/calendar_dialogs_fixture.h"

namespace {

TEST_F(CalendarDialogsTest, TheEditingDialogReadsAsTold) {
  Edit([] {
    Then([] {
      EXPECT_EQ(WindowText(TopDialog()), "カレンダー 詳細設定");
      EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::CalenderAdustDlg);
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_FORMAT), (Rows{"月ごと", "一週間(日付縦)", "日めくり"}));
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_SIZE), (Rows{" 大", " 中", " 小"}));
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_NOTE_MODE), (Rows{"なし", "当日", "1日前から", "2日前から"}));
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_BASE).front(), "2000");
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_BASE).back(), "2099");
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_YEAR), (Rows{"2026", "2027", "2028"}));
      const std::pair<int, const char*> keys[] = {{IDC_CALEN_HOLIDAY, "休日選択/解除"},
                                                  {IDC_CALEN_STICKER, "シールを貼る"},
                                                  {IDC_CALEN_IMAGE, "イメージ確認"},
                                                  {IDC_CALEN_CLEAR_NOTES, "月の書きこみクリア"},
                                                  {IDC_CALEN_CLEAR_HOLIDAYS, "月の休日設定全解除"},
                                                  {IDC_CALEN_CLEAR_STICKERS, "月の全シールを剥す"},
                                                  {IDC_CALEN_NEAR, "直近の書き込みを常に表示する"},
                                                  {1, "設定終了"}};
      for (const auto& [id, text] : keys) EXPECT_EQ(ControlText(TopDialog(), id), text);
    });
  });
}

TEST_F(CalendarDialogsTest, NothingChangedWritesNothing) {
  RemoveFile(kCalendarFile);
  RemoveFile(kSettingsFile);
  Edit([] {});
  EXPECT_FALSE(FileThere(kCalendarFile));
  EXPECT_FALSE(FileThere(kSettingsFile));
}

TEST_F(CalendarDialogsTest, FieldsAreTakenOnLeavingAndSaved) {
  Edit([] {
    ThenType(IDC_CALEN_NAME, "私の暦");
    ThenRow(IDC_CALEN_FORMAT, 1);
    ThenRow(IDC_CALEN_SIZE, 2);
    ThenRow(IDC_CALEN_NOTE_MODE, 3);
    ThenPress(IDC_CALEN_NEAR);
    ThenPress(IDC_CALEN_PICTURE);
  });
  EXPECT_STREQ(Calendar.CalenNames[0], "私の暦");
  EXPECT_EQ(Calendar.CalenKinds[0], kPageWeek);
  EXPECT_EQ(Calendar.CalenKind, kPageWeek);
  EXPECT_EQ(Calendar.CalenPageSize, 2);
  EXPECT_EQ(Calendar.CalenNoteMode, 3);
  EXPECT_EQ(Calendar.CalenNearNote, 1);
  EXPECT_EQ(Calendar.CalenPictureOn, 1);
  EXPECT_STREQ(FileBytes(kCalendarFile).c_str() + 26, "私の暦");
  EXPECT_EQ(FileBytes(kCalendarFile)[3896], kPageWeek);
}

TEST_F(CalendarDialogsTest, EscapeAndCloseSaveWhatWasChangedToo) {
  ThenPress(IDC_SEL_EDIT);
  ThenType(IDC_CALEN_NAME, "a");
  Then([] { PressEscape(TopDialog()); });
  ThenPress(2);
  CommandSend(Command::CalendarSelect);
  EXPECT_STREQ(FileBytes(kCalendarFile).c_str() + 26, "a");
  ThenPress(IDC_SEL_EDIT);
  ThenType(IDC_CALEN_NAME, "b");
  Then([] { PressClose(TopDialog()); });
  ThenPress(2);
  CommandSend(Command::CalendarSelect);
  EXPECT_STREQ(FileBytes(kCalendarFile).c_str() + 26, "b");
}

TEST_F(CalendarDialogsTest, ASpanOf3YearsFrom2098IsCutTo2Years) {
  Edit([] {
    ThenRow(IDC_CALEN_BASE, 98);
    Then([] {
      EXPECT_EQ(Calendar.CalenYearCount, 2);
      EXPECT_EQ(Calendar.CalenFirstYear, 98);
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_SPAN), (Rows{" 1", " 2"}));
      EXPECT_EQ(ListRows(TopDialog(), IDC_CALEN_YEAR), (Rows{"2098", "2099"}));
      EXPECT_EQ(ListSelected(TopDialog(), IDC_CALEN_YEAR), 0);
    });
    ThenRow(IDC_CALEN_BASE, 99);
    Then([] { EXPECT_EQ(Calendar.CalenYearCount, 1); });
    ThenRow(IDC_CALEN_BASE, 26);
    ThenRow(IDC_CALEN_SPAN, 2);
  });
  EXPECT_EQ(Calendar.CalenYearCount, 3);
}

TEST_F(CalendarDialogsTest, AnotherBaseYearRebuildsTheMonthsAndGoesBackToTheFirstYear) {
  Edit([] {
    ThenRow(IDC_CALEN_YEAR, 2);
    Then([] { EXPECT_EQ(Calendar.CalenYearPos, 2); });
    ThenRow(IDC_CALEN_BASE, 28);
    Then([] {
      EXPECT_EQ(Calendar.CalenYearPos, 0);
      EXPECT_EQ(Calendar.CalenMonths[0][1].days, 29);
      EXPECT_EQ(Calendar.CalenMonths[0][1].firstWeekday, 1) << "1 February 2028 is a Tuesday";
    });
  });
}

// Today is in 2026, with all of the span still to come.
TEST_F(CalendarDialogsTest, ABaseYearToComeStaysWithItsHolidays) {
  Calendar.CalenShow = 1;
  Open();
  Edit([] {
    ThenRow(IDC_CALEN_BASE, 27);
    ThenPress(IDC_CALEN_HOLIDAY);
    Then([] { EXPECT_FALSE(CalenHolidayFlag(0, 10, 20)) << "21 November 2027 is a Sunday"; });
  });
  EXPECT_EQ(Calendar.CalenFirstYear, 27);
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_TRUE(Says("2027年  11月"));
  EXPECT_FALSE(CalenHolidayFlag(0, 10, 20));
  for (const DrawCall& call : Painted()) EXPECT_NE(call.brush, 0xC8C8C8U) << "no day of it is today";
  TestClockSet({2026, 12, 1, 0, 0, 0, 0, 0});
  MainTick();
  EXPECT_EQ(Calendar.CalenFirstYear, 27);
  EXPECT_TRUE(Says("2027年  12月"));
  TestClockSet({2027, 1, 1, 0, 0, 0, 0, 0});
  MainTick();
  EXPECT_EQ(Calendar.CalenFirstYear, 27);
  EXPECT_TRUE(Says("2027年  1月"));
}

TEST_F(CalendarDialogsTest, TheEditedYearStaysWhenTheMonthEndsUnderTheDialog) {
  Date(2026, 11, 30, 23, 59);
  Open();
  Edit([] {
    ThenRow(IDC_CALEN_YEAR, 1);
    Then([] {
      TestClockSet({2026, 12, 1, 0, 0, 0, 0, 0});
      MainTick();
      EXPECT_EQ(Calendar.CalenYearPos, 1);
    });
    ThenType(IDC_CALEN_DAY_NOTE, "来年");
  });
  EXPECT_EQ(Note(1, 10, 29), "来年");
  EXPECT_EQ(Note(0, 10, 29), "");
  MainTick();
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_EQ(Calendar.CalenMonthPos, 11);
}

TEST_F(CalendarDialogsTest, TheClickedDayIsEditedFirstAndThenForgotten) {
  Open();
  CalenClickedDaySet(5);
  Edit([] { Then([] { EXPECT_EQ(CalendarEdit.day, 4); }); });
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
  Edit([] { Then([] { EXPECT_EQ(CalendarEdit.day, 20) << "today"; }); });
}

TEST_F(CalendarDialogsTest, ANoteIsWrittenToTheClickedDay) {
  Edit([] {
    ThenClickDay(5);
    ThenType(IDC_CALEN_DAY_NOTE, "会議");
    ThenClickDay(6);
    Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_CALEN_DAY_NOTE), ""); });
    ThenClickDay(5);
    Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_CALEN_DAY_NOTE), "会議"); });
    ThenRow(IDC_CALEN_MONTH, 11);
    ThenRow(IDC_CALEN_YEAR, 1);
    ThenType(IDC_CALEN_DAY_NOTE, "来年");
  });
  EXPECT_EQ(Note(0, 10, 4), "会議");
  EXPECT_EQ(Note(1, 11, 4), "来年");
  EXPECT_TRUE(SavedNote("会議"));
  EXPECT_TRUE(SavedNote("来年"));
  EXPECT_NE(FileBytes(kCalendarFile).find("会議"), std::string::npos);
}

// 127 bytes of it: the field has 128 with the terminator.
TEST_F(CalendarDialogsTest, ALongNoteIsCutAtItsField) {
  Edit([] { ThenType(IDC_CALEN_DAY_NOTE, std::string(127, 'x')); });
  EXPECT_EQ(Note(0, 10, 20).size(), 127U);
}

// A file may hold all 128 bytes, one more than the field of the dialog.
TEST_F(CalendarDialogsTest, ANoteOf128BytesIsNotCutByAVisit) {
  char(&note)[kNoteSize + 1] = Calendar.CalenMonths[0][10].notes[20];
  std::memset(note, 'x', kNoteSize);
  Edit([] {
    ThenClickDay(5);
    Then([] { EXPECT_FALSE(CalendarEdit.changed); });
  });
  EXPECT_EQ(Note(0, 10, 20).size(), 128U);
  CalenClickedDaySet(21);
  ThenPress(1);
  CommandSend(Command::CalendarNote);
  EXPECT_EQ(Note(0, 10, 20).size(), 128U);
}

TEST_F(CalendarDialogsTest, TheHolidayOfTheClickedDayIsSetAndTakenBack) {
  Edit([] {
    ThenClickDay(5);
    ThenPress(IDC_CALEN_HOLIDAY);
    Then([] { EXPECT_TRUE(CalenHolidayFlag(0, 10, 4)); });
    ThenPress(IDC_CALEN_HOLIDAY);
    Then([] { EXPECT_FALSE(CalenHolidayFlag(0, 10, 4)); });
    ThenPress(IDC_CALEN_HOLIDAY);
  });
  EXPECT_TRUE(CalenHolidayFlag(0, 10, 4));
  // In the settings file: months from 2190, flags from 2.
  EXPECT_EQ(FileBytes(kSettingsFile)[2190 + 10 * 4672 + 2 + 4], 1);
}

TEST_F(CalendarDialogsTest, TheMonthClearKeysAskAndNameTheMonth) {
  CalenNoteSet(0, 10, 0, "a");
  CalenNoteSet(0, 11, 0, "b");
  Calendar.CalenDefinitions[0].stickers[10][3] = 2;
  Calendar.CalenDefinitions[0].stickers[11][3] = 2;
  const auto answer = [](BoxAnswer with) {
    ExpectBox("11月の書きこみをクリアします", "月の書きこみクリア", with);
    ThenPress(IDC_CALEN_CLEAR_NOTES);
    ExpectBox("11月の休日設定を全て解除します", "月の休日設定全解除", with);
    ThenPress(IDC_CALEN_CLEAR_HOLIDAYS);
    ExpectBox("11月のシールを全て剥します", "月の全シールを剥す", with);
    ThenPress(IDC_CALEN_CLEAR_STICKERS);
  };
  Edit([&] { answer(BoxAnswer::Cancel); });
  EXPECT_EQ(Note(0, 10, 0), "a");
  EXPECT_TRUE(CalenHolidayFlag(0, 10, 0)) << "a Sunday";
  EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[10][3], 2);
  Edit([&] { answer(BoxAnswer::Ok); });
  EXPECT_EQ(Note(0, 10, 0), "");
  EXPECT_FALSE(CalenHolidayFlag(0, 10, 0));
  EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[10][3], 0);
  EXPECT_EQ(Note(0, 11, 0), "b") << "another month";
  EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[11][3], 2);
  EXPECT_EQ(BoxesShown()[0].buttons, BoxButtons::OkCancel);
}

// The watch on the files answers another program's change by saving the settings.
TEST_F(CalendarDialogsTest, WhatIsSavedHereIsNotReadAgain) {
  Edit([] { ThenType(IDC_CALEN_NAME, "x"); });
  RemoveFile(kSettingsFile);
  Ticks(201);
  EXPECT_FALSE(FileThere(kSettingsFile));
}

TEST_F(CalendarDialogsTest, EditingThatCannotBeSavedIsTold) {
  Edit([] {
    ThenType(IDC_CALEN_NAME, "x");
    Then([] { FaultArm(FaultKind::Write, 1); });
    Then([] { ExpectBox("ファイルセーブできません", "カレンダー 詳細設定"); });
  });
}

// --- SelectCalenSheelDialog

// The client area is 424 by 520: cells of 37 by 43, 41 and 47 apart from 5 on.
TEST_F(CalendarDialogsTest, AStickerIsStuckAndTakenOff) {
  Calendar.CalenStickers.count = 25;
  Edit([] {
    ThenClickDay(5);
    ThenPress(IDC_CALEN_STICKER);
    Then([] {
      EXPECT_EQ(WindowText(TopDialog()), "カレンダーにシールを貼る");
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SelectCalenSheelDialog);
      const Rect client = WindowClientRect(TopDialog());
      ASSERT_EQ(client.right, 424);
      ASSERT_EQ(client.bottom, 520);
      Press(TopDialog(), 1);
      ASSERT_EQ(Dialogs.DlgIdSub, SubDialog::SelectCalenSheelDialog) << "none is chosen";
      Mouse(TopDialog(), EventKind::LeftDown, 5 + 2 * 41 + 36, 5 + 2 * 47, kLeftHeld);
      EXPECT_EQ(CalendarEdit.chosenSticker, 22);
      Mouse(TopDialog(), EventKind::LeftDown, 5 + 2 * 41 + 37, 5 + 2 * 47, kLeftHeld);
      EXPECT_EQ(CalendarEdit.chosenSticker, 22) << "between two cells";
      Mouse(TopDialog(), EventKind::LeftDown, 5 + 9 * 41, 5 + 9 * 47, kLeftHeld);
      EXPECT_EQ(CalendarEdit.chosenSticker, 22) << "no such sticker";
      Press(TopDialog(), 1);
    });
    Then([] { EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[10][4], 23); });
    ThenPress(IDC_CALEN_STICKER);
    Then([] { EXPECT_EQ(CalendarEdit.chosenSticker, 22) << "the day's own"; });
    ThenPress(2);
    Then([] { EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[10][4], 23); });
    ThenPress(IDC_CALEN_STICKER);
    ThenPress(IDC_STICKER_OFF);
  });
  EXPECT_EQ(Calendar.CalenDefinitions[0].stickers[10][4], 0);
}

TEST_F(CalendarDialogsTest, TheStickersPicturesAreFreedWithTheirDialog) {
  MakeFolder(InProgram("キャラクタ"));
  PutFile(InProgram("キャラクタ\\Chara9_1.bmp"), BmpFile(24, 16));
  Calendar.CalenStickers.count = 1;
  Calendar.CalenStickers.charas[0] = 9;
  const int blocks = DiagnosticsLive().blocks;
  Edit([&] {
    ThenPress(IDC_CALEN_STICKER);
    Then([=] { EXPECT_EQ(DiagnosticsLive().blocks, blocks + 1); });
    ThenPress(2);
    Then([=] { EXPECT_EQ(DiagnosticsLive().blocks, blocks); });
  });
}

}  // namespace
