// Text that is broken into lines.
#pragma once

#include <cstddef>

#include "platform/canvas.h"

// Draws a text in lines of at most `columns` bytes, `step` pixels apart, the first
// at (x, y). At most `bytes` bytes of the text are taken, and no double-byte pair
// is split. Returns the y of the line behind the last one.
int TextLinesDraw(Canvas* canvas, int x, int y, int step, const char* text, std::size_t bytes, int columns);
