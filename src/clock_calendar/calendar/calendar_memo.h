// What is painted over and under the calendar's page: the memo panel, the list of the
// notes to come, the ticker.
#pragma once

#include "platform/canvas.h"

// The panel with the note of the memo day, over the foot of the page.
void CalenMemoDraw(Canvas* canvas);

// The notes from today onward, in a line under the page at `at`, as wide as the window.
void CalenNearListDraw(Canvas* canvas, Point at, int width);

// The ticker's strip with the text where it has run to. False when the text has run out,
// or there is none.
bool CalenTickerDraw(Canvas* canvas);
