// The least that draws the texts of a desktop calendar: bare_calendar month, week or day,
// drawn in memory and copied, the last two with the two buttons that the page makes anew
// at each painting; with "ticker", a strip with one line of text that runs with a timer of
// the companion's rate. The measure for the calendar's repaint and for its ticker.
#include <windows.h>

#include <string>

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 172;
constexpr int kColumn = 28;
constexpr int kRow = 18;

std::wstring kind;
SYSTEMTIME today;
int column;  // of the first of the month
int days;
HFONT font;
HWND buttons[2];
int position = 0;

void Say(HDC dc, int x, int y, const std::wstring& text, COLORREF colour = 0) {
  SetTextColor(dc, colour);
  TextOutW(dc, x, y, text.c_str(), static_cast<int>(text.size()));
}

COLORREF ColourOf(int day) {
  return (column + day) % 7 == 0 ? RGB(255, 0, 0) : 0;
}

void Month(HDC dc) {
  for (int i = 0; i < 7; ++i) Say(dc, 10 + i * kColumn, 17, std::wstring(1, L"日月火水木金土"[i]));
  for (int day = 0; day < days; ++day) {
    const int place = column + day;
    const int x = 2 + place % 7 * kColumn;
    const int y = 36 + place / 7 * kRow;
    if (day + 1 == today.wDay) Rectangle(dc, x, y, x + kColumn, y + kRow);
    Say(dc, x + 7, y + 1, (day < 9 ? L" " : L"") + std::to_wstring(day + 1), ColourOf(day));
  }
}

void Week(HDC dc) {
  Rectangle(dc, 2, 0, 132, 18);
  const int view = today.wDay - 1;
  const int sunday = view - (column + view) % 7;
  for (int i = 0; i < 7; ++i) {
    const int y = 20 + i * kRow;
    Say(dc, 4, y + 1, std::wstring(1, L"日月火水木金土"[i]));
    MoveToEx(dc, 2, y + 17, nullptr);
    LineTo(dc, 202, y + 17);
    if (sunday + i >= 0 && sunday + i < days) Say(dc, 41, y + 1, std::to_wstring(sunday + i + 1));
  }
}

void Day(HDC dc) {
  Rectangle(dc, 122, 38, 202, 70);
  Say(dc, 124, 40, L"(本日)");
  Rectangle(dc, 0, 18, 99, 138);
  Say(dc, 40, 40, std::to_wstring(today.wDay) + L"日");
  Say(dc, 40, 54, std::wstring(1, L"日月火水木金土"[today.wDayOfWeek]) + L"曜");
}

// Draws in memory and copies.
template <class Draw>
void Steady(HWND window, int height, COLORREF ground, Draw draw) {
  HDC screen = GetDC(window);
  HDC dc = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, kWidth, height);
  HGDIOBJ oldBitmap = SelectObject(dc, bitmap);
  HBRUSH brush = CreateSolidBrush(ground);
  const RECT area{0, 0, kWidth, height};
  FillRect(dc, &area, brush);
  DeleteObject(brush);
  SetBkMode(dc, TRANSPARENT);
  draw(dc);
  BitBlt(screen, 0, 0, kWidth, height, dc, 0, 0, SRCCOPY);
  SelectObject(dc, oldBitmap);
  DeleteObject(bitmap);
  DeleteDC(dc);
  ReleaseDC(window, screen);
}

void Buttons(HWND window) {
  if (kind != L"week" && kind != L"day") return;
  for (int i = 0; i < 2; ++i) {
    if (buttons[i]) DestroyWindow(buttons[i]);
    buttons[i] = CreateWindowExW(0, L"BUTTON", i == 0 ? L"<" : L">", WS_CHILD | WS_VISIBLE, 136 + 32 * i, 0,
                                 28, 18, window, nullptr, nullptr, nullptr);
  }
}

void Paint(HWND window) {
  Steady(window, kHeight, RGB(255, 255, 255), [](HDC dc) {
    HGDIOBJ oldFont = SelectObject(dc, font);
    Say(dc, 4, 1, std::to_wstring(today.wYear) + L"年  " + std::to_wstring(today.wMonth) + L"月");
    kind == L"week" ? Week(dc) : kind == L"day" ? Day(dc) : Month(dc);
    SelectObject(dc, oldFont);
  });
  Buttons(window);
}

void Scroll(HWND window) {
  const std::wstring text = L"22日: " + std::wstring(127, L'x') + L"  ";
  Steady(window, 20, RGB(255, 185, 95), [&](HDC dc) {
    HGDIOBJ oldFont = SelectObject(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    position = position > kWidth + size.cx ? 0 : position + 1;
    Say(dc, kWidth - position, 2, text, RGB(0, 70, 160));
    SelectObject(dc, oldFont);
  });
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    Paint(window);
    return 0;
  }
  if (message == WM_TIMER) Scroll(window);
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

void TodayTake() {
  GetLocalTime(&today);
  column = (today.wDayOfWeek - (today.wDay - 1) % 7 + 7) % 7;
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  days = kDays[today.wMonth - 1] + (today.wMonth == 2 && today.wYear % 4 == 0 ? 1 : 0);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR arguments, int) {
  kind = arguments;
  TodayTake();
  // The page's text, and the ticker's.
  const bool line = kind == L"ticker";
  font =
      CreateFontW(line ? 16 : 12, line ? 8 : 6, 0, 0, 400, FALSE, FALSE, FALSE, SHIFTJIS_CHARSET,
                  OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"ＭＳ ゴシック");
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"bare_calendar";
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, L"bare_calendar", L"", WS_POPUP | WS_CLIPCHILDREN, 100, 400, kWidth,
                                kHeight, nullptr, nullptr, instance, nullptr);
  if (kind == L"ticker") SetTimer(window, 1, 30, nullptr);
  ShowWindow(window, SW_SHOW);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
