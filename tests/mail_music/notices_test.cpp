// The pictures of the notices, and the templates of the whole family.
#include "character/alarm_images.h"
#include "character/character.h"
#include "platform/posix/faults.h"
#include "resources/character_ids.h"
#include "resources/clock_calendar_ids.h"
#include "resources/mail_music_ids.h"
#include "resources/schedule_ids.h"
#include "schedule/execution/scl_notice.h"
#include "services/program.h"
#include "tests/character/notices_fixture.h"

namespace {

// --- Pictures

TEST_F(NoticesTest, TheSchedulesPicturesAdvanceByTheTickAfterFiftyTicksAndThenEveryFive) {
  LoadRows(3, 0);
  ItemDue("会議");
  Send(kSclNotice);
  const auto frameAfter = [&](int ticks) {
    DrawingClear();
    Ticks(ticks);
    const std::vector<DrawCall> dibs = Dibs(Notices.hSclNoticeWnd);
    if (dibs.empty()) return -1;
    for (int frame = 0; frame < 3; ++frame) {
      if (dibs.back().dib == AlarmImages.AlarmRows[1].pictures[frame]) return frame;
    }
    return -2;
  };
  EXPECT_EQ(frameAfter(49), -1);
  EXPECT_EQ(frameAfter(1), 1);
  EXPECT_EQ(frameAfter(4), -1);
  EXPECT_EQ(frameAfter(1), 2);
  EXPECT_EQ(frameAfter(5), 0) << "round at the number of frames";
  EXPECT_EQ(frameAfter(5), 1);
}

TEST_F(NoticesTest, ANotesPicturesAreThoseOfTheThirdRow) {
  LoadRows(3, 2);
  NoteDue(0, "誕生日");
  Send(kNoteNotice);
  for (const int frame : {1, 0, 1}) {
    DrawingClear();
    SclNoticeFrameStep();
    ExpectMasked(Notices.hSclNoticeWnd, 10, 10, AlarmImages.AlarmRows[2].pictures[frame],
                 AlarmImages.AlarmRows[2].masks[frame]);
  }
}

TEST_F(NoticesTest, AnEmptyRowStaysAtItsFirstFrame) {
  ItemDue("会議");
  Send(kSclNotice);
  for (int i = 0; i < 5; ++i) SclNoticeFrameStep();
  EXPECT_TRUE(Dibs(Notices.hSclNoticeWnd).empty());
}

TEST_F(NoticesTest, AFrameThatIsMissingDrawsNothing) {
  LoadRows(1, 0);
  PutFrame(kSclCharacter, 3, 40, 30);
  AlarmCharaLoad();
  ItemDue("会議");
  Send(kSclNotice);
  DrawingClear();
  SclNoticeFrameStep();
  EXPECT_TRUE(Dibs(Notices.hSclNoticeWnd).empty());
  EXPECT_TRUE(TextStands(Notices.hSclNoticeWnd, "-スケジュール表-", 10, 10));
  DrawingClear();
  SclNoticeFrameStep();
  EXPECT_EQ(Dibs(Notices.hSclNoticeWnd).size(), 2U);
}

TEST_F(NoticesTest, WithoutAMaskThePictureIsOnlyAdded) {
  PutFrame(kSclCharacter, 1, 40, 30, false);
  Character.AlarmCharaSel[1] = 1;
  AlarmCharaLoad();
  ItemDue("会議");
  Send(kSclNotice);
  Repaint(Notices.hSclNoticeWnd);
  const std::vector<DrawCall> dibs = Dibs(Notices.hSclNoticeWnd);
  ASSERT_EQ(dibs.size(), 1U);
  EXPECT_EQ(dibs[0].op, RasterOp::Or);
}

TEST_F(NoticesTest, WithoutMemoryForABitmapThePictureIsDrawnOnTheScreen) {
  LoadRows(1, 1);
  ItemDue("会議");
  Send(kSclNotice);
  FaultArmFrom(FaultKind::Bitmap, 1);
  Repaint(Notices.hSclNoticeWnd);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ExpectMasked(Notices.hSclNoticeWnd, 10, 10, AlarmImages.AlarmRows[1].pictures[0],
               AlarmImages.AlarmRows[1].masks[0]);
}

TEST_F(NoticesTest, WithoutANoticeTheStepDoesNothing) {
  SclNoticeFrameStep();
  EXPECT_EQ(Notices.hSclNoticeWnd, nullptr);
}

// --- Templates

TEST_F(NoticesTest, EveryWindowOfTheFamilyHasItsTemplate) {
  for (const int id : {IDD_FlyingBat1, IDD_FlyingBat2, IDD_FlyingBat2X, IDD_FlyingBat3, IDD_FlyingBat4,
                       IDD_FlyingBat5, IDD_FlyingBat6}) {
    const WindowHandle window = DialogOpen(id, Program.hMainWnd, [](const Event&) { return false; });
    EXPECT_NE(window, nullptr) << id;
    WindowDestroy(window);
  }
}

}  // namespace
