#include "character/stage.h"

#include "character/chara_set.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/motion.h"
#include "platform/canvas.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "shell/dib.h"
#include "shell/painting.h"
#include "shell/shell.h"

std::int32_t CharaFrame;
std::int32_t StageRedraw;
std::int32_t StageFrameCount;
std::int32_t StageWidth;
std::int32_t StageHeight;
std::int32_t StageAppliedWidth;
std::int32_t StageAppliedHeight;
Outline StageOutlines[kOutlineSlotCount];
Outline CurrentOutline;

namespace {

// The class menu widens the window; the outline hides this margin.
constexpr int kMarginX = 20;
constexpr int kMarginY = 10;
constexpr int kSquare = 200;

// The current main character's number minus 1; -1 when the list does not hold it,
// or holds no character there.
int StageCharaNumber() {
  const int place = CharaSetNo(CharaSet) - 1;
  return place >= 0 && place < kMainCharaMax ? MainCharas[place].charaNo - 1 : -1;
}

// The stage's size for a picture; without one it stays.
void StageSizeFrom(ImageHandle picture) {
  if (!picture) return;
  StageWidth = DibWidth(picture);
  StageHeight = DibHeight(picture) + MenuBarHeight + ScreenMetric(Metric::EdgeHeight);
  if (CurrentOutline.count == 0) return;
  StageWidth += kMarginX;
  StageHeight += kMarginY;
}

// The outlines of the stage's character as its file has them, read once for the idle
// frame and all motions.
Outline fileOutlines[kFrameMax];

void LoadIdleOutline(int number) {
  if (OutlineReadCounted(number, fileOutlines, &StageFrameCount) == -1) {
    StageFrameCount = kFrameMax;
    CurrentOutline = Outline{0, {{0, 0}, {kSquare, 0}, {kSquare, kSquare}, {0, kSquare}}};
    return;
  }
  OutlineCopy(&CurrentOutline, fileOutlines[0]);
}

void LoadMotionOutline(int frame, int slot) {
  ImageHandle picture = FramePicture(kStageRow, frame);
  if (!picture) return;
  OutlineCopy(&StageOutlines[slot], fileOutlines[frame]);
  OutlineFlipForStage(&StageOutlines[slot], DibHeight(picture));
}

void LoadMotionOutlines() {
  if (MenuFrame != 0) LoadMotionOutline(MenuFrame, kOutlineMenu);
  if (BlinkFrame != 0) LoadMotionOutline(BlinkFrame, kOutlineBlink);
  for (int i = 0; i < BoredLen1; ++i) LoadMotionOutline(Bored1Frames[i], kOutlineBored1 + i);
  for (int i = 0; i < BoredLen2; ++i) LoadMotionOutline(Bored2Frames[i], kOutlineBored2 + i);
}

void DrawFrame(Canvas* canvas) {
  ImageHandle picture = FramePicture(kStageRow, CharaFrame);
  DibDraw(canvas, 0, 0, picture ? picture : FramePicture(kStageRow, 0));
}

void DrawStage(Canvas* canvas, int width, int height) {
  if (CurrentOutline.count == 0) FillArea(canvas, BrushFace(), {0, 0, width, height});
  DrawFrame(canvas);
}

// Drawn in memory first, so that a frame with the outline of the one before takes
// its place without a flicker.
void DrawBuffered() {
  Canvas* screen = CanvasGet(hMainWnd);
  if (!screen) return;
  const Rect client = WindowClientRect(hMainWnd);
  Canvas* memory = CanvasMemory(screen, client.right, client.bottom);
  DrawStage(memory ? memory : screen, client.right, client.bottom);
  if (memory)
    CanvasStretch(screen, 0, 0, client.right, client.bottom, memory, 0, 0, client.right, client.bottom);
  CanvasRelease(memory);
  CanvasRelease(screen);
}

// kept: a frame without an outline makes the window rectangular as long as it shows.
void ShapeStage() {
  WindowSetRegion(hMainWnd, RegionPolygon(CurrentOutline.points, CurrentOutline.count), true);
}

}  // namespace

int CharaLoadStage() {
  FramesFree(kStageRow);
  CharaFrame = 0;
  if (CharaSetNo(CharaSet) == 0) return 1;
  const int number = StageCharaNumber();
  for (Outline& outline : StageOutlines) outline.count = 0;
  LoadIdleOutline(number);
  if (number >= 0) FramesLoad(kStageRow, number);
  ImageHandle picture = FramePicture(kStageRow, 0);
  StageSizeFrom(picture);
  OutlineFlipForStage(&CurrentOutline, DibHeight(picture));
  OutlineCopy(&StageOutlines[kOutlineIdle], CurrentOutline);
  LoadMotionOutlines();
  return 0;
}

void CharaTakeCurrent(int index) {
  if (index < 0 || index >= kMainCharaMax) return;  // bounded: the list ends there
  const MainChara& from = MainCharas[index];
  MenuFrame = from.menuFrame;
  BlinkFrame = from.blinkFrame;
  for (int i = 0; i < kBoredFrameCount; ++i) {
    Bored1Frames[i] = from.bored1Frames[i];
    Bored2Frames[i] = from.bored2Frames[i];
  }
  BoredDelaySel = from.boredDelaySel;
  BoredSpeedSel = from.boredSpeedSel;
  BoredRepeatSel = from.boredRepeatSel;
  BlinkSpeedSel = from.blinkSpeedSel;
  BoredFramesCount();
  BoredTimerReset();
}

bool CharaSelect(int index) {
  if (index < 0 || index >= kMainCharaMax) return false;
  const int before = CharaSetNo(CharaSet);
  CharaIndex = index;
  CharaTakeCurrent(index);
  for (int i = 0; i < kCharaSetSize; ++i) CharaSet[i] = MainCharas[index].charaSet[i];
  SetCharaSetNo(CharaSet, index + 1);
  return before != index + 1;
}

void StageShowFrame(int frame, int slot) {
  CharaFrame = frame;
  if (slot < 0 || slot >= kOutlineSlotCount) return;  // bounded: no such outline
  if (OutlinesEqual(StageOutlines[slot], CurrentOutline)) {
    StageRedraw = kRedrawSame;
    return;
  }
  StageRedraw = kRedrawOutline;
  OutlineCopy(&CurrentOutline, StageOutlines[slot]);
}

void CommandRedrawStage() {
  if (StageRedraw == kRedrawSame) DrawBuffered();
  if (StageRedraw == kRedrawReload) {
    CharaLoadStage();
    StageRedraw = kRedrawOutline;
  }
  if (StageRedraw != kRedrawOutline) {
    StageRedraw = kRedrawNothing;
    return;
  }
  ImageHandle picture = FramePicture(kStageRow, CharaFrame);
  StageSizeFrom(picture);
  if (picture) ShapeStage();
  if (StageWidth != StageAppliedWidth || StageHeight != StageAppliedHeight)
    StageMove(CurrentOutline.count == 0);
  StagePaint();
  StageRedraw = kRedrawNothing;
}

void StagePaint() {
  Canvas* canvas = CanvasGet(hMainWnd);
  if (!canvas) return;
  DrawFrame(canvas);
  CanvasRelease(canvas);
}

void StageShapeAndPlace() {
  ShapeStage();
  StageMove(false);
}

void StageMove(bool repaint) {
  WindowMove(hMainWnd, StageX, StageY, StageWidth, StageHeight, repaint);
  StageAppliedWidth = StageWidth;
  StageAppliedHeight = StageHeight;
}
