// The size of the calendar's window, for the layout of the desktop and for its figures.
#pragma once

// In pixels; of a window that has not been open yet, by the page size.
int CalenLayoutWidth();
int CalenLayoutHeight();
