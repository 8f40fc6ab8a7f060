// A schedule application for the tests to have started: it reads the hand-over file of its
// folder, and writes its own answers there when it finds a file that asks for one.
//
//   seen        written at the start: the command line, a zero, and the hand-over file
//   execute     its schedule, a path in code page 932, is to be carried out: state 1, mode 1
//   clear       nothing of its is to be carried out: state 1, mode 0
//   end         the same schedule, and it has ended: state 2, mode 1; then it ends
//
// Each of the last three is deleted when it has been answered.
#include <windows.h>

#include <string>
#include <vector>

namespace {

constexpr std::size_t kPathSize = 600;
constexpr std::size_t kStateAt = 998;
constexpr std::size_t kModeAt = 999;
constexpr UINT kLookEvery = 20;  // milliseconds
constexpr wchar_t kHandOff[] = L"SclApliStUp.svt";

std::wstring Folder() {
  wchar_t own[MAX_PATH * 2];
  GetModuleFileNameW(nullptr, own, MAX_PATH * 2);
  const std::wstring path = own;
  return path.substr(0, path.rfind(L'\\') + 1);
}

bool Read(const std::wstring& name, std::string* bytes) {
  HANDLE file = CreateFileW((Folder() + name).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  bytes->resize(GetFileSize(file, nullptr));
  DWORD got = 0;
  ReadFile(file, bytes->data(), static_cast<DWORD>(bytes->size()), &got, nullptr);
  CloseHandle(file);
  return got == bytes->size();
}

void Write(const std::wstring& name, const std::string& bytes, DWORD how) {
  HANDLE file =
      CreateFileW((Folder() + name).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, how, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD put = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &put, nullptr);
  CloseHandle(file);
}

void Seen() {
  std::string handOff;
  Read(kHandOff, &handOff);
  std::string line(1000, '\0');
  line.resize(static_cast<std::size_t>(
      WideCharToMultiByte(932, 0, GetCommandLineW(), -1, line.data(), 1000, nullptr, nullptr)));
  Write(L"seen.part", line + handOff, CREATE_ALWAYS);
  MoveFileW((Folder() + L"seen.part").c_str(), (Folder() + L"seen").c_str());
}

bool Answer(const wchar_t* asked, char state, char mode) {
  std::string schedule;
  if (!Read(asked, &schedule) || !DeleteFileW((Folder() + asked).c_str())) return false;
  schedule.resize(kPathSize);
  schedule.resize(kStateAt + 2);
  schedule[kStateAt] = state;
  schedule[kModeAt] = mode;
  Write(kHandOff, schedule, OPEN_EXISTING);
  return true;
}

void Look() {
  Answer(L"execute", 1, 1);
  Answer(L"clear", 1, 0);
  if (Answer(L"end", 2, 1)) PostQuitMessage(0);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  Seen();
  SetTimer(nullptr, 0, kLookEvery, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.message == WM_TIMER) Look();
  }
  return 0;
}
