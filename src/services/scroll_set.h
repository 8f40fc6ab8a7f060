// The scroll bar beside a table.
#pragma once

#include "platform/types.h"

// Sets the bar of a table of `lines` lines that shows line `first` on top. The
// bar's height over `lineHeight` is the page; when all lines fit on it, or not a
// single one, the bar is disabled. `window` and `top`, the table's window and the
// y of its first line, are told for the caller's sake and do not count.
void ScrollSet(WindowHandle window, int top, int lineHeight, int lines, int first, WindowHandle bar);
