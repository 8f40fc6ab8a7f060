// What happens to a window, as its handler is told: what the user meant, not what the
// system sent. Changes of the focus, lists that drop down and the like stay in the
// backends.
#pragma once

#include "platform/types.h"

enum class EventKind {
  Init,        // the window or dialog has been made and is about to be used
  Pressed,     // id: a button, a check box or a label that reports; also Enter and Escape
  Chosen,      // id: another row of a list or combo box
  Opened,      // id: double click on a row of a list
  Edited,      // id: the text of a field has changed
  Command,     // command: a number that was sent, a menu entry, an accelerator
  Apply,       // a page of a property sheet is to take over what it shows
  Paint,       // draw now, through CanvasGet
  MouseMove,   // x, y, keys
  LeftDown,    // x, y, keys
  LeftUp,      // x, y, keys
  LeftDouble,  // x, y, keys
  RightDown,   // x, y, keys
  MiddleDown,  // x, y, keys
  Wheel,       // keys, wheel
  Char,        // key: the character's code, 27 for Escape
  KeyDown,     // key: the key's code
  VScroll,     // scroll, scrollPosition, control
  HScroll,     // the same, of a bar that lies: Up and Top mean left
  SetCursor,   // the pointer's shape is asked for
  Size,        // x, y: the new client width and height
  Timer,       // the window's timer
  Close,       // the window is asked to close
  Destroy,     // the window is about to go away
  User,        // the first private message; nothing uses it
};

enum class Scroll { LineUp, LineDown, PageUp, PageDown, Thumb, Top, Bottom, End };

// Bits of Event::keys.
inline constexpr unsigned kLeftHeld = 1;
inline constexpr unsigned kShiftHeld = 4;

struct Event {
  EventKind kind = EventKind::Init;
  WindowHandle window = nullptr;
  void* context = nullptr;    // what the dialog was opened with
  int id = 0;                 // of the control: Pressed, Chosen, Opened, Edited
  std::uint32_t command = 0;  // Command: the number, whole
  int x = 0;
  int y = 0;
  unsigned keys = 0;
  int key = 0;
  int wheel = 0;  // notches, away from the user counted up
  Scroll scroll = Scroll::End;
  int scrollPosition = 0;
  // VScroll, HScroll: the scroll bar control.
  WindowHandle control = nullptr;
};

inline bool IsPressed(const Event& event, int id) {
  return event.kind == EventKind::Pressed && event.id == id;
}
inline bool IsChosen(const Event& event, int id) {
  return event.kind == EventKind::Chosen && event.id == id;
}
inline bool IsOpened(const Event& event, int id) {
  return event.kind == EventKind::Opened && event.id == id;
}

// In a dialog these two numbers are Enter's and Escape's: they come as Pressed whether
// there is such a button or not, and also when they were sent as a command.
inline constexpr int kOkButton = 1;
inline constexpr int kCancelButton = 2;

// True for what ends a window by its default: Enter, Escape and Close.
inline bool EndIsAsked(const Event& event) {
  return IsPressed(event, kOkButton) || IsPressed(event, kCancelButton) || event.kind == EventKind::Close;
}

// Handles the events of one window. True: the event is done with; false: the
// platform does what it does by default. A handler may run nested in itself:
// it keeps no state in locals across a send, a modal dialog or a message box.
using EventHandler = bool (*)(const Event&);
