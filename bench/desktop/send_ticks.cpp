// send_ticks COUNT FIRST: sends the companion that runs COUNT of its ticks, as if FIRST had
// gone before, with the time of day that they take from 9 o'clock on, and prints what the
// program then holds. It has to be the one that reports (mirrell-report.exe).
#include <windows.h>

#include <cstdio>

namespace {

constexpr int kTicksASetting = 1000;  // of the time: 30 seconds
constexpr WPARAM kMorning = 9 * 60 * 60;
constexpr WPARAM kLiveFirst = 100;  // the counts of the program's objects, in their order
constexpr const char* kLive[] = {"brushes", "pens",   "fonts",  "bitmaps", "regions", "canvases",
                                 "windows", "timers", "blocks", "files",   "searches"};

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 3) return 2;
  const int ticks = _wtoi(arguments[1]);
  const int first = _wtoi(arguments[2]);
  HWND window = FindWindowW(L"ミルレール", nullptr);
  if (!window) return 1;
  const UINT time = RegisterWindowMessageW(L"MirrellTime");
  const UINT ask = RegisterWindowMessageW(L"MirrellDiagnostics");
  for (int i = first; i < first + ticks; ++i) {
    if (i % kTicksASetting == 0)
      SendMessageW(window, time, kMorning + static_cast<WPARAM>(i / kTicksASetting) * 30, 0);
    SendMessageW(window, WM_TIMER, 1, 0);
  }
  WPARAM number = kLiveFirst;
  for (const char* name : kLive)
    std::printf("%s %d, ", name, static_cast<int>(SendMessageW(window, ask, number++, 0)));
  return 0;
}
