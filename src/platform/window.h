// Windows in general: the stage's own window class, and what can be done with
// any window, dialog or control.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

// The one window class of the program: its main window.
struct MainWindowClass {
  const char* className;
  const char* title;
  int iconId;  // resource numbers
  int smallIconId;
  int menuId;
  EventHandler handler;
};

// Registers the class and creates the window (popup with a thin border, no
// parent, hidden). Init runs inside. Null on failure.
WindowHandle MainWindowCreate(const MainWindowClass& windowClass, int x, int y, int width, int height);

// Shows the window in the mode the process was started with, and updates it.
void WindowShowFirst(WindowHandle window, int showMode);

// Runs the message loop with the accelerators of that resource number until
// MessageQuit. Returns the quit code.
int MessageLoop(WindowHandle window, int acceleratorId);

// Ends the message loop.
void MessageQuit(int code);

// Sends and waits: the handler has run when the call returns. A null window
// is accepted and does nothing.
void SendCommand(WindowHandle window, std::uint32_t command);
void SendPaint(WindowHandle window);
void SendClose(WindowHandle window);
void SendDestroy(WindowHandle window);

// A repeating timer on a window. False when no timer is to be had.
bool TimerStart(WindowHandle window, int id, int milliseconds);
void TimerStop(WindowHandle window, int id);
// Gives a running timer another period, which begins now.
void TimerPeriodSet(WindowHandle window, int id, int milliseconds);

bool WindowIsOpen(WindowHandle window);
void WindowMove(WindowHandle window, int x, int y, int width, int height, bool repaint);
void WindowShow(WindowHandle window, bool show);
// A window that is not enabled gets nothing from pointer and keyboard. A modal
// dialog disables its owner until it ends.
void WindowEnable(WindowHandle window, bool enable);
// Puts the window above all others and shows it, place and size unchanged.
void WindowSetTopmost(WindowHandle window);
void WindowInvalidate(WindowHandle window, bool erase);
void WindowSetFocus(WindowHandle window);
bool WindowHasFocus(WindowHandle window);

// From now on the pointer's moves and buttons come to this window wherever the pointer
// is, until PointerRelease; for dragging.
void PointerCapture(WindowHandle window);
void PointerRelease();

void WindowSetText(WindowHandle window, const char* text);
// Text of a window, terminated; returns its length.
int WindowGetText(WindowHandle window, char* buffer, int size);

// Place on the screen, and the client area with left and top 0.
Rect WindowRect(WindowHandle window);
Rect WindowClientRect(WindowHandle window);

// Cuts the window to a region, or makes it whole again with null. The region
// belongs to the system from here on.
void WindowSetRegion(WindowHandle window, RegionHandle region, bool redraw);

// Destroys a modeless window or a control made by ControlCreate.
void WindowDestroy(WindowHandle window);
