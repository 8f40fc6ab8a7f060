// The least that a program of this kind can be: a popup window of the same style
// with a timer of the same rate, that paints a rectangle. The measure for the
// companion's start.
#include <windows.h>

static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window, &paint);
    Rectangle(dc, 10, 10, 100, 100);
    EndPaint(window, &paint);
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int showMode) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance;
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  windowClass.lpszClassName = L"bare";
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, L"bare", L"bare", WS_POPUP | WS_BORDER, 500, 300, 120, 160, nullptr,
                                nullptr, instance, nullptr);
  SetTimer(window, 1, 30, nullptr);
  ShowWindow(window, showMode);
  UpdateWindow(window);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
