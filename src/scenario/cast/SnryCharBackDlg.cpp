// SnryCharBackDlg: the background of a scene, its door, its window.

#include <cstring>

#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_backdrop.h"
#include "scenario/cast/cast_words.h"
#include "scenario/cast/scenario_files.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/characters/picture_fit.h"
#include "scenario/storage/snry_paths.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/painting.h"
#include "services/text.h"

namespace {

constexpr int kScrollButton = 3;  // the dialog's result when it is to open again
constexpr int kPreviewTop = 132;  // dialog units
constexpr int kPreviewHeight = 290;
constexpr int kPreviewEdge = 5;

// --- The picture, or the colour without one

void Draw(Canvas* canvas, const Rect& area) {
  const Rect box{area.left + kPreviewEdge, area.top, area.right - kPreviewEdge, area.bottom};
  FillArea(canvas, BrushFace(), area);
  if (CastBackdrop.picture) return PictureFitDraw(canvas, box, CastBackdrop.picture, nullptr);
  const auto& colour = CastBackdrop.colour;
  const BrushHandle brush = BrushCreate(MakeColour(colour[0], colour[1], colour[2]));
  FillArea(canvas, brush, box);
  CanvasBrush(canvas, BrushNothing());
  BrushDelete(brush);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  const int top = DialogUnits(dialog, {0, 0, 0, kPreviewTop}).bottom;
  DrawSteady(screen, {0, top, WindowClientRect(dialog).right, top + kPreviewHeight}, Draw);
  CanvasRelease(screen);
}

// --- The fields

void ExchangeColour(Form& form, CastBackdropState& state) {
  form.NumberIn(IDC_CAST_RED, state.colour[0], 3, 0, 255);
  form.NumberIn(IDC_CAST_GREEN, state.colour[1], 3, 0, 255);
  form.NumberIn(IDC_CAST_BLUE, state.colour[2], 3, 0, 255);
}

void Exchange(Form& form, CastBackdropState& state) {
  form.Choice(IDC_CAST_DOOR_MODE, state.fields.doorMode, RowsOf(kCastDoorModes));
  form.Choice(IDC_CAST_WINDOW_MODE, state.fields.windowMode, RowsOf(kCastWindowModes));
  ExchangeColour(form, state);
}

void NameShow(WindowHandle dialog, int id, const char* name) {
  ControlSetText(dialog, id, name[0] == '\0' ? "未設定" : name);
}

void NamesShow(WindowHandle dialog) {
  NameShow(dialog, IDC_CAST_BACK, CastBackdrop.fields.background);
  NameShow(dialog, IDC_CAST_DOOR, CastBackdrop.fields.door);
  NameShow(dialog, IDC_CAST_WINDOW, CastBackdrop.fields.window);
}

// Whether the list has a file of this name; its first row is none.
bool IsListed(WindowHandle dialog, const char* name) {
  for (int row = 1; row < ListCount(dialog, IDC_CAST_LIST); ++row) {
    char file[kSnryPathSize + 1];
    ListText(dialog, IDC_CAST_LIST, row, file, sizeof file);
    if (std::strcmp(file, name) == 0) return true;
  }
  return false;
}

void Show(WindowHandle dialog) {
  ScenarioFilesShow(dialog, IDC_CAST_LIST, kSnryBackFolder, "bmp");
  CastBackdropBegin(dialog, IsListed);
  NamesShow(dialog);
  FormShow(dialog, CastBackdrop, Exchange);
  CastBackdrop.shown = true;
}

// To fill a field reports it as edited too, while the others are still empty.
void ColourTyped(WindowHandle dialog) {
  if (!CastBackdrop.shown) return;
  FormTake(dialog, CastBackdrop, ExchangeColour);
  if (!CastBackdrop.picture) Paint(dialog);
}

// --- The buttons

// The name in the chosen row; the first row stands for none. False without a row.
bool NameTake(WindowHandle dialog, char (&name)[kSnryPathSize + 1]) {
  const int row = ListSelected(dialog, IDC_CAST_LIST);
  if (row < 0) return false;
  name[0] = '\0';
  if (row > 0) ListText(dialog, IDC_CAST_LIST, row, name, sizeof name);
  NamesShow(dialog);
  return true;
}

void BackTake(WindowHandle dialog) {
  if (!NameTake(dialog, CastBackdrop.fields.background)) return;
  CastBackdropLoad();
  Paint(dialog);
}

void DoorTake(WindowHandle dialog) {
  NameTake(dialog, CastBackdrop.fields.door);
}

void WindowTake(WindowHandle dialog) {
  NameTake(dialog, CastBackdrop.fields.window);
}

void Store(WindowHandle dialog) {
  FormTake(dialog, CastBackdrop, Exchange);
  CastBackdropStore();
}

void Confirm(WindowHandle dialog) {
  Store(dialog);
  SnryDialogEnd(dialog, kOkButton);
}

void Scroll(WindowHandle dialog) {
  Store(dialog);
  SnryDialogEnd(dialog, kScrollButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {EventKind::Paint, Paint},
    {EventKind::Destroy, CastBackdropFree},
    {IDC_CAST_BACK_TAKE, BackTake},
    {IDC_CAST_DOOR_TAKE, DoorTake},
    {IDC_CAST_WINDOW_TAKE, WindowTake},
    {IDC_CAST_RED, EventKind::Edited, ColourTyped},
    {IDC_CAST_GREEN, EventKind::Edited, ColourTyped},
    {IDC_CAST_BLUE, EventKind::Edited, ColourTyped},
    {IDC_CAST_SCROLL, Scroll},
    {kOkButton, Confirm},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryCharBackDlgRun(WindowHandle owner, void (*scroll)(WindowHandle owner)) {
  while (SnryDialogRun(SnryDialog::SnryCharBackDlg, IDD_SnryCharBackDlg, owner, Handle) == kScrollButton)
    if (scroll) scroll(owner);
}
