#include <algorithm>
#include <cstring>

#include "platform/headless/state.h"
#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"
#include "platform/screen.h"
#include "platform/window.h"
#include "platform/window_paint.h"

WindowHandle focusWindow = nullptr;
WindowHandle captureWindow = nullptr;
std::vector<WindowHandle> modalStack;
WindowHandle loopWindow = nullptr;
int loopAccelerators = 0;
bool quitAsked = false;
int quitCode = 0;

namespace {

constexpr int kDeepestNesting = 100;
constexpr int kFarthest = 0x8000000;  // no window stands farther away
int nesting = 0;

WindowHandle mainWindow = nullptr;

Event EventOf(EventKind kind, WindowHandle window) {
  Event event;
  event.kind = kind;
  event.window = window;
  return event;
}

void DefaultAction(const Event& event, const WindowPointer& window) {
  if (event.kind != EventKind::Close || !window->alive) return;
  if (window->kind == WindowKind::Main) {
    WindowDestroy(event.window);
    return;
  }
  if (window->kind == WindowKind::Control || window->kind == WindowKind::Page) return;
  const WindowPointer cancel = ControlFind(event.window, kCancelButton);
  if (cancel && !cancel->enabled) return;
  Event pressed = EventOf(EventKind::Pressed, event.window);
  pressed.id = kCancelButton;
  EventSend(pressed);
}

}  // namespace

HandleTable<WindowTag, HeadlessWindow>& Windows() {
  static HandleTable<WindowTag, HeadlessWindow> windows;
  return windows;
}

WindowPointer WindowUse(WindowHandle window, const char* call) {
  if (!window) return nullptr;
  WindowPointer found = Windows().Find(window);
  if (!found) Failure(std::string(call) + ": the window is no more");
  return found;
}

WindowPointer OwnerOf(WindowHandle owner, const char* call) {
  WindowPointer found = WindowUse(owner, call);
  return found && found->kind == WindowKind::Page ? Windows().Find(found->parent) : found;
}

WindowHandle WindowAdd(const WindowPointer& window) {
  window->handle = Windows().Add(window);
  ++PosixLive().windows;
  return window->handle;
}

void WindowRemove(WindowHandle handle, bool tell) {
  const WindowPointer window = Windows().Find(handle);
  if (!window || !window->alive) return;
  window->alive = false;
  window->visible = false;
  // Dialogs go before their owner.
  std::vector<WindowHandle> owned;
  for (const auto& [number, other] : Windows().All()) {
    if (other->parent == handle && other->kind != WindowKind::Control) owned.push_back(other->handle);
  }
  for (WindowHandle other : owned) WindowRemove(other, tell);
  if (tell) EventSend(EventOf(EventKind::Destroy, handle));
  while (!window->children.empty()) {
    const WindowHandle child = window->children.back();
    WindowRemove(child, false);
    if (!window->children.empty() && window->children.back() == child) window->children.pop_back();
  }
  if (const WindowPointer parent = Windows().Find(window->parent); parent) {
    std::erase(parent->children, handle);
  }
  if (window->region) RegionSystemDelete(window->region);
  PosixLive().timers -= static_cast<int>(window->timers.size());
  if (focusWindow == handle) focusWindow = nullptr;
  if (captureWindow == handle) captureWindow = nullptr;
  if (mainWindow == handle) mainWindow = nullptr;
  Windows().Remove(handle);
  --PosixLive().windows;
}

void WindowsReset() {
  while (!Windows().All().empty()) {
    const WindowHandle last = Windows().All().rbegin()->second->handle;
    Windows().All().rbegin()->second->alive = true;
    WindowRemove(last, false);
  }
  focusWindow = nullptr;
  captureWindow = nullptr;
  mainWindow = nullptr;
  loopWindow = nullptr;
  loopAccelerators = 0;
  modalStack.clear();
  quitAsked = false;
  quitCode = 0;
}

Point ClientOrigin(const HeadlessWindow& window) {
  Point at{window.rect.left + window.border.left, window.rect.top + window.border.top};
  if (window.kind == WindowKind::Control) {
    if (const WindowPointer parent = Windows().Find(window.parent); parent) {
      const Point origin = ClientOrigin(*parent);
      at.x += origin.x;
      at.y += origin.y;
    }
  }
  return at;
}

bool EventSend(const Event& event) {
  const WindowPointer window = Windows().Find(event.window);
  if (!window || !window->handler) return false;
  if (nesting >= kDeepestNesting) {
    Failure("events nest without end");
    return false;
  }
  OverhearTell(event);
  ++nesting;
  Event told = event;
  told.context = window->context;
  const bool done = window->handler(told);
  if (!done) DefaultAction(told, window);
  --nesting;
  return done;
}

void ControlTells(const HeadlessWindow& control, EventKind kind) {
  Event event = EventOf(kind, control.parent);
  event.id = control.id & 0xFFFF;  // 16 bits travel
  EventSend(event);
}

void WindowSetVisible(const WindowPointer& window, bool visible) {
  if (window->visible == visible || !window->alive) return;
  window->visible = visible;
  window->dirty = visible;
  if (!visible || window->wasShown || window->kind == WindowKind::Control) return;
  window->wasShown = true;
  const Rect client = WindowClientRect(window->handle);
  Event event = EventOf(EventKind::Size, window->handle);
  event.x = client.right;
  event.y = client.bottom;
  EventSend(event);
}

void PaintDue() {
  std::vector<WindowHandle> due;
  for (const auto& [number, window] : Windows().All()) {
    if (window->dirty && window->visible && window->handler) due.push_back(window->handle);
  }
  for (WindowHandle handle : due) {
    const WindowPointer window = Windows().Find(handle);
    if (!window || !window->alive) continue;
    window->dirty = false;
    EventSend(EventOf(EventKind::Paint, handle));
  }
}

WindowHandle MainWindowCreate(const MainWindowClass& windowClass, int x, int y, int width, int height) {
  if (FaultMeets(FaultKind::Window)) return nullptr;
  if (mainWindow) {
    Failure("MainWindowCreate: there is a main window already");
    return nullptr;
  }
  if (windowClass.menuId != 0 && !Resources().menus.contains(windowClass.menuId)) {
    Failure("MainWindowCreate: no menu " + std::to_string(windowClass.menuId) + " in the resources");
    return nullptr;
  }
  auto window = std::make_shared<HeadlessWindow>();
  window->kind = WindowKind::Main;
  window->handler = windowClass.handler;
  window->text = windowClass.title;
  window->rect = {x, y, x + width, y + height};
  const int menu = windowClass.menuId != 0 ? ScreenMetric(Metric::MenuHeight) : 0;
  window->border = {1, 1 + menu, 1, 1};
  mainWindow = WindowAdd(window);
  EventSend(EventOf(EventKind::Init, window->handle));
  return window->alive ? window->handle : nullptr;
}

void MainWindowDrop() {
  WindowRemove(mainWindow, false);
}

void WindowShowFirst(WindowHandle window, int showMode) {
  constexpr int kHide = 0;
  const WindowPointer found = WindowUse(window, "WindowShowFirst");
  if (!found) return;
  WindowSetVisible(found, showMode != kHide);
  if (!found->visible || !found->dirty) return;
  found->dirty = false;
  EventSend(EventOf(EventKind::Paint, window));
}

void MessageQuit(int code) {
  quitAsked = true;
  quitCode = code;
}

bool QuitWasAsked() {
  return quitAsked;
}

void SendCommand(WindowHandle window, std::uint32_t command) {
  const WindowPointer found = WindowUse(window, "SendCommand");
  if (!found) return;
  const bool button = found->kind != WindowKind::Main && (command == kOkButton || command == kCancelButton);
  Event event = EventOf(button ? EventKind::Pressed : EventKind::Command, window);
  event.id = button ? static_cast<int>(command) : 0;
  event.command = button ? 0 : command;
  EventSend(event);
}

void SendPaint(WindowHandle window) {
  const WindowPointer found = WindowUse(window, "SendPaint");
  if (!found) return;
  found->dirty = false;
  EventSend(EventOf(EventKind::Paint, window));
}

void SendClose(WindowHandle window) {
  if (WindowUse(window, "SendClose")) EventSend(EventOf(EventKind::Close, window));
}

void SendDestroy(WindowHandle window) {
  if (WindowUse(window, "SendDestroy")) EventSend(EventOf(EventKind::Destroy, window));
}

bool TimerStart(WindowHandle window, int id, int milliseconds) {
  if (FaultMeets(FaultKind::Timer)) return false;
  const WindowPointer found = WindowUse(window, "TimerStart");
  if (!found || milliseconds <= 0) return false;
  if (found->timers.insert_or_assign(id, milliseconds).second) ++PosixLive().timers;
  return true;
}

void TimerStop(WindowHandle window, int id) {
  const WindowPointer found = WindowUse(window, "TimerStop");
  if (found && found->timers.erase(id) > 0) --PosixLive().timers;
}

void TimerPeriodSet(WindowHandle window, int id, int milliseconds) {
  const WindowPointer found = WindowUse(window, "TimerPeriodSet");
  if (found && found->timers.contains(id)) found->timers[id] = milliseconds;
}

bool TimerIsRunning(WindowHandle window, int id) {
  return TimerPeriod(window, id) > 0;
}

int TimerPeriod(WindowHandle window, int id) {
  const WindowPointer found = Windows().Find(window);
  return found && found->timers.contains(id) ? found->timers[id] : 0;
}

bool WindowIsOpen(WindowHandle window) {
  return Windows().Find(window) != nullptr;
}

void WindowMove(WindowHandle window, int x, int y, int width, int height, bool repaint) {
  const WindowPointer found = WindowUse(window, "WindowMove");
  if (!found) return;
  const Rect before = WindowClientRect(window);
  const int left = std::clamp(x, -kFarthest, kFarthest);
  const int top = std::clamp(y, -kFarthest, kFarthest);
  found->rect = {left, top, left + std::max(width, 0), top + std::max(height, 0)};
  found->dirty = found->dirty || (repaint && found->visible);
  const Rect after = WindowClientRect(window);
  if (!found->wasShown || (before.right == after.right && before.bottom == after.bottom)) return;
  Event event = EventOf(EventKind::Size, window);
  event.x = after.right;
  event.y = after.bottom;
  EventSend(event);
}

void WindowShow(WindowHandle window, bool show) {
  if (const WindowPointer found = WindowUse(window, "WindowShow"); found) WindowSetVisible(found, show);
}

void WindowEnable(WindowHandle window, bool enable) {
  if (const WindowPointer found = WindowUse(window, "WindowEnable"); found) found->enabled = enable;
}

void WindowSetTopmost(WindowHandle window) {
  const WindowPointer found = WindowUse(window, "WindowSetTopmost");
  if (!found) return;
  found->topmost = true;
  WindowSetVisible(found, true);
}

void WindowInvalidate(WindowHandle window, bool) {
  if (const WindowPointer found = WindowUse(window, "WindowInvalidate"); found) found->dirty = found->visible;
}

void WindowValidate(WindowHandle window) {
  if (const WindowPointer found = WindowUse(window, "WindowValidate"); found) found->dirty = false;
}

void WindowSetFocus(WindowHandle window) {
  if (const WindowPointer found = WindowUse(window, "WindowSetFocus"); found && found->enabled) {
    focusWindow = window;
  }
}

void PointerCapture(WindowHandle window) {
  if (WindowUse(window, "PointerCapture")) captureWindow = window;
}

WindowHandle PointerCaptured() {
  return captureWindow;
}

void PointerRelease() {
  captureWindow = nullptr;
}

bool WindowHasFocus(WindowHandle window) {
  return window && focusWindow == window;
}

void WindowSetText(WindowHandle window, const char* text) {
  if (const WindowPointer found = WindowUse(window, "WindowSetText"); found) found->text = text;
}

int WindowGetText(WindowHandle window, char* buffer, int size) {
  if (size <= 0) return 0;
  buffer[0] = '\0';
  const WindowPointer found = WindowUse(window, "WindowGetText");
  if (!found) return 0;
  const std::size_t length = std::min(found->text.size(), static_cast<std::size_t>(size) - 1);
  std::memcpy(buffer, found->text.data(), length);
  buffer[length] = '\0';
  return static_cast<int>(length);
}

Rect WindowRect(WindowHandle window) {
  const WindowPointer found = WindowUse(window, "WindowRect");
  if (!found) return {};
  Rect rect = found->rect;
  const WindowPointer parent = found->kind == WindowKind::Control ? Windows().Find(found->parent) : nullptr;
  if (parent) {
    const Point origin = ClientOrigin(*parent);
    rect = {rect.left + origin.x, rect.top + origin.y, rect.right + origin.x, rect.bottom + origin.y};
  }
  return rect;
}

Rect WindowClientRect(WindowHandle window) {
  const WindowPointer found = WindowUse(window, "WindowClientRect");
  if (!found) return {};
  const int width = RectWidth(found->rect) - found->border.left - found->border.right;
  const int height = RectHeight(found->rect) - found->border.top - found->border.bottom;
  return {0, 0, std::max(width, 0), std::max(height, 0)};
}

void WindowSetRegion(WindowHandle window, RegionHandle region, bool redraw) {
  const WindowPointer found = WindowUse(window, "WindowSetRegion");
  if (region && !RegionIsThere(region, "WindowSetRegion")) return;
  if (!found) return;
  if (found->region) RegionSystemDelete(found->region);
  if (region) RegionOwned(region);
  found->region = region;
  ++found->regionSets;
  found->dirty = found->dirty || (redraw && found->visible);
}

RegionHandle RegionOf(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found ? found->region : nullptr;
}

int RegionSetCount(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found ? found->regionSets : 0;
}

void WindowDestroy(WindowHandle window) {
  const WindowPointer found = WindowUse(window, "WindowDestroy");
  if (!found) return;
  if (found->kind == WindowKind::Modal) {
    Failure("WindowDestroy: a modal dialog ends with DialogEnd");
    return;
  }
  WindowRemove(window, true);
}

std::vector<WindowHandle> OpenWindows() {
  std::vector<WindowHandle> open;
  for (const auto& [number, window] : Windows().All()) {
    if (window->kind != WindowKind::Control) open.push_back(window->handle);
  }
  return open;
}

int OpenWindowCount() {
  return static_cast<int>(OpenWindows().size());
}

bool IsVisible(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found && found->visible;
}

bool IsTopmost(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found && found->topmost;
}

std::string WindowText(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found ? found->text : std::string();
}

int TemplateOf(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  return found ? found->templateId : 0;
}
