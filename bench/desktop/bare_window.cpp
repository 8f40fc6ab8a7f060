// The least that a program of this kind can be: a popup window of the same style,
// with a menu of one item and a timer of the same rate, that paints a rectangle. The
// measure for the companion's start.
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
  HMENU items = CreatePopupMenu();
  AppendMenuW(items, MF_STRING, 8, L"アプリケーション終了");
  HMENU menu = CreateMenu();
  AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(items), L"ファイル");
  HWND window = CreateWindowExW(0, L"bare", L"bare", WS_POPUP | WS_BORDER, 500, 300, 120, 160, nullptr, menu,
                                instance, nullptr);
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
