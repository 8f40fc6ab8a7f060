// What the scripted user does.
#include <cctype>

#include "platform/cp932.h"
#include "platform/headless/state.h"
#include "platform/window.h"

namespace {

constexpr std::uint32_t kStaticNotify = 0x100;
constexpr std::uint32_t kListNotify = 1;
constexpr std::uint32_t kEditReadOnly = 0x800;
constexpr std::uint32_t kEditNumber = 0x2000;
constexpr std::uint32_t kEditMultiline = 4;
constexpr std::uint32_t kButtonKinds = 0xF;
constexpr std::uint32_t kGroupBox = 7;

// "Press 12 of dialog 3500"
std::string Deed(const char* what, const WindowPointer& dialog, int id) {
  return std::string(what) + " " + std::to_string(id) + " of dialog " + std::to_string(dialog->templateId);
}

// The control that the user reaches for; null, with a failure, when a user
// could not.
WindowPointer Reach(const char* what, WindowHandle dialog, int id) {
  if (!dialog) {
    Failure(std::string(what) + " " + std::to_string(id) + ": no dialog is open");
    return nullptr;
  }
  const WindowPointer parent = WindowUse(dialog, what);
  if (!parent) return nullptr;
  const WindowPointer control = ControlUse(dialog, id, what);
  if (!control) {
    Failure(Deed(what, parent, id) + ": there is no such control");
    return nullptr;
  }
  const char* wrong = nullptr;
  if (!parent->visible) wrong = "the dialog is hidden";
  if (!parent->enabled) wrong = "another dialog stands in front";
  if (!control->visible) wrong = "the control is hidden";
  if (!control->enabled) wrong = "the control is disabled";
  if (wrong) {
    Failure(Deed(what, parent, id) + ": " + wrong);
    return nullptr;
  }
  return control;
}

bool RowReached(const char* what, const WindowPointer& list, int row) {
  const WindowPointer dialog = Windows().Find(list->parent);
  if (!HasRows(*list)) {
    Failure(Deed(what, dialog, list->id) + ": the control is no list");
    return false;
  }
  if (row < 0 || row >= static_cast<int>(list->rows.size())) {
    Failure(Deed(what, dialog, list->id) + ": there is no row " + std::to_string(row) + " of " +
            std::to_string(list->rows.size()));
    return false;
  }
  return true;
}

// A list box tells only if its style says so.
bool Tells(const HeadlessWindow& list) {
  return list.controlClass != ControlClass::ListBox || (list.style & kListNotify) != 0;
}

// What an edit field keeps of what is typed: its limit counts characters.
std::string Taken(const HeadlessWindow& edit, const char* text) {
  std::string taken;
  const bool lines = edit.controlClass == ControlClass::Edit && (edit.style & kEditMultiline) != 0;
  const bool digits = edit.controlClass == ControlClass::Edit && (edit.style & kEditNumber) != 0;
  int count = 0;
  for (const char* at = text; *at != '\0' && count < edit.limit;) {
    const auto byte = static_cast<unsigned char>(*at);
    const std::size_t size = Cp932Leads(*at) && at[1] != '\0' ? 2 : 1;
    const bool control = byte < 0x20 && !lines;
    const bool letter = digits && std::isdigit(byte) == 0;
    if (!control && !letter) {
      taken.append(at, size);
      ++count;
    }
    at += size;
  }
  return taken;
}

}  // namespace

void Press(WindowHandle dialog, int id) {
  const WindowPointer control = Reach("Press", dialog, id);
  if (!control) return;
  const bool button =
      control->controlClass == ControlClass::Button && (control->style & kButtonKinds) != kGroupBox;
  const bool label = control->controlClass == ControlClass::Static && (control->style & kStaticNotify) != 0;
  if (!button && !label) {
    Failure(Deed("Press", Windows().Find(dialog), id) + ": the control cannot be pressed");
    return;
  }
  if (button) focusWindow = control->handle;
  ControlTurn(control);
  NoticeSend(*control, Notice::Click);
}

void ChooseRow(WindowHandle dialog, int id, int row) {
  const WindowPointer list = Reach("ChooseRow", dialog, id);
  if (!list || !RowReached("ChooseRow", list, row)) return;
  focusWindow = list->handle;
  RowSelect(list, row);
  if (Tells(*list)) NoticeSend(*list, Notice::SelectChange);
}

void DoubleClickRow(WindowHandle dialog, int id, int row) {
  const WindowPointer list = Reach("DoubleClickRow", dialog, id);
  if (!list || !RowReached("DoubleClickRow", list, row)) return;
  focusWindow = list->handle;
  // The first click of the two selects.
  const bool moved = list->selected != row;
  RowSelect(list, row);
  if (!Tells(*list)) return;
  if (moved) NoticeSend(*list, Notice::SelectChange);
  if (list->alive) NoticeSend(*list, Notice::DoubleClick);
}

void Type(WindowHandle dialog, int id, const char* text) {
  const WindowPointer edit = Reach("Type", dialog, id);
  if (!edit) return;
  const bool combo = edit->controlClass == ControlClass::ComboBox && (edit->style & 3U) != 3;
  const bool field = edit->controlClass == ControlClass::Edit && (edit->style & kEditReadOnly) == 0;
  if (!combo && !field) {
    Failure(Deed("Type", Windows().Find(dialog), id) + ": the control takes no text");
    return;
  }
  focusWindow = edit->handle;
  edit->text = Taken(*edit, text);
  if (combo) edit->selected = -1;
  NoticeSend(*edit, Notice::EditChange);
}

void Mouse(WindowHandle window, EventKind kind, int x, int y, unsigned keys) {
  const WindowPointer found = WindowUse(window, "Mouse");
  if (!found) {
    if (!window) Failure("Mouse: no window");
    return;
  }
  if (!found->visible || !found->enabled) {
    Failure(std::string("Mouse: the window is ") + (found->visible ? "disabled" : "hidden"));
    return;
  }
  const Point origin = ClientOrigin(*found);
  SetPointer(origin.x + x, origin.y + y);
  Event event;
  event.kind = kind;
  event.window = window;
  event.x = x;
  event.y = y;
  event.keys = keys;
  EventSend(event);
}

void PressKey(WindowHandle window, int code) {
  const WindowPointer found = WindowUse(window, "PressKey");
  if (!found || !found->enabled) {
    Failure("PressKey: the window takes no keys");
    return;
  }
  Event event;
  event.kind = EventKind::Char;
  event.window = window;
  event.key = code;
  EventSend(event);
}

void PressAccelerator(int key, unsigned flags) {
  constexpr unsigned kWhichKeys = 4 | 8 | 16;
  if (!modalStack.empty() || !Windows().Find(loopWindow)) {
    Failure("PressAccelerator: the main window's loop is not the one that runs");
    return;
  }
  const auto table = Resources().accelerators.find(loopAccelerators);
  if (table != Resources().accelerators.end()) {
    for (const ResourceAccelerator& entry : table->second) {
      if (entry.key != key || (entry.flags & kWhichKeys) != flags) continue;
      SendCommand(loopWindow, entry.command);
      return;
    }
  }
  Failure("PressAccelerator: no entry for the key " + std::to_string(key));
}

void ScrollBy(WindowHandle window, WindowHandle bar, Scroll scroll, int position) {
  const WindowPointer found = WindowUse(bar, "ScrollBy");
  if (!WindowUse(window, "ScrollBy") || !found) {
    Failure("ScrollBy: no window or no bar");
    return;
  }
  if (!found->visible || !found->enabled || !found->scroll.enabled) {
    Failure("ScrollBy: the bar is hidden or disabled");
    return;
  }
  Event event;
  event.kind = EventKind::VScroll;
  event.window = window;
  event.control = bar;
  event.scroll = scroll;
  event.scrollPosition = scroll == Scroll::Thumb ? position : 0;
  EventSend(event);
}

void Tick(int times) {
  for (int i = 0; i < times; ++i) {
    PaintDue();
    std::vector<std::pair<WindowHandle, int>> due;
    for (const auto& [number, window] : Windows().All()) {
      for (const auto& [id, period] : window->timers) due.emplace_back(window->handle, id);
    }
    for (const auto& [handle, id] : due) {
      if (!TimerIsRunning(handle, id)) continue;
      Event event;
      event.kind = EventKind::Timer;
      event.window = handle;
      EventSend(event);
    }
  }
}
