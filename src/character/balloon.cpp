// The balloon beside the end picture: FlyingBat1 with the quoted names of what is
// about to be opened.

#include <algorithm>

#include "character/walk.h"
#include "character/walk_windows.h"
#include "filetools/open/open_state.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "services/dib.h"
#include "services/screen_figures.h"
#include "services/text.h"

namespace {

constexpr int kLeastWidth = 300;
constexpr int kLeastHeight = 200;
constexpr int kMostWidth = 800;
constexpr int kTextMargin = 24;
constexpr int kTextX = 10;
constexpr int kSingleY = 20;
constexpr int kGroupY = 4;
constexpr int kLineStep = 18;
constexpr int kGroupLineHeight = 20;

bool IsGroup() {
  return Walk.OpeningState == kOpeningGroup;
}

int QuotedWidth(const char* name) {
  const auto length = static_cast<int>(TextLength(name, kOpnTextSize)) + 2;
  return length * Screen.CharWidth + kTextMargin;
}

int BalloonWidth() {
  int width = kLeastWidth;
  if (IsGroup()) {
    for (int i = 0; i < OpnPendingCount(); ++i) width = std::max(width, QuotedWidth(OpnPendingName(i)));
  } else {
    width = std::max(width, QuotedWidth(OpnSelection.fileName));
  }
  return std::min(width, kMostWidth);
}

int BalloonHeight() {
  if (!IsGroup()) return kLeastHeight;
  return std::max(kLeastHeight,
                  OpnPendingCount() * kGroupLineHeight + ScreenMetric(Metric::CaptionHeight) + kTextMargin);
}

void Open(WindowHandle window) {
  const WalkSlot& s = Walk.WalkSlots[Walk.WalkSlotNow];
  int x = std::max(Walk.WalkLastX - kLeastWidth, 0);
  int y = std::max(Walk.WalkLastY - kLeastHeight, 0);
  if (s.endWindow) {
    x = Walk.WalkLastX;
    y = Walk.WalkLastY + DibHeight(WalkPicture(Walk.WalkSlotNow, WalkFrameOf(s.endFrames[0])));
  }
  WindowMove(window, x, y, BalloonWidth(), BalloonHeight(), false);
  WindowSetTopmost(window);
}

void DrawQuoted(Canvas* canvas, int y, const char* name) {
  char quoted[kOpnTextSize + 3];
  TextFormat(quoted, sizeof quoted, "\"%.*s\"", static_cast<int>(TextLength(name, kOpnTextSize)), name);
  CanvasText(canvas, kTextX, y, quoted);
}

void Paint(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  CanvasBackTransparent(canvas, true);
  int y = kSingleY;
  if (IsGroup()) {
    y = kGroupY;
    for (int i = 0; i < OpnPendingCount(); ++i, y += kLineStep) DrawQuoted(canvas, y, OpnPendingName(i));
  } else {
    DrawQuoted(canvas, y, OpnSelection.fileName);
    y += kLineStep;
  }
  CanvasText(canvas, kTextX, y, " をオープン");
  CanvasRelease(canvas);
}

}  // namespace

bool BalloonProc(const Event& event) {
  if (event.kind == EventKind::Init) Walk.WalkSlots[Walk.WalkSlotNow].balloonWindow = event.window;
  WalkSlot& s = Walk.WalkSlots[WalkSlotOf(&WalkSlot::balloonWindow, event.window)];
  if (EndIsAsked(event) || event.kind == EventKind::Destroy) {
    if (s.balloonWindow == event.window) s.balloonWindow = nullptr;
    if (event.kind != EventKind::Destroy) DialogEnd(event.window, 0);
    return true;
  }
  switch (event.kind) {
    case EventKind::Init:
      Open(event.window);
      return true;
    case EventKind::Paint:
      Paint(event.window);
      return true;
    default:
      return false;
  }
}
