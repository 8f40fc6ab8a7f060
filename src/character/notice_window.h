// What the notices have in common.
#pragma once

#include <cstdint>

#include "platform/event.h"
#include "platform/types.h"

struct NoticePlaceState {
  std::int32_t NoticeX = 0;
  std::int32_t NoticeY = 0;
  std::int32_t NoticeW = 0;
  std::int32_t NoticeH = 0;
};
extern NoticePlaceState NoticePlace;

// Where the notices stand at the start.
void NoticePlaceDefault();

// Moves the window to the notice rectangle, NoticeX and so on, and puts it above all
// others.
void NoticeShow(WindowHandle window);

struct NoticeWindow {
  WindowHandle* handle;
  void (*begin)(WindowHandle window);  // at Init; the handle is set
  void (*paint)(WindowHandle window);
};

// Handles what happens to a notice: its beginning, its painting and its end. Buttons
// 1 and 2 and Close clear the handle and destroy the window. False for what the
// notice may have more to do about, the Destroy above all.
bool NoticeEvent(const NoticeWindow& notice, const Event& event);

// Asks an open notice to close. False when it stays open.
bool NoticeClosed(const WindowHandle* handle);
