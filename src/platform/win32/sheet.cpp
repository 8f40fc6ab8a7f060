// Property sheets of the common controls.
#include <windows.h>

#include "platform/sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

namespace {

// Of the innermost sheet.
bool endedByOk = false;
const SheetPage* pagesOfSheet = nullptr;
int pageCount = 0;

// --- The size. A sheet takes the units of its pages for those of its own font, and comes
// out too small for pages with a larger one.

INT_PTR CALLBACK NoProc(HWND, UINT, WPARAM, LPARAM) {
  return FALSE;
}

// What the largest page needs, in its own font.
SIZE PagesSize(HWND sheet) {
  SIZE size{};
  for (int i = 0; i < pageCount; ++i) {
    HWND page = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(pagesOfSheet[i].templateId),
                                   sheet, NoProc, 0);
    RECT client{};
    GetClientRect(page, &client);
    if (page) DestroyWindow(page);
    size.cx = std::max(size.cx, client.right);
    size.cy = std::max(size.cy, client.bottom);
  }
  return size;
}

void Resize(HWND window, int right, int down) {
  RECT at{};
  GetWindowRect(window, &at);
  SetWindowPos(window, nullptr, 0, 0, at.right - at.left + right, at.bottom - at.top + down,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Move(HWND window, int right, int down) {
  RECT at{};
  GetWindowRect(window, &at);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&at), 2);
  SetWindowPos(window, nullptr, at.left + right, at.top + down, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Grow(HWND sheet, HWND tabs, int right, int down) {
  Resize(sheet, right, down);
  Resize(tabs, right, down);
  for (HWND child = GetWindow(sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (child != tabs) Move(child, right, down);
  }
}

int CALLBACK SheetMade(HWND sheet, UINT message, LPARAM) {
  HWND tabs = FindWindowExW(sheet, nullptr, L"SysTabControl32", nullptr);
  if (message != PSCB_INITIALIZED || !tabs) return 0;
  const SIZE needed = PagesSize(sheet);
  RECT place{};
  GetClientRect(tabs, &place);
  SendMessageW(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&place));
  const int right = std::max<int>(needed.cx - (place.right - place.left), 0);
  const int down = std::max<int>(needed.cy - (place.bottom - place.top), 0);
  if (right > 0 || down > 0) Grow(sheet, tabs, right, down);
  return 0;
}

INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    const auto* given = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
    const auto* page = reinterpret_cast<const SheetPage*>(given->lParam);
    return DialogBegin(window, page->handler, page->context);
  }
  const auto* notice = reinterpret_cast<const PSHNOTIFY*>(lParam);
  if (message != WM_NOTIFY || notice->hdr.code != PSN_APPLY) {
    return DialogMessage(window, message, wParam, lParam);
  }
  Event event;
  event.kind = EventKind::Apply;
  event.window = Window(window);
  DialogTell(window, event);
  // OK says that it ends the sheet; the button that only applies does not.
  if (notice->lParam != 0) endedByOk = true;
  SetWindowLongPtrW(window, DWLP_MSGRESULT, PSNRET_NOERROR);
  return TRUE;
}

PROPSHEETPAGEW PageOf(const SheetPage& page) {
  PROPSHEETPAGEW made{};
  made.dwSize = sizeof made;
  made.hInstance = GetModuleHandleW(nullptr);
  made.pszTemplate = MAKEINTRESOURCEW(page.templateId);
  made.pfnDlgProc = PageProc;
  made.lParam = reinterpret_cast<LPARAM>(&page);
  return made;
}

}  // namespace

bool SheetRun(WindowHandle owner, const char* caption, const SheetPage* pages, int count) {
  auto* run = LATE("comctl32.dll", PropertySheetW);
  if (!run || count < 1 || count > kSheetPageMax) return false;
  PROPSHEETPAGEW made[kSheetPageMax];
  for (int i = 0; i < count; ++i) made[i] = PageOf(pages[i]);
  const std::wstring title = Wide(caption);
  PROPSHEETHEADERW sheet{};
  sheet.dwSize = sizeof sheet;
  sheet.dwFlags = PSH_PROPSHEETPAGE | PSH_NOCONTEXTHELP | PSH_USECALLBACK;
  sheet.pfnCallback = SheetMade;
  sheet.hwndParent = Hwnd(owner);
  sheet.hInstance = GetModuleHandleW(nullptr);
  sheet.pszCaption = title.c_str();
  sheet.nPages = static_cast<UINT>(count);
  sheet.ppsp = made;
  const bool around = endedByOk;
  endedByOk = false;
  pagesOfSheet = pages;
  pageCount = count;
  const bool good = run(&sheet) >= 0 && endedByOk;
  endedByOk = around;
  return good;
}

void SheetChanged(WindowHandle page) {
  SendMessageW(GetParent(Hwnd(page)), PSM_CHANGED, reinterpret_cast<WPARAM>(Hwnd(page)), 0);
}
