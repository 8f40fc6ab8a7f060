// dialog_time ROUNDS PID SERVER: opens dialogs of the companion that runs in this session,
// one behind the other as a user does, and tells what each costs until it stands and is
// drawn: median and least of the rounds, in milliseconds on a core. PID is the companion's
// process on the system below, whose CPU counts; that of SERVER, Wine's own process, is
// told beside it.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "resources/scenario_storage_ids.h"
#include "services/commands.h"

namespace {

// What opens a dialog: in the dialog `from` a row of a list is chosen, if there is one,
// and a button pressed. Without `from` the main window is sent a command.
struct Door {
  const wchar_t* title;
  const wchar_t* from = nullptr;
  int button = 0;
  int list = 0;
  Command command = Command::None;
};

constexpr Door kDoors[] = {
    {.title = L"シナリオのロード", .command = Command::ScenarioLoad},
    {L"シナリオ設定", L"シナリオのロード", IDOK, IDC_SNRY_LIST},
    {L"登場キャラクタ登録(キャスティング)", L"シナリオ設定", IDC_SNRY_CHARACTERS},
    {L"シナリオフォルダー設定", L"シナリオ設定", IDC_SNRY_FOLDER_SET, IDC_SNRY_FOLDERS},
    {L"場面ファイル設定", L"シナリオフォルダー設定", IDC_SNRY_SCENE_SET, IDC_SNRY_SCENES},
    {L"場面起動条件", L"場面ファイル設定", IDC_SNRY_SCENE_START},
    {L"場面進行方法設定", L"場面ファイル設定", IDC_SNRY_SCENE_ADVANCE},
    {L"登場キャラクター追加", L"場面ファイル設定", IDC_SNRY_CAST_ADD},
    {L"コピーの作成", L"場面ファイル設定", IDC_SNRY_CAST_COPY, IDC_SNRY_CAST},
    {L"キャラクター台詞設定", L"場面ファイル設定", IDC_SNRY_CAST_LINES, IDC_SNRY_CAST},
    {L"キャラクター動作設定", L"場面ファイル設定", IDC_SNRY_CAST_MOTIONS, IDC_SNRY_CAST},
    {L"キャラクター登場/退場", L"場面ファイル設定", IDC_SNRY_CAST_ENTRY, IDC_SNRY_CAST},
    {L"キー、マウス割付", L"場面ファイル設定", IDC_SNRY_SCENE_KEYS},
};

constexpr DWORD kDrawn = 250;  // milliseconds in which a dialog that has come is drawn

struct Cost {
  double program;
  double server;
};

std::wstring processes[2];
HWND mainWindow = nullptr;
DWORD ownProcess = 0;  // the companion's, as Windows counts

double ThreadTime(const std::wstring& thread) {
  std::FILE* file = _wfopen((thread + L"\\schedstat").c_str(), L"r");
  char text[64] = "";
  if (file) {
    std::fgets(text, sizeof text, file);
    std::fclose(file);
  }
  return std::strtod(text, nullptr) / 1e6;
}

// Time on a core of all threads of a process.
double TimeOf(const std::wstring& process) {
  const std::wstring folder = L"Z:\\proc\\" + process + L"\\task\\";
  WIN32_FIND_DATAW entry;
  HANDLE search = FindFirstFileW((folder + L"*").c_str(), &entry);
  double time = 0;
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &entry)) {
    if (entry.cFileName[0] != L'.') time += ThreadTime(folder + entry.cFileName);
  }
  FindClose(search);
  return time;
}

Cost Now() {
  return {TimeOf(processes[0]), TimeOf(processes[1])};
}

struct Search {
  const wchar_t* title;
  HWND found;
};

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  wchar_t title[128] = L"";
  if (process != ownProcess || !IsWindowVisible(window)) return TRUE;
  GetWindowTextW(window, title, 128);
  if (std::wstring(title) != search.title) return TRUE;
  search.found = window;
  return FALSE;
}

HWND Find(const wchar_t* title) {
  Search search{title, nullptr};
  EnumWindows(LookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// Waits for a dialog to come, or to go.
void Await(const wchar_t* title, bool there) {
  for (int i = 0; i < 1000; ++i) {
    if ((Find(title) != nullptr) == there) return;
    Sleep(20);
  }
  std::fprintf(stderr, "%s: %ls\n", there ? "a dialog does not come" : "a dialog does not go", title);
  std::exit(1);
}

void ChooseFirst(HWND dialog, int list) {
  HWND control = GetDlgItem(dialog, list);
  SendMessageW(control, LB_SETCURSEL, 0, 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(list, LBN_SELCHANGE), reinterpret_cast<LPARAM>(control));
}

void Press(HWND dialog, int button) {
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, button)));
}

void Knock(const Door& door) {
  if (!door.from) {
    PostMessageW(mainWindow, WM_COMMAND, static_cast<WPARAM>(door.command), 0);
    return;
  }
  HWND dialog = Find(door.from);
  if (door.list != 0) ChooseFirst(dialog, door.list);
  Press(dialog, door.button);
}

Cost Open(const Door& door) {
  const Cost before = Now();
  Knock(door);
  Await(door.title, true);
  Sleep(kDrawn);
  const Cost after = Now();
  return {after.program - before.program, after.server - before.server};
}

void Close(const wchar_t* title) {
  HWND dialog = Find(title);
  if (!dialog) return;  // it went when the next one came
  Press(dialog, IDCANCEL);
  Await(title, false);
}

// Those that stand are closed until the one that a door is in is on top.
void CloseDownTo(std::vector<const wchar_t*>& open, const wchar_t* from) {
  while (!open.empty() && (!from || std::wstring(open.back()) != from)) {
    Close(open.back());
    open.pop_back();
  }
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Tell(const Door& door, const std::vector<Cost>& costs) {
  std::vector<double> program;
  std::vector<double> server;
  for (const Cost& cost : costs) {
    program.push_back(cost.program);
    server.push_back(cost.server);
  }
  char title[128];
  WideCharToMultiByte(CP_UTF8, 0, door.title, -1, title, sizeof title, nullptr, nullptr);
  std::printf("%s: %.1f ms, least %.1f ms; Wine's server %.1f ms\n", title, Median(program),
              *std::min_element(program.begin(), program.end()), Median(server));
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 4) return 2;
  const int rounds = std::max(_wtoi(arguments[1]), 1);
  for (int i = 0; i < 2; ++i) processes[i] = arguments[2 + i];
  mainWindow = FindWindowW(L"ミルレール", nullptr);
  GetWindowThreadProcessId(mainWindow, &ownProcess);
  std::vector<Cost> costs[std::size(kDoors)];
  std::vector<const wchar_t*> open;
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < std::size(kDoors); ++i) {
      CloseDownTo(open, kDoors[i].from);
      costs[i].push_back(Open(kDoors[i]));
      open.push_back(kDoors[i].title);
    }
    CloseDownTo(open, nullptr);
  }
  for (std::size_t i = 0; i < std::size(kDoors); ++i) Tell(kDoors[i], costs[i]);
  return 0;
}
