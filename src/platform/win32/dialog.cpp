#include <windows.h>

#include "platform/dialog.h"

#include <commdlg.h>

#include "platform/win32/border.h"
#include "platform/win32/late.h"
#include "platform/window.h"

namespace {

constexpr int kRowMargin = 4;  // pixels beside a list's text

bool focusWasSet = false;
bool fileDialogIsUp = false;

// What a dialog gets at its start.
struct Opening {
  EventHandler handler;
  void* context;
};

INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_INITDIALOG) return DialogMessage(window, message, wParam, lParam);
  const Opening& opening = *reinterpret_cast<const Opening*>(lParam);
  return DialogBegin(window, opening.handler, opening.context);
}

bool IsComboBox(HWND control) {
  wchar_t name[16] = L"";
  GetClassNameW(control, name, 16);
  return lstrcmpiW(name, L"ComboBox") == 0;
}

// A dialog's list. The one asked for last is remembered: who fills a list asks for it
// with every row, and each search for a control's number goes through the dialog's windows.
HWND ListControl(WindowHandle dialog, int id) {
  static HWND last = nullptr;
  const bool same = last && IsWindow(last) && GetParent(last) == Hwnd(dialog) && GetDlgCtrlID(last) == id;
  if (!same) last = GetDlgItem(Hwnd(dialog), id);
  return last;
}

// A list box hides its style WS_HSCROLL while its rows are short, so every one gets its
// extent; one without a bar takes no notice.
bool IsListBox(HWND list) {
  return list && !IsComboBox(list);
}

// Lets a list scroll as far as `row` needs, in the list's own font.
void Widen(HWND list, const std::wstring& row) {
  HDC canvas = GetDC(list);
  const auto font = reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0));
  HGDIOBJ old = SelectObject(canvas, font ? font : TextFont());
  SIZE size{};
  GetTextExtentPoint32W(canvas, row.c_str(), static_cast<int>(row.size()), &size);
  SelectObject(canvas, old);
  ReleaseDC(list, canvas);
  const LRESULT needed = size.cx + kRowMargin;
  if (needed <= SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0)) return;
  SendMessageW(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(needed), 0);
}

// Sends the message that a list of either kind knows for the same thing.
LRESULT ListSend(WindowHandle dialog, int id, UINT forListBox, UINT forComboBox, WPARAM wParam,
                 LPARAM lParam) {
  HWND control = ListControl(dialog, id);
  if (!control) return -1;
  return SendMessageW(control, IsComboBox(control) ? forComboBox : forListBox, wParam, lParam);
}

std::wstring FilterOf(const char* filterText, const char* mask) {
  std::wstring filter = Wide(filterText);
  filter += L'\0';
  filter += Wide(mask);
  filter += L'\0';
  return filter;
}

bool FileDialog(bool save, WindowHandle owner, const char* title, const char* filterText, const char* mask,
                const char* startFolder, char* path, int size) {
  wchar_t name[MAX_PATH];
  lstrcpynW(name, Wide(path).c_str(), MAX_PATH);
  const std::wstring filter = FilterOf(filterText, mask);
  const std::wstring wideTitle = Wide(title);
  const std::wstring folder = Wide(startFolder);
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = Hwnd(owner);
  dialog.lpstrFilter = filter.c_str();
  dialog.lpstrFile = name;
  dialog.nMaxFile = MAX_PATH;
  dialog.lpstrTitle = wideTitle.empty() ? nullptr : wideTitle.c_str();
  dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  dialog.Flags = OFN_HIDEREADONLY;
  auto* run = save ? LATE("comdlg32.dll", GetSaveFileNameW) : LATE("comdlg32.dll", GetOpenFileNameW);
  fileDialogIsUp = true;
  const BOOL good = run ? run(&dialog) : FALSE;
  fileDialogIsUp = false;
  if (good && !CopyNarrowPath(name, path, size)) CopyNarrow(name, path, size);
  return good != FALSE;
}

}  // namespace

// The handler of a dialog is kept in the window's own long, next to what the dialog
// manager keeps there, and its context in the one that is free for the window.
INT_PTR DialogBegin(HWND window, EventHandler handler, void* context) {
  ++Live().windows;
  SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(handler));
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(context));
  Event event;
  event.kind = EventKind::Init;
  event.window = Window(window);
  focusWasSet = false;
  DialogTell(window, event);
  return focusWasSet ? FALSE : TRUE;
}

bool DialogTell(HWND window, const Event& event) {
  const auto handler = reinterpret_cast<EventHandler>(GetWindowLongPtrW(window, DWLP_USER));
  Event told = event;
  told.context = reinterpret_cast<void*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return handler && handler(told);
}

INT_PTR DialogMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  Event event;
  if (GetWindowLongPtrW(window, DWLP_USER) == 0 || message == WM_SETCURSOR) return FALSE;
  if (!EventFromMessage(MessageTarget::Dialog, window, message, wParam, lParam, &event)) return FALSE;
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    DialogTell(window, event);
    return TRUE;
  }
  const bool done = DialogTell(window, event);
  if (message == WM_DESTROY) {
    --Live().windows;
    SetWindowLongPtrW(window, DWLP_USER, 0);
  }
  return done ? TRUE : FALSE;
}

int DialogRun(int templateId, WindowHandle owner, EventHandler handler, void* context) {
  Opening opening{handler, context};
  return static_cast<int>(DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId),
                                          Hwnd(owner), DialogProc, reinterpret_cast<LPARAM>(&opening)));
}

WindowHandle DialogOpen(int templateId, WindowHandle owner, EventHandler handler, void* context) {
  Opening opening{handler, context};
  return Window(CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), Hwnd(owner),
                                   DialogProc, reinterpret_cast<LPARAM>(&opening)));
}

void DialogEnd(WindowHandle dialog, int result) {
  EndDialog(Hwnd(dialog), result);
}

Rect DialogUnits(WindowHandle dialog, const Rect& units) {
  RECT rect{units.left, units.top, units.right, units.bottom};
  MapDialogRect(Hwnd(dialog), &rect);
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

WindowHandle Control(WindowHandle dialog, int id) {
  return Window(GetDlgItem(Hwnd(dialog), id));
}

Rect ControlPlace(WindowHandle dialog, int id) {
  RECT rect{};
  GetWindowRect(GetDlgItem(Hwnd(dialog), id), &rect);
  MapWindowPoints(nullptr, Hwnd(dialog), reinterpret_cast<POINT*>(&rect), 2);
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

void ControlSetText(WindowHandle dialog, int id, const char* text) {
  WindowSetText(Control(dialog, id), text);
}

int ControlGetText(WindowHandle dialog, int id, char* buffer, int size) {
  if (size > 0) buffer[0] = '\0';
  const WindowHandle control = Control(dialog, id);
  return control ? WindowGetText(control, buffer, size) : 0;
}

void ControlEnable(WindowHandle dialog, int id, bool enable) {
  EnableWindow(GetDlgItem(Hwnd(dialog), id), enable ? TRUE : FALSE);
}

void ControlShow(WindowHandle dialog, int id, bool show) {
  ShowWindow(GetDlgItem(Hwnd(dialog), id), show ? SW_SHOW : SW_HIDE);
}

void ControlSetFocus(WindowHandle dialog, int id) {
  focusWasSet = true;
  SendMessageW(Hwnd(dialog), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(Hwnd(dialog), id)), TRUE);
}

void ControlSetLimit(WindowHandle dialog, int id, int characters) {
  HWND control = GetDlgItem(Hwnd(dialog), id);
  if (control)
    SendMessageW(control, IsComboBox(control) ? CB_LIMITTEXT : EM_SETLIMITTEXT,
                 static_cast<WPARAM>(characters), 0);
}

void ControlSetChecked(WindowHandle dialog, int id, bool checked) {
  CheckDlgButton(Hwnd(dialog), id, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool ControlIsChecked(WindowHandle dialog, int id) {
  return IsDlgButtonChecked(Hwnd(dialog), id) == BST_CHECKED;
}

void ListClear(WindowHandle dialog, int id) {
  ListSend(dialog, id, LB_RESETCONTENT, CB_RESETCONTENT, 0, 0);
  if (IsListBox(ListControl(dialog, id))) SendMessageW(ListControl(dialog, id), LB_SETHORIZONTALEXTENT, 0, 0);
}

int ListAdd(WindowHandle dialog, int id, const char* text) {
  const std::wstring row = Wide(text);
  HWND list = ListControl(dialog, id);
  if (IsListBox(list)) Widen(list, row);
  return static_cast<int>(
      ListSend(dialog, id, LB_ADDSTRING, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str())));
}

void ListDraw(WindowHandle dialog, int id, bool on) {
  HWND control = ListControl(dialog, id);
  if (!control) return;
  SendMessageW(control, WM_SETREDRAW, on ? TRUE : FALSE, 0);
  if (on) InvalidateRect(control, nullptr, TRUE);
}

int ListCount(WindowHandle dialog, int id) {
  const LRESULT count = ListSend(dialog, id, LB_GETCOUNT, CB_GETCOUNT, 0, 0);
  return count < 0 ? 0 : static_cast<int>(count);
}

int ListSelected(WindowHandle dialog, int id) {
  return static_cast<int>(ListSend(dialog, id, LB_GETCURSEL, CB_GETCURSEL, 0, 0));
}

void ListSelect(WindowHandle dialog, int id, int row) {
  ListSend(dialog, id, LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int ListText(WindowHandle dialog, int id, int row, char* buffer, int size) {
  if (size > 0) buffer[0] = '\0';
  const LRESULT length = ListSend(dialog, id, LB_GETTEXTLEN, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
  if (row < 0 || length < 0) return -1;
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  ListSend(dialog, id, LB_GETTEXT, CB_GETLBTEXT, static_cast<WPARAM>(row),
           reinterpret_cast<LPARAM>(text.data()));
  return CopyNarrow(text.c_str(), buffer, size);
}

void ListFolders(WindowHandle dialog, int id) {
  wchar_t all[] = L"*.*";
  SendDlgItemMessageW(Hwnd(dialog), id, LB_DIR, DDL_DIRECTORY | DDL_DRIVES | DDL_EXCLUSIVE,
                      reinterpret_cast<LPARAM>(all));
}

WindowHandle ControlCreate(WindowHandle parent, ControlKind kind, int id, const Rect& place,
                           const char* text) {
  const wchar_t* name = L"button";
  DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
  if (kind == ControlKind::ListBox) {
    name = L"listbox";
    style = 0x50A00003;  // child, visible, border, scroll bar, sorted, reports
  } else if (kind == ControlKind::VerticalScrollBar) {
    name = L"scrollbar";
    style = WS_CHILD | WS_VISIBLE | SBS_VERT;
  }
  HWND control = CreateWindowExW(
      0, name, Wide(text).c_str(), style, place.left, place.top, RectWidth(place), RectHeight(place),
      Hwnd(parent), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  if (!control) return nullptr;
  // A control made by hand gets the font of its dialog.
  const LRESULT font = SendMessageW(Hwnd(parent), WM_GETFONT, 0, 0);
  SendMessageW(control, WM_SETFONT, font ? static_cast<WPARAM>(font) : reinterpret_cast<WPARAM>(TextFont()),
               FALSE);
  return Window(control);
}

void ScrollBarSet(WindowHandle bar, int lines, int page, int position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMin = 0;
  info.nMax = lines - 1;
  info.nPage = static_cast<UINT>(page);
  info.nPos = position;
  SetScrollInfo(Hwnd(bar), SB_CTL, &info, TRUE);
}

void ScrollBarEnable(WindowHandle bar, bool enable) {
  EnableScrollBar(Hwnd(bar), SB_CTL, enable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

BoxAnswer MessageBoxRun(WindowHandle owner, const char* text, const char* caption, BoxButtons buttons,
                        BoxIcon icon) {
  UINT style = icon == BoxIcon::Question ? MB_ICONQUESTION : MB_ICONEXCLAMATION;
  style |= buttons == BoxButtons::Ok ? MB_OK : buttons == BoxButtons::OkCancel ? MB_OKCANCEL : MB_YESNO;
  return static_cast<BoxAnswer>(MessageBoxW(Hwnd(owner), Wide(text).c_str(), Wide(caption).c_str(), style));
}

std::uint32_t MenuPopup(int menuId, WindowHandle window, int x, int y, bool asCommand) {
  HMENU menu = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(menuId));
  if (!menu) return 0;
  POINT at{x, y};
  ClientToScreen(Hwnd(window), &at);
  const UINT flags = TPM_LEFTALIGN | TPM_TOPALIGN | (asCommand ? TPM_RETURNCMD : 0U);
  const BOOL chosen = TrackPopupMenu(GetSubMenu(menu, 0), flags, at.x, at.y, 0, Hwnd(window), nullptr);
  DestroyMenu(menu);
  return asCommand ? static_cast<std::uint32_t>(chosen) : 0;
}

void MenuPopupEnd() {
  EndMenu();
}

int StringLoad(int id, char* buffer, int size) {
  wchar_t text[1024] = L"";
  LoadStringW(GetModuleHandleW(nullptr), static_cast<UINT>(id), text, 1024);
  return CopyNarrow(text, buffer, size);
}

bool FileDialogLoad(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size) {
  return FileDialog(false, owner, title, filterText, mask, startFolder, path, size);
}

bool FileDialogSave(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size) {
  return FileDialog(true, owner, title, filterText, mask, startFolder, path, size);
}

bool FileDialogIsUp() {
  return fileDialogIsUp;
}
