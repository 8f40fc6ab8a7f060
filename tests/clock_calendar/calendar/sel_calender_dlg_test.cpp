// SelCalenderDlg: the choice of a calendar.
#include "tests/clock_calendar/calendar/calendar_dialogs_fixture.h"

namespace {

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

}  // namespace
