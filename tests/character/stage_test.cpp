#include "character/stage.h"

#include <gtest/gtest.h>

#include "character/chara_select.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/motion.h"
#include "platform/canvas.h"
#include "services/program.h"
#include "tests/character/stage_fixture.h"

namespace {

using Kind = DrawCall::Kind;

class StageTest : public StageFixture {};

const FilePoints kTriangle = {{0, 0}, {39, 0}, {20, 29}};
const FilePoints kOther = {{1, 0}, {38, 0}, {20, 29}};
// kTriangle on the stage: y is 20 + 30 - y - 1.
const FilePoints kTriangleOnStage = {{0, 49}, {39, 49}, {20, 20}};
const FilePoints kOtherOnStage = {{1, 49}, {38, 49}, {20, 20}};

FilePoints PointsOfOutline(const Outline& outline) {
  FilePoints points;
  for (int i = 0; i < outline.count; ++i) points.emplace_back(outline.points[i].x, outline.points[i].y);
  return points;
}

TEST_F(StageTest, LoadingGivesSizePicturesAndTheFlippedOutlines) {
  PutMain(7, {kTriangle, kOther, {}, kTriangle});
  Character.MenuFrame = 1;
  Character.BlinkFrame = 2;
  Character.Bored1Frames[0] = 3;
  Character.Bored1Frames[1] = 1;
  Character.Bored2Frames[0] = 0;
  BoredFramesCount();
  Stage.CharaFrame = 5;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(Stage.CharaFrame, 0);
  EXPECT_EQ(Stage.StageFrameCount, 4);
  // The picture is 40 by 30; with an outline 20 and 10 are added for the class menu.
  EXPECT_EQ(Stage.StageWidth, 40 + 20);
  EXPECT_EQ(Stage.StageHeight, 30 + kMenuLine + ScreenMetric(Metric::EdgeHeight) + 10);
  EXPECT_EQ(PointsOfOutline(Stage.CurrentOutline), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineIdle]), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineMenu]), kOtherOnStage);
  EXPECT_EQ(Stage.StageOutlines[kOutlineBlink].count, 0);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineBored1]), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineBored1 + 1]), kOtherOnStage);
  EXPECT_EQ(Stage.StageOutlines[kOutlineBored1 + 2].count, 0);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineBored2]), kTriangleOnStage);
  EXPECT_NE(FramePicture(kStageRow, 3), nullptr);
  EXPECT_EQ(FramePicture(kStageRow, 4), nullptr);
}

TEST_F(StageTest, EachMotionOutlineIsFlippedWithItsOwnPicturesHeight) {
  PutMain(7, {kTriangle, {{5, 0}}});
  PutBmp(7, 2, BmpFile(40, 50));
  Character.MenuFrame = 1;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(PointsOfOutline(Stage.StageOutlines[kOutlineMenu]), (FilePoints{{5, 20 + 50 - 1}}));
}

TEST_F(StageTest, WithoutACharacterNumberOneIsReturnedAndThePicturesAreGone) {
  PutMain(7, {kTriangle});
  ASSERT_EQ(CharaLoadStage(), 0);
  Character.CharaSet.CharaNo = 0;
  EXPECT_EQ(CharaLoadStage(), 1);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
}

TEST_F(StageTest, AMissingOutlineFileGivesARectangularStageAndFrameCount20) {
  PutBmp(7, 1, BmpFile(40, 30));
  CharaTables.MainCharas[0].charaNo = 7;
  Character.CharaSet.CharaNo = 1;
  Stage.CurrentOutline.count = 3;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(Stage.StageFrameCount, 20);
  EXPECT_EQ(Stage.CurrentOutline.count, 0);
  EXPECT_EQ(Stage.CurrentOutline.points[2].x, 200);
  EXPECT_EQ(Stage.CurrentOutline.points[2].y, 200);
  EXPECT_EQ(Stage.StageWidth, 40);
  EXPECT_EQ(Stage.StageHeight, 30 + kMenuLine + ScreenMetric(Metric::EdgeHeight));
}

TEST_F(StageTest, ACharacterNumberBeyondTheFilesGivesTwentyEmptyFramesAndAStageWithoutAPicture) {
  CharaTables.MainCharas[0].charaNo = 999;
  Character.CharaSet.CharaNo = 1;
  EXPECT_EQ(CharaLoadStage(), 0);
  for (int frame = 0; frame < kFrameMax; ++frame) EXPECT_EQ(FramePicture(kStageRow, frame), nullptr);
  EXPECT_EQ(Stage.StageWidth, 300);  // as it was
  EXPECT_EQ(Stage.StageHeight, 200);
  DrawingClear();
  StagePaint();
  EXPECT_TRUE(DibsDrawn(Program.hMainWnd).empty());
}

TEST_F(StageTest, ACharacterNumberBeyondTheListLoadsNothing) {
  PutMain(7, {kTriangle});
  Character.CharaSet.CharaNo = 51;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
  Character.CharaSet.CharaNo = 65535;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
}

TEST_F(StageTest, AnotherCharactersOutlinesDoNotStay) {
  PutMain(7, {kTriangle, kOther});
  Character.MenuFrame = 1;
  ASSERT_EQ(CharaLoadStage(), 0);
  PutMain(8, {kTriangle});
  ASSERT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(Stage.StageOutlines[kOutlineMenu].count, 0);
}

TEST_F(StageTest, MotionFramesBeyondTheTableHaveNoOutline) {
  PutMain(7, {kTriangle});
  Character.MenuFrame = 20;
  Character.BlinkFrame = -1;
  Character.Bored1Frames[0] = 1000000;
  BoredFramesCount();
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(Stage.StageOutlines[kOutlineMenu].count, 0);
  EXPECT_EQ(Stage.StageOutlines[kOutlineBlink].count, 0);
  EXPECT_EQ(Stage.StageOutlines[kOutlineBored1].count, 0);
}

// --- Taking a character over

TEST_F(StageTest, TakingACharacterOverCopiesItsSettingsAndCountsItsFrames) {
  MainChara& row = CharaTables.MainCharas[49];
  row.menuFrame = 3;
  row.blinkFrame = 4;
  const int first[] = {5, 6, -1, 7, 8};
  const int second[] = {1, 2, 3, 4, 5};
  for (int i = 0; i < 5; ++i) {
    row.bored1Frames[i] = first[i];
    row.bored2Frames[i] = second[i];
  }
  row.boredDelaySel = 4;  // 1 hour 30 minutes
  row.boredSpeedSel = 2;
  row.boredRepeatSel = 3;
  row.blinkSpeedSel = 5;
  CharaTakeCurrent(49);
  EXPECT_EQ(Character.MenuFrame, 3);
  EXPECT_EQ(Character.BlinkFrame, 4);
  EXPECT_EQ(Character.Bored1Frames[1], 6);
  EXPECT_EQ(Character.Bored2Frames[4], 5);
  EXPECT_EQ(Character.BoredSpeedSel, 2);
  EXPECT_EQ(Character.BoredRepeatSel, 3);
  EXPECT_EQ(Character.BlinkSpeedSel, 5);
  EXPECT_EQ(Motion.BoredLen1, 2);
  EXPECT_EQ(Motion.BoredLen2, 4);  // the fifth frame is never played
  EXPECT_EQ(Motion.BoredHour, 1);
  EXPECT_EQ(Motion.BoredMin, 30);
  EXPECT_EQ(Motion.BoredSec, 60);
}

TEST_F(StageTest, IndexesBeyondTheListTakeNothingOver) {
  Character.MenuFrame = 9;
  CharaTakeCurrent(-1);
  CharaTakeCurrent(50);
  EXPECT_FALSE(CharaSelect(50));
  EXPECT_FALSE(CharaSelect(-1));
  EXPECT_EQ(Character.MenuFrame, 9);
  EXPECT_EQ(Character.CharaIndex, 0);
}

TEST_F(StageTest, ARowBehindTheListedCharactersIsTakenOverWithWhatItHolds) {
  CharaTables.MainCharaCount = 2;
  for (const int row : {2, 3, 49}) {
    CharaTables.MainCharas[row].menuFrame = 10 + row;
    CharaTables.MainCharas[row].bored1Frames[0] = 4;
    CharaTables.MainCharas[row].bored1Frames[1] = -1;
    CharaTables.MainCharas[row].bored2Frames[0] = -1;
    CharaTakeCurrent(row);
    EXPECT_EQ(Character.MenuFrame, 10 + row);
    EXPECT_EQ(Motion.BoredLen1, 1);
    EXPECT_EQ(Motion.BoredLen2, 0);
  }
}

TEST_F(StageTest, ForACharacterNumberOf0NoFileIsLookedFor) {
  PutMain(7, {kTriangle});
  PutDwc(0, DwcFile({kTriangle}));
  PutBmp(0, 1, BmpFile(40, 30));
  CharaTables.MainCharas[0].charaNo = 0;
  FaultClear();
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FaultCalls(FaultKind::Open), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
  EXPECT_EQ(Stage.CurrentOutline.count, 0);
  EXPECT_EQ(Stage.StageFrameCount, 20);
}

TEST_F(StageTest, SelectingACharacterCopiesItsRecordAndTellsWhetherItIsAnother) {
  CharaTables.MainCharas[1].charaSet.MotionF[1][16] = 77;
  CharaTables.MainCharas[1].menuFrame = 5;
  EXPECT_TRUE(CharaSelect(1));
  EXPECT_EQ(Character.CharaIndex, 1);
  EXPECT_EQ(Character.MenuFrame, 5);
  EXPECT_EQ(Character.CharaSet.MotionF[1][16], 77);
  EXPECT_EQ(Character.CharaSet.CharaNo, 2);
  EXPECT_FALSE(CharaSelect(1));
}

// --- Showing a frame

TEST_F(StageTest, AFrameWithAnotherOutlineAsksForACut) {
  PutMain(7, {kTriangle, kOther});
  Character.MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  EXPECT_EQ(Stage.CharaFrame, 1);
  EXPECT_EQ(Stage.StageRedraw, 1);
  EXPECT_EQ(PointsOfOutline(Stage.CurrentOutline), kOtherOnStage);
}

TEST_F(StageTest, AFrameWithAnEqualOutlineOnlyAsksForDrawing) {
  PutMain(7, {kTriangle, kTriangle});
  Character.MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  EXPECT_EQ(Stage.CharaFrame, 1);
  EXPECT_EQ(Stage.StageRedraw, 2);
  StageShowFrame(0, 11);  // no such slot: the outline stays
  StageShowFrame(0, -1);
  EXPECT_EQ(PointsOfOutline(Stage.CurrentOutline), kTriangleOnStage);
}

// --- Command 2293

class RedrawTest : public StageFixture {
 protected:
  void SetUp() override {
    StageFixture::SetUp();
    PutMain(7, {kTriangle, kOther, kTriangle, {}});
    ASSERT_EQ(CharaLoadStage(), 0);
    Stage.StageRedraw = 1;
    CommandRedrawStage();
    sets_ = RegionSetCount(Program.hMainWnd);
    DrawingClear();
  }
  int sets_ = 0;
};

TEST_F(RedrawTest, WithNothingToDoNothingIsDone) {
  Stage.StageRedraw = 0;
  CommandRedrawStage();
  EXPECT_TRUE(Drawings(Program.hMainWnd).empty());
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_);
}

TEST_F(RedrawTest, ANewOutlineCutsTheWindowToItsPoints) {
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kTriangleOnStage);
  Character.MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  CommandRedrawStage();
  EXPECT_EQ(Stage.StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_ + 1);
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kOtherOnStage);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 1));
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].x, 0);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].y, 0);
}

TEST_F(RedrawTest, AnEqualOutlineLeavesTheRegionUntouchedAndDrawsThroughMemory) {
  Character.BlinkFrame = 2;
  CharaLoadStage();
  StageShowFrame(2, kOutlineBlink);
  ASSERT_EQ(Stage.StageRedraw, 2);
  CommandRedrawStage();
  EXPECT_EQ(Stage.StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 2));
  const Rect client = WindowClientRect(Program.hMainWnd);
  bool stretched = false;
  for (const DrawCall& call : Drawings(Program.hMainWnd)) {
    // An outline hides the background; what a smaller frame leaves free is black.
    EXPECT_TRUE(call.kind != Kind::Rectangle || call.brush == 0);
    if (call.kind == Kind::Stretch) stretched = call.x2 == client.right && call.y2 == client.bottom;
  }
  EXPECT_TRUE(stretched);
}

TEST_F(RedrawTest, WithoutAnOutlineTheBackgroundIsClearedInTheFaceColour) {
  Stage.CurrentOutline.count = 0;
  Stage.StageRedraw = 2;
  CommandRedrawStage();
  int cleared = 0;
  for (const DrawCall& call : Drawings(Program.hMainWnd)) {
    if (call.kind != Kind::Rectangle) continue;
    ++cleared;
    EXPECT_EQ(call.brush, FaceColour());
    EXPECT_FALSE(call.edged);
  }
  EXPECT_EQ(cleared, 1);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
}

TEST_F(RedrawTest, WhenTheMemoryBitmapCannotBeMadeTheWindowIsDrawnStraight) {
  FaultArm(FaultKind::Bitmap, 1);
  Stage.StageRedraw = 2;
  CommandRedrawStage();
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ASSERT_EQ(Drawings(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 0));
  EXPECT_EQ(Stage.StageRedraw, 0);
}

TEST_F(RedrawTest, AFullReloadLoadsTheCharacterAndCutsTheWindowAnew) {
  PutMain(8, {kOther}, 60, 30);
  Stage.StageRedraw = 3;
  CommandRedrawStage();
  EXPECT_EQ(Stage.StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_ + 1);
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kOtherOnStage);
  EXPECT_EQ(Stage.StageWidth, 80);
  EXPECT_EQ(RectWidth(WindowRect(Program.hMainWnd)), 80);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].x2, 60);
}

// A frame without a picture sets no region, so that what is due afterwards comes from
// the move alone.
TEST_F(RedrawTest, ANewSizeAsksForARepaintOnlyWithoutAnOutline) {
  // The drawings of a Paint that is due; a box lets it come.
  const auto due = [] {
    DrawingClear();
    ExpectBox("t", "c", BoxAnswer::Ok, [] {});
    MessageBoxRun(Program.hMainWnd, "t", "c", BoxButtons::Ok, BoxIcon::Exclamation);
    return DibsDrawn(Program.hMainWnd).size();
  };
  due();
  Stage.CharaFrame = 9;
  for (const int points : {3, 0, 3}) {
    Stage.CurrentOutline.count = points;
    Stage.StageAppliedWidth = 1;
    Stage.StageRedraw = 1;
    CommandRedrawStage();
    EXPECT_EQ(Stage.StageAppliedWidth, Stage.StageWidth);
    EXPECT_EQ(due(), points == 0 ? 1U : 0U) << points;
  }
}

TEST_F(RedrawTest, AFullReloadWithoutACharacterLeavesTheWindow) {
  Character.CharaSet.CharaNo = 0;
  Stage.StageRedraw = 3;
  CommandRedrawStage();
  EXPECT_EQ(Stage.StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_);
}

TEST_F(RedrawTest, TheWindowMovesToItsPlaceOnlyWhenTheSizeDiffers) {
  const Rect before = WindowRect(Program.hMainWnd);
  EXPECT_EQ(before.left, 200);
  EXPECT_EQ(before.top, 100);
  EXPECT_EQ(RectWidth(before), Stage.StageWidth);
  EXPECT_EQ(RectHeight(before), Stage.StageHeight);
  Character.StageX = 210;  // not applied as long as the size stays
  StageShowFrame(1, kOutlineMenu);
  Stage.StageRedraw = 1;
  OutlineCopy(&Stage.CurrentOutline, Stage.StageOutlines[kOutlineIdle]);
  CommandRedrawStage();
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 200);
  Stage.CurrentOutline.count = 0;  // 20 and 10 less
  Stage.StageRedraw = 1;
  CommandRedrawStage();
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 210);
  EXPECT_EQ(RectWidth(WindowRect(Program.hMainWnd)), 40);
  EXPECT_EQ(Stage.StageAppliedWidth, 40);
}

TEST_F(RedrawTest, AMotionFrameWithAPointCountOf0TurnsTheWindowRectangularForThatFrameOnly) {
  Character.MenuFrame = 3;
  ASSERT_EQ(CharaLoadStage(), 0);
  StageShowFrame(3, kOutlineMenu);
  CommandRedrawStage();
  EXPECT_EQ(RegionOf(Program.hMainWnd), nullptr);
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_ + 1);
  StageShowFrame(0, kOutlineIdle);
  CommandRedrawStage();
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kTriangleOnStage);
}

TEST_F(RedrawTest, AFrameWithoutAPictureFallsBackToFrame0AndChangesNoRegion) {
  StageShowFrame(9, kOutlineMenu);
  EXPECT_EQ(Stage.StageRedraw, 1);
  CommandRedrawStage();
  EXPECT_EQ(RegionSetCount(Program.hMainWnd), sets_);
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kTriangleOnStage);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 0));
}

TEST_F(RedrawTest, ThePaintOfTheWindowDrawsTheFrameAndFallsBackToFrame0) {
  Stage.CharaFrame = 1;
  SendPaint(Program.hMainWnd);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 1));
  DrawingClear();
  Stage.CharaFrame = 19;
  SendPaint(Program.hMainWnd);
  ASSERT_EQ(DibsDrawn(Program.hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(Program.hMainWnd)[0].dib, FramePicture(kStageRow, 0));
}

TEST_F(RedrawTest, RegionsAndBitmapsDoNotPileUp) {
  const LiveObjects before = DiagnosticsLive();
  for (int i = 0; i < 500; ++i) {
    StageShowFrame(i % 2, i % 2 == 0 ? kOutlineIdle : kOutlineMenu);
    CommandRedrawStage();
    Stage.StageRedraw = 2;
    CommandRedrawStage();
  }
  EXPECT_LE(DiagnosticsLive().regions, before.regions);
  EXPECT_EQ(DiagnosticsLive().bitmaps, before.bitmaps);
  EXPECT_EQ(DiagnosticsLive().canvases, before.canvases);
}

TEST_F(RedrawTest, ARegionThatCannotBeMadeLeavesTheWholeWindow) {
  FaultArm(FaultKind::Region, 1);
  Stage.StageRedraw = 1;
  CommandRedrawStage();
  EXPECT_TRUE(FaultWasMet());
  EXPECT_EQ(RegionOf(Program.hMainWnd), nullptr);
}

TEST_F(RedrawTest, TheStageComesUpCutAndAtItsPlace) {
  Character.StageX = 33;
  Character.StageY = 44;
  StageShapeAndPlace();
  EXPECT_EQ(PointsOf(RegionOf(Program.hMainWnd)), kTriangleOnStage);
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 33);
  EXPECT_EQ(WindowRect(Program.hMainWnd).top, 44);
  EXPECT_EQ(Stage.StageAppliedHeight, Stage.StageHeight);
}

}  // namespace
