#include <windows.h>

#include "platform/window.h"

#include "platform/win32/border.h"
#include "platform/win32/report.h"
#include "platform/window_paint.h"

namespace {

EventHandler mainHandler = nullptr;
bool acceleratorRuns = false;

void Validate(HWND window) {
  PAINTSTRUCT paint;
  BeginPaint(window, &paint);
  EndPaint(window, &paint);
}

LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = 0;
  if (ReportAnswers(message, wParam, &answer)) return answer;
  Event event;
  if (message == WM_CREATE) {
    event.kind = EventKind::Init;
    event.window = Window(window);
    mainHandler(event);
    return 0;
  }
  if (!EventFromMessage(MessageTarget::MainWindow, window, message, wParam, lParam, &event)) {
    return DefWindowProcW(window, message, wParam, lParam);
  }
  // An accelerator marks its number with a bit that is no part of it.
  if (acceleratorRuns && event.kind == EventKind::Command) event.command = LOWORD(wParam);
  if (message == WM_PAINT) Validate(window);
  if (mainHandler(event)) return 0;
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

WindowHandle MainWindowCreate(const MainWindowClass& windowClass, int x, int y, int width, int height) {
  HINSTANCE instance = GetModuleHandleW(nullptr);
  mainHandler = windowClass.handler;
  const std::wstring name = Wide(windowClass.className);
  WNDCLASSEXW registered{};
  registered.cbSize = sizeof registered;
  registered.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
  registered.lpfnWndProc = MainWindowProc;
  registered.hInstance = instance;
  registered.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(windowClass.iconId));
  registered.hIconSm =
      static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(windowClass.smallIconId), IMAGE_ICON,
                                    GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_SHARED));
  registered.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  registered.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(5));  // the window colour
  registered.lpszMenuName = MAKEINTRESOURCEW(windowClass.menuId);
  registered.lpszClassName = name.c_str();
  RegisterClassExW(&registered);
  HWND window = CreateWindowExW(0, name.c_str(), Wide(windowClass.title).c_str(), WS_POPUP | WS_BORDER, x, y,
                                width, height, nullptr, nullptr, instance, nullptr);
  if (window) ++Live().windows;
  return Window(window);
}

void WindowShowFirst(WindowHandle window, int showMode) {
  ShowWindow(Hwnd(window), showMode);
  UpdateWindow(Hwnd(window));
}

int MessageLoop(WindowHandle window, int acceleratorId) {
  HACCEL accelerators = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(acceleratorId));
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    acceleratorRuns = true;
    const bool done = TranslateAcceleratorW(Hwnd(window), accelerators, &message) != 0;
    acceleratorRuns = false;
    if (done) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  ReportEnd();
  return static_cast<int>(message.wParam);
}

void MessageQuit(int code) {
  PostQuitMessage(code);
}

void SendCommand(WindowHandle window, std::uint32_t command) {
  if (window) SendMessageW(Hwnd(window), WM_COMMAND, command, 0);
}

void SendPaint(WindowHandle window) {
  if (window) SendMessageW(Hwnd(window), WM_PAINT, 0, 0);
}

void SendClose(WindowHandle window) {
  if (window) SendMessageW(Hwnd(window), WM_CLOSE, 0, 0);
}

void SendDestroy(WindowHandle window) {
  if (window) SendMessageW(Hwnd(window), WM_DESTROY, 0, 0);
}

bool TimerStart(WindowHandle window, int id, int milliseconds) {
  TimerStop(window, id);  // one that runs is begun anew and counts once
  const bool good =
      SetTimer(Hwnd(window), static_cast<UINT_PTR>(id), static_cast<UINT>(milliseconds), nullptr) != 0;
  if (good) ++Live().timers;
  return good;
}

void TimerStop(WindowHandle window, int id) {
  if (KillTimer(Hwnd(window), static_cast<UINT_PTR>(id))) --Live().timers;
}

void TimerPeriodSet(WindowHandle window, int id, int milliseconds) {
  SetTimer(Hwnd(window), static_cast<UINT_PTR>(id), static_cast<UINT>(milliseconds), nullptr);
}

bool WindowIsOpen(WindowHandle window) {
  return window && IsWindow(Hwnd(window));
}

void WindowMove(WindowHandle window, int x, int y, int width, int height, bool repaint) {
  MoveWindow(Hwnd(window), x, y, width, height, repaint ? TRUE : FALSE);
}

void WindowShow(WindowHandle window, bool show) {
  ShowWindow(Hwnd(window), show ? SW_SHOW : SW_HIDE);
}

void WindowEnable(WindowHandle window, bool enable) {
  EnableWindow(Hwnd(window), enable ? TRUE : FALSE);
}

void WindowSetTopmost(WindowHandle window) {
  SetWindowPos(Hwnd(window), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
}

void WindowInvalidate(WindowHandle window, bool erase) {
  InvalidateRect(Hwnd(window), nullptr, erase ? TRUE : FALSE);
}

void WindowValidate(WindowHandle window) {
  ValidateRect(Hwnd(window), nullptr);
}

void WindowSetFocus(WindowHandle window) {
  SetFocus(Hwnd(window));
}

void PointerCapture(WindowHandle window) {
  SetCapture(Hwnd(window));
}

void PointerRelease() {
  ReleaseCapture();
}

bool WindowHasFocus(WindowHandle window) {
  return window && GetFocus() == Hwnd(window);
}

void WindowSetText(WindowHandle window, const char* text) {
  SetWindowTextW(Hwnd(window), Wide(text).c_str());
}

int WindowGetText(WindowHandle window, char* buffer, int size) {
  if (size <= 0) return 0;
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Hwnd(window))) + 1, L'\0');
  const int length = GetWindowTextW(Hwnd(window), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return CopyNarrowBytes(text.c_str(), buffer, size);
}

Rect WindowRect(WindowHandle window) {
  RECT rect{};
  GetWindowRect(Hwnd(window), &rect);
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

Rect WindowClientRect(WindowHandle window) {
  RECT rect{};
  GetClientRect(Hwnd(window), &rect);
  return {0, 0, static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}

void WindowSetRegion(WindowHandle window, RegionHandle region, bool redraw) {
  if (SetWindowRgn(Hwnd(window), reinterpret_cast<HRGN>(region), redraw ? TRUE : FALSE) && region) {
    --Live().regions;
  }
}

void WindowDestroy(WindowHandle window) {
  if (window) DestroyWindow(Hwnd(window));
}
