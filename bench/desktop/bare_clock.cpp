// The least that draws what the desktop clock draws: a window in the shape of the first
// design's dial with its picture and two hands, drawn in memory and copied. The measure
// for the clock's repaint. It runs in the program's folder.
#include <windows.h>

#include <cstdio>
#include <vector>

namespace {

std::vector<unsigned char> dib;  // the picture's file
int width = 0;
int height = 0;

std::vector<unsigned char> ReadFileOf(const wchar_t* path) {
  std::vector<unsigned char> bytes;
  FILE* file = _wfopen(path, L"rb");
  if (!file) return bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
    bytes.push_back(static_cast<unsigned char>(c));
  std::fclose(file);
  return bytes;
}

// The outline of the first frame: a count of 32 bits, then x and y of 16, high byte first.
HRGN Shape() {
  const std::vector<unsigned char> file = ReadFileOf(L"キャラクタ\\Chara15.dwc");
  if (file.size() < 5) return nullptr;
  const std::size_t count = static_cast<std::size_t>(file[3] << 8 | file[4]);
  std::vector<POINT> points;
  for (std::size_t at = 5; points.size() < count && at + 4 <= file.size(); at += 4) {
    points.push_back({file[at] << 8 | file[at + 1], height - (file[at + 2] << 8 | file[at + 3]) - 1});
  }
  return CreatePolygonRgn(points.data(), static_cast<int>(points.size()), WINDING);
}

void Paint(HWND window) {
  HDC screen = GetDC(window);
  RECT client{};
  GetClientRect(window, &client);
  HBRUSH brush = CreateSolidBrush(RGB(66, 34, 42));
  HPEN pen = CreatePen(PS_SOLID, 1, RGB(66, 34, 42));
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ oldBitmap = SelectObject(memory, bitmap);
  HGDIOBJ oldBrush = SelectObject(memory, brush);
  HGDIOBJ oldPen = SelectObject(memory, pen);
  SetDIBitsToDevice(memory, 0, 0, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                    static_cast<UINT>(height), dib.data() + 54,
                    reinterpret_cast<const BITMAPINFO*>(dib.data() + 14), DIB_RGB_COLORS);
  const POINT hour[] = {{75, 69}, {72, 45}, {69, 69}, {72, 72}};
  const POINT minute[] = {{75, 75}, {113, 72}, {75, 69}, {72, 72}};
  Polygon(memory, hour, 4);
  Polygon(memory, minute, 4);
  BitBlt(screen, 0, 0, width, height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, oldBitmap);
  SelectObject(memory, oldBrush);
  SelectObject(memory, oldPen);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  DeleteObject(brush);
  DeleteObject(pen);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    Paint(window);
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  dib = ReadFileOf(L"キャラクタ\\Chara15_1.bmp");
  if (dib.size() < 54) return 1;
  width = dib[18] | dib[19] << 8;
  height = dib[22] | dib[23] << 8;
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"bare_clock";
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, L"bare_clock", L"", WS_POPUP, 100, 400, width, height, nullptr, nullptr,
                                instance, nullptr);
  SetWindowRgn(window, Shape(), TRUE);
  ShowWindow(window, SW_SHOW);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
