// The running time in WatchAdustDlg.
#include "clock_calendar/clock_calendar_tick.h"
#include "platform/canvas.h"
#include "shell/shared_time.h"
#include "shell/shell.h"
#include "shell/text.h"

void WatchAdustTimeDraw() {
  static int drawn = -1;
  const int seconds = (SharedTime.hour * 60 + SharedTime.minute) * 60 + SharedTime.second;
  if (seconds == drawn) return;
  drawn = seconds;
  Canvas* canvas = CanvasGet(hToolDlg);
  if (!canvas) return;
  CanvasBrush(canvas, FaceBrush);
  CanvasPen(canvas, PenNothing());
  CanvasRectangle(canvas, 20, 86, 20 + 100, 86 + 20);
  char text[32];
  TextFormat(text, sizeof text, "%2d : %2d . %2d", SharedTime.hour, SharedTime.minute, SharedTime.second);
  CanvasBackTransparent(canvas, true);
  CanvasText(canvas, 20, 86, text);
  CanvasRelease(canvas);
}
