// What the clock shows on its picture: the hands, or the digits.
#pragma once

#include "platform/canvas.h"

// Draws the time of Clock as the design in force shows it, with the pen and the brush
// that are in force; `face` fills the box of a digital design.
void ClockTimeDraw(Canvas* canvas, BrushHandle face);
