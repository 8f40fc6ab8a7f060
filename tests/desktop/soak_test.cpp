// An hour of the real program at a quick pace: what it holds at the end is what it
// held at the beginning.
#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>

#include "services/commands.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/data_set.h"
#include "tests/desktop/dialogs.h"
#include "tests/desktop/pointer.h"

namespace {

constexpr int kTicks = 120000;
constexpr int kRounds = 24;
constexpr int kWarmRounds = 3;
constexpr int kOk = 1;
constexpr int kCancel = 2;

std::size_t PrivateMemory(DWORD processId) {
  HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, processId);
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  const BOOL good = GetProcessMemoryInfo(process, &counters, sizeof counters);
  CloseHandle(process);
  return good ? counters.PagefileUsage : 0;
}

class SoakTest : public testing::Test {
 protected:
  // Opens a dialog by a command and leaves it by one of its buttons.
  void Visit(unsigned command, const std::wstring& title, int button) {
    companion_.Post(command);
    const HWND dialog = companion_.Dialog(title);
    ASSERT_TRUE(dialog) << command;
    Ticks(7);
    ASSERT_TRUE(EndBy(dialog, button)) << command;
  }

  // The pointer touches the stage, as a message, and has gone again.
  void Panel() {
    PostMessageW(companion_.Window(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(WaitFor([&] { return companion_.Value(kShowMenuPanelState) == 1; }));
    ASSERT_TRUE(TickUntil(companion_, [&] { return companion_.Value(kShowMenuPanelState) == 0; }));
  }

  // A walk to its end; there is no file to open then.
  void Walk() {
    companion_.Post(static_cast<unsigned>(Command::OpenWalk));
    ASSERT_TRUE(WaitFor([&] { return companion_.Value(kShowOpeningState) == 1; }));
    ASSERT_TRUE(TickUntil(companion_, [&] { return companion_.Value(kShowOpeningState) == 0; }));
  }

  void Ticks(int count) {
    companion_.Tick(count);
    driven_ += count;
  }

  void Round() {
    constexpr unsigned kClockNotice = 2336;
    constexpr unsigned kClock = 2254;
    constexpr unsigned kCalendar = 2379;
    Panel();
    Walk();
    Visit(kClockNotice, L"時計 アラーム", kOk);
    Visit(2281, L"ミルレールキャラクタ", kCancel);
    Visit(2282, L"アラームキャラクタ", kOk);
    Visit(2283, L"レイアウト設定", kCancel);
    Visit(1914, L"フォルダースコープ", 3);
    companion_.Send(kClock);
    companion_.Send(kCalendar);
  }

  Companion companion_;
  int driven_ = 0;
};

}  // namespace

TEST_F(SoakTest, AnHourOfTicksPanelsWalksAndNoticesEndsWithWhatItBeganWith) {
  SettingsChange(companion_)
      .LowFirst16(kCharaSetAt + kWalkPeriodAt, 2)
      .LowFirst16(kCharaSetAt + kWalkCountAt, 6)
      .LowFirst16(kCharaSetAt + kEndWaitAt, 4);
  PointerAway();
  // No history file yet: the dialog that looks for it begins one, with the walk on.
  companion_.Start();
  Visit(1900, L"ファイル オープン", kCancel);
  for (int i = 0; i < kWarmRounds; ++i) {
    Round();
    ASSERT_FALSE(HasFatalFailure());
    Ticks(3000);
  }
  driven_ = 0;
  const std::vector<int> live = companion_.Live();
  const std::size_t memory = PrivateMemory(companion_.ProcessId());
  ASSERT_GT(memory, 0U);
  for (int i = 0; i < kRounds; ++i) {
    Round();
    ASSERT_FALSE(HasFatalFailure()) << i;
    Ticks(kTicks / kRounds);
  }
  EXPECT_GE(driven_, kTicks);
  EXPECT_EQ(companion_.Live(), live);
  // The windows' own buffers come and go in whole pages.
  constexpr std::size_t kSlack = 1024 * 1024;
  EXPECT_LT(PrivateMemory(companion_.ProcessId()), memory + kSlack) << "from " << memory;
  EXPECT_EQ(companion_.Close(), 0);
}
