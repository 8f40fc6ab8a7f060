// Sizes of the clock's window, for the layout of the desktop.
#pragma once

// In pixels, of a design's character's first picture; 0 without one. With none chosen the
// first is the current one.
// kept: the default layout reckons with the width of the current clock design and the height of
// the first one; its image shows the current one's own height.
int ClockLayoutWidth();
int ClockLayoutHeight();
int ClockPictureHeight();
