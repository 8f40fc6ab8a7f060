// Property sheets of the common controls.
#include <windows.h>

#include "platform/sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

namespace {

bool endedByOk = false;  // of the innermost sheet

// --- A sheet is laid out by a font of its own, which is smaller than that of the pages: it
// grows until the page on show fits.

constexpr LONG kMargin = 6;  // dialog units behind the last control
constexpr int kApplyButton = 0x3021;
constexpr int kButtons[] = {IDOK, IDCANCEL, kApplyButton, IDHELP};

// Pixels from the page's corner to behind its last control.
POINT PageNeeds(HWND page) {
  RECT margin{0, 0, kMargin, kMargin};
  MapDialogRect(page, &margin);
  POINT end{0, 0};
  for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    RECT rect{};
    GetWindowRect(child, &rect);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&rect), 2);
    end.x = std::max(end.x, rect.right + margin.right);
    end.y = std::max(end.y, rect.bottom + margin.bottom);
  }
  return end;
}

// The place of the pages in the sheet.
RECT PagePlace(HWND sheet, HWND tabs) {
  RECT rect{};
  GetClientRect(tabs, &rect);
  SendMessageW(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect));
  MapWindowPoints(tabs, sheet, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

void GrowBy(HWND sheet, HWND tabs, LONG right, LONG down) {
  RECT rect{};
  GetWindowRect(sheet, &rect);
  // Not beyond the left or upper edge of the screen; one to the left of or above the main
  // screen has places below 0.
  const LONG left = std::max(rect.left - right / 2, std::min<LONG>(rect.left, 0));
  const LONG top = std::max(rect.top - down / 2, std::min<LONG>(rect.top, 0));
  SetWindowPos(sheet, nullptr, left, top, rect.right - rect.left + right, rect.bottom - rect.top + down,
               SWP_NOZORDER | SWP_NOACTIVATE);
  GetWindowRect(tabs, &rect);
  SetWindowPos(tabs, nullptr, 0, 0, rect.right - rect.left + right, rect.bottom - rect.top + down,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
  for (const int id : kButtons) {
    const HWND button = GetDlgItem(sheet, id);
    if (!button) continue;
    GetWindowRect(button, &rect);
    MapWindowPoints(nullptr, sheet, reinterpret_cast<POINT*>(&rect), 2);
    SetWindowPos(button, nullptr, rect.left + right, rect.top + down, 0, 0,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE);
  }
}

void PageFit(HWND page) {
  const HWND sheet = GetParent(page);
  const auto tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
  const POINT needs = PageNeeds(page);
  RECT place = PagePlace(sheet, tabs);
  const LONG right = std::max<LONG>(needs.x - (place.right - place.left), 0);
  const LONG down = std::max<LONG>(needs.y - (place.bottom - place.top), 0);
  if (right > 0 || down > 0) GrowBy(sheet, tabs, right, down);
  place = PagePlace(sheet, tabs);
  MoveWindow(page, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    const auto* given = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
    const auto* page = reinterpret_cast<const SheetPage*>(given->lParam);
    return DialogBegin(window, page->handler, page->context);
  }
  const auto* notice = reinterpret_cast<const PSHNOTIFY*>(lParam);
  if (message == WM_NOTIFY && notice->hdr.code == PSN_SETACTIVE) {
    PageFit(window);
    SetWindowLongPtrW(window, DWLP_MSGRESULT, 0);
    return TRUE;
  }
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
  sheet.dwFlags = PSH_PROPSHEETPAGE | PSH_NOCONTEXTHELP;
  sheet.hwndParent = Hwnd(owner);
  sheet.hInstance = GetModuleHandleW(nullptr);
  sheet.pszCaption = title.c_str();
  sheet.nPages = static_cast<UINT>(count);
  sheet.ppsp = made;
  const bool around = endedByOk;
  endedByOk = false;
  const bool good = run(&sheet) >= 0 && endedByOk;
  endedByOk = around;
  return good;
}

void SheetChanged(WindowHandle page) {
  SendMessageW(GetParent(Hwnd(page)), PSM_CHANGED, reinterpret_cast<WPARAM>(Hwnd(page)), 0);
}
