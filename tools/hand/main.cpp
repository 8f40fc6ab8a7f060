// mirrell-hand: does to the running companion's windows what a user would, one
// deed a call. For the scripts that take pictures of it.
//
//   mirrell-hand send COMMAND             posts a numbered command
//   mirrell-hand time SECOND              sets the time of the day of the tests' build
//   mirrell-hand find TITLE               waits for a window; prints its x y width height
//   mirrell-hand part TITLE ID            the same of one of its controls
//   mirrell-hand press TITLE ID           presses a button or a check box
//   mirrell-hand row TITLE ID ROW         the place of a row of a list, or of a list that is dropped down
//   mirrell-hand choose TITLE ID ROW      selects a row
//   mirrell-hand double TITLE ID ROW      and double clicks it
//   mirrell-hand type TITLE ID TEXT       fills an edit field
//   mirrell-hand page TITLE PAGE          shows a page of a property sheet, from 0
//   mirrell-hand key TITLE CODE           gives the window a character
//   mirrell-hand leave TITLE [ID]         closes it, by that button if one is named, and waits
//   mirrell-hand gone TITLE               waits until no window has the title
//   mirrell-hand hold TITLE [COUNT]       holds the companion still when COUNT windows (1) have come,
//                                         and prints the place of the topmost
//   mirrell-hand release -                lets it go on
//   mirrell-hand list                     the windows there are
//   mirrell-hand stage                    the place of the stage
//
// A control of a property sheet may be one of the page on show.
// ROW is a number from 0 or the beginning of its text.
// TITLE is a window's whole caption; "-" is a window without one. "other:TEXT" is a
// window of another program, one that the companion has started, whose caption
// begins with TEXT. Of several windows the topmost is meant. Everything waits a few
// seconds for its window; the exit code is 1 if it did not come.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

constexpr wchar_t kStage[] = L"ミルレール";
constexpr wchar_t kCombo[] = L"ComboBox";
const std::wstring kOther = L"other:";
constexpr DWORD kPatience = 6000;  // milliseconds
constexpr DWORD kPause = 10;
constexpr DWORD kPaintTime = 60;

// What windows are looked for, and those that there are.
struct Search {
  DWORD companion;
  std::wstring title;
  bool other;  // of another program; the title is the beginning of the caption
  bool print;
  HWND topmost = nullptr;
  int count = 0;
};

bool HasClass(HWND window, const wchar_t* wanted) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  return lstrcmpiW(name, wanted) == 0;
}

// What is on record: a window that is about to go, or is held still, answers nothing.
std::wstring Caption(HWND window) {
  wchar_t text[256] = L"";
  InternalGetWindowText(window, text, 256);
  return text;
}

std::string Utf8(const std::wstring& text) {
  char bytes[1024] = "";
  WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, sizeof bytes, nullptr, nullptr);
  return bytes;
}

void PrintRect(const RECT& at) {
  std::printf("%ld %ld %ld %ld\n", at.left, at.top, at.right - at.left, at.bottom - at.top);
}

void PrintPlace(HWND window) {
  RECT at{};
  GetWindowRect(window, &at);
  PrintRect(at);
}

bool IsMeant(const Search& search, const std::wstring& caption) {
  return search.other ? caption.rfind(search.title, 0) == 0 : caption == search.title;
}

// The windows come from the topmost down.
BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if ((process != search.companion) != search.other || !IsWindowVisible(window) || HasClass(window, kStage)) {
    return TRUE;
  }
  const std::wstring caption = Caption(window);
  if (!IsWindow(window)) return TRUE;
  if (search.print) {
    std::printf("\"%s\" ", Utf8(caption).c_str());
    PrintPlace(window);
  }
  if (!IsMeant(search, caption)) return TRUE;
  if (!search.topmost) search.topmost = window;
  ++search.count;
  return TRUE;
}

HWND Stage() {
  return FindWindowW(kStage, nullptr);
}

Search Look(const std::wstring& title, bool print = false) {
  const bool other = title.rfind(kOther, 0) == 0;
  Search search{0, title, other, print};
  if (other) search.title = title.substr(kOther.size());
  if (title == L"-") search.title.clear();
  GetWindowThreadProcessId(Stage(), &search.companion);
  EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
  return search;
}

// The topmost of the windows, or nullptr if there are fewer in time.
HWND Await(const wchar_t* title, int count) {
  for (DWORD waited = 0; waited < kPatience; waited += kPause) {
    const Search search = Look(title);
    if (search.count >= count) return search.topmost;
    Sleep(kPause);
  }
  return nullptr;
}

// Whether what is there is gone in time; 0 or the exit code 1.
int AwaitGone(const wchar_t* title, const std::function<bool()>& isThere) {
  for (DWORD waited = 0; waited < kPatience; waited += kPause) {
    if (!isThere()) return 0;
    Sleep(kPause);
  }
  std::fprintf(stderr, "mirrell-hand: window \"%s\" stays\n", Utf8(title).c_str());
  return 1;
}

// A control of the window; of a property sheet also one of the page on show.
HWND ControlOf(HWND window, const wchar_t* number) {
  const int id = static_cast<int>(std::wcstol(number, nullptr, 10));
  HWND control = GetDlgItem(window, id);
  if (control || !FindWindowExW(window, nullptr, L"SysTabControl32", nullptr)) return control;
  const auto page = reinterpret_cast<HWND>(SendMessageW(window, PSM_GETCURRENTPAGEHWND, 0, 0));
  return page ? GetDlgItem(page, id) : nullptr;
}

// A dialog that has just come may still be making its controls.
HWND AwaitControl(HWND window, const wchar_t* number) {
  for (DWORD waited = 0; waited < kPatience; waited += kPause) {
    if (HWND control = ControlOf(window, number)) return control;
    Sleep(kPause);
  }
  return nullptr;
}

// Posted: what it opens may be modal.
void Tell(HWND window, HWND control, int notice) {
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), notice),
               reinterpret_cast<LPARAM>(control));
}

LRESULT RowOf(HWND control, const wchar_t* row) {
  wchar_t* end = nullptr;
  const auto number = static_cast<LRESULT>(std::wcstol(row, &end, 10));
  if (*end == L'\0') return number;
  const UINT find = HasClass(control, kCombo) ? CB_FINDSTRING : LB_FINDSTRING;
  return SendMessageW(control, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(row));
}

BOOL CALLBACK LookAtDropped(HWND window, LPARAM parameter) {
  if (!IsWindowVisible(window) || !HasClass(window, L"ComboLBox")) return TRUE;
  *reinterpret_cast<HWND*>(parameter) = window;
  return FALSE;
}

int PrintRow(HWND control, const wchar_t* row) {
  HWND list = control;
  if (HasClass(control, kCombo)) {
    list = nullptr;
    EnumWindows(LookAtDropped, reinterpret_cast<LPARAM>(&list));
  }
  RECT at{};
  const LRESULT number = RowOf(list, row);
  if (number < 0 || SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(number),
                                 reinterpret_cast<LPARAM>(&at)) == LB_ERR) {
    return 1;
  }
  MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&at), 2);
  PrintRect(at);
  return 0;
}

bool Choose(HWND window, HWND control, const wchar_t* row, bool twice) {
  const bool combo = HasClass(control, kCombo);
  const LRESULT at = RowOf(control, row);
  if (at < 0) return false;
  SendMessageW(control, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(at), 0);
  Tell(window, control, combo ? CBN_SELCHANGE : LBN_SELCHANGE);
  if (twice) Tell(window, control, LBN_DBLCLK);
  return true;
}

// Stops all threads of the companion, or lets them go on.
int Hold(bool still) {
  DWORD process = 0;
  GetWindowThreadProcessId(Stage(), &process);
  HANDLE handle = OpenProcess(PROCESS_SUSPEND_RESUME, FALSE, process);
  if (!handle) return 1;
  using Call = LONG(WINAPI*)(HANDLE);
  const auto call = reinterpret_cast<Call>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), still ? "NtSuspendProcess" : "NtResumeProcess")));
  const LONG status = call ? call(handle) : -1;
  CloseHandle(handle);
  return status >= 0 ? 0 : 1;
}

int Leave(HWND window, const wchar_t* title, const wchar_t* button) {
  HWND control = button ? GetDlgItem(window, static_cast<int>(std::wcstol(button, nullptr, 10))) : nullptr;
  if (control) {
    Tell(window, control, BN_CLICKED);
  } else {
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
  return AwaitGone(title, [window] { return IsWindowVisible(window) != FALSE; });
}

int Do(const std::wstring& deed, HWND window, int count, wchar_t** arguments) {
  if (deed == L"find") {
    PrintPlace(window);
    return 0;
  }
  if (deed == L"hold") {
    Sleep(kPaintTime);
    PrintPlace(window);
    return Hold(true);
  }
  if (deed == L"leave") return Leave(window, arguments[2], count > 3 ? arguments[3] : nullptr);
  if (count < 4) return 2;
  if (deed == L"key") {
    return PostMessageW(window, WM_CHAR, static_cast<WPARAM>(std::wcstol(arguments[3], nullptr, 10)), 0) ? 0
                                                                                                         : 1;
  }
  if (deed == L"page") {
    SendMessageW(window, PSM_SETCURSEL, static_cast<WPARAM>(std::wcstol(arguments[3], nullptr, 10)), 0);
    return 0;
  }
  HWND control = AwaitControl(window, arguments[3]);
  if (!control) {
    std::fprintf(stderr, "mirrell-hand: no control %s in \"%s\"\n", Utf8(arguments[3]).c_str(),
                 Utf8(arguments[2]).c_str());
    return 1;
  }
  window = GetParent(control);
  if (deed == L"part") {
    PrintPlace(control);
    return 0;
  }
  if (deed == L"press") {
    if ((GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX) {
      SendMessageW(control, BM_SETCHECK, SendMessageW(control, BM_GETCHECK, 0, 0) == 0, 0);
    }
    Tell(window, control, BN_CLICKED);
    return 0;
  }
  if (count < 5) return 2;
  if (deed == L"row") return PrintRow(control, arguments[4]);
  if (deed == L"choose") return Choose(window, control, arguments[4], false) ? 0 : 1;
  if (deed == L"double") return Choose(window, control, arguments[4], true) ? 0 : 1;
  if (deed == L"type") {
    SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(arguments[4]));
    return 0;
  }
  return 2;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const std::wstring deed = count > 1 ? arguments[1] : L"";
  if (deed == L"list") {
    Look(L"", true);
    return 0;
  }
  if (deed == L"stage") {
    PrintPlace(Stage());
    return 0;
  }
  if (count < 3) {
    std::fprintf(stderr, "usage: mirrell-hand DEED TITLE ...\n");
    return 2;
  }
  if (deed == L"send") {
    return PostMessageW(Stage(), WM_COMMAND, static_cast<WPARAM>(std::wcstol(arguments[2], nullptr, 10)), 0)
               ? 0
               : 1;
  }
  if (deed == L"time") {
    SendMessageW(Stage(), RegisterWindowMessageW(L"MirrellTime"),
                 static_cast<WPARAM>(std::wcstol(arguments[2], nullptr, 10)), 0);
    // A timer that rests would see it only when something is due.
    return PostMessageW(Stage(), WM_TIMER, 1, 0) ? 0 : 1;
  }
  if (deed == L"release") return Hold(false);
  if (deed == L"gone") return AwaitGone(arguments[2], [&] { return Look(arguments[2]).count > 0; });
  const bool many = deed == L"hold" && count > 3;
  HWND window = Await(arguments[2], many ? static_cast<int>(std::wcstol(arguments[3], nullptr, 10)) : 1);
  if (!window) {
    std::fprintf(stderr, "mirrell-hand: no window \"%s\"\n", Utf8(arguments[2]).c_str());
    return 1;
  }
  return Do(deed, window, count, arguments);
}
