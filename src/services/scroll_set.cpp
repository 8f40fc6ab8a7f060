#include "services/scroll_set.h"

#include "platform/dialog.h"
#include "platform/window.h"

void ScrollSet(WindowHandle /*window*/, int /*top*/, int lineHeight, int lines, int first, WindowHandle bar) {
  const int page = lineHeight > 0 ? RectHeight(WindowClientRect(bar)) / lineHeight : 0;
  if (page <= 0 || lines <= page) {
    ScrollBarEnable(bar, false);
    return;
  }
  ScrollBarEnable(bar, true);
  ScrollBarSet(bar, lines, page - 1, first > lines - page ? lines - 1 : first);
}
