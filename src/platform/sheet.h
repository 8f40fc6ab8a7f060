// Property sheets: dialogs side by side on one window with OK, Cancel and Apply.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

// A page: its template (a child without a frame, with its title as caption) and its
// handler. A page comes into being when it is first shown; its handler hears Init then.
struct SheetPage {
  int templateId;
  EventHandler handler;
  void* context = nullptr;
};

inline constexpr int kSheetPageMax = 8;

// Runs a sheet and returns true when OK has ended it. OK and the button that applies send
// Apply to every page that has come into being, in order; Cancel, Escape and Close send
// nothing and end it with false, also behind an Apply. False too when it cannot be made.
bool SheetRun(WindowHandle owner, const char* caption, const SheetPage* pages, int count);

// What a page shows is no longer what was taken over: the button that applies can be
// pressed until it has been.
void SheetChanged(WindowHandle page);
