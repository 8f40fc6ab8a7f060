#include "character/stage.h"

#include "character/bored_frames.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "platform/canvas.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "services/dib.h"
#include "services/painting.h"
#include "services/program.h"
#include "services/screen_figures.h"

StageState Stage;

namespace {

// The class menu widens the window; the outline hides this margin.
constexpr int kMarginX = 20;
constexpr int kMarginY = 10;
constexpr int kSquare = 200;

// The current main character's number minus 1; -1 when the list does not hold it,
// or holds no character there.
int StageCharaNumber() {
  const int place = Character.CharaSet.CharaNo - 1;
  return place >= 0 && place < kMainCharaMax ? CharaTables.MainCharas[place].charaNo - 1 : -1;
}

// The stage's size for a picture; without one it stays.
void StageSizeFrom(ImageHandle picture) {
  if (!picture) return;
  Stage.StageWidth = DibWidth(picture);
  Stage.StageHeight = DibHeight(picture) + Screen.MenuBarHeight + ScreenMetric(Metric::EdgeHeight);
  if (Stage.CurrentOutline.count == 0) return;
  Stage.StageWidth += kMarginX;
  Stage.StageHeight += kMarginY;
}

// The outlines of the stage's character as its file has them, read once for the idle
// frame and all motions.
Outline fileOutlines[kFrameMax];

void LoadIdleOutline(int number) {
  if (OutlineReadCounted(number, fileOutlines, &Stage.StageFrameCount) == -1) {
    Stage.StageFrameCount = kFrameMax;
    Stage.CurrentOutline = Outline{0, {{0, 0}, {kSquare, 0}, {kSquare, kSquare}, {0, kSquare}}};
    return;
  }
  OutlineCopy(&Stage.CurrentOutline, fileOutlines[0]);
}

void LoadMotionOutline(int frame, int slot) {
  ImageHandle picture = FramePicture(kStageRow, frame);
  if (!picture) return;
  OutlineCopy(&Stage.StageOutlines[slot], fileOutlines[frame]);
  OutlineFlipForStage(&Stage.StageOutlines[slot], DibHeight(picture));
}

void LoadPattern(const std::int32_t (&frames)[kBoredFrameCount], int slot) {
  for (int i = 0; i < BoredLength(frames); ++i) LoadMotionOutline(frames[i], slot + i);
}

void LoadMotionOutlines() {
  if (Character.MenuFrame != 0) LoadMotionOutline(Character.MenuFrame, kOutlineMenu);
  if (Character.BlinkFrame != 0) LoadMotionOutline(Character.BlinkFrame, kOutlineBlink);
  LoadPattern(Character.Bored1Frames, kOutlineBored1);
  LoadPattern(Character.Bored2Frames, kOutlineBored2);
}

void DrawFrame(Canvas* canvas) {
  ImageHandle picture = FramePicture(kStageRow, Stage.CharaFrame);
  DibDraw(canvas, 0, 0, picture ? picture : FramePicture(kStageRow, 0));
}

void DrawStage(Canvas* canvas, int width, int height) {
  if (Stage.CurrentOutline.count == 0) FillArea(canvas, BrushFace(), {0, 0, width, height});
  DrawFrame(canvas);
}

// Drawn in memory first, so that a frame with the outline of the one before takes
// its place without a flicker.
void DrawBuffered() {
  Canvas* screen = CanvasGet(Program.hMainWnd);
  if (!screen) return;
  const Rect client = WindowClientRect(Program.hMainWnd);
  Canvas* memory = CanvasMemory(screen, client.right, client.bottom);
  // A frame that is smaller than the stage leaves black inside the outline.
  if (memory && Stage.CurrentOutline.count > 0) FillColour(memory, 0, client);
  DrawStage(memory ? memory : screen, client.right, client.bottom);
  if (memory)
    CanvasStretch(screen, 0, 0, client.right, client.bottom, memory, 0, 0, client.right, client.bottom);
  CanvasRelease(memory);
  CanvasRelease(screen);
}

// kept: a frame without an outline makes the window rectangular as long as it shows.
void ShapeStage() {
  WindowSetRegion(Program.hMainWnd, RegionPolygon(Stage.CurrentOutline.points, Stage.CurrentOutline.count),
                  true);
}

}  // namespace

int CharaLoadStage() {
  FramesFree(kStageRow);
  Stage.CharaFrame = 0;
  if (Character.CharaSet.CharaNo == 0) return 1;
  const int number = StageCharaNumber();
  for (Outline& outline : Stage.StageOutlines) outline.count = 0;
  LoadIdleOutline(number);
  if (number >= 0) FramesLoad(kStageRow, number);
  ImageHandle picture = FramePicture(kStageRow, 0);
  StageSizeFrom(picture);
  OutlineFlipForStage(&Stage.CurrentOutline, DibHeight(picture));
  OutlineCopy(&Stage.StageOutlines[kOutlineIdle], Stage.CurrentOutline);
  LoadMotionOutlines();
  return 0;
}

void StageShowFrame(int frame, int slot) {
  Stage.CharaFrame = frame;
  // bounded: an outline of the stage beyond the table is not taken.
  if (slot < 0 || slot >= kOutlineSlotCount) return;
  if (OutlinesEqual(Stage.StageOutlines[slot], Stage.CurrentOutline)) {
    Stage.StageRedraw = kRedrawSame;
    return;
  }
  Stage.StageRedraw = kRedrawOutline;
  OutlineCopy(&Stage.CurrentOutline, Stage.StageOutlines[slot]);
}

void CommandRedrawStage() {
  if (Stage.StageRedraw == kRedrawSame) DrawBuffered();
  if (Stage.StageRedraw == kRedrawReload) {
    CharaLoadStage();
    Stage.StageRedraw = kRedrawOutline;
  }
  if (Stage.StageRedraw != kRedrawOutline) {
    Stage.StageRedraw = kRedrawNothing;
    return;
  }
  ImageHandle picture = FramePicture(kStageRow, Stage.CharaFrame);
  StageSizeFrom(picture);
  if (picture) ShapeStage();
  if (Stage.StageWidth != Stage.StageAppliedWidth || Stage.StageHeight != Stage.StageAppliedHeight)
    StageMove(Stage.CurrentOutline.count == 0);
  StagePaint();
  Stage.StageRedraw = kRedrawNothing;
}

void StagePaint() {
  Canvas* canvas = CanvasGet(Program.hMainWnd);
  if (!canvas) return;
  DrawFrame(canvas);
  CanvasRelease(canvas);
}

void StageShapeAndPlace() {
  ShapeStage();
  StageMove(false);
}

void StageMove(bool repaint) {
  WindowMove(Program.hMainWnd, Character.StageX, Character.StageY, Stage.StageWidth, Stage.StageHeight,
             repaint);
  Stage.StageAppliedWidth = Stage.StageWidth;
  Stage.StageAppliedHeight = Stage.StageHeight;
}

void StagePlaceSet(std::int32_t x, std::int32_t y) {
  Character.StageX = x;
  Character.StageY = y;
}

void StageSizeBegin() {
  Stage.StageWidth = 300;
  Stage.StageHeight = 200;
}

void StageReloadWanted() {
  Stage.StageRedraw = kRedrawReload;
}
