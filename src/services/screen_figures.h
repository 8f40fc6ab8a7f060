// Sizes in pixels that many windows reckon with: of the screen, of the text font and
// of the system's frames.
#pragma once

#include "platform/types.h"

struct ScreenState {
  int CharWidth = 0;    // average width of a column of the text font
  int LineHeight = 0;   // its height with external leading
  int ScreenWidth = 0;  // working screen
  int ScreenHeight = 0;
  int MenuBarHeight = 0;  // of a one-line menu bar
  int SizeButtonWidth = 0;
  int FrameWidth = 0;
  int FrameHeight = 0;
};
extern ScreenState Screen;

// Measures the text font in a window.
void TextFiguresTake(WindowHandle window);

// Asks for the working screen's size.
void ScreenSizeTake();

// Asks for the sizes of menu bar, size button and frame.
void FrameFiguresTake();
