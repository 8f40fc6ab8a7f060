// What the notices have in common.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

// Moves the window to the notice rectangle, NoticeX and so on, and puts it above all
// others.
void NoticeShow(WindowHandle window);

// Buttons 1 and 2 and Close end a notice: its handle is cleared and the window
// destroyed. True when the event was one of them. A window that goes away by
// itself has its handle cleared too.
bool NoticeEnds(const Event& event, WindowHandle* handle);

// Asks an open notice to close. False when it stays open.
bool NoticeClosed(const WindowHandle* handle);
