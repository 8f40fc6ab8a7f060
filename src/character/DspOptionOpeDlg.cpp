// One motion of a main character, played as the stage would show it.

#include "character/bored_frames.h"
#include "character/character_tables.h"
#include "character/options.h"
#include "character/outline.h"
#include "platform/canvas.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/dialog_family.h"
#include "services/dib.h"
#include "services/painting.h"
#include "services/state.h"

MotionPreviewState MotionPreview;

namespace {

// By Preview.
constexpr SubDialog kNumbers[] = {SubDialog::None, SubDialog::DspOptionOpeDlgMenu,
                                  SubDialog::DspOptionOpeDlgBlink, SubDialog::DspOptionOpeDlgBored1,
                                  SubDialog::DspOptionOpeDlgBored2};
constexpr int kTicksOfFrame = 5;
constexpr int kTextX = 10;
constexpr int kTextY = 10;
constexpr int kPictureX = 10;
constexpr int kPictureBelow = 40;  // of the text
constexpr int kNoteGap = 16;
constexpr int kButtonBand = 40;  // pixels at the bottom that the button stands in
constexpr Colour kRed = MakeColour(255, 0, 0);

struct Texts {
  const char* name;
  const char* notSet;
};
constexpr Texts kTexts[] = {
    {"", ""},
    {"ﾒﾆｭｰ動作", "ﾒﾆｭｰ動作は設定されていません!"},
    {"瞬き動作", "瞬き動作は設定されていません!"},
    {"退屈動作1", "退屈動作1は設定されていません!"},
    {"退屈動作2", "退屈動作2は設定されていません!"},
};

void Add(int number, int frame) {
  const bool usable = number >= 0 && frame >= 0 && frame < kFrameMax;
  MotionPreview.pictures[MotionPreview.count] = usable ? DibLoad(CharaBmpPath(number, frame)) : nullptr;
  MotionPreview.hasOutline[MotionPreview.count] = usable && MotionPreview.outlines[frame].count > 0;
  ++MotionPreview.count;
}

void AddPattern(int number, const std::int32_t (&frames)[kBoredFrameCount]) {
  for (int i = 0; i < kBoredLenMax && frames[i] >= 0; ++i) Add(number, frames[i]);
}

void Free() {
  for (ImageHandle picture : MotionPreview.pictures) DibFree(picture);
  StateReset(MotionPreview);
}

void Load(const MainChara& chara, Preview kind) {
  Free();
  MotionPreview.kind = kind;
  MotionPreview.delay = kTicksOfFrame;
  const int number = chara.charaNo - 1;
  int ignored = 0;
  OutlineReadCounted(number, MotionPreview.outlines, &ignored);
  switch (kind) {
    case Preview::Menu:
      if (chara.menuFrame > 0) Add(number, chara.menuFrame);
      break;
    case Preview::Blink:
      if (chara.blinkFrame <= 0) break;
      Add(number, 0);
      Add(number, chara.blinkFrame);
      break;
    case Preview::Bored1:
      AddPattern(number, chara.bored1Frames);
      break;
    case Preview::Bored2:
      AddPattern(number, chara.bored2Frames);
      break;
    case Preview::None:
      break;
  }
}

void Draw(Canvas* canvas, const Rect& area) {
  FillArea(canvas, BrushFace(), area);
  CanvasBackTransparent(canvas, true);
  const Texts& texts = kTexts[static_cast<int>(MotionPreview.kind)];
  if (MotionPreview.count == 0) {
    CanvasText(canvas, kTextX, kTextY, texts.notSet);
    return;
  }
  CanvasText(canvas, kTextX, kTextY, texts.name);
  if (!MotionPreview.hasOutline[MotionPreview.place]) {
    CanvasTextColour(canvas, kRed);
    CanvasText(canvas, kTextX + CanvasTextWidth(canvas, texts.name) + kNoteGap, kTextY, "(枠取りなし)");
  }
  DibDraw(canvas, kPictureX, kTextY + kPictureBelow, MotionPreview.pictures[MotionPreview.place]);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  const Rect client = WindowClientRect(dialog);
  const int height = client.bottom > kButtonBand ? client.bottom - kButtonBand : 0;
  DrawSteady(screen, {0, 0, client.right, height}, Draw);
  CanvasRelease(screen);
}

bool Proc(const Event& event) {
  if (event.kind != EventKind::Paint) return false;
  Paint(event.window);
  return true;
}

}  // namespace

void MotionPreviewRun(WindowHandle owner, int index, Preview kind) {
  if (index < 0 || index >= kMainCharaMax) return;  // bounded: a main character beyond the list plays nothing
  Load(CharaTables.MainCharas[index], kind);
  SubDialogRun(kNumbers[static_cast<int>(kind)], IDD_DspOptionOpeDlg, owner, Proc);
  Free();
}

// A menu motion stands still.
int MotionPreviewTick() {
  if (MotionPreview.kind == Preview::None || MotionPreview.kind == Preview::Menu || MotionPreview.count == 0)
    return 0;
  if (MotionPreview.delay != 0) {
    --MotionPreview.delay;
    return 0;
  }
  MotionPreview.delay = kTicksOfFrame;
  MotionPreview.place = (MotionPreview.place + 1) % MotionPreview.count;
  return 1;
}

void MotionPreviewStep() {
  if (MotionPreviewTick() != 0) SendPaint(Dialogs.hSubDlg);
}

int MotionPreviewDue() {
  return TickDueIf(Dialogs.hSubDlg != nullptr);
}
