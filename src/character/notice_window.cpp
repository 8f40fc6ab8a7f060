#include "character/notice_window.h"

#include "platform/window.h"

NoticePlaceState NoticePlace;

void NoticePlaceDefault() {
  NoticePlace = {400, 100, 480, 300};
}

void NoticeShow(WindowHandle window) {
  WindowMove(window, NoticePlace.NoticeX, NoticePlace.NoticeY, NoticePlace.NoticeW, NoticePlace.NoticeH,
             false);
  WindowSetTopmost(window);
}

bool NoticeEvent(const NoticeWindow& notice, const Event& event) {
  if (event.kind == EventKind::Init) {
    *notice.handle = event.window;
    notice.begin(event.window);
  } else if (event.kind == EventKind::Paint) {
    notice.paint(event.window);
  } else if (EndIsAsked(event)) {
    *notice.handle = nullptr;
    WindowDestroy(event.window);
  } else {
    // A window that goes away by itself.
    if (event.kind == EventKind::Destroy && *notice.handle == event.window) *notice.handle = nullptr;
    return false;
  }
  return true;
}

bool NoticeClosed(const WindowHandle* handle) {
  SendClose(*handle);
  return *handle == nullptr;
}
