#include "character/alarm_images.h"

#include <gtest/gtest.h>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/notices.h"
#include "character/walk.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/canvas.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "tests/character/walk_fixture.h"
#include "world/world_list.h"

namespace {

using Kind = DrawCall::Kind;

class AlarmTest : public WalkFixture {
 protected:
  void SetUp() override {
    WalkFixture::SetUp();
    Empty();
    // Character 6 has frames 1 and 3, character 8 frame 1 without a mask.
    PutBmp(6, 1, BmpFile(50, 40));
    PutMask(6, 1, BmpFile(50, 40, 255, 255, 255));
    PutBmp(6, 3, BmpFile(30, 20));
    PutMask(6, 3, BmpFile(30, 20, 0, 0, 0));
    PutBmp(8, 1, BmpFile(10, 10));
    CharaTables.AlarmCharaCount = 2;
    CharaTables.AlarmCharas[0] = 6;
    CharaTables.AlarmCharas[1] = 8;
  }
  void TearDown() override {
    Empty();
    WalkFixture::TearDown();
  }
  static void Empty() {
    for (AlarmRow& row : AlarmImages.AlarmRows) AlarmRowFree(&row);
    World.WorldCharaCount = 0;
    for (WorldChara& chara : World.WorldCharas) chara = WorldChara{};
  }
  static void Select(int mail, int schedule, int note) {
    Character.AlarmCharaSel[0] = mail;
    Character.AlarmCharaSel[1] = schedule;
    Character.AlarmCharaSel[2] = note;
    AlarmCharaLoad();
  }
};

TEST_F(AlarmTest, EachRowLoadsThePicturesAndMasksOfItsSelection) {
  Select(1, 2, 0);
  EXPECT_EQ(AlarmImages.AlarmRows[0].frameCount, 3);
  EXPECT_EQ(DibWidth(AlarmImages.AlarmRows[0].pictures[0]), 50);
  EXPECT_EQ(AlarmFrameHeight(AlarmImages.AlarmRows[0], 2), 20);
  EXPECT_EQ(AlarmImages.AlarmRows[0].pictures[1], nullptr);
  EXPECT_NE(AlarmImages.AlarmRows[0].masks[0], nullptr);
  EXPECT_EQ(AlarmImages.AlarmRows[1].frameCount, 1);
  EXPECT_EQ(AlarmImages.AlarmRows[1].masks[0], nullptr);
  EXPECT_EQ(AlarmImages.AlarmRows[2].frameCount, 0);
  EXPECT_EQ(AlarmImages.AlarmRows[2].pictures[0], nullptr);
}

TEST_F(AlarmTest, WhereTheMaskIsWhiteThePictureIsBlack) {
  Select(1, 0, 0);
  EXPECT_EQ(DibBits(AlarmImages.AlarmRows[0].pictures[0])[0], 0);
  EXPECT_EQ(DibBits(AlarmImages.AlarmRows[0].pictures[2])[0], 10);
}

TEST_F(AlarmTest, SelectionsBeyondTheListAndNumbersBelow1GiveAnEmptyRow) {
  CharaTables.AlarmCharas[1] = 0;
  Select(3, -1, 2);
  for (const AlarmRow& row : AlarmImages.AlarmRows) EXPECT_EQ(row.frameCount, 0);
  CharaTables.AlarmCharas[1] = -2147483647 - 1;
  CharaTables.AlarmCharas[0] = 2147483647;
  Select(1000000, 1, 2);
  for (const AlarmRow& row : AlarmImages.AlarmRows) EXPECT_EQ(row.frameCount, 0);
}

TEST_F(AlarmTest, LoadingAgainFreesWhatWasThere) {
  Select(1, 1, 1);
  const int blocks = DiagnosticsLive().blocks;
  Select(1, 1, 1);
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);
  Select(0, 0, 0);
  EXPECT_EQ(DiagnosticsLive().blocks, blocks - 12);
}

TEST_F(AlarmTest, RowsOfOneCharacterReadItsFilesOnceAndHoldPicturesOfTheirOwn) {
  FaultClear();
  Select(1, 2, 1);
  // Two pictures and two masks of the first character, the picture of the second.
  EXPECT_EQ(FaultCalls(FaultKind::Open), 5);
  EXPECT_EQ(AlarmImages.AlarmRows[2].frameCount, 3);
  for (const int frame : {0, 2}) {
    ASSERT_NE(AlarmImages.AlarmRows[2].pictures[frame], nullptr);
    EXPECT_NE(AlarmImages.AlarmRows[2].pictures[frame], AlarmImages.AlarmRows[0].pictures[frame]);
    EXPECT_EQ(DibWidth(AlarmImages.AlarmRows[2].pictures[frame]),
              DibWidth(AlarmImages.AlarmRows[0].pictures[frame]));
    EXPECT_EQ(DibBits(AlarmImages.AlarmRows[2].pictures[frame])[0],
              DibBits(AlarmImages.AlarmRows[0].pictures[frame])[0]);
    EXPECT_NE(AlarmImages.AlarmRows[2].masks[frame], AlarmImages.AlarmRows[0].masks[frame]);
  }
}

TEST_F(AlarmTest, WithoutMemoryPicturesAreMissingAndNothingElse) {
  Select(1, 2, 1);
  const int blocks = DiagnosticsLive().blocks;
  for (int nth = 1;; ++nth) {
    FaultArm(FaultKind::Memory, nth);
    AlarmCharaLoad();
    const bool met = FaultWasMet();
    FaultClear();
    if (!met) break;
    // A copy that fails is made up for by the files.
    EXPECT_EQ(DiagnosticsLive().blocks, nth <= 5 ? blocks - (nth <= 4 ? 2 : 1) : blocks) << nth;
  }
  EXPECT_EQ(DiagnosticsLive().blocks, blocks);
}

TEST_F(AlarmTest, TheWorldListMarksTheFramesInUse) {
  World.WorldCharaCount = 6;
  for (int i = 0; i < 5; ++i) World.WorldCharas[5].figureIds[i] = 1;
  Select(1, 0, 0);
  EXPECT_EQ(AlarmImages.AlarmRows[0].frameCount, 5);
  EXPECT_EQ(AlarmFrameHeight(AlarmImages.AlarmRows[0], 4), 0);  // in use, but its picture is missing
}

TEST_F(AlarmTest, FramesGoRound) {
  Select(1, 0, 0);
  EXPECT_EQ(AlarmFrameNext(AlarmImages.AlarmRows[0], 0), 1);
  EXPECT_EQ(AlarmFrameNext(AlarmImages.AlarmRows[0], 2), 0);
  EXPECT_EQ(AlarmFrameNext(AlarmImages.AlarmRows[0], 20), 0);
  EXPECT_EQ(AlarmFrameNext(AlarmImages.AlarmRows[0], -5), 0);
  EXPECT_EQ(AlarmFrameNext(AlarmImages.AlarmRows[2], 0), 0);
}

TEST_F(AlarmTest, APictureIsDrawnThroughItsMaskInTwoPasses) {
  Select(1, 2, 0);
  DrawingClear();
  Canvas* canvas = CanvasGet(Program.hMainWnd);
  AlarmFrameDraw(canvas, 3, 4, AlarmImages.AlarmRows[0], 0);
  AlarmFrameDraw(canvas, 5, 6, AlarmImages.AlarmRows[0], 1);   // missing
  AlarmFrameDraw(canvas, 5, 6, AlarmImages.AlarmRows[0], 20);  // beyond the row
  AlarmFrameDraw(canvas, 7, 8, AlarmImages.AlarmRows[1], 0);   // no mask: the picture alone
  CanvasRelease(canvas);
  const auto dibs = DibsDrawn(Program.hMainWnd);
  ASSERT_EQ(dibs.size(), 3U);
  EXPECT_EQ(dibs[0].dib, AlarmImages.AlarmRows[0].masks[0]);
  EXPECT_EQ(dibs[0].op, RasterOp::And);
  EXPECT_EQ(dibs[0].x, 3);
  EXPECT_EQ(dibs[0].y, 4);
  EXPECT_EQ(dibs[1].dib, AlarmImages.AlarmRows[0].pictures[0]);
  EXPECT_EQ(dibs[1].op, RasterOp::Or);
  EXPECT_EQ(dibs[2].dib, AlarmImages.AlarmRows[1].pictures[0]);
  EXPECT_EQ(dibs[2].op, RasterOp::Or);
}

TEST_F(AlarmTest, ABoxIsClearedAndDrawnInMemoryFirst) {
  Select(1, 0, 0);
  DrawingClear();
  AlarmFrameShow(Program.hMainWnd, {10, 10, 200, 100}, AlarmImages.AlarmRows[0], 0);
  bool copied = false;
  for (const DrawCall& call : Drawings(Program.hMainWnd)) {
    if (call.kind == Kind::Rectangle) {
      EXPECT_EQ(call.brush, FaceColour());
    }
    if (call.kind != Kind::Copy) continue;
    copied = true;
    EXPECT_EQ(call.x, 10);
    EXPECT_EQ(call.y, 10);
    EXPECT_EQ(call.x2, 200);
    EXPECT_EQ(call.y2, 100);
  }
  EXPECT_TRUE(copied);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd).size(), 2U);
}

TEST_F(AlarmTest, WithoutMemoryTheBoxIsDrawnStraightAndNothingLeavesIt) {
  Select(1, 0, 0);
  DrawingClear();
  FaultArm(FaultKind::Bitmap, 1);
  AlarmFrameShow(Program.hMainWnd, {10, 10, 200, 100}, AlarmImages.AlarmRows[0], 0);
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 2U);
  for (const DrawCall& call : Drawings(Program.hMainWnd)) {
    EXPECT_TRUE(call.clipped);
    EXPECT_EQ(call.clip.left, 10);
    EXPECT_EQ(call.clip.bottom, 100);
  }
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[1].x, 10);
}

// --- The mail notice

TEST_F(AlarmTest, AMailWithNeitherSoundNorAnimationShowsTheNoticeAloneAtTheCorner) {
  Walk.mailState = kMailSeen;
  MailNotifyStart();
  EXPECT_EQ(Walk.mailState, 3);
  EXPECT_EQ(Walk.OpeningState, 0);
  ASSERT_NE(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(WindowRect(Mail.hMailNoticeWnd).left, 0);
  EXPECT_EQ(WindowRect(Mail.hMailNoticeWnd).top, 0);
  EXPECT_EQ(RectWidth(WindowRect(Mail.hMailNoticeWnd)), 300);
  EXPECT_EQ(RectHeight(WindowRect(Mail.hMailNoticeWnd)), 200);
  EXPECT_TRUE(IsTopmost(Mail.hMailNoticeWnd));
  EXPECT_TRUE(SoundsPlayed().empty());
  const WindowHandle first = Mail.hMailNoticeWnd;
  MailNotifyStart();  // one that is up stays
  EXPECT_EQ(Mail.hMailNoticeWnd, first);
  SendClose(Mail.hMailNoticeWnd);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  EXPECT_EQ(Walk.mailState, 0);
}

TEST_F(AlarmTest, AMailWithAWalkerWaitsForItsEnd) {
  MailSetting.animeOn = 1;
  MailNotifyStart();
  EXPECT_EQ(Walk.mailState, 2);
  EXPECT_EQ(Walk.OpeningState, 1);
  EXPECT_TRUE(Walk.WalkActive);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
}

TEST_F(AlarmTest, TheMailNoticeSaysItsCommentOrTheStandardTextAndPlaysRow0) {
  Select(1, 0, 0);
  FiveTicks.FrameDivider = 0;
  MailNoticeOpen();
  EXPECT_EQ(FiveTicks.FrameDivider, 5);
  DrawingClear();
  SendPaint(Mail.hMailNoticeWnd);
  EXPECT_TRUE(TextStands(Mail.hMailNoticeWnd, "メール受信のお知らせ", 10, 100));
  EXPECT_TRUE(DrawnTexts(Mail.hMailNoticeWnd)[0].transparent);
  ASSERT_EQ(DibsDrawn(Mail.hMailNoticeWnd).size(), 2U);
  EXPECT_EQ(DibsDrawn(Mail.hMailNoticeWnd)[1].dib, AlarmImages.AlarmRows[0].pictures[0]);
  // The box of 190 by 90, with the picture at its corner.
  const DrawCall box = Drawings(Mail.hMailNoticeWnd)[0];
  EXPECT_EQ(box.kind, Kind::Copy);
  EXPECT_TRUE(box.x == 10 && box.y == 10 && box.x2 == 200 && box.y2 == 100);
  EXPECT_TRUE(DibsDrawn(Mail.hMailNoticeWnd)[1].x == 10 && DibsDrawn(Mail.hMailNoticeWnd)[1].y == 10);
  std::memset(MailSetting.comment, 'm', kMailCommentSize);
  DrawingClear();
  MailNoticeFrameStep();  // frame 1 is missing
  EXPECT_TRUE(TextStands(Mail.hMailNoticeWnd, std::string(129, 'm').c_str(), 10, 100));
  EXPECT_TRUE(DibsDrawn(Mail.hMailNoticeWnd).empty());
  DrawingClear();
  MailNoticeFrameStep();
  ASSERT_EQ(DibsDrawn(Mail.hMailNoticeWnd).size(), 2U);
  EXPECT_EQ(DibsDrawn(Mail.hMailNoticeWnd)[1].dib, AlarmImages.AlarmRows[0].pictures[2]);
  DrawingClear();
  MailNoticeFrameStep();  // round
  EXPECT_EQ(DibsDrawn(Mail.hMailNoticeWnd)[1].dib, AlarmImages.AlarmRows[0].pictures[0]);
  Press(Mail.hMailNoticeWnd, 1);
  EXPECT_EQ(Mail.hMailNoticeWnd, nullptr);
  MailNoticeFrameStep();
}

}  // namespace
