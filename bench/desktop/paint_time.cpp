// paint_time ROUNDS PAINTS PROGRAM_A PROGRAM_B: starts two programs, each a command line,
// in the current folder and has a window of each painted again and again, by turns: the
// one that is not the companion's main window. Prints the medians of a paint in
// microseconds and of the ratios of the rounds.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Search {
  DWORD process;
  HWND found;
};

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  if (process != search.process || !IsWindowVisible(window) || std::wstring(name) == L"ミルレール")
    return TRUE;
  search.found = window;
  return FALSE;
}

struct Program {
  PROCESS_INFORMATION process{};
  HWND window = nullptr;
  std::vector<double> times;
};

void Start(Program& program, std::wstring line) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &program.process)) {
    std::fprintf(stderr, "cannot start the program\n");
    std::exit(1);
  }
  for (int i = 0; i < 200 && !program.window; ++i) {
    Sleep(50);
    Search search{program.process.dwProcessId, nullptr};
    EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
    program.window = search.found;
  }
  if (!program.window) {
    std::fprintf(stderr, "the window does not come\n");
    std::exit(1);
  }
}

double Now() {
  LARGE_INTEGER count{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return 1e6 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Paints(const Program& program, int paints) {
  const double begin = Now();
  for (int i = 0; i < paints; ++i) SendMessageW(program.window, WM_PAINT, 0, 0);
  return (Now() - begin) / paints;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 5) return 2;
  const int rounds = _wtoi(arguments[1]);
  const int paints = _wtoi(arguments[2]);
  Program programs[2];
  for (int i = 0; i < 2; ++i) Start(programs[i], arguments[3 + i]);
  Sleep(1000);
  std::vector<double> ratios;
  for (int round = -1; round < rounds; ++round) {
    double times[2];
    // Which one goes first changes from round to round.
    for (int i = 0; i < 2; ++i) times[(i + round + 2) % 2] = Paints(programs[(i + round + 2) % 2], paints);
    if (round < 0) continue;  // warm by then
    for (int i = 0; i < 2; ++i) programs[i].times.push_back(times[i]);
    ratios.push_back(times[0] / times[1]);
  }
  std::printf("A %.1f us, B %.1f us a paint, ratio A/B %.3f (medians of %d rounds)\n",
              Median(programs[0].times), Median(programs[1].times), Median(ratios), rounds);
  for (Program& program : programs) TerminateProcess(program.process.hProcess, 0);
  return 0;
}
