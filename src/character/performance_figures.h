// The figures of the clock alarm's character, for the performance of the clock
// notice.
#pragma once

#include "character/frames.h"

struct PerformanceFigureSlot {
  bool tried;
  MaskedFrame images;
};
struct PerformanceFiguresState {
  PerformanceFigureSlot figures[kFrameMax] = {};
};
extern PerformanceFiguresState PerformanceFigures;

// Whether a character is selected for the clock alarm.
bool PerformanceCharacterIsSelected();

// The picture and mask of a step, 0 to 19, loaded when first asked for and kept
// until PerformanceFiguresFree; nulls for what cannot be loaded.
MaskedFrame PerformanceFigure(int step);

void PerformanceFiguresFree();
