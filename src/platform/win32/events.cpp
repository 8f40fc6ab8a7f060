// Windows messages as events.
#include <windows.h>

#include <windowsx.h>

#include "platform/event.h"
#include "platform/win32/border.h"

namespace {

// What a control reports, as an event. False for what nobody needs to hear.
bool KindOfReport(HWND control, UINT code, EventKind* kind) {
  // Escape and Enter come as the press of control 2 or 1 even if that is no button;
  // no other kind of control has a report of its own with this number.
  if (code == BN_CLICKED) {
    *kind = EventKind::Pressed;
    return true;
  }
  wchar_t name[16] = L"";
  GetClassNameW(control, name, 16);
  const bool list = lstrcmpiW(name, L"ListBox") == 0 || lstrcmpiW(name, L"ComboBox") == 0;
  const bool field = lstrcmpiW(name, L"Edit") == 0 || lstrcmpiW(name, L"ComboBox") == 0;
  // Both kinds of list report with the same two numbers.
  if (list && code == LBN_SELCHANGE) {
    *kind = EventKind::Chosen;
  } else if (list && code == LBN_DBLCLK) {
    *kind = EventKind::Opened;
  } else if (field && code == (list ? UINT{CBN_EDITCHANGE} : UINT{EN_CHANGE})) {
    *kind = EventKind::Edited;
  } else {
    return false;
  }
  return true;
}

// A number that was sent, or what a control reports.
bool EventFromCommand(MessageTarget target, WPARAM wParam, LPARAM lParam, Event* event) {
  if (lParam != 0) {
    event->id = LOWORD(wParam);
    return KindOfReport(reinterpret_cast<HWND>(lParam), HIWORD(wParam), &event->kind);
  }
  // No command has a number that does not fit: one that is cut would be another.
  if (wParam > 0xFFFFFFFFU) return false;
  if (target == MessageTarget::Dialog && (wParam == kOkButton || wParam == kCancelButton)) {
    event->kind = EventKind::Pressed;
    event->id = static_cast<int>(wParam);
    return true;
  }
  event->kind = EventKind::Command;
  event->command = static_cast<std::uint32_t>(wParam);
  return true;
}

Scroll ScrollOf(UINT code) {
  switch (code) {
    case SB_LINEUP:
      return Scroll::LineUp;
    case SB_LINEDOWN:
      return Scroll::LineDown;
    case SB_PAGEUP:
      return Scroll::PageUp;
    case SB_PAGEDOWN:
      return Scroll::PageDown;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      return Scroll::Thumb;
    case SB_TOP:
      return Scroll::Top;
    case SB_BOTTOM:
      return Scroll::Bottom;
    default:
      return Scroll::End;
  }
}

// Fine wheels send parts of a notch; they add up until there is a whole one.
int WheelNotches(int delta) {
  static int waiting = 0;
  if ((delta < 0) != (waiting < 0)) waiting = 0;
  waiting += delta;
  const int notches = waiting / WHEEL_DELTA;
  waiting -= notches * WHEEL_DELTA;
  return notches;
}

struct KindOfMessage {
  UINT message;
  EventKind kind;
};
constexpr KindOfMessage kMouse[] = {
    {WM_MOUSEMOVE, EventKind::MouseMove},   {WM_LBUTTONDOWN, EventKind::LeftDown},
    {WM_LBUTTONUP, EventKind::LeftUp},      {WM_LBUTTONDBLCLK, EventKind::LeftDouble},
    {WM_RBUTTONDOWN, EventKind::RightDown}, {WM_MBUTTONDOWN, EventKind::MiddleDown},
    {WM_MOUSEWHEEL, EventKind::Wheel},
};
constexpr KindOfMessage kPlain[] = {
    {WM_PAINT, EventKind::Paint},     {WM_TIMER, EventKind::Timer},         {WM_CLOSE, EventKind::Close},
    {WM_DESTROY, EventKind::Destroy}, {WM_SETCURSOR, EventKind::SetCursor}, {WM_USER, EventKind::User},
};

}  // namespace

bool EventFromMessage(MessageTarget target, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                      Event* event) {
  *event = Event{};
  event->window = Window(window);
  for (const KindOfMessage& mouse : kMouse) {
    if (mouse.message != message) continue;
    event->kind = mouse.kind;
    event->x = GET_X_LPARAM(lParam);
    event->y = GET_Y_LPARAM(lParam);
    event->keys = static_cast<unsigned>(wParam & (MK_LBUTTON | MK_SHIFT));
    if (message == WM_MOUSEWHEEL) event->wheel = WheelNotches(GET_WHEEL_DELTA_WPARAM(wParam));
    return true;
  }
  for (const KindOfMessage& plain : kPlain) {
    if (plain.message != message) continue;
    event->kind = plain.kind;
    return true;
  }
  switch (message) {
    case WM_COMMAND:
      return EventFromCommand(target, wParam, lParam, event);
    case WM_CHAR:
    case WM_KEYDOWN:
      event->kind = message == WM_CHAR ? EventKind::Char : EventKind::KeyDown;
      event->key = static_cast<int>(wParam);
      return true;
    case WM_SIZE:
      event->kind = EventKind::Size;
      event->x = LOWORD(lParam);
      event->y = HIWORD(lParam);
      return true;
    case WM_VSCROLL:
    case WM_HSCROLL: {
      event->kind = message == WM_VSCROLL ? EventKind::VScroll : EventKind::HScroll;
      event->scroll = ScrollOf(LOWORD(wParam));
      event->control = Window(reinterpret_cast<HWND>(lParam));
      // The message carries 16 bits of the place; the bar itself knows them all.
      SCROLLINFO info{};
      info.cbSize = sizeof info;
      info.fMask = SIF_TRACKPOS;
      const bool known = lParam != 0 && GetScrollInfo(reinterpret_cast<HWND>(lParam), SB_CTL, &info);
      event->scrollPosition = known ? info.nTrackPos : HIWORD(wParam);
      return true;
    }
    default:
      return false;
  }
}
