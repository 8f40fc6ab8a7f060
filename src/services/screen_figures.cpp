#include "services/screen_figures.h"

#include "platform/canvas.h"
#include "platform/screen.h"

ScreenState Screen;

void TextFiguresTake(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  const TextMetrics metrics = CanvasTextMetrics(canvas);
  Screen.CharWidth = metrics.averageWidth;
  Screen.LineHeight = metrics.height + metrics.externalLeading;
  CanvasRelease(canvas);
}

void ScreenSizeTake() {
  Screen.ScreenWidth = ScreenMetric(Metric::FullScreenWidth);
  Screen.ScreenHeight = ScreenMetric(Metric::FullScreenHeight);
}

void FrameFiguresTake() {
  Screen.SizeButtonWidth = ScreenMetric(Metric::SizeButtonWidth);
  Screen.MenuBarHeight = ScreenMetric(Metric::MenuHeight);
  Screen.FrameWidth = ScreenMetric(Metric::FrameWidth);
  Screen.FrameHeight = ScreenMetric(Metric::FrameHeight);
}
