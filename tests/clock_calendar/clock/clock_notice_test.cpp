// FlyingBat5, the clock alarm's notice.
#include "clock_calendar/clock/clock_notice.h"

#include "character/character.h"
#include "character/notice_window.h"
#include "character/performance_figures.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/performance.h"
#include "platform/posix/faults.h"
#include "resources/clock_calendar_ids.h"
#include "services/commands.h"
#include "tests/character/notices_fixture.h"

namespace {

class ClockNoticeTest : public NoticesTest {
 protected:
  void SetUp() override {
    NoticesTest::SetUp();
    for (int frame = 1; frame <= 3; ++frame) PutFrame(kClockCharacter, frame, 40, 30);
    Character.AlarmCharaSel[2] = 2;
  }
  static void Alarm(int slot, int performance, const char* comment) {
    AlarmSlot& alarm = Clock.ClockEvents[slot];
    alarm = AlarmSlot{};
    alarm.enabled = 1;
    alarm.performance = static_cast<std::uint16_t>(performance);
    TextCopy(alarm.comment, sizeof alarm.comment, comment);
    Clock.ClockAlarmSlot = slot;
  }
  static int ClientWidth() { return WindowClientRect(ClockNotice.hClockNoticeWnd).right; }
  static int ClientHeight() { return WindowClientRect(ClockNotice.hClockNoticeWnd).bottom; }
};

TEST_F(ClockNoticeTest, OpensAtTheNoticeRectangleWithItsTitleAndButton) {
  Alarm(0, 0, "起床");
  Send(kClockNotice);
  ASSERT_NE(ClockNotice.hClockNoticeWnd, nullptr);
  EXPECT_EQ(TemplateOf(ClockNotice.hClockNoticeWnd), IDD_FlyingBat5);
  EXPECT_EQ(WindowText(ClockNotice.hClockNoticeWnd), "時計 アラーム");
  EXPECT_EQ(ControlText(ClockNotice.hClockNoticeWnd, 1), " O K ");
  ExpectPlace(ClockNotice.hClockNoticeWnd);
  Press(ClockNotice.hClockNoticeWnd, 1);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
}

TEST_F(ClockNoticeTest, ClosesAndReopensWhenItIsUp) {
  Alarm(0, 0, "一");
  Send(kClockNotice);
  const WindowHandle first = ClockNotice.hClockNoticeWnd;
  Alarm(1, 0, "二");
  Send(kClockNotice);
  EXPECT_NE(ClockNotice.hClockNoticeWnd, first);
  EXPECT_FALSE(WindowIsOpen(first));
  Repaint(ClockNotice.hClockNoticeWnd);
  ExpectText(ClockNotice.hClockNoticeWnd, {{10, "二"}});
}

TEST_F(ClockNoticeTest, ASlotWithoutAPerformanceShowsOnlyItsComment) {
  Performance.PerformanceActive = 1;
  Alarm(2, 0, "起床");
  Send(kClockNotice);
  EXPECT_EQ(Performance.PerformanceActive, 0);
  EXPECT_TRUE(SoundsPlayed().empty());
  Repaint(ClockNotice.hClockNoticeWnd);
  ExpectText(ClockNotice.hClockNoticeWnd, {{10, "起床"}});
  EXPECT_TRUE(Dibs(ClockNotice.hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, ASlotsPerformanceBecomesTheActiveOne) {
  Alarm(4, 1, "起床");
  Send(kClockNotice);
  EXPECT_EQ(Performance.PerformanceActive, 1);
  EXPECT_EQ(SoundsPlayed(), std::vector<std::string>{"C:\\mirrell\\サウンド\\kan.wav"});
  EXPECT_TRUE(PerformanceShowsFigures());
}

TEST_F(ClockNoticeTest, WithoutASlotThereIsNoCommentAndTheChosenPerformanceRuns) {
  Alarm(0, 2, "起床");
  Clock.ClockAlarmSlot = -1;
  Performance.PerformanceActive = 3;
  Send(kClockNotice);
  EXPECT_EQ(Performance.PerformanceActive, 3);
  EXPECT_EQ(SoundsPlayed().size(), 1U);
  Repaint(ClockNotice.hClockNoticeWnd);
  EXPECT_TRUE(DrawnTexts(ClockNotice.hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, TheCommentIsBrokenToTheWindowsWidthWithoutSplittingAPair) {
  NoticePlace.NoticeW = 200;
  std::string comment = "a";
  for (int i = 0; i < 49; ++i) comment += "か";
  Alarm(0, 0, comment.c_str());
  Send(kClockNotice);
  Repaint(ClockNotice.hClockNoticeWnd);
  const auto columns = static_cast<std::size_t>((ClientWidth() - 8) / 8);
  ASSERT_LT(columns, 26U);
  std::string rest = comment;
  int y = 10;
  for (const DrawCall& line : DrawnTexts(ClockNotice.hClockNoticeWnd)) {
    // The first line begins with one column, the others with pairs only.
    const bool first = rest.size() == comment.size();
    const std::size_t fits = first ? (columns - 1) / 2 * 2 + 1 : columns / 2 * 2;
    EXPECT_EQ(line.text, rest.substr(0, fits));
    EXPECT_EQ(line.x, 10);
    EXPECT_EQ(line.y, y);
    rest = rest.size() > fits ? rest.substr(fits) : "";
    y += 20;
  }
  EXPECT_EQ(rest, "");
}

TEST_F(ClockNoticeTest, AWideWindowTakesTheCommentOnOneLine) {
  NoticePlace.NoticeW = 2000;
  Alarm(0, 0, std::string(99, 'x').c_str());
  Send(kClockNotice);
  Repaint(ClockNotice.hClockNoticeWnd);
  ExpectText(ClockNotice.hClockNoticeWnd, {{10, std::string(99, 'x')}});
}

TEST_F(ClockNoticeTest, TheFigureIsCentredBelowTheComment) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  Repaint(ClockNotice.hClockNoticeWnd);
  const MaskedFrame figure = PerformanceFigure(0);
  const int x = (ClientWidth() - 40) / 2;
  const int y = 30 + (ClientHeight() - 30 - 30) / 2;
  ExpectMasked(ClockNotice.hClockNoticeWnd, x, y, figure.picture, figure.mask);
  FaultArmFrom(FaultKind::Bitmap, 1);
  Repaint(ClockNotice.hClockNoticeWnd);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ExpectMasked(ClockNotice.hClockNoticeWnd, x, y, figure.picture, figure.mask);
}

TEST_F(ClockNoticeTest, ACommentThatFillsTheWindowLeavesNoRoomForTheFigure) {
  NoticePlace.NoticeW = 60;
  NoticePlace.NoticeH = 90;
  Alarm(0, 1, std::string(99, 'x').c_str());
  Send(kClockNotice);
  Repaint(ClockNotice.hClockNoticeWnd);
  EXPECT_TRUE(Dibs(ClockNotice.hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, Message2258MovesToTheNextPicture) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  for (const int step : {1, 2, 0}) {
    DrawingClear();
    CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
    EXPECT_EQ(Performance.PerformanceStep, step);
    const std::vector<DrawCall> dibs = Dibs(ClockNotice.hClockNoticeWnd);
    ASSERT_EQ(dibs.size(), 2U);
    EXPECT_EQ(dibs[1].dib, PerformanceFigure(step).picture);
  }
}

TEST_F(ClockNoticeTest, TheTicksWaitIsOverEveryFourthTime) {
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  for (int round = 0; round < 2; ++round) {
    for (int tick = 0; tick < 3; ++tick) EXPECT_FALSE(ClockNoticeWaitIsOver());
    EXPECT_TRUE(ClockNoticeWaitIsOver());
    CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
  }
}

TEST_F(ClockNoticeTest, TheTickMovesThePerformanceOnWhileTheClockIsOpen) {
  const WindowHandle clock = OpenListener();
  Clock.hClockWnd = clock;
  Alarm(0, 1, "起床");
  Send(kClockNotice);
  Ticks(3);
  EXPECT_EQ(Performance.PerformanceStep, 0);
  Ticks(1);
  EXPECT_EQ(Performance.PerformanceStep, 1);
  Ticks(4);
  EXPECT_EQ(Performance.PerformanceStep, 2);
  Clock.hClockWnd = nullptr;
  WindowDestroy(clock);
}

TEST_F(ClockNoticeTest, WithoutASlotTheFigureGoesAwayAfterFivePassesAndTheWindowStays) {
  Performance.PerformanceActive = 1;
  Send(kClockNotice);
  for (int i = 0; i < 100; ++i) CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
  EXPECT_NE(ClockNotice.hClockNoticeWnd, nullptr);
  EXPECT_EQ(Performance.PerformanceActive, 0);
  Repaint(ClockNotice.hClockNoticeWnd);
  EXPECT_TRUE(Dibs(ClockNotice.hClockNoticeWnd).empty());
}

TEST_F(ClockNoticeTest, ClosingEndsThePerformanceAndFreesItsFigures) {
  const int before = DiagnosticsLive().blocks;
  Alarm(0, 1, "起床");
  for (int way = 0; way < 3; ++way) {
    Send(kClockNotice);
    Repaint(ClockNotice.hClockNoticeWnd);
    EXPECT_EQ(DiagnosticsLive().blocks, before + 2);
    if (way < 2) SendCommand(ClockNotice.hClockNoticeWnd, static_cast<std::uint32_t>(way + 1));
    if (way == 2) SendClose(ClockNotice.hClockNoticeWnd);
    EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
    EXPECT_FALSE(PerformanceShowsFigures());
    EXPECT_EQ(DiagnosticsLive().blocks, before);
  }
}

TEST_F(ClockNoticeTest, TheCommentStaysWhatItWasAtTheOpening) {
  Alarm(0, 0, "起床");
  Send(kClockNotice);
  Alarm(0, 0, "別");
  Repaint(ClockNotice.hClockNoticeWnd);
  ExpectText(ClockNotice.hClockNoticeWnd, {{10, "起床"}});
}

}  // namespace
