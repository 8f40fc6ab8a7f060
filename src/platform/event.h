// What happens to a window, as its handler is told.
#pragma once

#include "platform/types.h"

enum class EventKind {
  Init,        // the window or dialog has been made and is about to be used
  Command,     // a numbered command, a menu entry, or something a control reports
  Paint,       // draw now, through CanvasGet
  MouseMove,   // x, y, keys
  LeftDown,    // x, y, keys
  LeftUp,      // x, y, keys
  LeftDouble,  // x, y, keys
  RightDown,   // x, y, keys
  MiddleDown,  // x, y, keys
  Wheel,       // keys
  Char,        // key: the character's code, 27 for Escape
  KeyDown,     // key: the key's code
  VScroll,     // scroll, scrollPosition, control
  SetCursor,   // the pointer's shape is asked for
  Size,        // x, y: the new client width and height
  Timer,       // the window's timer
  Close,       // the window is asked to close
  Destroy,     // the window is about to go away
  User,        // the first private message; nothing uses it
};

// What a control reports with a Command.
enum class Notice {
  Click,         // a button was pressed; also every plain numbered command
  SelectChange,  // another row of a list or combo box
  DoubleClick,   // double click in a list
  EditChange,    // the text of an edit field
  Other,         // anything else (focus, drop-down, ...)
};

enum class Scroll { LineUp, LineDown, PageUp, PageDown, Thumb, Top, Bottom, End };

// Bits of Event::keys.
inline constexpr unsigned kLeftHeld = 1;
inline constexpr unsigned kShiftHeld = 4;

struct Event {
  EventKind kind = EventKind::Init;
  WindowHandle window = nullptr;
  // Command: the number, whole; of a control's report the control's id.
  std::uint32_t command = 0;
  Notice notice = Notice::Click;
  // True when a control of the window sent the Command, not a SendCommand.
  bool fromControl = false;
  int x = 0;
  int y = 0;
  unsigned keys = 0;
  int key = 0;
  Scroll scroll = Scroll::End;
  int scrollPosition = 0;
  // VScroll: the scroll bar control.
  WindowHandle control = nullptr;
};

// True for what ends a window by its default: button 1 or 2, whose numbers Enter
// and Escape send too, and Close.
inline bool EndIsAsked(const Event& event) {
  const bool button = event.kind == EventKind::Command && (event.command == 1 || event.command == 2);
  return button || event.kind == EventKind::Close;
}

// Handles the events of one window. True: the event is done with; false: the
// platform does what it does by default. A handler may run nested in itself:
// it keeps no state in locals across a send, a modal dialog or a message box.
using EventHandler = bool (*)(const Event&);
