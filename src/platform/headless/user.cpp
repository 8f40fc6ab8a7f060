// What the scripted user does.
#include <cctype>

#include "platform/cp932.h"
#include "platform/headless/free_user.h"
#include "platform/headless/state.h"
#include "platform/window.h"

namespace {

constexpr std::uint32_t kVerticalBar = 1;
constexpr std::uint32_t kStaticNotify = 0x100;
constexpr std::uint32_t kListNotify = 1;
constexpr std::uint32_t kEditReadOnly = 0x800;
constexpr std::uint32_t kEditNumber = 0x2000;
constexpr std::uint32_t kEditMultiline = 4;
constexpr std::uint32_t kEditWantsReturn = 0x1000;
constexpr std::uint32_t kButtonKinds = 0xF;
constexpr std::uint32_t kGroupBox = 7;
constexpr std::uint32_t kDefaultPushButton = 1;
constexpr int kEscapeKey = 27;
constexpr int kReturnKey = 13;

bool IsGroupBox(const HeadlessWindow& control) {
  return control.controlClass == ControlClass::Button && (control.style & kButtonKinds) == kGroupBox;
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
  if (!control) return nullptr;
  const char* wrong = nullptr;
  if (!parent->visible) wrong = "the dialog is hidden";
  if (!OwnerOf(dialog, what)->enabled) wrong = "another dialog stands in front";
  if (!control->visible) wrong = "the control is hidden";
  if (!control->enabled) wrong = "the control is disabled";
  if (wrong) {
    Failure(Deed(what, dialog, id) + ": " + wrong);
    return nullptr;
  }
  return control;
}

bool RowReached(const char* what, const WindowPointer& list, int row) {
  if (!HasRows(*list)) {
    Failure(Deed(what, list->parent, list->id) + ": the control is no list");
    return false;
  }
  if (row < 0 || row >= static_cast<int>(list->rows.size())) {
    Failure(Deed(what, list->parent, list->id) + ": there is no row " + std::to_string(row) + " of " +
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

// Where a control stands; the height of a combo box with a list is that of the opened list.
Rect PlaceOf(const HeadlessWindow& control) {
  constexpr unsigned kComboKinds = 3;
  constexpr unsigned kComboSimple = 1;
  constexpr int kClosedHeight = 24;
  Rect at = control.rect;
  const bool list =
      control.controlClass == ControlClass::ComboBox && (control.style & kComboKinds) != kComboSimple;
  if (list && RectHeight(at) > kClosedHeight) at.bottom = at.top + kClosedHeight;
  return at;
}

// What a mouse message meant for the window itself would meet instead: a point outside,
// or one of its controls. A label, a group box and a disabled control let it through.
const char* MouseMeets(const HeadlessWindow& window, int x, int y) {
  const Rect client = WindowClientRect(window.handle);
  if (x < 0 || y < 0 || x >= client.right || y >= client.bottom) return "the point lies outside";
  for (const WindowHandle child : window.children) {
    const WindowPointer control = Windows().Find(child);
    const Rect at = PlaceOf(*control);
    const bool inside = x >= at.left && x < at.right && y >= at.top && y < at.bottom;
    const bool label = control->controlClass == ControlClass::Static && (control->style & kStaticNotify) == 0;
    if (inside && control->visible && control->enabled && !label && !IsGroupBox(*control)) {
      return "a control stands there";
    }
  }
  return nullptr;
}

// The modal dialog whose keys go through the dialog manager; null, with a failure, for
// any other.
WindowPointer KeyReaches(const char* what, WindowHandle dialog) {
  const WindowPointer found = WindowUse(dialog, what);
  const char* wrong = nullptr;
  if (!found) {
    wrong = "no dialog is open";
  } else if (found->kind != WindowKind::Modal) {
    wrong = "only a modal dialog hears this key";
  } else if (!found->visible || !found->enabled) {
    wrong = found->visible ? "another dialog stands in front" : "the dialog is hidden";
  }
  if (!wrong) return found;
  Failure(std::string(what) + ": " + wrong);
  return nullptr;
}

// What the dialog manager sends for Enter and Escape: the press of a control, there or
// not; nothing for a disabled one.
void ManagerPress(const HeadlessWindow& dialog, int id) {
  const WindowPointer control = ControlFind(dialog.handle, id);
  if (control && !control->enabled) return;
  Event event;
  event.kind = EventKind::Pressed;
  event.window = dialog.handle;
  event.id = id;
  EventSend(event);
}

// The button that Enter presses: that with the focus, else the last default one of the
// template, else 1.
int DefaultButton(const HeadlessWindow& dialog) {
  int id = kOkButton;
  for (const WindowHandle child : dialog.children) {
    const WindowPointer control = Windows().Find(child);
    if (!IsPushButton(*control)) continue;
    if (focusWindow == child) return control->id;
    if ((control->style & kButtonKinds) == kDefaultPushButton) id = control->id;
  }
  return id;
}

}  // namespace

std::string Deed(const char* what, WindowHandle dialog, int id) {
  const std::string name = std::string(what) + " " + std::to_string(id);
  const WindowPointer found = Windows().Find(dialog);
  return found ? name + " of dialog " + std::to_string(found->templateId) : name;
}

void PressEnter(WindowHandle dialog) {
  const WindowPointer found = KeyReaches("PressEnter", dialog);
  if (!found) return;
  const WindowPointer focus = Windows().Find(focusWindow);
  const bool field = focus && focus->parent == dialog && focus->controlClass == ControlClass::Edit;
  if (!field || (focus->style & kEditWantsReturn) == 0) {
    ManagerPress(*found, DefaultButton(*found));
    return;
  }
  focus->text += "\r\n";
  ControlTells(*focus, EventKind::Edited);
}

void PressEscape(WindowHandle dialog) {
  if (const WindowPointer found = KeyReaches("PressEscape", dialog); found)
    ManagerPress(*found, kCancelButton);
}

void PressClose(WindowHandle window) {
  constexpr std::uint32_t kSystemMenu = 0x00080000;
  const WindowPointer found = WindowUse(window, "PressClose");
  const bool dialog = found && found->kind != WindowKind::Main && found->kind != WindowKind::Control;
  if (!found || !found->visible || !found->enabled || (dialog && (found->style & kSystemMenu) == 0)) {
    Failure("PressClose: the window cannot be closed");
    return;
  }
  SendClose(window);
}

void Press(WindowHandle dialog, int id) {
  const WindowPointer control = Reach("Press", dialog, id);
  if (!control) return;
  const bool button = control->controlClass == ControlClass::Button && !IsGroupBox(*control);
  const bool label = control->controlClass == ControlClass::Static && (control->style & kStaticNotify) != 0;
  if (!button && !label) {
    Failure(Deed("Press", dialog, id) + ": the control cannot be pressed");
    return;
  }
  if (button) focusWindow = control->handle;
  ControlTurn(control);
  ControlTells(*control, EventKind::Pressed);
}

void ChooseRow(WindowHandle dialog, int id, int row) {
  const WindowPointer list = Reach("ChooseRow", dialog, id);
  if (!list || !RowReached("ChooseRow", list, row)) return;
  focusWindow = list->handle;
  RowSelect(list, row);
  if (Tells(*list)) ControlTells(*list, EventKind::Chosen);
}

void DoubleClickRow(WindowHandle dialog, int id, int row) {
  const WindowPointer list = Reach("DoubleClickRow", dialog, id);
  if (!list || !RowReached("DoubleClickRow", list, row)) return;
  focusWindow = list->handle;
  // The first click of the two selects.
  const bool moved = list->selected != row;
  RowSelect(list, row);
  if (!Tells(*list)) return;
  if (moved) ControlTells(*list, EventKind::Chosen);
  if (list->alive) ControlTells(*list, EventKind::Opened);
}

void Type(WindowHandle dialog, int id, const char* text) {
  const WindowPointer edit = Reach("Type", dialog, id);
  if (!edit) return;
  const bool combo = edit->controlClass == ControlClass::ComboBox && (edit->style & 3U) != 3;
  const bool field = edit->controlClass == ControlClass::Edit && (edit->style & kEditReadOnly) == 0;
  if (!combo && !field) {
    Failure(Deed("Type", dialog, id) + ": the control takes no text");
    return;
  }
  focusWindow = edit->handle;
  edit->text = Taken(*edit, text);
  if (combo) edit->selected = -1;
  ControlTells(*edit, EventKind::Edited);
}

namespace {

// Puts the pointer there and sends what the mouse does; with `notches` it is the wheel.
void MouseSend(WindowHandle window, EventKind kind, int x, int y, unsigned keys, int notches) {
  const WindowPointer found = WindowUse(window, "Mouse");
  if (!found) {
    if (!window) Failure("Mouse: no window");
    return;
  }
  if (!found->visible || !found->enabled) {
    Failure(std::string("Mouse: the window is ") + (found->visible ? "disabled" : "hidden"));
    return;
  }
  if (const char* wrong = captureWindow == window ? nullptr : MouseMeets(*found, x, y)) {
    Failure("Mouse at " + std::to_string(x) + ", " + std::to_string(y) + ": " + wrong);
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
  event.wheel = notches;
  EventSend(event);
}

}  // namespace

bool MouseReaches(WindowHandle window, int x, int y) {
  const WindowPointer found = Windows().Find(window);
  return found && found->visible && found->enabled && !MouseMeets(*found, x, y);
}

void Mouse(WindowHandle window, EventKind kind, int x, int y, unsigned keys) {
  MouseSend(window, kind, x, y, keys, 0);
}

void Wheel(WindowHandle window, int x, int y, int notches) {
  MouseSend(window, EventKind::Wheel, x, y, 0, notches);
}

void PressKey(WindowHandle window, int code) {
  const WindowPointer found = WindowUse(window, "PressKey");
  if (!found || !found->enabled || !found->visible) {
    Failure("PressKey: the window takes no keys");
    return;
  }
  if (found->kind == WindowKind::Modal && (code == kEscapeKey || code == kReturnKey)) {
    Failure("PressKey: the dialog manager takes this key");
    return;
  }
  const WindowPointer focus = Windows().Find(focusWindow);
  if (focus && focus->parent == window && focus->kind == WindowKind::Control) {
    Failure("PressKey: control " + std::to_string(focus->id) + " has the keyboard");
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
  const WindowPointer parent = WindowUse(window, "ScrollBy");
  if (!parent || !found || found->parent != window) {
    Failure("ScrollBy: no window or no bar of it");
    return;
  }
  if (!parent->visible || !parent->enabled) {
    Failure("ScrollBy: the window is hidden or disabled");
    return;
  }
  if (!found->visible || !found->enabled || !found->scroll.enabled) {
    Failure("ScrollBy: the bar is hidden or disabled");
    return;
  }
  Event event;
  event.kind = (found->style & kVerticalBar) != 0 ? EventKind::VScroll : EventKind::HScroll;
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
