#include "character/stage.h"

#include <gtest/gtest.h>

#include "platform/canvas.h"
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
  MenuFrame = 1;
  BlinkFrame = 2;
  Bored1Frames[0] = 3;
  Bored1Frames[1] = 1;
  Bored2Frames[0] = 0;
  BoredFramesCount();
  CharaFrame = 5;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(CharaFrame, 0);
  EXPECT_EQ(StageFrameCount, 4);
  // The picture is 40 by 30; with an outline 20 and 10 are added for the class menu.
  EXPECT_EQ(StageWidth, 40 + 20);
  EXPECT_EQ(StageHeight, 30 + kMenuLine + ScreenMetric(Metric::EdgeHeight) + 10);
  EXPECT_EQ(PointsOfOutline(CurrentOutline), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineIdle]), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineMenu]), kOtherOnStage);
  EXPECT_EQ(StageOutlines[kOutlineBlink].count, 0);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineBored1]), kTriangleOnStage);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineBored1 + 1]), kOtherOnStage);
  EXPECT_EQ(StageOutlines[kOutlineBored1 + 2].count, 0);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineBored2]), kTriangleOnStage);
  EXPECT_NE(FramePicture(kStageRow, 3), nullptr);
  EXPECT_EQ(FramePicture(kStageRow, 4), nullptr);
}

TEST_F(StageTest, EachMotionOutlineIsFlippedWithItsOwnPicturesHeight) {
  PutMain(7, {kTriangle, {{5, 0}}});
  PutBmp(7, 2, BmpFile(40, 50));
  MenuFrame = 1;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(PointsOfOutline(StageOutlines[kOutlineMenu]), (FilePoints{{5, 20 + 50 - 1}}));
}

TEST_F(StageTest, WithoutACharacterNumberOneIsReturnedAndThePicturesAreGone) {
  PutMain(7, {kTriangle});
  ASSERT_EQ(CharaLoadStage(), 0);
  SetCharaSetNo(CharaSet, 0);
  EXPECT_EQ(CharaLoadStage(), 1);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
}

TEST_F(StageTest, AMissingOutlineFileGivesARectangularStageAndFrameCount20) {
  PutBmp(7, 1, BmpFile(40, 30));
  MainCharas[0].charaNo = 7;
  SetCharaSetNo(CharaSet, 1);
  CurrentOutline.count = 3;
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(StageFrameCount, 20);
  EXPECT_EQ(CurrentOutline.count, 0);
  EXPECT_EQ(CurrentOutline.points[2].x, 200);
  EXPECT_EQ(CurrentOutline.points[2].y, 200);
  EXPECT_EQ(StageWidth, 40);
  EXPECT_EQ(StageHeight, 30 + kMenuLine + ScreenMetric(Metric::EdgeHeight));
}

TEST_F(StageTest, ACharacterNumberBeyondTheFilesGivesTwentyEmptyFramesAndAStageWithoutAPicture) {
  MainCharas[0].charaNo = 999;
  SetCharaSetNo(CharaSet, 1);
  EXPECT_EQ(CharaLoadStage(), 0);
  for (int frame = 0; frame < kFrameMax; ++frame) EXPECT_EQ(FramePicture(kStageRow, frame), nullptr);
  EXPECT_EQ(StageWidth, 300);  // as it was
  EXPECT_EQ(StageHeight, 200);
  DrawingClear();
  StagePaint();
  EXPECT_TRUE(DibsDrawn(hMainWnd).empty());
}

TEST_F(StageTest, ACharacterNumberBeyondTheListLoadsNothing) {
  PutMain(7, {kTriangle});
  SetCharaSetNo(CharaSet, 51);
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
  SetCharaSetNo(CharaSet, 65535);
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
}

TEST_F(StageTest, AnotherCharactersOutlinesDoNotStay) {
  PutMain(7, {kTriangle, kOther});
  MenuFrame = 1;
  ASSERT_EQ(CharaLoadStage(), 0);
  PutMain(8, {kTriangle});
  ASSERT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(StageOutlines[kOutlineMenu].count, 0);
}

TEST_F(StageTest, MotionFramesBeyondTheTableHaveNoOutline) {
  PutMain(7, {kTriangle});
  MenuFrame = 20;
  BlinkFrame = -1;
  Bored1Frames[0] = 1000000;
  BoredFramesCount();
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(StageOutlines[kOutlineMenu].count, 0);
  EXPECT_EQ(StageOutlines[kOutlineBlink].count, 0);
  EXPECT_EQ(StageOutlines[kOutlineBored1].count, 0);
}

// --- Taking a character over

TEST_F(StageTest, TakingACharacterOverCopiesItsSettingsAndCountsItsFrames) {
  MainChara& row = MainCharas[49];
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
  EXPECT_EQ(MenuFrame, 3);
  EXPECT_EQ(BlinkFrame, 4);
  EXPECT_EQ(Bored1Frames[1], 6);
  EXPECT_EQ(Bored2Frames[4], 5);
  EXPECT_EQ(BoredSpeedSel, 2);
  EXPECT_EQ(BoredRepeatSel, 3);
  EXPECT_EQ(BlinkSpeedSel, 5);
  EXPECT_EQ(BoredLen1, 2);
  EXPECT_EQ(BoredLen2, 4);  // the fifth frame is never played
  EXPECT_EQ(BoredHour, 1);
  EXPECT_EQ(BoredMin, 30);
  EXPECT_EQ(BoredSec, 60);
}

TEST_F(StageTest, IndexesBeyondTheListTakeNothingOver) {
  MenuFrame = 9;
  CharaTakeCurrent(-1);
  CharaTakeCurrent(50);
  EXPECT_FALSE(CharaSelect(50));
  EXPECT_FALSE(CharaSelect(-1));
  EXPECT_EQ(MenuFrame, 9);
  EXPECT_EQ(CharaIndex, 0);
}

TEST_F(StageTest, ARowBehindTheListedCharactersIsTakenOverWithWhatItHolds) {
  MainCharaCount = 2;
  for (const int row : {2, 3, 49}) {
    MainCharas[row].menuFrame = 10 + row;
    MainCharas[row].bored1Frames[0] = 4;
    MainCharas[row].bored1Frames[1] = -1;
    MainCharas[row].bored2Frames[0] = -1;
    CharaTakeCurrent(row);
    EXPECT_EQ(MenuFrame, 10 + row);
    EXPECT_EQ(BoredLen1, 1);
    EXPECT_EQ(BoredLen2, 0);
  }
}

TEST_F(StageTest, ForACharacterNumberOf0NoFileIsLookedFor) {
  PutMain(7, {kTriangle});
  PutDwc(0, DwcFile({kTriangle}));
  PutBmp(0, 1, BmpFile(40, 30));
  MainCharas[0].charaNo = 0;
  FaultClear();
  EXPECT_EQ(CharaLoadStage(), 0);
  EXPECT_EQ(FaultCalls(FaultKind::Open), 0);
  EXPECT_EQ(FramePicture(kStageRow, 0), nullptr);
  EXPECT_EQ(CurrentOutline.count, 0);
  EXPECT_EQ(StageFrameCount, 20);
}

TEST_F(StageTest, SelectingACharacterCopiesItsRecordAndTellsWhetherItIsAnother) {
  MainCharas[1].charaSet[100] = 77;
  MainCharas[1].menuFrame = 5;
  EXPECT_TRUE(CharaSelect(1));
  EXPECT_EQ(CharaIndex, 1);
  EXPECT_EQ(MenuFrame, 5);
  EXPECT_EQ(CharaSet[100], 77);
  EXPECT_EQ(CharaSetNo(CharaSet), 2);
  EXPECT_FALSE(CharaSelect(1));
}

// --- Showing a frame

TEST_F(StageTest, AFrameWithAnotherOutlineAsksForACut) {
  PutMain(7, {kTriangle, kOther});
  MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  EXPECT_EQ(CharaFrame, 1);
  EXPECT_EQ(StageRedraw, 1);
  EXPECT_EQ(PointsOfOutline(CurrentOutline), kOtherOnStage);
}

TEST_F(StageTest, AFrameWithAnEqualOutlineOnlyAsksForDrawing) {
  PutMain(7, {kTriangle, kTriangle});
  MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  EXPECT_EQ(CharaFrame, 1);
  EXPECT_EQ(StageRedraw, 2);
  StageShowFrame(0, 11);  // no such slot: the outline stays
  StageShowFrame(0, -1);
  EXPECT_EQ(PointsOfOutline(CurrentOutline), kTriangleOnStage);
}

// --- Command 2293

class RedrawTest : public StageFixture {
 protected:
  void SetUp() override {
    StageFixture::SetUp();
    PutMain(7, {kTriangle, kOther, kTriangle, {}});
    ASSERT_EQ(CharaLoadStage(), 0);
    StageRedraw = 1;
    CommandRedrawStage();
    sets_ = RegionSetCount(hMainWnd);
    DrawingClear();
  }
  int sets_ = 0;
};

TEST_F(RedrawTest, WithNothingToDoNothingIsDone) {
  StageRedraw = 0;
  CommandRedrawStage();
  EXPECT_TRUE(Drawings(hMainWnd).empty());
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_);
}

TEST_F(RedrawTest, ANewOutlineCutsTheWindowToItsPoints) {
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kTriangleOnStage);
  MenuFrame = 1;
  CharaLoadStage();
  StageShowFrame(1, kOutlineMenu);
  CommandRedrawStage();
  EXPECT_EQ(StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_ + 1);
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kOtherOnStage);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 1));
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].x, 0);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].y, 0);
}

TEST_F(RedrawTest, AnEqualOutlineLeavesTheRegionUntouchedAndDrawsThroughMemory) {
  BlinkFrame = 2;
  CharaLoadStage();
  StageShowFrame(2, kOutlineBlink);
  ASSERT_EQ(StageRedraw, 2);
  CommandRedrawStage();
  EXPECT_EQ(StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 2));
  const Rect client = WindowClientRect(hMainWnd);
  bool stretched = false;
  for (const DrawCall& call : Drawings(hMainWnd)) {
    EXPECT_NE(call.kind, Kind::Rectangle);  // an outline hides the background
    if (call.kind == Kind::Stretch) stretched = call.x2 == client.right && call.y2 == client.bottom;
  }
  EXPECT_TRUE(stretched);
}

TEST_F(RedrawTest, WithoutAnOutlineTheBackgroundIsClearedInTheFaceColour) {
  CurrentOutline.count = 0;
  StageRedraw = 2;
  CommandRedrawStage();
  int cleared = 0;
  for (const DrawCall& call : Drawings(hMainWnd)) {
    if (call.kind != Kind::Rectangle) continue;
    ++cleared;
    EXPECT_EQ(call.brush, FaceColour());
    EXPECT_FALSE(call.edged);
  }
  EXPECT_EQ(cleared, 1);
  EXPECT_EQ(DibsDrawn(hMainWnd).size(), 1U);
}

TEST_F(RedrawTest, WhenTheMemoryBitmapCannotBeMadeTheWindowIsDrawnStraight) {
  FaultArm(FaultKind::Bitmap, 1);
  StageRedraw = 2;
  CommandRedrawStage();
  EXPECT_TRUE(FaultWasMet());
  FaultClear();
  ASSERT_EQ(Drawings(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 0));
  EXPECT_EQ(StageRedraw, 0);
}

TEST_F(RedrawTest, AFullReloadLoadsTheCharacterAndCutsTheWindowAnew) {
  PutMain(8, {kOther}, 60, 30);
  StageRedraw = 3;
  CommandRedrawStage();
  EXPECT_EQ(StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_ + 1);
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kOtherOnStage);
  EXPECT_EQ(StageWidth, 80);
  EXPECT_EQ(RectWidth(WindowRect(hMainWnd)), 80);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].x2, 60);
}

// A frame without a picture sets no region, so that what is due afterwards comes from
// the move alone.
TEST_F(RedrawTest, ANewSizeAsksForARepaintOnlyWithoutAnOutline) {
  // The drawings of a Paint that is due; a box lets it come.
  const auto due = [] {
    DrawingClear();
    ExpectBox("t", "c", BoxAnswer::Ok, [] {});
    MessageBoxRun(hMainWnd, "t", "c", BoxButtons::Ok, BoxIcon::Exclamation);
    return DibsDrawn(hMainWnd).size();
  };
  due();
  CharaFrame = 9;
  for (const int points : {3, 0, 3}) {
    CurrentOutline.count = points;
    StageAppliedWidth = 1;
    StageRedraw = 1;
    CommandRedrawStage();
    EXPECT_EQ(StageAppliedWidth, StageWidth);
    EXPECT_EQ(due(), points == 0 ? 1U : 0U) << points;
  }
}

TEST_F(RedrawTest, AFullReloadWithoutACharacterLeavesTheWindow) {
  SetCharaSetNo(CharaSet, 0);
  StageRedraw = 3;
  CommandRedrawStage();
  EXPECT_EQ(StageRedraw, 0);
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_);
}

TEST_F(RedrawTest, TheWindowMovesToItsPlaceOnlyWhenTheSizeDiffers) {
  const Rect before = WindowRect(hMainWnd);
  EXPECT_EQ(before.left, 200);
  EXPECT_EQ(before.top, 100);
  EXPECT_EQ(RectWidth(before), StageWidth);
  EXPECT_EQ(RectHeight(before), StageHeight);
  StageX = 210;  // not applied as long as the size stays
  StageShowFrame(1, kOutlineMenu);
  StageRedraw = 1;
  OutlineCopy(&CurrentOutline, StageOutlines[kOutlineIdle]);
  CommandRedrawStage();
  EXPECT_EQ(WindowRect(hMainWnd).left, 200);
  CurrentOutline.count = 0;  // 20 and 10 less
  StageRedraw = 1;
  CommandRedrawStage();
  EXPECT_EQ(WindowRect(hMainWnd).left, 210);
  EXPECT_EQ(RectWidth(WindowRect(hMainWnd)), 40);
  EXPECT_EQ(StageAppliedWidth, 40);
}

TEST_F(RedrawTest, AMotionFrameWithAPointCountOf0TurnsTheWindowRectangularForThatFrameOnly) {
  MenuFrame = 3;
  ASSERT_EQ(CharaLoadStage(), 0);
  StageShowFrame(3, kOutlineMenu);
  CommandRedrawStage();
  EXPECT_EQ(RegionOf(hMainWnd), nullptr);
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_ + 1);
  StageShowFrame(0, kOutlineIdle);
  CommandRedrawStage();
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kTriangleOnStage);
}

TEST_F(RedrawTest, AFrameWithoutAPictureFallsBackToFrame0AndChangesNoRegion) {
  StageShowFrame(9, kOutlineMenu);
  EXPECT_EQ(StageRedraw, 1);
  CommandRedrawStage();
  EXPECT_EQ(RegionSetCount(hMainWnd), sets_);
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kTriangleOnStage);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 0));
}

TEST_F(RedrawTest, ThePaintOfTheWindowDrawsTheFrameAndFallsBackToFrame0) {
  CharaFrame = 1;
  SendPaint(hMainWnd);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 1));
  DrawingClear();
  CharaFrame = 19;
  SendPaint(hMainWnd);
  ASSERT_EQ(DibsDrawn(hMainWnd).size(), 1U);
  EXPECT_EQ(DibsDrawn(hMainWnd)[0].dib, FramePicture(kStageRow, 0));
}

TEST_F(RedrawTest, RegionsAndBitmapsDoNotPileUp) {
  const LiveObjects before = DiagnosticsLive();
  for (int i = 0; i < 500; ++i) {
    StageShowFrame(i % 2, i % 2 == 0 ? kOutlineIdle : kOutlineMenu);
    CommandRedrawStage();
    StageRedraw = 2;
    CommandRedrawStage();
  }
  EXPECT_LE(DiagnosticsLive().regions, before.regions);
  EXPECT_EQ(DiagnosticsLive().bitmaps, before.bitmaps);
  EXPECT_EQ(DiagnosticsLive().canvases, before.canvases);
}

TEST_F(RedrawTest, ARegionThatCannotBeMadeLeavesTheWholeWindow) {
  FaultArm(FaultKind::Region, 1);
  StageRedraw = 1;
  CommandRedrawStage();
  EXPECT_TRUE(FaultWasMet());
  EXPECT_EQ(RegionOf(hMainWnd), nullptr);
}

TEST_F(RedrawTest, TheStageComesUpCutAndAtItsPlace) {
  StageX = 33;
  StageY = 44;
  StageShapeAndPlace();
  EXPECT_EQ(PointsOf(RegionOf(hMainWnd)), kTriangleOnStage);
  EXPECT_EQ(WindowRect(hMainWnd).left, 33);
  EXPECT_EQ(WindowRect(hMainWnd).top, 44);
  EXPECT_EQ(StageAppliedHeight, StageHeight);
}

}  // namespace
