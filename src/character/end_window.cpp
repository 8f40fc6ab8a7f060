// The end picture of a walk: FlyingBat1, standing where the walk stopped.

#include "character/notices.h"
#include "character/walk_state.h"
#include "character/walk_windows.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/dib.h"
#include "services/panel_entry.h"
#include "services/program.h"

namespace {

// kept: of the frames of a walk's end only the first is shown.
int EndFrame(int slot) {
  return WalkFrameOf(Walk.WalkSlots[slot].endFrames[0]);
}

void Stand(WindowHandle window, int slot) {
  const int frame = EndFrame(slot);
  ImageHandle picture = WalkPicture(slot, frame);
  const int width = DibWidth(picture);
  const int height = DibHeight(picture);
  WindowSetRegion(window, WalkRegion(frame), true);
  WindowMove(window, Walk.WalkLastX, Walk.WalkLastY, width != 0 ? width : kWalkWindowWidth,
             height != 0 ? height : kWalkWindowHeight, false);
}

void Paint(WindowHandle window, int slot) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  DibDraw(canvas, 0, 0, WalkPicture(slot, EndFrame(slot)));
  CanvasRelease(canvas);
}

}  // namespace

void EndWindowsRun() {
  SendClose(Walk.WalkSlots[Walk.WalkSlotNow].endWindow);
  // Without its picture the end has no window.
  if (WalkPicture(Walk.WalkSlotNow, EndFrame(Walk.WalkSlotNow)))
    DialogOpen(IDD_FlyingBat1, Program.hMainWnd, EndWindowProc);
  // kept: while the mail's settings are open, every walk ends with the mail notice.
  if (Walk.mailState != kMailWalking && PanelFeature() != Feature::MailSettings) {
    DialogRun(IDD_FlyingBat1, Program.hMainWnd, BalloonProc);
  } else {
    MailNoticeOpen();
  }
}

bool EndWindowProc(const Event& event) {
  if (event.kind == EventKind::Init) Walk.WalkSlots[Walk.WalkSlotNow].endWindow = event.window;
  const int slot = WalkSlotOf(&WalkSlot::endWindow, event.window);
  switch (event.kind) {
    case EventKind::Init:
      Stand(event.window, slot);
      return true;
    case EventKind::Paint:
      Paint(event.window, slot);
      return true;
    case EventKind::Close:
      WindowDestroy(event.window);
      return true;
    case EventKind::Destroy:
      if (Walk.WalkSlots[slot].endWindow == event.window) Walk.WalkSlots[slot].endWindow = nullptr;
      return true;
    default:
      return false;
  }
}
