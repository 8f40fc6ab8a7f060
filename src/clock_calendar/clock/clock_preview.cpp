#include "clock_calendar/clock/clock_preview.h"

#include <algorithm>

#include "character/alarm_images.h"
#include "character/chara_paths.h"
#include "character/options.h"
#include "clock_calendar/clock/clock.h"
#include "platform/canvas.h"
#include "platform/time.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/painting.h"

ClockPreviewState ClockPreview;

namespace {

constexpr int kX = 10;
constexpr int kY = 120;
constexpr int kNameY = 10;
constexpr int kMargin = 10;

void FrameLoad(int frame) {
  MaskedFrameFree(ClockPreview.shown);
  ClockPreview.frame = frame;
  const ClockDesignRow* row = ClockDesignAt(ClockPreview.design);
  if (!row || row->number < 1 || frame >= kFrameMax) return;
  MaskedFrameLoad(ClockPreview.shown, row->number, frame);
}

void Draw(Canvas* canvas, const Rect& at) {
  FillArea(canvas, BrushFace(), at);
  MaskedDraw(canvas, at.left, at.top, ClockPreview.shown.picture, ClockPreview.shown.mask);
}

void Show(WindowHandle dialog) {
  if (RectWidth(ClockPreview.box) <= 0 || RectHeight(ClockPreview.box) <= 0) return;
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  DrawSteady(screen, ClockPreview.box, Draw);
  CanvasRelease(screen);
}

// settled: in the check of a clock's performance the place above the frames, where a notice's figure plays
// otherwise, names the design whose performance is tried out.
void Paint(WindowHandle dialog) {
  char name[kDesignNameSize + 1];
  ClockDesignName(ClockPreview.design, name);
  if (Canvas* canvas = CanvasGet(dialog)) {
    CanvasBackTransparent(canvas, true);
    CanvasText(canvas, kX, kNameY, name);
    CanvasRelease(canvas);
  }
  Show(dialog);
}

// The dialog is made for the figures of notices; it grows by what a frame of the clock
// needs more.
void Grow(WindowHandle dialog) {
  const Rect outside = WindowRect(dialog);
  const Rect client = WindowClientRect(dialog);
  const int wider = std::max(ClockPreview.box.right + kMargin - client.right, 0);
  const int higher = std::max(ClockPreview.box.bottom + kMargin - client.bottom, 0);
  WindowMove(dialog, outside.left, outside.top, RectWidth(outside) + wider, RectHeight(outside) + higher,
             false);
}

void Play() {
  const ClockDesignRow* row = ClockDesignAt(ClockPreview.design);
  if (!row) return;
  LocalTime now;
  TimeGetLocal(&now);
  const int hour12 = now.hour % 12;
  StrikeBegin(ClockPreview.play, row->record.strikeDelay, row->record.hourFigures[hour12],
              ClockPreview.settings, hour12);
}

int FrameOfStep() {
  return std::max(StrikeFigure(ClockPreview.play) - 1, 0);
}

void Begin(WindowHandle dialog) {
  FrameLoad(0);
  ClockPreview.box = {kX, kY, kX + DibWidth(ClockPreview.shown.picture),
                      kY + DibHeight(ClockPreview.shown.picture)};
  Grow(dialog);
  Play();
  FrameLoad(FrameOfStep());
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Begin},
    {EventKind::Paint, Paint},
    {EventKind::Destroy, ClockPreviewFree},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void ClockPreviewRun(WindowHandle owner, int design, const ClockStrikeSettings& settings) {
  ClockPreview.design = design;
  ClockPreview.settings = settings;
  AlarmCheckFree();  // the figures of notices that this dialog plays otherwise
  ToolDialogRun(ToolDialog::AlarmChkDialogClock, IDD_AlarmChkDialog, owner, Handle);
}

void ClockPreviewStep() {
  if (!ClockPreview.play.on) return;
  if (!Dialogs.hToolDlg) return ClockPreviewFree();
  StrikeTick(ClockPreview.play);
  if (FrameOfStep() == ClockPreview.frame) return;
  FrameLoad(FrameOfStep());
  Show(Dialogs.hToolDlg);
}

int ClockPreviewDue() {
  return TickDueIf(ClockPreview.play.on);
}

void ClockPreviewFree() {
  ClockPreview.play = ClockStrikePlay{};
  MaskedFrameFree(ClockPreview.shown);
}
