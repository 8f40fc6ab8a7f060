#include "services/text_lines.h"

#include <algorithm>

#include "services/text.h"

int TextLinesDraw(Canvas* canvas, int x, int y, int step, const char* text, std::size_t bytes, int columns) {
  // bounded: a window too narrow for a double-byte pair still gets one a line.
  const std::size_t width = static_cast<std::size_t>(std::max(columns, 2));
  const char* end = text + TextPrefix(text, TextLength(text, bytes));
  for (; text < end; y += step) {
    const std::size_t length = TextPrefix(text, std::min(width, static_cast<std::size_t>(end - text)));
    if (length == 0) break;
    CanvasText(canvas, x, y, text, static_cast<int>(length));
    text += length;
  }
  return y;
}
