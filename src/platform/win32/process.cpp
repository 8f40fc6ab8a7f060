#include <windows.h>

#include "platform/process.h"

#include <shellapi.h>

#include "platform/win32/border.h"
#include "platform/win32/late.h"

ProcessHandle ProcessStart(const char* commandLine) {
  std::wstring line = Wide(commandLine);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION information{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &information)) {
    return nullptr;
  }
  // kept: the thread handle of a started program stays open for the life of this one.
  return reinterpret_cast<ProcessHandle>(information.hProcess);
}

void ProcessWaitIdle(ProcessHandle process, unsigned milliseconds) {
  if (process) WaitForInputIdle(reinterpret_cast<HANDLE>(process), milliseconds);
}

void ProcessClose(ProcessHandle process) {
  if (process) CloseHandle(reinterpret_cast<HANDLE>(process));
}

bool AssociationFind(const char* file, const char* folder, char* program, int size) {
  wchar_t found[MAX_PATH] = L"";
  auto* find = LATE("shell32.dll", FindExecutableW);
  if (!find) return false;
  const auto result = reinterpret_cast<INT_PTR>(find(Wide(file).c_str(), Wide(folder).c_str(), found));
  CopyNarrow(found, program, size);
  return result > 32;
}

bool ClassValue(const char* key, char* value, int size) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, Wide(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
    return false;
  // As many characters as the longest value has bytes, and a terminator where the
  // value has none.
  constexpr int kLongest = 600;
  wchar_t text[kLongest + 1] = L"";
  DWORD bytes = sizeof text - sizeof text[0];
  DWORD type = 0;
  const bool good = RegQueryValueExW(opened, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text),
                                     &bytes) == ERROR_SUCCESS &&
                    (type == REG_SZ || type == REG_EXPAND_SZ);
  RegCloseKey(opened);
  return good && CopyNarrowWhole(text, value, size);
}
