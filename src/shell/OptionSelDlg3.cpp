// OptionSelDlg3: the user drags the stage, the clock and the calendar about on a
// small image of the screen.
#include <algorithm>

#include "character/character_commands.h"
#include "clock_calendar/calendar/calendar.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/shell_ids.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/painting.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "shell/layout.h"
#include "shell/settings.h"

namespace {

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kDefault = 2292;

// Where the image stands, and the room that the template has for it.
constexpr Point kImageAt = {10, 34};
constexpr LayoutExtent kImageRoom = {400, 240};
constexpr int kLabelInset = 4;

constexpr const char* kLabels[kLayoutItemCount] = {"サ", "時", "カ"};

// The buttons under the image, in dialog units of the template.
struct Button {
  int id;
  Rect units;
};
constexpr Button kButtons[] = {
    {kDefault, {6, 142, 90, 156}}, {kOk, {98, 142, 146, 156}}, {kCancel, {150, 142, 206, 156}}};

// A screen so large that a fifth of it does not fit makes the dialog grow.
void MakeRoom(WindowHandle dialog) {
  const int wider = std::max(Layout.LayoutScreen.width - kImageRoom.width, 0);
  const int higher = std::max(Layout.LayoutScreen.height - kImageRoom.height, 0);
  if (wider == 0 && higher == 0) return;
  const Rect window = WindowRect(dialog);
  WindowMove(dialog, std::max(window.left - wider / 2, 0), std::max(window.top - higher / 2, 0),
             RectWidth(window) + wider, RectHeight(window) + higher, false);
  for (const Button& button : kButtons) {
    const Rect at = DialogUnits(dialog, button.units);
    WindowMove(Control(dialog, button.id), at.left, at.top + higher, RectWidth(at), RectHeight(at), false);
  }
}

void Init(WindowHandle dialog) {
  LayoutTake();
  MakeRoom(dialog);
}

void DrawItem(Canvas* canvas, const Rect& image, int item) {
  const int left = image.left + Layout.LayoutPos[item].x;
  const int top = image.top + Layout.LayoutPos[item].y;
  CanvasRectangle(canvas, left, top, left + Layout.LayoutSize[item].width,
                  top + Layout.LayoutSize[item].height);
  CanvasText(canvas, left + kLabelInset, top + kLabelInset, kLabels[item]);
}

// The stage is drawn last, on top.
void Draw(Canvas* canvas, const Rect& image) {
  CanvasRectangle(canvas, image.left, image.top, image.right, image.bottom);
  CanvasClip(canvas, image);
  for (int item = kLayoutItemCount - 1; item >= 0; --item) DrawItem(canvas, image, item);
  CanvasClipNone(canvas);
  CanvasBrush(canvas, BrushNothing());
  CanvasRectangle(canvas, image.left, image.top, image.right, image.bottom);
}

void Paint(WindowHandle dialog) {
  Canvas* screen = CanvasGet(dialog);
  if (!screen) return;
  const int right = kImageAt.x + Layout.LayoutScreen.width;
  const int bottom = kImageAt.y + Layout.LayoutScreen.height;
  DrawSteady(screen, {kImageAt.x, kImageAt.y, right, bottom}, Draw);
  CanvasRelease(screen);
}

void DragBegin(const Event& event) {
  if ((event.keys & kShiftHeld) != 0) return;
  const int item = LayoutItemAt(event.x - kImageAt.x, event.y - kImageAt.y);
  if (item < 0) return;
  std::fill_n(Layout.LayoutDrag, +kLayoutItemCount, false);
  Layout.LayoutDrag[item] = true;
  // The pointer may leave the dialog on its way.
  PointerCapture(event.window);
  Layout.dragFrom = {event.x, event.y};
}

// kept: nothing holds an item in the image of the screen; dragged out of it, it has a place
// below 0 or beyond the screen.
void DragOn(const Event& event) {
  for (int item = 0; item < kLayoutItemCount; ++item) {
    if (!Layout.LayoutDrag[item]) continue;
    Layout.LayoutPos[item].x += event.x - Layout.dragFrom.x;
    Layout.LayoutPos[item].y += event.y - Layout.dragFrom.y;
    Layout.dragFrom = {event.x, event.y};
    Paint(event.window);
  }
}

void DragEnd() {
  PointerRelease();
  std::fill_n(Layout.LayoutDrag, +kLayoutItemCount, false);
}

void Default(WindowHandle dialog) {
  LayoutDefault();
  LayoutTake();
  Paint(dialog);
  Layout.LayoutChange = kLayoutAll;
}

void Ok(WindowHandle dialog) {
  // The default's places are true ones already.
  if (Layout.LayoutChange != kLayoutAll) LayoutPut();
  MenuDialogEnd(dialog, kOk);
}

void Cancel(WindowHandle dialog) {
  if (Layout.LayoutChange != 0) {
    SysFileRead();
    CalenFileRead();
    Layout.LayoutChange = 0;
  }
  MenuDialogEnd(dialog, kCancel);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Init},
    {EventKind::Paint, Paint},
    {EventKind::LeftDown, DragBegin},
    {EventKind::MouseMove, DragOn},
    {EventKind::LeftUp, DragEnd},
    {EventKind::Close, Cancel},
    {kDefault, Default},
    {kOk, Ok},
    {kCancel, Cancel},
};

bool OptionSelDlg3Proc(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CommandOptionLayout(Command) {
  FeatureDialogRun(PanelFeature(), [] {
    Layout.LayoutChange = 0;
    // The program may end while the dialog is up: then nothing was confirmed.
    if (MenuDialogRun(MenuDialog::OptionSelDlg3, IDD_OptionSelDlg3, Program.hMainWnd, OptionSelDlg3Proc) !=
        kOk)
      Layout.LayoutChange = 0;
    if (Layout.LayoutChange != 0) {
      SysFileWrite();
      CommandSend(Command::LayoutApply);
    }
    return 0;
  });
}
