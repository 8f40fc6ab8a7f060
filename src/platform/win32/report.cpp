// The build that tests start: it answers "MirrellDiagnostics", and writes at its end what
// it still holds, a number a line, into the file that MIRRELL_LIVE_REPORT names.
#include "platform/win32/report.h"

#include <string>

#include "platform/diagnostics.h"

bool ReportAnswers(UINT message, WPARAM number, LRESULT* answer) {
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
