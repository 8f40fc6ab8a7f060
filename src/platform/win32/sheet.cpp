// Property sheets of the common controls.
#include <windows.h>

#include "platform/sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

namespace {

bool endedByOk = false;  // of the innermost sheet

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
