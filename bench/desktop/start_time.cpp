// start_time ROUNDS PROGRAM_A PROGRAM_B: starts the two programs in turn, each in
// its own folder, and measures from the call that starts it until it has painted
// and waits for input. Prints the medians in milliseconds, the median of the pairs'
// ratios, and the fastest start of each.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

double Now() {
  LARGE_INTEGER count{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double StartOnce(const std::wstring& program) {
  const std::wstring folder = program.substr(0, program.rfind(L'\\'));
  std::wstring line = L"\"" + program + L"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  const double begin = Now();
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                      &process)) {
    std::fprintf(stderr, "cannot start the program\n");
    std::exit(1);
  }
  WaitForInputIdle(process.hProcess, 20000);
  const double end = Now();
  Sleep(100);
  PostThreadMessageW(process.dwThreadId, WM_QUIT, 0, 0);
  if (WaitForSingleObject(process.hProcess, 5000) != WAIT_OBJECT_0) TerminateProcess(process.hProcess, 1);
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
  Sleep(50);
  return end - begin;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 4) return 2;
  const int rounds = _wtoi(arguments[1]);
  std::vector<double> a;
  std::vector<double> b;
  std::vector<double> ratios;
  StartOnce(arguments[2]);
  StartOnce(arguments[3]);
  for (int i = 0; i < rounds; ++i) {
    // Which one goes first changes from round to round.
    double first = StartOnce(arguments[i % 2 ? 3 : 2]);
    double second = StartOnce(arguments[i % 2 ? 2 : 3]);
    if (i % 2) std::swap(first, second);
    a.push_back(first);
    b.push_back(second);
    ratios.push_back(first / second);
  }
  std::printf("A %.1f ms, B %.1f ms, ratio A/B %.3f (medians of %d pairs)\n", Median(a), Median(b),
              Median(ratios), rounds);
  // What else the machine does can only make a start longer.
  const double fastestA = *std::min_element(a.begin(), a.end());
  const double fastestB = *std::min_element(b.begin(), b.end());
  std::printf("A %.1f ms, B %.1f ms, ratio A/B %.3f (the fastest of each)\n", fastestA, fastestB,
              fastestA / fastestB);
  return 0;
}
