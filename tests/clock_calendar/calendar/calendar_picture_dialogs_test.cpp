// SetCalenBmpDlg and DspCalenImageDlg: the picture of a month.
#include "clock_calendar/calendar/dsp_calen_image.h"
#include "services/painting.h"
#include "tests/clock_calendar/calendar/calendar_dialogs_fixture.h"

namespace {

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
  FillArea(canvas, BrushFace(), area);
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

}  // namespace
