// Sizes of the clock's window, for the layout of the desktop.
#pragma once

// In pixels, of a design's character's first picture; 0 without one. The layout reckons
// with the width of the current design and the height of the first one, and its image
// shows the current one's own height. With none chosen the first is the current one.
int ClockLayoutWidth();
int ClockLayoutHeight();
int ClockPictureHeight();
