// The real program is sent every command of the table in any order, and each dialog, box
// and menu that comes of it is left again, by OK, Cancel, Escape or the sign in its caption.
// Too long for every day: scripts/soak.sh runs it.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "services/commands.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr int kRest = 100;  // sends until everything is closed and counted
constexpr unsigned kPatience = 120000;
constexpr int kAttempts = 600;  // to have what is open closed

#define COMMAND(number, name, shownName, handler) Command::name,
constexpr Command kCommands[] = {
#include "services/command_table.inc"
};
#undef COMMAND

// Left out, as it ends the program at once. The box of Command::Exit is only ever cancelled.
constexpr Command kEnds = Command::Close;
constexpr const wchar_t* kExitBox = L"プログラム終了";

int FromEnvironment(const char* name, int otherwise) {
  const char* value = std::getenv(name);
  return value ? std::atoi(value) : otherwise;
}

struct Search {
  DWORD process;
  std::vector<HWND> found;
};
BOOL CALLBACK Take(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == search.process) search.found.push_back(window);
  return TRUE;
}

class AnyCommandTest : public testing::Test {
 protected:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  Command Any() {
    for (;;) {
      const Command command = kCommands[Below(static_cast<int>(std::size(kCommands)))];
      if (command != kEnds) return command;
    }
  }

  // What of the program is on the screen, but for the stage; the topmost first.
  std::vector<HWND> Shown() const {
    Search search{companion_.ProcessId(), {}};
    EnumWindows(Take, reinterpret_cast<LPARAM>(&search));
    std::erase_if(search.found,
                  [&](HWND window) { return window == companion_.Window() || !IsWindowVisible(window); });
    return search.found;
  }

  // Every window of the program, hidden ones too: what to read when there is one too many.
  std::string All() const {
    Search search{companion_.ProcessId(), {}};
    EnumWindows(Take, reinterpret_cast<LPARAM>(&search));
    std::string text;
    for (const HWND window : search.found) {
      wchar_t name[64] = L"";
      GetClassNameW(window, name, 64);
      RECT at{};
      GetWindowRect(window, &at);
      text += "\n  " + Narrow(name) + " \"" + Narrow(TextOf(window)) + "\" " +
              std::to_string(at.right - at.left) + " x " + std::to_string(at.bottom - at.top) +
              (IsWindowVisible(window) ? "" : " hidden") + (IsWindowEnabled(window) ? "" : " off");
    }
    return text;
  }

  static bool IsMenu(HWND window) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return std::wstring(name) == L"#32768";
  }
  // A modal window has switched off the one that it belongs to.
  static bool IsModal(HWND window) {
    const HWND owner = GetWindow(window, GW_OWNER);
    return owner && IsWindowEnabled(window) && !IsWindowEnabled(owner);
  }

  // A sent command is carried out before whatever is sent after it, or has opened something
  // modal by then.
  void Send(Command command) {
    SendNotifyMessageW(companion_.Window(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    companion_.Value(kShowTicks);
  }

  void Ticks() {
    for (int i = 0; i < 8; ++i) PostMessageW(companion_.Window(), WM_TIMER, 1, 0);
  }

  void Leave(HWND window) {
    if (IsMenu(window)) {
      PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
      return;
    }
    const bool exitBox = TextOf(window) == kExitBox;
    switch (exitBox ? 1 : Below(5)) {
      case 0:
        PostMessageW(window, WM_COMMAND, IDOK, 0);
        break;
      case 1:
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        break;
      case 2:
        PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
        break;
      case 3:
        PostMessageW(window, WM_CLOSE, 0, 0);
        break;
      default:
        PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(Below(2) == 0 ? IDYES : IDNO), 0);
        break;
    }
  }

  // Leaves what is modal, until nothing is. False when something stays.
  bool LeaveAll() {
    for (int attempt = 0; attempt < kAttempts && companion_.Runs(); ++attempt) {
      bool any = !IsWindowEnabled(companion_.Window());
      const int before = left_;
      for (const HWND window : Shown()) {
        if (!IsMenu(window) && !IsModal(window)) continue;
        any = true;
        Leave(window);
        ++left_;
      }
      if (!any) return true;
      // A dialog is shown when nothing else waits for the program.
      if (left_ == before) Sleep(10);
      Ticks();
      companion_.Value(kShowTicks);
    }
    for (const HWND window : Shown()) stuck_ += L"[" + TextOf(window) + L"]";
    return false;
  }

  // Closes the windows that stand on the desktop too. False when one stays.
  bool CloseAll() {
    for (int attempt = 0; attempt < 40; ++attempt) {
      if (!LeaveAll()) return false;
      const std::vector<HWND> shown = Shown();
      if (shown.empty()) return true;
      for (const HWND window : shown) PostMessageW(window, WM_CLOSE, 0, 0);
      Ticks();
      companion_.Value(kShowTicks);
      Sleep(5);
    }
    for (const HWND window : Shown()) stuck_ += L"[" + TextOf(window) + L"]";
    return false;
  }

  // Brushes, pens, canvases, windows, timers, files and searches: the rest depends on what
  // pictures are loaded.
  std::vector<int> Counts() const {
    const std::vector<int> live = companion_.Live();
    return {live[0], live[1], live[5], live[6], live[7], live[9], live[10]};
  }

  static std::string Narrow(const std::wstring& text) {
    char bytes[512] = "";
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes, sizeof bytes - 1, nullptr, nullptr);
    return bytes;
  }

  std::mt19937 random_;
  Companion companion_;
  std::wstring stuck_;
  int left_ = 0;
};

}  // namespace

TEST_F(AnyCommandTest, DISABLED_EveryCommandInAnyOrderLeavesTheProgramStandingAndNothingBehind) {
  const int sends = FromEnvironment("MIRRELL_SOAK_SENDS", 2000);
  random_.seed(static_cast<unsigned>(FromEnvironment("MIRRELL_SOAK_SEED", 1)));
  PointerAway();
  companion_.Start();
  std::vector<int> counts;
  for (int sent = 1; sent <= sends; ++sent) {
    const Command command = Any();
    Send(command);
    if (Below(4) == 0) Send(Any());  // over what has opened
    if (Below(3) == 0) Ticks();
    ASSERT_TRUE(LeaveAll()) << "after command " << static_cast<int>(command) << ", send " << sent << ": "
                            << Narrow(stuck_);
    ASSERT_TRUE(companion_.Runs()) << "after command " << static_cast<int>(command) << ", send " << sent;
    if (sent % kRest != 0) continue;
    ASSERT_TRUE(CloseAll()) << Narrow(stuck_);
    if (counts.empty()) counts = Counts();
    // Somebody may just have begun to walk, and be one of thirty who open the files of a group.
    WaitFor(
        [&] {
          Ticks();  // a dialog that has ended goes when the next message comes
          return CloseAll() && Counts() == counts;
        },
        kPatience);
    ASSERT_EQ(Counts(), counts) << "after send " << sent << All();
  }
  std::printf("%d sends, %d times something was left\n", sends, left_);
  const std::vector<int> live = companion_.Live();
  for (const int count : live) std::printf("%d ", count);
  std::printf("\n");
  EXPECT_EQ(companion_.Close(), 0);
  std::vector<int> end = companion_.LiveAtEnd();
  ASSERT_EQ(end.size(), live.size());
  for (const int kind : {0, 1, 2, 3, 4, 5, 7, 9, 10})
    EXPECT_EQ(end[static_cast<std::size_t>(kind)], 0) << kind;
}
