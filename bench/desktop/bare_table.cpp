// The least that shows what the window of a full schedule shows: a window of its size that
// writes the same 108 texts. The measure for the table's repaint.
#include <windows.h>

#include <string>

namespace {

constexpr int kRows = 20;
constexpr int kRowHeight = 20;
HFONT font = nullptr;

void Write(HDC dc, int x, int y, const std::wstring& text) {
  TextOutW(dc, x, y, text.c_str(), static_cast<int>(text.size()));
}

void Paint(HWND window) {
  HDC dc = GetDC(window);
  HGDIOBJ old = SelectObject(dc, font);
  SetBkMode(dc, TRANSPARENT);
  RECT client{};
  GetClientRect(window, &client);
  FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  Write(dc, 12, 12, L"秋の旅行の計画");
  Write(dc, 570, 12, L"開始: 2020年 1月 1日 8時");
  Write(dc, 12, 456, L"< 実行指定中 >");
  const wchar_t* heads[] = {L"項目", L"   内  容 ", L"予定時間", L"ﾁｪｯｸ", L"ｱﾗｰﾑ"};
  const int columns[] = {12, 52, 580, 670, 728};
  for (int i = 0; i < 5; ++i) Write(dc, columns[i], 32, heads[i]);
  for (int row = 0; row < kRows; ++row) {
    const int y = 52 + row * kRowHeight;
    Write(dc, columns[0], y, L" 10");
    Write(dc, columns[1], y, L"古い写真を整理して、家族に送るものを選ぶ");
    Write(dc, columns[2], y, L" 12H");
    Write(dc, columns[3], y, L" 済み");
    Write(dc, columns[4], y, L"  ◎");
  }
  SelectObject(dc, old);
  ReleaseDC(window, dc);
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
  font = CreateFontW(16, 8, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SHIFTJIS_CHARSET, OUT_DEFAULT_PRECIS,
                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FIXED_PITCH, L"ＭＳ ゴシック");
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"bare_table";
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, L"bare_table", L"", WS_POPUP, 100, 300, 808, 574, nullptr, nullptr,
                                instance, nullptr);
  ShowWindow(window, SW_SHOW);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
