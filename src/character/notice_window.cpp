#include "character/notice_window.h"

#include "platform/window.h"
#include "shell/shell.h"

void NoticeShow(WindowHandle window) {
  WindowMove(window, NoticeX, NoticeY, NoticeW, NoticeH, false);
  WindowSetTopmost(window);
}

bool NoticeEnds(const Event& event, WindowHandle* handle) {
  if (event.kind == EventKind::Destroy && *handle == event.window) *handle = nullptr;
  if (!EndIsAsked(event)) return false;
  *handle = nullptr;
  WindowDestroy(event.window);
  return true;
}

bool NoticeClosed(const WindowHandle* handle) {
  SendClose(*handle);
  return *handle == nullptr;
}
