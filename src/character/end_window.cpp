// The end picture of a walk: FlyingBat1, standing where the walk stopped.

#include "character/notices.h"
#include "character/walk.h"
#include "character/walk_windows.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "shell/dib.h"
#include "shell/shell.h"

namespace {

int EndFrame(int slot) {
  return WalkFrameOf(WalkSlots[slot].endFrames[0]);
}

void Stand(WindowHandle window, int slot) {
  const int frame = EndFrame(slot);
  ImageHandle picture = WalkPicture(slot, frame);
  const int width = DibWidth(picture);
  const int height = DibHeight(picture);
  WindowSetRegion(window, WalkRegion(frame), true);
  WindowMove(window, WalkLastX, WalkLastY, width != 0 ? width : kWalkWindowWidth,
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
  SendClose(WalkSlots[WalkSlotNow].endWindow);
  // Without its picture the end has no window.
  if (WalkPicture(WalkSlotNow, EndFrame(WalkSlotNow))) DialogOpen(IDD_FlyingBat1, hMainWnd, EndWindowProc);
  if (MailPhase != kMailWalking && FuncNo != kFuncMail) {
    DialogRun(IDD_FlyingBat1, hMainWnd, BalloonProc);
  } else if (!hMailNoticeWnd) {
    MailNoticeOpen();
  }
}

bool EndWindowProc(const Event& event) {
  if (event.kind == EventKind::Init) WalkSlots[WalkSlotNow].endWindow = event.window;
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
      if (WalkSlots[slot].endWindow == event.window) WalkSlots[slot].endWindow = nullptr;
      return true;
    default:
      return false;
  }
}
