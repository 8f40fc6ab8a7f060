// The balloon beside the end picture: FlyingBat1 with the quoted names of what is
// about to be opened.

#include <algorithm>

#include "character/walk_state.h"
#include "character/walk_windows.h"
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
constexpr int kGroupLineHeight = 20;  // kept: a balloon counts 20 pixels for lines of 18

int QuotedWidth(const char* name) {
  const auto length = static_cast<int>(TextLength(name, kBalloonNameSize)) + 2;
  return length * Screen.CharWidth + kTextMargin;
}

int BalloonWidth() {
  int width = kLeastWidth;
  for (int i = 0; i < Walk.Balloon.count; ++i) width = std::max(width, QuotedWidth(Walk.Balloon.names[i]));
  return std::min(width, kMostWidth);
}

int BalloonHeight() {
  if (!Walk.Balloon.group) return kLeastHeight;
  return std::max(kLeastHeight,
                  Walk.Balloon.count * kGroupLineHeight + ScreenMetric(Metric::CaptionHeight) + kTextMargin);
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
  char quoted[kBalloonNameSize + 3];
  TextFormat(quoted, sizeof quoted, "\"%.*s\"", static_cast<int>(TextLength(name, kBalloonNameSize)), name);
  CanvasText(canvas, kTextX, y, quoted);
}

void Paint(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  CanvasBackTransparent(canvas, true);
  int y = Walk.Balloon.group ? kGroupY : kSingleY;
  for (int i = 0; i < Walk.Balloon.count; ++i, y += kLineStep) DrawQuoted(canvas, y, Walk.Balloon.names[i]);
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
