// Sizes of the windows of the clock and the calendar, for the layout of the
// desktop.
#pragma once

// In pixels, as the layout reckons: the width of the current design and the height
// of the first one, of its character's first picture. 0 without one.
int ClockLayoutWidth();
int ClockLayoutHeight();

// Of the calendar's window; of one that has not been open yet, by the page size.
int CalenLayoutWidth();
int CalenLayoutHeight();
