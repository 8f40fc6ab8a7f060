// A program for the tests to have started: writes the command line that it got, as it
// got it, into the next free of "<program>.1.line", "<program>.2.line" ... and ends.
#include <windows.h>

#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  const std::wstring line = GetCommandLineW();
  wchar_t own[MAX_PATH * 2];
  GetModuleFileNameW(nullptr, own, MAX_PATH * 2);
  // Written under another name first, so that whoever waits for the line finds it whole.
  const std::wstring part = own + (L"." + std::to_wstring(GetCurrentProcessId())) + L".part";
  HANDLE file = CreateFileW(part.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD put = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size() * sizeof line[0]), &put, nullptr);
  CloseHandle(file);
  for (int number = 1; number < 1000; ++number) {
    const std::wstring whole = own + (L"." + std::to_wstring(number)) + L".line";
    if (MoveFileW(part.c_str(), whole.c_str())) return 0;
  }
  return 1;
}
