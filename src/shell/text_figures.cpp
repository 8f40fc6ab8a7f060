#include "shell/text_figures.h"

#include "platform/canvas.h"
#include "shell/shell.h"

void TextFiguresTake(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  const TextMetrics metrics = CanvasTextMetrics(canvas);
  CharWidth = metrics.averageWidth;
  LineHeight = metrics.height + metrics.externalLeading;
  CanvasRelease(canvas);
}
