// The running time in WatchAdustDlg.
#include "clock_calendar/clock_calendar_tick.h"
#include "platform/canvas.h"
#include "shell/painting.h"
#include "shell/shared_time.h"
#include "shell/shell.h"
#include "shell/text.h"

namespace {
constexpr int kX = 20;
constexpr int kY = 86;
constexpr int kBoxWidth = 100;
constexpr int kBoxHeight = 20;
}  // namespace

void WatchAdustTimeDraw() {
  static int drawn = -1;
  const int seconds = (SharedTime.hour * 60 + SharedTime.minute) * 60 + SharedTime.second;
  if (seconds == drawn) return;
  drawn = seconds;
  Canvas* canvas = CanvasGet(hToolDlg);
  if (!canvas) return;
  FillArea(canvas, FaceBrush, {kX, kY, kX + kBoxWidth, kY + kBoxHeight});
  char text[32];
  TextFormat(text, sizeof text, "%2d : %2d . %2d", SharedTime.hour, SharedTime.minute, SharedTime.second);
  CanvasBackTransparent(canvas, true);
  CanvasText(canvas, kX, kY, text);
  CanvasRelease(canvas);
}
