// The running time in WatchAdustDlg.
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_window.h"
#include "platform/canvas.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/text.h"
#include "services/today.h"

namespace {
constexpr int kX = 20;
constexpr int kY = 86;
constexpr int kBoxWidth = 100;
constexpr int kBoxHeight = 20;
}  // namespace

void WatchAdustTimeForget() {
  Clock.adustSecond = -1;
}

void WatchAdustTimeDraw() {
  const int seconds = (Today.SharedTime.hour * 60 + Today.SharedTime.minute) * 60 + Today.SharedTime.second;
  if (seconds == Clock.adustSecond) return;
  Clock.adustSecond = seconds;
  Canvas* canvas = CanvasGet(Dialogs.hToolDlg);
  if (!canvas) return;
  FillArea(canvas, Drawing.FaceBrush, {kX, kY, kX + kBoxWidth, kY + kBoxHeight});
  char text[32];
  TextFormat(text, sizeof text, "%2d : %2d . %2d", Today.SharedTime.hour, Today.SharedTime.minute,
             Today.SharedTime.second);
  CanvasBackTransparent(canvas, true);
  CanvasText(canvas, kX, kY, text);
  CanvasRelease(canvas);
}
