// The calendar's dialogs, driven as a user would.
#include "clock_calendar/calendar/dsp_calen_image.h"
#include "services/file_picker.h"
#include "shell/settings.h"
#include "tests/clock_calendar/calendar/calendar_fixture.h"

namespace {

using Rows = std::vector<std::string>;

const char kCalendarFile[] = "C:\\mirrell\\mirrell_calen_file.dcd";
const char kSettingsFile[] = "C:\\mirrell\\mirrell_sys_file.svs";

class CalendarDialogsTest : public CalendarFixture {
 protected:
  void SetUp() override {
    CalendarFixture::SetUp();
    Calendar.CalenCount = 3;
    CalenFileWrite();
    SysFileWrite();
  }
  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenType(int id, const std::string& text) {
    Then([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  static void ThenRow(int id, int row) {
    Then([id, row] { ChooseRow(TopDialog(), id, row); });
  }
  // Opens SelCalenderDlg and its editing dialog, runs the steps in between and leaves both.
  template <class Steps>
  static void Edit(Steps steps) {
    ThenPress(IDC_SEL_EDIT);
    steps();
    ThenPress(1);
    ThenPress(1);
    CommandSend(Command::CalendarSelect);
  }
  // A click on a day of the grid, whose first week begins at pixel (12, 144) with cells of
  // 58 by 26.
  static void ThenClickDay(int day) {
    Then([day] {
      const int column =
          (Calendar.CalenMonths[Calendar.CalenYearPos][CalendarEdit.month].firstWeekday + 1) % 7;
      const int place = column + day - 1;
      Mouse(TopDialog(), EventKind::LeftDown, 12 + place % 7 * 58 + 20, 144 + place / 7 * 26 + 10, kLeftHeld);
    });
  }
  static bool SavedNote(const std::string& note) {
    return FileBytes(kSettingsFile).find(note) != std::string::npos;
  }
};

// --- SelCalenderDlg

TEST_F(CalendarDialogsTest, TheChoiceShowsNameSpanAndList) {
  Then([] {
    EXPECT_EQ(WindowText(TopDialog()), "カレンダー 選択/設定");
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SelCalenderDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_SHOW), "カレンダーをデスクトップへ表示する");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_LOAD), "カレンダーをロード");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_EDIT), "カレンダーを編集");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SEL_LIST),
              (Rows{"月ごとカレンダー", "1週間カレンダー(日付縦)", "日めくりカレンダー"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_NAME), "月ごとカレンダー");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_SPAN), "2026年 ～ 2028年");
    ChooseRow(TopDialog(), IDC_SEL_LIST, 2);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SEL_NAME), "日めくりカレンダー");
    EXPECT_EQ(Calendar.CalenSel, 0) << "only looked at";
  });
  ThenPress(2);
  CommandSend(Command::CalendarSelect);
}

TEST_F(CalendarDialogsTest, TheChoiceShowsTheBackgroundOfAMonthWhosePictureIsOn) {
  MakeFolder(InProgram("背景"));
  PutFile(InProgram("背景\\sea.bmp"), BmpFile(30, 40));
  CalenMonthPicture& picture = Calendar.CalenMonths[0][10].picture;
  TextCopy(picture.background, sizeof picture.background, "sea.bmp");
  for (const bool on : {false, true}) {
    picture.pictureOn = on ? 1 : 0;
    Then([=] { EXPECT_EQ(CalendarEdit.pictures.CalenBackground != nullptr, on); });
    ThenPress(2);
    CommandSend(Command::CalendarSelect);
  }
}

TEST_F(CalendarDialogsTest, TheSwitchPutsTheCalendarOnTheDesktopAndTakesItAway) {
  ThenPress(IDC_SEL_SHOW);
  ThenPress(1);
  CommandSend(Command::CalendarSelect);
  EXPECT_EQ(Calendar.CalenShow, 1);
  EXPECT_NE(Calendar.hCalenWnd, nullptr);
  EXPECT_EQ(FileBytes(kSettingsFile)[2169], 1);
  ThenPress(IDC_SEL_SHOW);
  ThenPress(1);
  CommandSend(Command::CalendarSettings);
  EXPECT_EQ(Calendar.hCalenWnd, nullptr);
  EXPECT_EQ(FileBytes(kSettingsFile)[2169], 0);
}

TEST_F(CalendarDialogsTest, EscapeAndCloseLeaveTheSwitchAsItWas) {
  ThenPress(IDC_SEL_SHOW);
  Then([] { PressEscape(TopDialog()); });
  CommandSend(Command::CalendarSelect);
  EXPECT_EQ(Calendar.CalenShow, 0);
  ThenPress(IDC_SEL_SHOW);
  Then([] { PressClose(TopDialog()); });
  CommandSend(Command::CalendarSelect);
  EXPECT_EQ(Calendar.CalenShow, 0);
  EXPECT_EQ(Calendar.hCalenWnd, nullptr);
}

TEST_F(CalendarDialogsTest, ALoadedCalendarIsShownAtOnceAndKeptByOk) {
  Calendar.CalenShow = 1;
  Open();
  ThenRow(IDC_SEL_LIST, 2);
  ThenPress(IDC_SEL_LOAD);
  Then([] {
    EXPECT_EQ(Calendar.CalenSel, 2);
    EXPECT_EQ(Calendar.CalenKind, kPageDay);
    EXPECT_TRUE(Says("(本日)"));
  });
  ThenPress(1);
  CommandSend(Command::CalendarSelect);
  EXPECT_EQ(FileBytes(kSettingsFile).substr(1114, 4), std::string("\0\0\0\2", 4));
}

TEST_F(CalendarDialogsTest, CancelTakesALoadedCalendarBack) {
  Calendar.CalenShow = 1;
  SysFileWrite();
  Open();
  Then([] { DoubleClickRow(TopDialog(), IDC_SEL_LIST, 1); });
  Then([] { EXPECT_EQ(Calendar.CalenSel, 1); });
  ThenPress(2);
  CommandSend(Command::CalendarSelect);
  EXPECT_EQ(Calendar.CalenSel, 0);
  EXPECT_EQ(Calendar.CalenKind, kPageMonth);
  EXPECT_NE(Calendar.hCalenWnd, nullptr);
}

TEST_F(CalendarDialogsTest, WhatCannotBeSavedIsTold) {
  ThenPress(IDC_SEL_SHOW);
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルセーブできません", "カレンダー 選択/設定");
  ThenPress(1);
  CommandSend(Command::CalendarSelect);
}

// --- CalenderAdustDlg

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

// --- SetCalenBmpDlg

TEST_F(CalendarDialogsTest, TheMonthsPictureIsStoredForItsMonth) {
  World.WorldCharaCount = 3;
  TextCopy(World.WorldCharas[1].name, sizeof World.WorldCharas[1].name, "ちょう");
  Edit([] {
    ThenPress(IDC_CALEN_SET_BMP);
    Then([] {
      EXPECT_EQ(WindowText(TopDialog()), "カレンダー絵貼り付け");
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::SetCalenBmpDlg);
      EXPECT_EQ(ControlText(TopDialog(), IDC_BMP_ON), "ビットマップ有効");
      EXPECT_EQ(ControlText(TopDialog(), IDC_BMP_COLOUR_ONLY), "背景選択 -> 無効 (RGB有効)");
      EXPECT_EQ(ControlText(TopDialog(), IDC_FIGURE1_BY_YEAR),
                "Fig.選択を年に合わせる( 2000年～ -> Fig.0～ )");
      EXPECT_EQ(ListRows(TopDialog(), IDC_FIGURE1_CHARA)[2], "  2 ちょう");
      EXPECT_EQ(
          ListRows(TopDialog(), IDC_FIGURE1_DIRECTION),
          (Rows{"なし", "左", "右", "上", "下", "左斜め上", "右斜め上", "左斜め下", "右斜め下", "ランダム"}));
      EXPECT_EQ(ListRows(TopDialog(), IDC_FIGURE2_PERIOD).front(), "0.5秒");
      EXPECT_EQ(ListRows(TopDialog(), IDC_FIGURE2_PERIOD).back(), "5分");
      EXPECT_EQ(ListRows(TopDialog(), IDC_FIGURE2_STEP).front(), "0 倍");
      EXPECT_EQ(ListRows(TopDialog(), IDC_FIGURE2_STEP).back(), "10倍");
    });
    ThenPress(IDC_BMP_ON);
    ThenType(IDC_BMP_BACKGROUND, "sea.bmp");
    ThenType(IDC_BMP_RED, "300");  // cut to 255
    ThenType(IDC_BMP_GREEN, "7");
    ThenRow(IDC_FIGURE1_CHARA, 2);
    ThenRow(IDC_FIGURE1_FRAME, 4);
    ThenType(IDC_FIGURE1_X, "-5");
    ThenRow(IDC_FIGURE1_DIRECTION, 9);
    ThenRow(IDC_FIGURE1_PERIOD, 2);
    ThenRow(IDC_FIGURE1_STEP, 5);
    ThenRow(IDC_FIGURE1_START, 5);
    ThenPress(IDC_FIGURE2_BY_YEAR);
    ThenPress(1);
  });
  for (const auto& year : Calendar.CalenMonths) {
    const CalenMonthPicture& picture = year[10].picture;
    EXPECT_EQ(picture.pictureOn, 1);
    EXPECT_STREQ(picture.background, "sea.bmp");
    EXPECT_EQ(picture.backColour[0], 255);
    EXPECT_EQ(picture.backColour[1], 7);
    EXPECT_EQ(picture.correctX[0], -5);
    EXPECT_EQ(picture.directions[0], 9);
    EXPECT_EQ(picture.periods[0], 2);
    EXPECT_EQ(picture.steps[0], 5);
    EXPECT_EQ(year[9].picture.pictureOn, 0) << "another month";
  }
  const CalenDefinition& definition = Calendar.CalenDefinitions[0];
  EXPECT_EQ(definition.charas[10][0], 2);
  EXPECT_EQ(definition.figures[10][0], 4);
  EXPECT_EQ(definition.figureModes[10][0], 0);
  EXPECT_EQ(definition.figureModes[10][1], 1);
  EXPECT_EQ(definition.startX[10][0], 100) << "the middle; without a file the figure is 0 wide";
  // The month block of the file's first sheet: 3986 + 10 * 4672, its picture from 4130 on.
  EXPECT_STREQ(FileBytes(kCalendarFile).c_str() + 3986 + 10 * 4672 + 4130, "sea.bmp");
}

TEST_F(CalendarDialogsTest, ACancelledPictureChangesNothing) {
  Edit([] {
    ThenPress(IDC_CALEN_SET_BMP);
    ThenPress(IDC_BMP_ON);
    ThenPress(2);
    Then([] { EXPECT_FALSE(CalendarEdit.changed); });
  });
  EXPECT_EQ(Calendar.CalenMonths[0][10].picture.pictureOn, 0);
}

TEST_F(CalendarDialogsTest, AnUntouchedPictureChangesNothing) {
  Calendar.CalenDefinitions[0].charas[10][0] = 40;  // of which the list of the world knows none
  Calendar.CalenDefinitions[0].figureModes[10][1] = 2;
  Edit([] {
    ThenPress(IDC_CALEN_SET_BMP);
    ThenPress(1);
    Then([] { EXPECT_FALSE(CalendarEdit.changed); });
  });
}

TEST_F(CalendarDialogsTest, ABackgroundOfTheFolderIsNamedWithoutIt) {
  MakeFolder(InProgram("背景"));
  PutFile(InProgram("背景\\sea.bmp"), "x");
  PutFile(InProgram("own.bmp"), "x");
  Edit([] {
    ThenPress(IDC_CALEN_SET_BMP);
    ThenPress(IDC_BMP_PICK);
    ThenType(kPickNameId, "own.bmp");
    ThenPress(1);
    Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_BMP_BACKGROUND), "C:\\mirrell\\own.bmp"); });
    ThenPress(IDC_BMP_PICK);
    ThenType(kPickNameId, "背景\\sea.bmp");
    ThenPress(1);
    Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_BMP_BACKGROUND), "sea.bmp"); });
    ThenPress(IDC_BMP_PICK);
    ThenPress(kFolderCancelId);
    Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_BMP_BACKGROUND), "sea.bmp"); });
    ThenPress(2);
  });
}

// --- DspCalenImageDlg

TEST_F(CalendarDialogsTest, TheImageShowsThePageOfTheEditedMonthWithoutButtonsOrHits) {
  Open(kPageWeek);
  SendPaint(Calendar.hCalenWnd);
  Calendar.CalenKinds[0] = kPageWeek;
  const int x = Calendar.CalenHitX[20];
  CalenNoteSet(0, 1, 3, "only in February");
  Edit([=] {
    ThenRow(IDC_CALEN_MONTH, 1);
    ThenPress(IDC_CALEN_IMAGE);
    Then([=] {
      EXPECT_EQ(WindowText(TopDialog()), "イメージ確認");
      EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspCalenImageDlg);
      SendPaint(TopDialog());
      EXPECT_NE(Find(DrawnTexts(TopDialog()), "2026年  2月"), nullptr);
      EXPECT_EQ(Control(TopDialog(), 1) != nullptr, true);
      EXPECT_EQ(Calendar.CalenHitX[20], x) << "the desktop's cells";
      EXPECT_EQ(Calendar.CalenNearCount, 0);
      Press(TopDialog(), 1);
    });
  });
}

void DrawCross(Canvas* canvas, const Rect& area) {
  CanvasText(canvas, area.left, area.top, "backdrop");
}

TEST_F(CalendarDialogsTest, TheImageServesBothFamiliesAndTakesTheSizeOfItsPicture) {
  CalenImage image{400, 300, DrawCross};
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::DspCalenImageDlg);
    SendPaint(TopDialog());
    EXPECT_NE(Find(DrawnTexts(TopDialog()), "backdrop"), nullptr);
    EXPECT_EQ(WindowClientRect(TopDialog()).right, 400 + 24);
    EXPECT_EQ(WindowClientRect(TopDialog()).bottom, 300 + 28 + 36);
    PressEscape(TopDialog());
  });
  DspCalenImageDlgRun(SnryDialog::DspCalenImageDlg, Program.hMainWnd, image);
  Then([] {
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspCalenImageDlg);
    PressClose(TopDialog());
  });
  DspCalenImageDlgRun(SubDialog::DspCalenImageDlg, Program.hMainWnd, image);
}

// --- CalenCommentDlg

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
