// mirrell-hand: does to the running companion's windows what a user would, one
// deed a call. For the scripts that take pictures of it.
//
//   mirrell-hand send COMMAND             posts a numbered command
//   mirrell-hand find TITLE               waits for a window; prints its x y width height
//   mirrell-hand part TITLE ID            the same of one of its controls
//   mirrell-hand press TITLE ID           presses a button or a check box
//   mirrell-hand row TITLE ID TEXT        the number of the row that begins so, from the top one on show
//   mirrell-hand choose TITLE ID ROW      selects a row by number or by its beginning
//   mirrell-hand double TITLE ID ROW      and double clicks it
//   mirrell-hand type TITLE ID TEXT       fills an edit field
//   mirrell-hand key TITLE CODE           gives the window a character
//   mirrell-hand leave TITLE [ID]         closes it, by that button if one is named, and waits
//   mirrell-hand gone TITLE               waits until no window has the title
//   mirrell-hand hold TITLE               holds the companion still when the window has come, and prints its
//   place mirrell-hand release -                lets it go on mirrell-hand list                     the
//   windows there are mirrell-hand stage                    the place of the stage
//
// TITLE is a window's whole caption; "-" is the topmost window without one.
// Everything waits a few seconds for its window; the exit code is 1 if it did not
// come.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

constexpr wchar_t kStage[] = L"ミルレール";
constexpr DWORD kPatience = 6000;  // milliseconds
constexpr DWORD kPause = 10;
constexpr DWORD kPaintTime = 60;

struct Search {
  DWORD process;
  std::wstring title;
  HWND found;
  bool print;
};

bool HasClass(HWND window, const wchar_t* wanted) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  return lstrcmpiW(name, wanted) == 0;
}

std::wstring Caption(HWND window) {
  wchar_t text[256] = L"";
  DWORD_PTR got = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 1000, &got);
  return text;
}

std::string Utf8(const std::wstring& text) {
  char bytes[1024] = "";
  WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, sizeof bytes, nullptr, nullptr);
  return bytes;
}

void PrintPlace(HWND window) {
  RECT at{};
  GetWindowRect(window, &at);
  std::printf("%ld %ld %ld %ld\n", at.left, at.top, at.right - at.left, at.bottom - at.top);
}

// The windows come from the topmost down.
BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || !IsWindowVisible(window) || HasClass(window, kStage)) return TRUE;
  const std::wstring caption = Caption(window);
  if (search.print) {
    std::printf("\"%s\" ", Utf8(caption).c_str());
    PrintPlace(window);
    return TRUE;
  }
  if (caption != search.title) return TRUE;
  search.found = window;
  return FALSE;
}

HWND Stage() {
  return FindWindowW(kStage, nullptr);
}

HWND Look(const wchar_t* title, bool print = false) {
  Search search{0, std::wstring(title) == L"-" ? L"" : title, nullptr, print};
  GetWindowThreadProcessId(Stage(), &search.process);
  EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// The window, or nullptr if it is not there in time.
HWND Await(const wchar_t* title) {
  for (DWORD waited = 0; waited < kPatience; waited += kPause) {
    if (HWND window = Look(title)) return window;
    Sleep(kPause);
  }
  return nullptr;
}

bool AwaitGone(const std::function<bool()>& isThere) {
  for (DWORD waited = 0; waited < kPatience; waited += kPause) {
    if (!isThere()) return true;
    Sleep(kPause);
  }
  return false;
}

// Posted: what it opens may be modal.
void Tell(HWND window, HWND control, int notice) {
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), notice),
               reinterpret_cast<LPARAM>(control));
}

LRESULT RowOf(HWND control, const wchar_t* text) {
  const UINT find = HasClass(control, L"ComboBox") ? CB_FINDSTRING : LB_FINDSTRING;
  return SendMessageW(control, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
}

bool Choose(HWND window, HWND control, const wchar_t* row, bool twice) {
  const bool combo = HasClass(control, L"ComboBox");
  wchar_t* end = nullptr;
  LRESULT at = static_cast<LRESULT>(std::wcstol(row, &end, 10));
  if (*end != L'\0') at = RowOf(control, row);
  if (at < 0) return false;
  SendMessageW(control, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(at), 0);
  if (combo) {
    Tell(window, control, CBN_SELCHANGE);
  } else {
    Tell(window, control, LBN_SELCHANGE);
    if (twice) Tell(window, control, LBN_DBLCLK);
  }
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

int Leave(HWND window, const wchar_t* button) {
  HWND control = button ? GetDlgItem(window, static_cast<int>(std::wcstol(button, nullptr, 10))) : nullptr;
  if (control) {
    Tell(window, control, BN_CLICKED);
  } else {
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
  return AwaitGone([window] { return IsWindowVisible(window) != FALSE; }) ? 0 : 1;
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
  if (deed == L"leave") return Leave(window, count > 3 ? arguments[3] : nullptr);
  if (count < 4) return 2;
  if (deed == L"key") {
    return PostMessageW(window, WM_CHAR, static_cast<WPARAM>(std::wcstol(arguments[3], nullptr, 10)), 0) ? 0
                                                                                                         : 1;
  }
  HWND control = GetDlgItem(window, static_cast<int>(std::wcstol(arguments[3], nullptr, 10)));
  if (!control) return 1;
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
  if (deed == L"row") {
    const LRESULT row = RowOf(control, arguments[4]);
    std::printf("%d\n", static_cast<int>(row - SendMessageW(control, LB_GETTOPINDEX, 0, 0)));
    return row < 0 ? 1 : 0;
  }
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
  if (deed == L"release") return Hold(false);
  if (deed == L"gone") return AwaitGone([&] { return Look(arguments[2]) != nullptr; }) ? 0 : 1;
  HWND window = Await(arguments[2]);
  if (!window) {
    std::fprintf(stderr, "mirrell-hand: no window \"%s\"\n", Utf8(arguments[2]).c_str());
    return 1;
  }
  return Do(deed, window, count, arguments);
}
