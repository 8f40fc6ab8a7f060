// FlyingBat4 with the schedule's line.
#include "schedule/execution/scl_notice.h"

#include <algorithm>

#include "character/alarm_images.h"
#include "clock_calendar/clock/clock_notice.h"
#include "platform/posix/faults.h"
#include "resources/schedule_ids.h"
#include "services/drawing_objects.h"
#include "services/five_ticks.h"
#include "tests/character/notices_fixture.h"

namespace {

TEST_F(NoticesTest, WithNoItemDueNoNoticeOpens) {
  Send(kSclNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
}

TEST_F(NoticesTest, TheSchedulesNoticeOpensAtTheNoticeRectangleAboveAllOthers) {
  ItemDue("会議");
  FiveTicks.FrameDivider = 0;
  Send(kSclNotice);
  ASSERT_NE(Notices.hSclNoticeWnd, nullptr);
  EXPECT_EQ(TemplateOf(Notices.hSclNoticeWnd), IDD_FlyingBat4);
  ExpectPlace(Notices.hSclNoticeWnd);
  EXPECT_EQ(Notices.SclNoticeKind, 1);
  EXPECT_EQ(FiveTicks.FrameDivider, 50);
}

TEST_F(NoticesTest, WithAnEmptyRowTheScheduleTextStartsAtTen) {
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(Dibs(Notices.hSclNoticeWnd).empty());
  ExpectText(
      Notices.hSclNoticeWnd,
      {{10, "-スケジュール表-"}, {30, "予定 : 9 時 30 分 ～ 12 時 5 分"}, {54, "( 内 容 )"}, {74, "会議"}});
}

TEST_F(NoticesTest, WithAPictureTheScheduleTextStartsAtAHundred) {
  LoadRows(1, 0);
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  ExpectMasked(Notices.hSclNoticeWnd, 10, 10, AlarmImages.AlarmRows[1].pictures[0],
               AlarmImages.AlarmRows[1].masks[0]);
  ExpectText(Notices.hSclNoticeWnd, {{100, "-スケジュール表-"},
                                     {120, "予定 : 9 時 30 分 ～ 12 時 5 分"},
                                     {144, "( 内 容 )"},
                                     {164, "会議"}});
  // The whole window is cleared first, in memory; the picture stays in its box.
  const std::vector<DrawCall> drawn = Drawings(Notices.hSclNoticeWnd);
  const auto box = std::find_if(drawn.begin(), drawn.end(),
                                [](const DrawCall& call) { return call.kind == DrawCall::Kind::Rectangle; });
  ASSERT_NE(box, drawn.end());
  EXPECT_EQ(box->brush, Drawing.FaceBrushColour);
  EXPECT_EQ(box->x, 0);
  EXPECT_EQ(box->y, 0);
  EXPECT_GE(box->x2, WindowClientRect(Notices.hSclNoticeWnd).right);
  EXPECT_GE(box->y2, WindowClientRect(Notices.hSclNoticeWnd).bottom);
  EXPECT_LT(box, std::find_if(drawn.begin(), drawn.end(),
                              [](const DrawCall& call) { return call.kind == DrawCall::Kind::Dib; }));
  const DrawCall picture = Dibs(Notices.hSclNoticeWnd).at(1);
  EXPECT_TRUE(picture.clipped);
  EXPECT_EQ(picture.clip.left, 10);
  EXPECT_EQ(picture.clip.top, 10);
  EXPECT_EQ(picture.clip.right, 200);
  EXPECT_EQ(picture.clip.bottom, 100);
}

TEST_F(NoticesTest, AFrameWithoutAPictureLeavesNothingOfTheOneBefore) {
  LoadRows(2, 0);
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "-スケジュール表-", 10, 100));
  DibFree(AlarmImages.AlarmRows[1].pictures[1]);
  AlarmImages.AlarmRows[1].pictures[1] = nullptr;
  Notices.sclFrame = 1;
  // Not drawn afresh: what stood there is covered by the background.
  SendPaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "-スケジュール表-", 10, 10));
  EXPECT_FALSE(TextStands(Notices.hSclNoticeWnd, "-スケジュール表-", 10, 100));
}

TEST_F(NoticesTest, AStartOrEndOnAnotherDayIsShownByTheHoursOfTheTable) {
  ItemDue("");
  Schedule.SclExecTable.items[0].start.day = 19;
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定 : 8 時 0 分 ～ 12 時 5 分", 10, 30));
  Notices.SclNotice.start.day = 20;
  Notices.SclNotice.end.month = 11;
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定 : 9 時 30 分 ～ 18 時 0 分", 10, 30));
  Notices.SclNotice.start.year = 25;
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "予定 : 8 時 0 分 ～ 18 時 0 分", 10, 30));
}

TEST_F(NoticesTest, ContentIsBrokenAtFiftySixColumnsWithoutSplittingAPair) {
  // 55 letters, then pairs: the first line ends before the pair that would be cut.
  std::string text(55, 'a');
  for (int i = 0; i < 36; ++i) text += "か";
  ItemDue(text.c_str());
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  const std::vector<DrawCall> texts = DrawnTexts(Notices.hSclNoticeWnd);
  ASSERT_EQ(texts.size(), 6U);
  std::string pairs;
  for (int i = 0; i < 28; ++i) pairs += "か";
  EXPECT_EQ(texts[3].text, std::string(55, 'a'));
  EXPECT_EQ(texts[3].y, 74);
  EXPECT_EQ(texts[4].text, pairs);
  EXPECT_EQ(texts[4].y, 94);
  EXPECT_EQ(texts[5].text, pairs.substr(0, 16));
  EXPECT_EQ(texts[5].y, 114);
}

TEST_F(NoticesTest, ANewScheduleNoticeReplacesTheOpenOne) {
  ItemDue("一");
  Send(kSclNotice);
  const WindowHandle first = Notices.hSclNoticeWnd;
  ItemDue("二");
  Send(kSclNotice);
  EXPECT_NE(Notices.hSclNoticeWnd, first);
  EXPECT_FALSE(WindowIsOpen(first));
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "二", 10, 74));
}

TEST_F(NoticesTest, ANoticeThatCannotCloseStaysAndNoOtherOpens) {
  const WindowHandle stubborn = OpenListener();
  Notices.hSclNoticeWnd = stubborn;
  ItemDue("会議");
  const int open = OpenWindowCount();
  Send(kSclNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  NoteDue(1, "誕生日");
  Send(kNoteNotice);
  EXPECT_EQ(Notices.hSclNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  EXPECT_TRUE(Calendar.CalenNotes[1].due) << "it is announced another time";
  Notices.hSclNoticeWnd = nullptr;
  ClockNotice.hClockNoticeWnd = stubborn;
  Send(kClockNotice);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, stubborn);
  EXPECT_EQ(OpenWindowCount(), open);
  ClockNotice.hClockNoticeWnd = nullptr;
  WindowDestroy(stubborn);
}

TEST_F(NoticesTest, ButtonsOneAndTwoAndCloseEndTheScheduleNotice) {
  ItemDue("会議");
  for (int way = 0; way < 3; ++way) {
    Send(kSclNotice);
    const WindowHandle notice = Notices.hSclNoticeWnd;
    if (way < 2) SendCommand(notice, static_cast<std::uint32_t>(way + 1));
    if (way == 2) SendClose(notice);
    EXPECT_EQ(Notices.hSclNoticeWnd, nullptr) << way;
    EXPECT_FALSE(WindowIsOpen(notice)) << way;
  }
  // The divider is left running.
  EXPECT_EQ(FiveTicks.FrameDivider, 50);
}

TEST_F(NoticesTest, AWindowThatCannotBeMadeLeavesNoHandle) {
  ItemDue("会議");
  FaultArm(FaultKind::Window, 1);
  Send(kSclNotice);
  FaultArm(FaultKind::Window, 1);
  Send(kClockNotice);
  FaultClear();
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
  EXPECT_EQ(ClockNotice.hClockNoticeWnd, nullptr);
}

}  // namespace
