#include "tests/desktop/companion.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace {

std::wstring EnvironmentText(const wchar_t* name) {
  wchar_t text[MAX_PATH * 2] = L"";
  GetEnvironmentVariableW(name, text, MAX_PATH * 2);
  return text;
}

// Somebody else may hold the file for a moment.
void CopyWhole(const std::wstring& from, const std::wstring& to) {
  EXPECT_TRUE(WaitFor([&] { return CopyFileW(from.c_str(), to.c_str(), FALSE) != 0; }))
      << "a file was not copied";
}

void CopyTree(const std::wstring& from, const std::wstring& to) {
  CreateDirectoryW(to.c_str(), nullptr);
  WIN32_FIND_DATAW data{};
  HANDLE search = FindFirstFileW((from + L"\\*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = data.cFileName;
    if (name == L"." || name == L"..") continue;
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
      CopyTree(from + L"\\" + name, to + L"\\" + name);
    } else {
      CopyWhole(from + L"\\" + name, to + L"\\" + name);
    }
  } while (FindNextFileW(search, &data));
  FindClose(search);
}

void DeleteTree(const std::wstring& folder) {
  WIN32_FIND_DATAW data{};
  HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = data.cFileName;
    if (name == L"." || name == L"..") continue;
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
      DeleteTree(folder + L"\\" + name);
    } else {
      SetFileAttributesW((folder + L"\\" + name).c_str(), FILE_ATTRIBUTE_NORMAL);
      DeleteFileW((folder + L"\\" + name).c_str());
    }
  } while (FindNextFileW(search, &data));
  FindClose(search);
  RemoveDirectoryW(folder.c_str());
}

struct WindowSearch {
  DWORD process;
  std::wstring title;
  std::wstring className;
  HWND found;
};

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<WindowSearch*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process) return TRUE;
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  if (!search.className.empty()) {
    if (search.className != name) return TRUE;
  } else if (!IsWindowVisible(window) || TextOf(window) != search.title ||
             std::wstring(name) == L"ミルレール") {
    return TRUE;
  }
  search.found = window;
  return FALSE;
}

}  // namespace

bool WaitFor(const std::function<bool()>& condition, unsigned milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    Sleep(5);
  }
  return true;
}

std::vector<unsigned char> ReadWholeFile(const std::wstring& path) {
  std::vector<unsigned char> bytes;
  // Whoever renames a file holds it open for deletion until after the new name is there.
  HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return bytes;
  bytes.resize(GetFileSize(file, nullptr));
  DWORD got = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
  bytes.resize(got);
  CloseHandle(file);
  return bytes;
}

void WriteWholeFile(const std::wstring& path, const std::vector<unsigned char>& bytes) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  DWORD put = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &put, nullptr);
  CloseHandle(file);
}

void PutBig(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i)
    bytes.at(at + static_cast<std::size_t>(i)) = static_cast<unsigned char>(value >> (24 - 8 * i));
}

std::uint32_t GetBig(const std::vector<unsigned char>& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = (value << 8U) | bytes.at(at + i);
  return value;
}

Companion::Companion(bool dataSet) {
  static int number = 0;
  wchar_t temp[MAX_PATH];
  GetTempPathW(MAX_PATH, temp);
  folder_ = std::wstring(temp) + L"mirrell" + std::to_wstring(GetCurrentProcessId()) + L"_" +
            std::to_wstring(++number);
  report_ = folder_ + L"_live.txt";
  const std::wstring source = EnvironmentText(L"MIRRELL_PROGRAM");
  if (dataSet) {
    CopyTree(source, folder_);
  } else {
    CreateDirectoryW(folder_.c_str(), nullptr);
    CopyWhole(source + L"\\mirrell.exe", folder_ + L"\\mirrell.exe");
    CopyWhole(source + L"\\mirrell-send.exe", folder_ + L"\\mirrell-send.exe");
  }
}

Companion::~Companion() {
  if (Runs()) Close();
  if (process_.hProcess) {
    CloseHandle(process_.hProcess);
    CloseHandle(process_.hThread);
  }
  DeleteTree(folder_);
  DeleteFileW(report_.c_str());
}

void Companion::Start(const std::wstring& arguments) {
  SetEnvironmentVariableW(L"MIRRELL_LIVE_REPORT", report_.c_str());
  std::wstring line = L"\"" + folder_ + L"\\mirrell.exe\"" + (arguments.empty() ? L"" : L" " + arguments);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder_.c_str(),
                             &startup, &process_));
  ASSERT_TRUE(WaitFor([this] {
    WindowSearch search{process_.dwProcessId, L"", L"ミルレール", nullptr};
    EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
    window_ = search.found;
    return window_ && IsWindowVisible(window_) && Value(kShowTicks) > 0;
  })) << "the companion did not come up";
}

bool Companion::Runs() const {
  DWORD code = 0;
  return process_.hProcess && GetExitCodeProcess(process_.hProcess, &code) && code == STILL_ACTIVE;
}

int Companion::Value(int number) const {
  static const UINT message = RegisterWindowMessageW(L"MirrellDiagnostics");
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window_, message, static_cast<WPARAM>(number), 0, SMTO_NORMAL, 10000, &result))
    return -1;
  return static_cast<int>(result);
}

std::vector<int> Companion::Live() const {
  std::vector<int> counts;
  for (int i = 0; i < 11; ++i) counts.push_back(Value(100 + i));
  return counts;
}

void Companion::SetTime(int hour, int minute, int second) const {
  static const UINT message = RegisterWindowMessageW(L"MirrellTime");
  SendMessageW(window_, message, static_cast<WPARAM>((hour * 60 + minute) * 60 + second), 0);
}

void Companion::Tick(int times) {
  for (int i = 0; i < times; ++i) SendMessageW(window_, WM_TIMER, 1, 0);
}

void Companion::Send(unsigned command) const {
  SendMessageW(window_, WM_COMMAND, command, 0);
}

void Companion::Post(unsigned command) const {
  PostMessageW(window_, WM_COMMAND, command, 0);
}

HWND Companion::FindDialog(const std::wstring& title) const {
  WindowSearch search{process_.dwProcessId, title, L"", nullptr};
  EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND Companion::Dialog(const std::wstring& title, unsigned milliseconds) const {
  HWND found = nullptr;
  WaitFor([&] { return (found = FindDialog(title)) != nullptr; }, milliseconds);
  return found;
}

int Companion::Close() {
  if (!Runs()) return -1;
  PostMessageW(window_, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process_.hProcess, 20000) != WAIT_OBJECT_0) {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, 5000);
    return -1;
  }
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return static_cast<int>(code);
}

std::vector<int> Companion::LiveAtEnd() const {
  std::vector<int> counts;
  const std::vector<unsigned char> bytes = ReadWholeFile(report_);
  std::string line;
  for (const unsigned char digit : bytes) {
    if (digit != '\n') {
      line += static_cast<char>(digit);
      continue;
    }
    counts.push_back(std::atoi(line.c_str()));
    line.clear();
  }
  return counts;
}

std::vector<bool> RegionPixels(HWND window, int* width, int* height) {
  RECT rect{};
  GetWindowRect(window, &rect);
  *width = static_cast<int>(rect.right - rect.left);
  *height = static_cast<int>(rect.bottom - rect.top);
  HRGN region = CreateRectRgn(0, 0, 0, 0);
  std::vector<bool> pixels;
  if (GetWindowRgn(window, region) != ERROR) {
    for (int y = 0; y < *height; ++y) {
      for (int x = 0; x < *width; ++x) pixels.push_back(PtInRegion(region, x, y) != FALSE);
    }
  }
  DeleteObject(region);
  return pixels;
}

std::wstring TextOf(HWND window) {
  DWORD_PTR length = 0;
  if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_NORMAL, 5000, &length)) return L"";
  std::wstring text(length + 1, L'\0');
  DWORD_PTR got = 0;
  if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                           SMTO_NORMAL, 5000, &got))
    return L"";
  text.resize(got);
  return text;
}

void PressButton(HWND dialog, int id) {
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void PostButton(HWND dialog, int id) {
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void SetEdit(HWND dialog, int id, const std::wstring& text) {
  SendDlgItemMessageW(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::wstring EditText(HWND dialog, int id) {
  return TextOf(GetDlgItem(dialog, id));
}

namespace {
bool IsCombo(HWND control) {
  wchar_t name[32] = L"";
  GetClassNameW(control, name, 32);
  return lstrcmpiW(name, L"ComboBox") == 0;
}
}  // namespace

void SelectListRow(HWND dialog, int id, int row) {
  HWND control = GetDlgItem(dialog, id);
  SendMessageW(control, IsCombo(control) ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE), reinterpret_cast<LPARAM>(control));
}

int ListRowCount(HWND dialog, int id) {
  HWND control = GetDlgItem(dialog, id);
  return static_cast<int>(SendMessageW(control, IsCombo(control) ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
}

std::wstring ListRowText(HWND dialog, int id, int row) {
  HWND control = GetDlgItem(dialog, id);
  const bool combo = IsCombo(control);
  const LRESULT length =
      SendMessageW(control, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
  if (length < 0) return L"";
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(control, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::vector<std::uint32_t> ScreenPixels(int x, int y, int width, int height) {
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ old = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, x, y, SRCCOPY);
  GdiFlush();
  const auto* raw = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> pixels(raw, raw + width * height);
  for (std::uint32_t& pixel : pixels) pixel &= 0xFFFFFFU;
  SelectObject(memory, old);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return pixels;
}
