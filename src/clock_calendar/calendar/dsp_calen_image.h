// DspCalenImageDlg, "イメージ確認": a picture as it will look. The calendar shows its page,
// the scenario world its backdrop.
#pragma once

#include "platform/canvas.h"
#include "services/dialog_numbers.h"

// What the dialog shows, a pixel for a pixel: at most 900 by 700 of it.
struct CalenImage {
  int width;
  int height;
  void (*draw)(Canvas* canvas, const Rect& area);  // asked at each painting
};

// Runs the dialog in the family of its number. `image` lasts as long as it runs.
int DspCalenImageDlgRun(SubDialog dialog, WindowHandle owner, CalenImage& image);
int DspCalenImageDlgRun(SnryDialog dialog, WindowHandle owner, CalenImage& image);
