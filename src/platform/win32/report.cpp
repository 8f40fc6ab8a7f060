// The build that tests start: it answers "MirrellDiagnostics", sets its time of the day to
// the second that "MirrellTime" names, and writes at its end what it still holds, a number
// a line, into the file that MIRRELL_LIVE_REPORT names.
#include "platform/win32/report.h"

#include <cstdint>
#include <string>

#include "platform/diagnostics.h"

namespace {

std::int64_t timeShift = 0;  // in units of 100 ns

std::int64_t Number(const SYSTEMTIME& time) {
  FILETIME file{};
  SystemTimeToFileTime(&time, &file);
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(file.dwHighDateTime) << 32U |
                                   file.dwLowDateTime);
}

void TimeOfDaySet(WPARAM second) {
  SYSTEMTIME wanted{};
  GetLocalTime(&wanted);
  wanted.wHour = static_cast<WORD>(second / 3600);
  wanted.wMinute = static_cast<WORD>(second / 60 % 60);
  wanted.wSecond = static_cast<WORD>(second % 60);
  wanted.wMilliseconds = 0;
  ReportTimeTake(wanted);
}

}  // namespace

void ReportTimeShift(SYSTEMTIME* now) {
  const auto shifted = static_cast<std::uint64_t>(Number(*now) + timeShift);
  const FILETIME file{static_cast<DWORD>(shifted), static_cast<DWORD>(shifted >> 32U)};
  FileTimeToSystemTime(&file, now);
}

bool ReportTimeTake(const SYSTEMTIME& wanted) {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  timeShift = Number(wanted) - Number(now);
  return true;
}

bool ReportAnswers(UINT message, WPARAM number, LRESULT* answer) {
  static const UINT time = RegisterWindowMessageW(L"MirrellTime");
  if (time != 0 && message == time) {
    TimeOfDaySet(number);
    *answer = 1;
    return true;
  }
  static const UINT asked = RegisterWindowMessageW(L"MirrellDiagnostics");
  if (asked == 0 || message != asked) return false;
  *answer = DiagnosticsValue(static_cast<int>(number));
  return true;
}

void ReportEnd() {
  wchar_t path[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(L"MIRRELL_LIVE_REPORT", path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return;
  std::string text;
  for (int i = 0; i < kDiagnosticsLiveCount; ++i) {
    text += std::to_string(DiagnosticsValue(kDiagnosticsLiveFirst + i)) + "\n";
  }
  HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
}
