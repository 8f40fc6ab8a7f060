// The walking window: FlyingBat1, cut to the outline of the frame in force and
// moved step by step. Its trail is made of copies that stay where they stand.

#include <algorithm>
#include <cstdint>

#include "character/character_tables.h"
#include "character/walk_state.h"
#include "character/walk_windows.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/commands.h"
#include "services/dib.h"
#include "services/program.h"
#include "services/random.h"

namespace {

constexpr int kShakeBound = 50;
constexpr int kSliceWithoutPicture = 100;
constexpr int kSlicesWithoutWait = 3;

bool Flag(unsigned flag) {
  return (WalkFlagsNow() & flag) != 0;
}

int FrameNow(int slot) {
  return WalkFrameOf(Walk.WalkSlots[slot].frames[Walk.WalkSlots[slot].place]);
}

// kept: a wipe has as many slices as the end picture stays ticks.
int WipeSliceOf(int slot) {
  ImageHandle picture = WalkPicture(slot, FrameNow(slot));
  if (!picture) return kSliceWithoutPicture;
  const int slices = Walk.WalkSlots[slot].endWait;
  return DibWidth(picture) / (slices != 0 ? slices : kSlicesWithoutWait);
}

void Place(WindowHandle window, int slot, bool moves) {
  const int frame = FrameNow(slot);
  RegionHandle region = WalkRegion(frame);
  const bool shaped = region != nullptr;
  WindowSetRegion(window, region, true);
  ImageHandle picture = WalkPicture(slot, frame);
  const int width = picture ? DibWidth(picture) : kWalkWindowWidth;
  const int height = picture ? DibHeight(picture) : kWalkWindowHeight;
  Walk.WalkLastX = Walk.WalkSlots[slot].x;
  Walk.WalkLastY = Walk.WalkSlots[slot].y;
  if (moves && Flag(kWalkShake)) {
    Walk.WalkLastY += RandomBelow(kShakeBound);
    Walk.WalkLastY -= RandomBelow(kShakeBound);
  }
  WindowMove(window, Walk.WalkLastX, Walk.WalkLastY, width, height, moves);
  if (!moves) return;
  if (Flag(kWalkWipe)) ++Walk.WipeCount;
  if (!shaped) SendPaint(window);
}

void Paint(WindowHandle window, int slot) {
  ImageHandle picture = WalkPicture(slot, FrameNow(slot));
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  const int width = DibWidth(picture);
  const std::int64_t shown = Walk.WipeCount * Walk.WipeSlice;
  if (Flag(kWalkWipe) && shown < width) {
    CanvasClip(canvas, {width - static_cast<int>(shown), 0, width, DibHeight(picture)});
  }
  DibDraw(canvas, 0, 0, picture);
  CanvasRelease(canvas);
}

void Open(WindowHandle window, int slot) {
  Walk.WipeCount = 1;
  if (Flag(kWalkWipe)) Walk.WipeSlice = WipeSliceOf(slot);
  Place(window, slot, false);
}

// What both kinds of windows do alike.
bool Proc(const Event& event, int slot) {
  switch (event.kind) {
    case EventKind::Init:
      Open(event.window, slot);
      return true;
    case EventKind::Command:
      if (CommandIs(event, Command::NextStep)) Place(event.window, slot, true);
      return true;
    case EventKind::Paint:
      Paint(event.window, slot);
      return true;
    default:
      return false;
  }
}

}  // namespace

int WalkSlotOf(WindowHandle WalkSlot::*kind, WindowHandle window) {
  for (int slot = 0; slot < kWalkSlotMax; ++slot) {
    if (Walk.WalkSlots[slot].*kind == window) return slot;
  }
  return Walk.WalkSlotNow;
}

void WalkWindowRun() {
  DialogRun(IDD_FlyingBat1, Program.hMainWnd, WalkWindowProc);
}

bool WalkWindowProc(const Event& event) {
  if (event.kind == EventKind::Init) Walk.WalkSlots[Walk.WalkSlotNow].walkWindow = event.window;
  const int slot = WalkSlotOf(&WalkSlot::walkWindow, event.window);
  if (event.kind == EventKind::Close || event.kind == EventKind::Destroy) {
    if (Walk.WalkSlots[slot].walkWindow == event.window) Walk.WalkSlots[slot].walkWindow = nullptr;
    if (event.kind == EventKind::Close) DialogEnd(event.window, 0);
    return true;
  }
  return Proc(event, slot);
}

// A trail belongs to the slot in work.
bool TrailWindowProc(const Event& event) {
  if (event.kind == EventKind::Close) {
    WindowDestroy(event.window);
    return true;
  }
  if (event.kind == EventKind::Destroy) {
    Walk.TrailCount = static_cast<std::int32_t>(
        std::remove(Walk.Trail, Walk.Trail + Walk.TrailCount, event.window) - Walk.Trail);
    return true;
  }
  return Proc(event, Walk.WalkSlotNow);
}

void TrailWindowOpen() {
  if (Walk.TrailCount >= kTrailMax) return;  // bounded: a walk has at most as many trail windows as steps
  const WindowHandle window = DialogOpen(IDD_FlyingBat1, Program.hMainWnd, TrailWindowProc);
  if (!window) return;
  Walk.Trail[Walk.TrailCount++] = window;
  CommandSendTo(window, Command::NextStep);
}

// settled: what an abandoned walk has left of its trail goes when the next walk opens its
// first window.
void TrailWindowsClose() {
  while (Walk.TrailCount > 0) SendClose(Walk.Trail[--Walk.TrailCount]);
}
