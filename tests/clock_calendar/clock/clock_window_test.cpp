// FlyingBat6, the desktop clock.
#include <cmath>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "platform/diagnostics.h"
#include "services/tick_step.h"
#include "shell/tick.h"
#include "tests/clock_calendar/clock/clock_fixture.h"

namespace {

using Kind = DrawCall::Kind;

constexpr double kPi = 3.14159265358979323846;
constexpr int kCentreX = 60;
constexpr int kCentreY = 50;
constexpr int kHour = 30;  // lengths of the hands
constexpr int kMinute = 40;

class ClockWindowTest : public ClockFixture {
 protected:
  void SetUp() override {
    ClockFixture::SetUp();
    SetTime(3, 30);
  }
  static std::string RegionText() {
    std::string text;
    for (const Point& point : RegionPoints(RegionOf(Clock.hClockWnd)))
      text += "(" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
    return text;
  }
  // The frame that the last paint drew, by its picture; -1 for none.
  static int FrameDrawn() {
    const std::vector<DrawCall> dibs =
        Repaint().empty() ? std::vector<DrawCall>() : ClockFixture::Kind(Kind::Dib);
    if (dibs.size() != 1) return -1;
    for (int frame = 0; frame < kFrameMax; ++frame) {
      if (ClockPictures.pictures[frame] == dibs[0].dib) return frame;
    }
    return -1;
  }
};

TEST_F(ClockWindowTest, ItStandsAtItsPlaceInTheSizeAndShapeOfItsDial) {
  OpenClock();
  ASSERT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(TemplateOf(Clock.hClockWnd), IDD_FlyingBat6);
  EXPECT_TRUE(IsVisible(Clock.hClockWnd));
  EXPECT_FALSE(IsTopmost(Clock.hClockWnd));
  const Rect rect = WindowRect(Clock.hClockWnd);
  EXPECT_EQ(rect.left, 300);
  EXPECT_EQ(rect.top, 40);
  EXPECT_EQ(RectWidth(rect), 120);
  EXPECT_EQ(RectHeight(rect), 100);
  // 100 - y - 1 of the points 99, 99 and 0.
  EXPECT_EQ(RegionText(), "(0,0)(120,0)(60,99)");
}

TEST_F(ClockWindowTest, WithoutAnOutlineItIsWholeAndWithoutAPictureAsLargeAsItsTemplate) {
  Take(1);
  OpenClock();
  EXPECT_EQ(RegionOf(Clock.hClockWnd), nullptr);
  EXPECT_EQ(RectWidth(WindowRect(Clock.hClockWnd)), 60);
  RemoveFile(InProgram("キャラクタ\\Chara16_1.bmp"));
  OpenClock();
  EXPECT_EQ(RectWidth(WindowRect(Clock.hClockWnd)), 200);
  const std::vector<DrawCall> drawn = Repaint();
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn[0].kind, Kind::Rectangle);  // blank, in the face's colour
  EXPECT_EQ(drawn[0].brush, 0x060504U);
  EXPECT_TRUE(Of(drawn, Kind::Dib).empty());
}

TEST_F(ClockWindowTest, TheHandsStandOnThePictureInTheirColour) {
  OpenClock();
  const std::vector<DrawCall> drawn = Repaint();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_EQ(drawn[0].kind, Kind::Dib);
  EXPECT_EQ(drawn[0].dib, ClockPictures.pictures[0]);
  EXPECT_EQ(drawn[0].x, 0);
  EXPECT_EQ(drawn[0].y, 0);
  for (int i : {1, 2}) {
    EXPECT_EQ(drawn[i].kind, Kind::Line);
    EXPECT_EQ(drawn[i].pen, 0x030201U);
    EXPECT_EQ(drawn[i].x, kCentreX);
    EXPECT_EQ(drawn[i].y, kCentreY);
  }
  // Half past three: the hour hand 105 degrees from the top, the minute hand downwards.
  EXPECT_EQ(drawn[1].x2, kCentreX + 29);  // 30 sin 105 = 28.98
  EXPECT_EQ(drawn[1].y2, kCentreY + 8);   // -30 cos 105 = 7.76
  EXPECT_EQ(drawn[2].x2, kCentreX);
  EXPECT_EQ(drawn[2].y2, kCentreY + kMinute);
}

// Where a point of a hand at twelve is after a turn: x to the right, y downwards, both to
// the nearest pixel.
void ExpectTurned(const Point& drawn, double x, double y, double degrees, const std::string& what) {
  const double angle = degrees * kPi / 180;
  EXPECT_NEAR(drawn.x, kCentreX + x * std::cos(angle) - y * std::sin(angle), 0.5001) << what;
  EXPECT_NEAR(drawn.y, kCentreY + x * std::sin(angle) + y * std::cos(angle), 0.5001) << what;
}

// The hour hand stands at one of 120 places, the minute hand at one of 60.
TEST_F(ClockWindowTest, EveryMinuteOfTwelveHoursHasItsHandsWhereTheyBelong) {
  for (const int hand : {kHandLine, kHandDiamond}) {
    TakeHand(hand);
    OpenClock();
    for (int time = 0; time < 12 * 60; ++time) {
      SetTime(time / 60, time % 60);
      DrawingClear();
      ClockTimeTake(time / 60, time % 60);
      SendPaint(Clock.hClockWnd);
      const std::string what = "hand " + std::to_string(hand) + " at minute " + std::to_string(time);
      const double hourAngle = time / 6 * 3;  // NOLINT: every six minutes a place of three degrees
      const double minuteAngle = time % 60 * 6;
      if (hand == kHandLine) {
        const std::vector<DrawCall> lines = ClockFixture::Kind(Kind::Line);
        ASSERT_EQ(lines.size(), 2U);
        ExpectTurned({lines[0].x2, lines[0].y2}, 0, -kHour, hourAngle, what);
        ExpectTurned({lines[1].x2, lines[1].y2}, 0, -kMinute, minuteAngle, what);
        continue;
      }
      const std::vector<DrawCall> shapes = ClockFixture::Kind(Kind::Polygon);
      ASSERT_EQ(shapes.size(), 2U);
      for (int i = 0; i < 2; ++i) {
        const double angle = i == 0 ? hourAngle : minuteAngle;
        ASSERT_EQ(shapes[i].points.size(), 4U);
        ExpectTurned(shapes[i].points[0], 3, -3, angle, what);
        ExpectTurned(shapes[i].points[1], 0, i == 0 ? -kHour : -kMinute, angle, what);
        ExpectTurned(shapes[i].points[2], -3, -3, angle, what);
        ExpectTurned(shapes[i].points[3], 0, 0, angle, what);
      }
    }
  }
}

// At three o'clock what pointed up points to the right: (x, y) has become (-y, x).
TEST_F(ClockWindowTest, EachKindOfHandIsDrawnInItsForm) {
  SetTime(3, 0);
  const auto draw = [](int hand) {
    TakeHand(hand);
    OpenClock();
    Repaint();
  };
  const auto points = [](const DrawCall& call) {
    std::string text;
    for (const Point& point : call.points)
      text += "(" + std::to_string(point.x - kCentreX) + "," + std::to_string(point.y - kCentreY) + ")";
    return text;
  };
  const auto line = [](const DrawCall& call) {
    const int at[] = {call.x - kCentreX, call.y - kCentreY, call.x2 - kCentreX, call.y2 - kCentreY};
    std::string text;
    for (const int value : at) text += std::to_string(value) + " ";
    return text;
  };
  draw(kHandDiamond);
  std::vector<DrawCall> shapes = ClockFixture::Kind(Kind::Polygon);
  ASSERT_EQ(shapes.size(), 2U);
  EXPECT_EQ(points(shapes[0]), "(3,3)(30,0)(3,-3)(0,0)");
  EXPECT_EQ(points(shapes[1]), "(3,-3)(0,-40)(-3,-3)(0,0)");
  EXPECT_TRUE(shapes[0].filled);
  EXPECT_EQ(shapes[0].brush, 0x030201U);

  draw(kHandArrow);
  std::vector<DrawCall> lines = ClockFixture::Kind(Kind::Line);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(line(lines[0]), "0 0 30 0 ");
  EXPECT_EQ(line(lines[1]), "30 0 26 4 ");   // from the tip to (4, 4 - L)
  EXPECT_EQ(line(lines[2]), "30 0 26 -4 ");  // and to (-4, 4 - L)
  EXPECT_EQ(line(lines[3]), "0 0 0 -40 ");

  draw(kHandTriangle);
  shapes = ClockFixture::Kind(Kind::Polygon);
  ASSERT_EQ(shapes.size(), 1U) << "no minute hand";
  EXPECT_EQ(points(shapes[0]), "(10,2)(30,0)(10,-2)");
  EXPECT_TRUE(ClockFixture::Kind(Kind::Line).empty());

  draw(kHandDot);
  lines = ClockFixture::Kind(Kind::Line);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(line(lines[0]), "0 0 30 0 ");
  const std::vector<DrawCall> dots = ClockFixture::Kind(Kind::Ellipse);
  ASSERT_EQ(dots.size(), 1U);
  EXPECT_EQ(dots[0].x, kCentreX + 30 - 4);
  EXPECT_EQ(dots[0].y, kCentreY - 4);
  EXPECT_EQ(dots[0].x2, kCentreX + 30 + 5);
  EXPECT_EQ(dots[0].y2, kCentreY + 5);

  draw(kHandBar);
  shapes = ClockFixture::Kind(Kind::Polygon);
  ASSERT_EQ(shapes.size(), 1U);
  EXPECT_EQ(points(shapes[0]), "(0,-2)(30,-2)(30,2)(0,2)");
  lines = ClockFixture::Kind(Kind::Line);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(line(lines[0]), "0 0 0 -40 ");

  draw(200);  // a kind that there is not
  EXPECT_EQ(Repaint().size(), 1U) << "the dial alone";
}

TEST_F(ClockWindowTest, NoonInTheAmPmDesignReadsPmWithHour0TheHoursBlankKeptAnd005ReadsAmWithHour0) {
  TakeHand(kHandAmPm);
  for (const auto& [hour, minute, text] :
       {std::tuple{12, 0, " PM  0:00"}, {0, 5, " AM  0:05"}, {23, 10, " PM 11:10"}, {9, 7, " AM  9:07"}}) {
    SetTime(hour, minute);
    OpenClock();
    const std::vector<DrawCall> drawn = Repaint();
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[1].kind, Kind::Rectangle);
    EXPECT_EQ(drawn[1].brush, 0x060504U);
    EXPECT_EQ(drawn[1].x, kCentreX);
    EXPECT_EQ(drawn[1].y, kCentreY);
    EXPECT_EQ(drawn[1].x2 - drawn[1].x, 101);  // without a pen the last column and row are left out
    EXPECT_EQ(drawn[1].y2 - drawn[1].y, 22);
    EXPECT_EQ(drawn[2].text, text);
    EXPECT_EQ(drawn[2].textColour, 0x030201U);
    EXPECT_EQ(drawn[2].x, kCentreX);
  }
}

TEST_F(ClockWindowTest, The24HourDesignReadsTheHourModulo12InABoxOf80By21) {
  TakeHand(kHandDigits);
  SetTime(13, 7);
  OpenClock();
  const std::vector<DrawCall> drawn = Repaint();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_EQ(drawn[1].x2 - drawn[1].x, 81);
  EXPECT_EQ(drawn[1].y2 - drawn[1].y, 22);
  EXPECT_EQ(drawn[2].text, "   1:07");
}

TEST_F(ClockWindowTest, DigitsOfTheFacesColourStandOnItsComplement) {
  std::memset(CharaTables.ClockDesigns[0].record.faceColour, 16, 3);
  std::memset(CharaTables.ClockDesigns[0].record.handColour, 16, 3);
  TakeHand(kHandDigits);
  OpenClock();
  const std::vector<DrawCall> drawn = Repaint();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_EQ(drawn[1].brush, 0xEFEFEFU);
  EXPECT_EQ(drawn[2].textColour, 0x101010U);
}

TEST_F(ClockWindowTest, WithoutMemoryForABitmapItIsDrawnStraightOnTheScreen) {
  OpenClock();
  FaultArmFrom(FaultKind::Bitmap, 1);
  const std::vector<DrawCall> drawn = Repaint();
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_EQ(drawn[1].x2, kCentreX + 29);
}

// --- Opening and closing

TEST_F(ClockWindowTest, Command2254ClosesAndReopensItIfTheClockIsSwitchedOn) {
  OpenClock();
  const WindowHandle first = Clock.hClockWnd;
  OpenClock();
  EXPECT_NE(Clock.hClockWnd, nullptr);
  EXPECT_NE(Clock.hClockWnd, first);
  EXPECT_FALSE(WindowIsOpen(first));
  Clock.ClockShow = 0;
  OpenClock();
  EXPECT_EQ(Clock.hClockWnd, nullptr);
  OpenClock();
  EXPECT_EQ(Clock.hClockWnd, nullptr);
}

TEST_F(ClockWindowTest, WithoutADesignThereIsNoWindow) {
  for (const int design : {kClockNone, 2, 50}) {
    Take(design);
    OpenClock();
    EXPECT_EQ(Clock.hClockWnd, nullptr) << design;
  }
}

TEST_F(ClockWindowTest, AProgramWhoseSettingsSayThatTheClockShowsStartsWithIt) {
  SendClose(Clock.hClockWnd);
  ASSERT_EQ(SysFileWrite(), 0);
  ASSERT_EQ(CharaFileWrite(), 0);
  Clock.ClockShow = 0;
  SendDestroy(Program.hMainWnd);
  MainWindowDrop();
  StartProgram();
  EXPECT_NE(Clock.hClockWnd, nullptr);
  EXPECT_EQ(Clock.ClockDesign, 0);
  EXPECT_EQ(Clock.ClockMinute, 30);
}

TEST_F(ClockWindowTest, APlaceOfTheLayoutMovesItWithTheTimeThatItIs) {
  OpenClock();
  SetTime(8, 12);
  ClockPlaceSet(10, 20);
  ClockWindowOpen();  // beside the one that is open: 2374 closes that first
  EXPECT_EQ(Clock.ClockHour, 8);
  EXPECT_EQ(WindowRect(Clock.hClockWnd).left, 10);
  for (const WindowHandle window : OpenWindows()) {
    if (TemplateOf(window) == IDD_FlyingBat6 && window != Clock.hClockWnd) WindowDestroy(window);
  }
  Clock.hClockWnd = FindDialog(IDD_FlyingBat6);
}

TEST_F(ClockWindowTest, PicturesAreLoadedWhenFirstShownAndGoWithTheWindow) {
  Clock.ClockStrikeMode = kStrikeEveryHour;
  const int before = DiagnosticsLive().blocks;
  SetTime(2, 59);
  OpenClock();
  EXPECT_EQ(DiagnosticsLive().blocks, before + 1);
  SetTime(3, 0);
  Ticks(1);
  EXPECT_EQ(DiagnosticsLive().blocks, before + 2);
  for (int i = 0; i < 100; ++i) Ticks(1);
  EXPECT_EQ(DiagnosticsLive().blocks, before + 4);
  SendClose(Clock.hClockWnd);
  EXPECT_EQ(DiagnosticsLive().blocks, before);
}

// 120,000 ticks from 8 to 9 o'clock, with a strike at its end and a ticker that runs and rests.
// The pictures of a strike are loaded by the one of 8 o'clock.
TEST_F(ClockWindowTest, AnHourOfTicksBesideACalendarLeavesNothingBehind) {
  Clock.ClockStrikeMode = kStrikeEveryHour;
  Calendar.CalenDefinitions[0].tickerFlags = 1;
  CalenNoteSet(0, 10, 20, "会議");
  SetTime(7, 59);
  CalenTickerSetup();
  CalenWindowOpen();
  OpenClock();
  SetTime(8, 0);
  Ticks(2000);
  const std::string live = LiveText(DiagnosticsLive());
  for (int minute = 1; minute <= 60; ++minute) {
    SetTime(8 + minute / 60, minute % 60);
    Ticks(2000);
    DrawingClear();
  }
  EXPECT_EQ(LiveText(DiagnosticsLive()), live);
  SendClose(Calendar.hCalenWnd);
}

TEST_F(ClockWindowTest, ManyPaintsLeaveNothingBehind) {
  OpenClock();
  Repaint();
  const std::string live = LiveText(DiagnosticsLive());
  for (int i = 0; i < 50; ++i) Repaint();
  EXPECT_EQ(LiveText(DiagnosticsLive()), live);
}

// --- The menu

TEST_F(ClockWindowTest, ARightClickOpensTheMenuWhereItWas) {
  OpenClock();
  for (const std::uint32_t entry : {0U, 2330U}) {
    ExpectMenu(IDM_CLOCK, entry);
    if (entry != 0) ThenEscape();  // the dialog of the entry
    Mouse(Clock.hClockWnd, EventKind::RightDown, 33, 44);
  }
  // Over nothing else that is open.
  Then([] { Mouse(Clock.hClockWnd, EventKind::RightDown, 33, 44); });
  ThenEscape();
  CommandSend(Command::ClockEvents);
}

TEST_F(ClockWindowTest, EveryEntryOfTheMenuOpensItsDialog) {
  OpenClock();
  for (const auto& [entry, dialog] :
       {std::pair{2330U, IDD_SetClockAlarmDlg}, {2339U, IDD_SetClockEventDlg}, {1911U, IDD_SelWatchDlg}}) {
    ExpectMenu(IDM_CLOCK, entry);
    Then([dialog] {
      EXPECT_EQ(TemplateOf(TopDialog()), dialog);
      PressEscape(TopDialog());
    });
    Mouse(Clock.hClockWnd, EventKind::RightDown, 5, 5);
  }
}

// --- The hour strikes

class ClockStrikesTest : public ClockWindowTest {
 protected:
  void SetUp() override {
    ClockWindowTest::SetUp();
    Clock.ClockStrikeMode = kStrikeEveryHour;
    Clock.ClockStrikeSel = 1;
    Clock.ClockSoundOn = 1;
    TextCopy(Clock.ClockSoundName, sizeof Clock.ClockSoundName, "kan.wav");
  }
  // The hour comes; returns the frames of the ticks until the strike is over.
  static std::string Strike(int hour) {
    SetTime((hour + 23) % 24, 59);
    Ticks(1);
    SetTime(hour, 0);
    std::string frames;
    for (int i = 0; i < 1000; ++i) {
      Ticks(1);
      if (!Clock.strike.on) return frames;
      frames += static_cast<char>('0' + FrameDrawn());
    }
    return "endless";
  }
};

TEST_F(ClockStrikesTest, Hour0Strikes12TimesWithTheRepeatFlagOnAndHour1StrikesOnce) {
  OpenClock();
  std::string twelve;
  for (int i = 0; i < 12; ++i) twelve += "112233";
  EXPECT_EQ(Strike(0), twelve + "00000000");
  EXPECT_EQ(SoundsPlayed().size(), 12U);
  EXPECT_EQ(SoundsPlayed()[0], "C:\\mirrell\\サウンド\\kan.wav");
  EXPECT_EQ(Strike(1), "11223300000000");
  EXPECT_EQ(SoundsPlayed().size(), 13U);
  EXPECT_EQ(Strike(12), twelve + "00000000");
  EXPECT_EQ(Strike(14), "11223311223300000000");
  EXPECT_EQ(FrameDrawn(), 0);
}

TEST_F(ClockStrikesTest, OnlyAFrameWithAnotherOutlineCostsANewRegion) {
  OpenClock();
  const int before = RegionSetCount(Clock.hClockWnd);
  EXPECT_EQ(before, 1);
  Strike(1);  // frames 2 and 4 have the dial's outline, frame 3 another
  EXPECT_EQ(RegionSetCount(Clock.hClockWnd), before + 2);
  EXPECT_EQ(RegionText(), "(0,0)(120,0)(60,99)");
}

TEST_F(ClockStrikesTest, APictureThatCannotBeLoadedLeavesTheStepBlank) {
  RemoveFile(InProgram("キャラクタ\\Chara15_3.bmp"));
  OpenClock();
  SetTime(0, 59);
  Ticks(1);
  SetTime(1, 0);
  Ticks(3);
  EXPECT_EQ(StrikeFigure(Clock.strike), 3);
  const std::vector<DrawCall> drawn = Repaint();
  EXPECT_TRUE(Of(drawn, Kind::Dib).empty());
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn[0].kind, Kind::Rectangle);
  EXPECT_EQ(drawn[0].brush, 0x060504U);
  EXPECT_EQ(RegionText(), "(0,0)(120,0)(60,99)");
  Ticks(20);
  EXPECT_EQ(FrameDrawn(), 0);
}

TEST_F(ClockStrikesTest, AClosedClockStrikesNoMore) {
  OpenClock();
  SetTime(0, 59);
  Ticks(1);
  SetTime(1, 0);
  Ticks(1);
  ASSERT_TRUE(Clock.strike.on);
  SendClose(Clock.hClockWnd);
  EXPECT_FALSE(Clock.strike.on);
  Ticks(20);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
  OpenClock();  // in the hour's minute: it is not begun again
  Ticks(5);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
}

// --- When it is due

TEST_F(ClockStrikesTest, TheClockRestsUntilItsNextMinuteAndAStrikeKeepsItAwake) {
  SetTime(3, 59, 30);
  OpenClock();
  Ticks(1);
  EXPECT_EQ(kClockStep.step.due(), 1000);
  EXPECT_EQ(kCalendarStep.step.due(), 1000) << "the alarms";
  EXPECT_GT(TicksUntilDue(), 1);
  SetTime(4, 0);
  EXPECT_EQ(kClockStep.step.due(), 1);
  Ticks(1);
  EXPECT_TRUE(Clock.strike.on);
  EXPECT_EQ(kClockStep.step.due(), 1);
  EXPECT_EQ(kCalendarStep.step.due(), 2000);
  while (Clock.strike.on) Ticks(1);
  EXPECT_EQ(kClockStep.step.due(), 2000);
}

// A leap year, four hours of every day: over every midnight, the ends of the months, 29 February and
// the New Year.
TEST_F(ClockStrikesTest, OverAYearEveryHourStrikesOnceAndIsDrawn) {
  constexpr int kDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (auto& delay : CharaTables.ClockDesigns[0].record.strikeDelay) delay = 0;
  Take(0);
  Clock.ClockStrikeSel = 0;
  TestClockSet({2027, 12, 31, 5, 23, 59, 59, 0});
  OpenClock();
  Ticks(1);
  std::size_t strikes = 0;
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= kDays[month - 1]; ++day) {
      for (const int hour : {0, 1, 12, 23}) {
        for (const int minute : {0, 30, 59}) {
          TestClockSet({2028, month, day, 0, hour, minute, 0, 0});
          DrawingClear();
          Ticks(minute == 0 ? 9 : 1);
          ASSERT_FALSE(ClockFixture::Kind(Kind::Line).empty()) << month << "/" << day << " " << hour;
          ASSERT_FALSE(Clock.strike.on);
          ASSERT_EQ(Clock.ClockHour12, hour % 12);
        }
        ASSERT_EQ(SoundsPlayed().size(), ++strikes);
      }
    }
  }
  EXPECT_EQ(strikes, 366U * 4U);
  TestClockSet({2029, 1, 1, 1, 0, 0, 0, 0});
  Ticks(1);
  EXPECT_TRUE(Clock.strike.on);
}

// --- Alarms

class ClockRingsTest : public ClockWindowTest {
 protected:
  static void Alarm(int slot, int hour, int minute, int performance) {
    AlarmSlot& alarm = Clock.ClockEvents[slot];
    alarm = AlarmSlot{};
    alarm.enabled = 1;
    alarm.hour = static_cast<std::uint8_t>(hour);
    alarm.minute = static_cast<std::uint8_t>(minute);
    alarm.performance = static_cast<std::uint16_t>(performance);
    TextCopy(alarm.comment, sizeof alarm.comment, "起きる");
  }
};

TEST_F(ClockRingsTest, AnAlarmRingsOnceInItsMinuteWithTheClockAloneOnTheDesktop) {
  Clock.ClockStrikeMode = kStrikeNever;
  OpenClock();
  Alarm(0, 7, 30, 3);
  SetTime(7, 29);
  Ticks(10);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
  SetTime(7, 30);
  Ticks(1);
  ASSERT_NE(ClockNotice.hClockNoticeWnd, nullptr);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
  SendClose(ClockNotice.hClockNoticeWnd);
  Ticks(100);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
}

// The seven days of a week, with a clock that goes on from minute to minute.
TEST_F(ClockRingsTest, TwoEnabledSlotsWithTheSameTimeRingOnDaysByTurns) {
  Clock.ClockStrikeMode = kStrikeNever;
  OpenClock();
  Alarm(1, 0, 0, 0);
  Alarm(3, 0, 0, 0);
  std::string rung;
  for (int day = 28; day <= 34; ++day) {  // over the end of February
    TestClockSet({2026, day > 28 ? 3 : 2, day > 28 ? day - 28 : day, 0, 0, 0, 0, 0});
    Ticks(1);
    rung += static_cast<char>('1' + Clock.ClockAlarmSlot);
    SendClose(ClockNotice.hClockNoticeWnd);
    TestClockSet({2026, day > 28 ? 3 : 2, day > 28 ? day - 28 : day, 0, 23, 59, 0, 0});
    Ticks(1);
    EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
  }
  EXPECT_EQ(rung, "2424242");
}

TEST_F(ClockRingsTest, APerformanceWithNoSoundAndFigureNumber0ShowsOnlyTheComment) {
  ClockPerformance& record = PerformanceTable.ClockPerformances[2];
  ASSERT_EQ(record.figureMode, 0);
  record.sound[0] = '\0';
  OpenClock();
  Alarm(2, 3, 31, 3);
  SetTime(3, 31);
  Ticks(1);
  ASSERT_NE(ClockNotice.hClockNoticeWnd, nullptr);
  EXPECT_TRUE(SoundsPlayed().empty());
  DrawingClear();
  SendPaint(ClockNotice.hClockNoticeWnd);
  ASSERT_EQ(DrawnTexts(ClockNotice.hClockNoticeWnd).size(), 1U);
  EXPECT_EQ(DrawnTexts(ClockNotice.hClockNoticeWnd)[0].text, "起きる");
  EXPECT_TRUE(Of(Drawings(ClockNotice.hClockNoticeWnd), Kind::Dib).empty());
}

}  // namespace
