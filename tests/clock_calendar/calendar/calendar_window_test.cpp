// FlyingBat3: what the pointer does, the memo panel, the buttons, the popup.
#include "shell/panel.h"
#include "shell/popups.h"
#include "tests/clock_calendar/calendar/calendar_fixture.h"

namespace {

class CalendarWindowTest : public CalendarFixture {
 protected:
  static Point CellOf(int day) { return {Calendar.CalenHitX[day - 1] + 2, Calendar.CalenHitY[day - 1] + 2}; }
  static void At(EventKind kind, int day, unsigned keys = 0) {
    const Point at = CellOf(day);
    Mouse(Calendar.hCalenWnd, kind, at.x, at.y, keys);
  }
  static int HeightBelowPage() { return RectHeight(WindowRect(Calendar.hCalenWnd)) - CalenPageHeight(); }
};

TEST_F(CalendarWindowTest, ItOpensByItsCommandAndIsPaintedAnewByTheSecond) {
  CommandSend(Command::CalendarOpen);
  const WindowHandle window = Calendar.hCalenWnd;
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(TemplateOf(window), IDD_FlyingBat3);
  DrawingClear();
  CommandSend(Command::CalendarOpen);
  EXPECT_EQ(Calendar.hCalenWnd, window);
  EXPECT_FALSE(Drawings(window).empty());
  SendClose(window);
  EXPECT_EQ(Calendar.hCalenWnd, nullptr);
}

TEST_F(CalendarWindowTest, EnterAndEscapeDoNotEndIt) {
  const WindowHandle window = Open();
  SendCommand(window, 1);
  SendCommand(window, 2);
  EXPECT_EQ(Calendar.hCalenWnd, window);
}

TEST_F(CalendarWindowTest, TheHitTestTellsTheDayOfACell) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  // November 2026 begins on a Sunday: cells of 28 by 18 from (2, 36) on.
  EXPECT_EQ(CalenHitTest(2, 36), 1);
  EXPECT_EQ(CalenHitTest(28, 52), 1);
  EXPECT_EQ(CalenHitTest(29, 36), 0) << "between two cells";
  EXPECT_EQ(CalenHitTest(30, 36), 2);
  EXPECT_EQ(CalenHitTest(2 + 28, 36 + 4 * 18), 30);
  EXPECT_EQ(CalenHitTest(2 + 2 * 28, 36 + 4 * 18), 0) << "behind the last day";
  EXPECT_EQ(CalenHitTest(100, 10), 0) << "the head";
  Calendar.CalenYearPos = 3;
  EXPECT_EQ(CalenHitTest(2, 36), 0) << "a year beyond the working array has no days";
  Calendar.CalenYearPos = 0;
}

TEST_F(CalendarWindowTest, ADoubleClickOpensTheMemoOfTheDay) {
  CalenNoteSet(0, 10, 4, "五日のメモ");
  Open();
  SendPaint(Calendar.hCalenWnd);
  DrawingClear();
  At(EventKind::LeftDouble, 5);
  EXPECT_EQ(Calendar.CalenMemoDay, 5);
  EXPECT_EQ(HeightBelowPage(), 140);
  const std::vector<DrawCall> texts = PaintedTexts();
  const int top = CalenPageHeight() - 30;
  ASSERT_NE(Find(texts, "----- メモ(書き込み) --------"), nullptr);
  EXPECT_EQ(Find(texts, "----- メモ(書き込み) --------")->x, 2);
  EXPECT_EQ(Find(texts, "----- メモ(書き込み) --------")->y, top + 20);
  ASSERT_NE(Find(texts, "五日のメモ"), nullptr);
  EXPECT_EQ(Find(texts, "五日のメモ")->y, top + 40);
}

// 200 pixels are 25 columns of 8: a pair that would be split goes to the next line.
TEST_F(CalendarWindowTest, TheNoteOfTheMemoIsBrokenBeforeAPair) {
  CalenNoteSet(0, 10, 4, "abcdefghijklmnopqrstuvwx漢字");
  Open();
  Calendar.CalenMemoDay = 5;
  const std::vector<DrawCall> texts = PaintedTexts();
  const int top = CalenPageHeight() - 30;
  ASSERT_NE(Find(texts, "abcdefghijklmnopqrstuvwx"), nullptr);
  ASSERT_NE(Find(texts, "漢字"), nullptr);
  EXPECT_EQ(Find(texts, "漢字")->y, top + 40 + 18);
}

TEST_F(CalendarWindowTest, TheMemoMovesWithAClickAndItsBoxClosesIt) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  At(EventKind::LeftDown, 5);
  EXPECT_EQ(Calendar.CalenMemoDay, 0) << "only while the panel shows";
  At(EventKind::LeftDouble, 5);
  At(EventKind::LeftDown, 7);
  EXPECT_EQ(Calendar.CalenMemoDay, 7);
  EXPECT_EQ(HeightBelowPage(), 140);
  const int top = CalenPageHeight() - 30;
  EXPECT_EQ(CalenHitTest(180, top), 255);
  EXPECT_EQ(CalenHitTest(195, top + 15), 255);
  EXPECT_EQ(CalenHitTest(196, top), 0) << "16 by 16";
  EXPECT_EQ(CalenHitTest(140, top), 256);
  EXPECT_EQ(CalenHitTest(157, top + 15), 256);
  EXPECT_EQ(CalenHitTest(160, top), 257);
  Mouse(Calendar.hCalenWnd, EventKind::LeftDown, 181, top + 1);
  EXPECT_EQ(Calendar.CalenMemoDay, 0);
  EXPECT_EQ(HeightBelowPage(), 20);
  EXPECT_EQ(CalenHitTest(181, top + 1), 0);
}

TEST_F(CalendarWindowTest, WithShiftHeldTheMouseDoesNothing) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  At(EventKind::LeftDouble, 5, kShiftHeld);
  EXPECT_EQ(Calendar.CalenMemoDay, 0);
  At(EventKind::MouseMove, 5, kShiftHeld);
  EXPECT_EQ(Calendar.CalenPointedDay, 0);
  At(EventKind::RightDown, 5, kShiftHeld);
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
  At(EventKind::LeftDouble, 5);
  At(EventKind::LeftDown, 7, kShiftHeld);
  EXPECT_EQ(Calendar.CalenMemoDay, 5);
}

TEST_F(CalendarWindowTest, TheDayOfThePointerHasAFrame) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  DrawingClear();
  At(EventKind::MouseMove, 5);
  EXPECT_EQ(Calendar.CalenPointedDay, 5);
  EXPECT_FALSE(Drawings(Calendar.hCalenWnd).empty());
  DrawingClear();
  At(EventKind::MouseMove, 5);
  EXPECT_TRUE(Drawings(Calendar.hCalenWnd).empty()) << "painted once for a day";
  Mouse(Calendar.hCalenWnd, EventKind::MouseMove, 100, 5);
  EXPECT_EQ(Calendar.CalenPointedDay, 0);
}

// --- The popup

TEST_F(CalendarWindowTest, TheRightButtonOnADayOpensThePopupThere) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  int day = 0;
  ExpectMenu(IDM_CALENDAR_DAY, 0, [&] { day = Calendar.CalenClickedDay; });
  At(EventKind::RightDown, 5);
  EXPECT_EQ(day, 5);
  EXPECT_EQ(Popups.PopupPoint.x, CellOf(5).x);
  EXPECT_EQ(Popups.PopupPoint.y, CellOf(5).y);
  EXPECT_EQ(Calendar.CalenClickedDay, 0) << "nothing was chosen";
  Mouse(Calendar.hCalenWnd, EventKind::RightDown, 100, 5);
  EXPECT_EQ(Calendar.CalenClickedDay, 0) << "no day, no menu";
}

// As after a sibling's change of the calendar file.
TEST_F(CalendarWindowTest, TheClickedDayStaysWhenTheCalendarIsOpenedAnewUnderThePopup) {
  Calendar.CalenShow = 1;
  Open();
  SendPaint(Calendar.hCalenWnd);
  ExpectMenu(IDM_CALENDAR_DAY, 2277, [] { CalenWindowRenew(); });
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_CALEN_NOTE_DAY), "2026年 11月 5日");
    Press(TopDialog(), 2);
  });
  At(EventKind::RightDown, 5);
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
}

TEST_F(CalendarWindowTest, ThePopupIsRefusedWhileADialogOrThePanelIsOpen) {
  Open();
  SendPaint(Calendar.hCalenWnd);
  Then([] {
    At(EventKind::RightDown, 5);
    EXPECT_EQ(Calendar.CalenClickedDay, 0);
    Press(TopDialog(), 2);
  });
  CommandSend(Command::CalendarSelect);
  Panel.hDiskMenu = OpenListener("panel");
  At(EventKind::RightDown, 5);
  EXPECT_EQ(Calendar.CalenClickedDay, 0);
  WindowDestroy(Panel.hDiskMenu);
  Panel.hDiskMenu = nullptr;
}

// --- The buttons

TEST_F(CalendarWindowTest, TheButtonsStepTheDayAndTheWeekPage) {
  Open(kPageDay);
  SendPaint(Calendar.hCalenWnd);
  Press(Calendar.hCalenWnd, 2313);
  EXPECT_EQ(Calendar.CalenDayOffset, -1);
  Press(Calendar.hCalenWnd, 2314);
  Press(Calendar.hCalenWnd, 2314);
  EXPECT_EQ(Calendar.CalenDayOffset, 1);
  EXPECT_TRUE(Says("(明日)"));
  Open(kPageWeek);
  SendPaint(Calendar.hCalenWnd);
  EXPECT_EQ(Calendar.CalenDayOffset, 0);
  Press(Calendar.hCalenWnd, 2316);
  EXPECT_EQ(Calendar.CalenDayOffset, 7);
  Press(Calendar.hCalenWnd, 2315);
  EXPECT_EQ(Calendar.CalenDayOffset, 0);
}

// Today is the 21st, which counts as 20.
TEST_F(CalendarWindowTest, AStepIsHeldInsideTheMonth) {
  Calendar.CalenKind = kPageWeek;
  Calendar.CalenDayOffset = -14;
  CalenDayStep(256);
  EXPECT_EQ(Calendar.CalenDayOffset, -20) << "-21 would fall below the first day";
  Calendar.CalenDayOffset = 7;
  CalenDayStep(257);
  EXPECT_EQ(Calendar.CalenDayOffset, 31 - 20);
  Calendar.CalenKind = kPageDay;
  Calendar.CalenDayOffset = -20;
  CalenDayStep(256);
  EXPECT_EQ(Calendar.CalenDayOffset, -20);
  Calendar.CalenDayOffset = 11;
  CalenDayStep(257);
  EXPECT_EQ(Calendar.CalenDayOffset, 11);
  Calendar.CalenKind = kPageMonth;
  CalenDayStep(256);
  EXPECT_EQ(Calendar.CalenDayOffset, 11) << "the month page stays";
}

TEST_F(CalendarWindowTest, TheButtonsAreMadeAfreshAndGoWithTheWindow) {
  const LiveObjects before = DiagnosticsLive();
  Open(kPageWeek);
  for (int i = 0; i < 5; ++i) SendPaint(Calendar.hCalenWnd);
  CommandSendTo(Calendar.hCalenWnd, Command::CalendarClear);
  SendClose(Calendar.hCalenWnd);
  CalenFontDelete();
  CalenStickersFree();
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

// --- When it is due

TEST_F(CalendarWindowTest, AStillCalendarIsDueAtMidnightOnly) {
  Open();
  Date(2026, 11, 21, 9, 30);  // 15 seconds past: 14 hours, 29 minutes and 45 seconds are left
  EXPECT_EQ(CalenWindowDue(), 52185000 / 30);
}

TEST_F(CalendarWindowTest, ARunningTickerIsDueAtEveryTickAndARestingOneAtTheEndOfItsRest) {
  Open();
  Calendar.CalenTickerOn = true;
  EXPECT_EQ(CalenWindowDue(), 1);
  Calendar.CalenTickerPause = 2;
  CalenTickerTick();  // there is nothing to tell
  EXPECT_EQ(Calendar.tickerRests, 2);
  TestClockSet({2026, 11, 21, 6, 9, 30, 0, 0});
  EXPECT_EQ(CalenTickerDue(), 2000);
  for (int i = 0; i < 500; ++i) CalenTickerTick();
  EXPECT_EQ(CalenTickerDue(), 1500);
}

// --- The ticker

TEST_F(CalendarWindowTest, TheTickerRunsFromTheRightAndRestsWhenItHasRunOut) {
  CalenNoteSet(0, 10, 20, "a");
  CalenNoteSet(0, 10, 23, "b");
  CalenDefinition& definition = Calendar.CalenDefinitions[0];
  definition.tickerFlags = 1;
  definition.tickerSpeed = 4;  // 5 pixels
  definition.tickerColour[2] = 0xFF;
  Open();
  CalenTickerSetup();
  ASSERT_EQ(Calendar.CalenTickerStep, 5);
  SendPaint(Calendar.hCalenWnd);
  DrawingClear();
  CalenTickerTick();
  EXPECT_EQ(Find(Drawings(Calendar.hCalenWnd), "21")->x, 200 - 5) << "what lies inside the window";
  DrawingClear();
  for (int i = 2; i <= 16; ++i) CalenTickerTick();
  DrawingClear();
  CalenTickerTick();
  const std::vector<DrawCall> drawn = Drawings(Calendar.hCalenWnd);
  const auto text = Find(drawn, "21日: a  ");
  ASSERT_NE(text, nullptr) << "today only";
  EXPECT_EQ(text->x, 200 - 17 * 5);
  EXPECT_EQ(text->textColour, 0xFF0000U);
  bool strip = false;
  for (const DrawCall& call : drawn) {
    strip = strip || (call.kind == DrawCall::Kind::Rectangle && call.brush == 0x00FFFFU && call.y == 0);
  }
  EXPECT_TRUE(strip) << "the complement";
  // Nine columns of 8 are 72 pixels: the 55th step stands at -75.
  for (int i = 18; i < 55; ++i) CalenTickerTick();
  EXPECT_EQ(Calendar.tickerPosition, 54);
  CalenTickerTick();
  EXPECT_EQ(Calendar.tickerPosition, 0);
  EXPECT_EQ(Calendar.tickerRests, 1);
  for (int i = 0; i < 1999; ++i) CalenTickerTick();
  EXPECT_EQ(Calendar.tickerRests, 1);
  CalenTickerTick();
  EXPECT_EQ(Calendar.tickerRests, 0);
  CalenTickerTick();
  EXPECT_EQ(Calendar.tickerPosition, 1);
}

TEST_F(CalendarWindowTest, WithAReachOfAWeekTheTickerTellsTodayAndSixDays) {
  CalenNoteSet(0, 10, 20, "a");
  CalenNoteSet(0, 10, 26, "b");
  CalenNoteSet(0, 10, 27, "c");
  Calendar.CalenDefinitions[0].tickerFlags = 0x81;
  Open();
  CalenTickerSetup();
  SendPaint(Calendar.hCalenWnd);
  for (int i = 0; i < 160; ++i) CalenTickerTick();
  DrawingClear();
  CalenTickerTick();
  EXPECT_NE(Find(Drawings(Calendar.hCalenWnd), "21日: a  27日: b  "), nullptr);
}

// The page is 152 high, with its picture 347; the picture 195.
TEST_F(CalendarWindowTest, TheTickerStandsAtItsPlace) {
  CalenNoteSet(0, 10, 20, "a");
  Calendar.CalenDefinitions[0].tickerFlags = 1;
  Calendar.CalenPictureOn = 1;
  const int kTops[] = {0, 195 / 2 - 10, 195 - 20, 347 - 40, (195 + 347) / 2 - 10, 0};
  for (int place = 0; place < 6; ++place) {
    Calendar.CalenDefinitions[0].tickerPlace = static_cast<std::uint8_t>(place);
    Open();
    CalenTickerSetup();
    SendPaint(Calendar.hCalenWnd);
    for (int i = 0; i < 160; ++i) CalenTickerTick();
    DrawingClear();
    CalenTickerTick();
    const auto text = Find(Drawings(Calendar.hCalenWnd), "21日: a  ");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->y, kTops[place] + 2) << place;
  }
}

// --- A year on the desktop

// Every day of 2028, a leap year, over midnight into the next one.
TEST_F(CalendarWindowTest, AYearOfMidnightsIsFollowedDayByDay) {
  Date(2027, 12, 31, 23, 59);
  Open();
  int days = 0;
  for (int month = 1; month <= 12; ++month) {
    const int length = month == 2 ? 29 : month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
    for (int day = 1; day <= length; ++day, ++days) {
      TestClockSet({2028, static_cast<std::uint16_t>(month), static_cast<std::uint16_t>(day), 0, 0, 0, 0, 0});
      DrawingClear();
      MainTick();
      ASSERT_EQ(Today.TodayDay, day - 1);
      ASSERT_EQ(Calendar.CalenMonthPos, month - 1);
      ASSERT_EQ(Calendar.CalenYearPos, 2);
      ASSERT_FALSE(Drawings(Calendar.hCalenWnd).empty()) << "painted on a new day";
      DrawingClear();
      MainTick();
      ASSERT_TRUE(Drawings(Calendar.hCalenWnd).empty()) << "and not again";
    }
  }
  EXPECT_EQ(days, 366);
  // The span is left: the calendar begins anew with the year of today.
  TestClockSet({2029, 1, 1, 0, 0, 0, 0, 0});
  MainTick();
  EXPECT_EQ(Calendar.CalenFirstYear, 29);
  EXPECT_EQ(Calendar.CalenYearPos, 0);
  EXPECT_TRUE(Says("2029年  1月"));
}

TEST_F(CalendarWindowTest, TheCountsAreFlatWhileATickerRuns) {
  Calendar.CalenDefinitions[0].tickerFlags = 1;
  CalenNoteSet(0, 10, 20, "a");
  Open(kPageWeek);
  CalenTickerSetup();
  Ticks(10);
  const std::string before = LiveText(DiagnosticsLive());
  Ticks(3000);
  EXPECT_EQ(LiveText(DiagnosticsLive()), before);
}

}  // namespace
