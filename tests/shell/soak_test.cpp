// The whole program under a user who does anything: every numbered command in any order,
// with ticks, pointer and clock between, dialogs opened over dialogs, boxes answered
// either way. Nothing of it may fail, nothing may be left.
//
//   MIRRELL_SOAK_SENDS=20000 MIRRELL_SOAK_SEED=7 shell_tests --gtest_filter='SoakTest.Every*'
//
// sends more than the test does; bench/README.md tells what came of it. With
// MIRRELL_SOAK_FAULTS set a call of the system fails now and then.
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "platform/posix/faults.h"
#include "platform/posix/posix_paths.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "services/program.h"
#include "services/random.h"
#include "shell/shutdown.h"
#include "shell/states.h"
#include "tests/support/places.h"
#include "tests/support/program.h"
#include "tests/support/wanderer.h"

namespace {

namespace fs = std::filesystem;

constexpr int kSends = 1500;
constexpr int kSeed = 20261121;
constexpr int kSession = 400;  // sends until the program is ended and started anew
constexpr int kRest = 50;      // sends until everything is closed and counted

int FromEnvironment(const char* name, int otherwise) {
  const char* value = std::getenv(name);
  return value ? std::atoi(value) : otherwise;
}

class SoakTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    seed_ = static_cast<std::uint32_t>(FromEnvironment("MIRRELL_SOAK_SEED", kSeed));
    // The only drives are two folders of the test's own.
    fs::create_directory(Folder() + "/../z");
    fs::create_directory(Folder() + "/../desktop");
    PosixDriveSet('Z', fs::canonical(Folder() + "/../z").string());
    PosixDesktopSet(fs::canonical(Folder() + "/../desktop").string());
    const std::string make = std::string(kNewdataProgram) + " " + Folder() + " >/dev/null 2>&1";
    ASSERT_EQ(std::system(make.c_str()), 0);
    for (const char* name : {"a.txt", "b.bmp", "c"}) PutFile(std::string("C:\\desktop\\") + name, "x");
  }

  void Begin() {
    FolderBack();
    StatesReset();
    HeadlessReset();
    FaultClear();
    before_ = LiveText(DiagnosticsLive());
    TestClockSet({2026, 11, 21, 6, 9, 30, 15, 0});
    StartProgram();
    RandomSeed(seed_);
    // No server is asked.
    FaultArmFrom(FaultKind::Socket, 1 + user_->Below(2));
    FreeUserSet(user_);
    settled_.clear();
  }

  void End() {
    FolderBack();
    if (!QuitWasAsked()) Shutdown();
    StatesReset();
    MainWindowDrop();
    Look();
    for (const WindowHandle window : OpenWindows()) {
      ADD_FAILURE() << "dialog " << TemplateOf(window) << " is still open " << user_->Trail();
    }
    HeadlessReset();
    EXPECT_EQ(LiveText(DiagnosticsLive()), before_) << user_->Trail();
  }

  // Closes what stands on the desktop, and lets what walks come to its end.
  void CloseAll() {
    for (int round = 0; round < 60 && !QuitWasAsked(); ++round) {
      if (OpenWindowCount() == 1 && round > 2) return;
      for (const WindowHandle window : OpenWindows()) {
        if (window != Program.hMainWnd && WindowIsOpen(window)) SendClose(window);
      }
      user_->Wait(20);
    }
    EXPECT_EQ(OpenWindowCount(), 1) << TemplateOf(OpenWindows().back()) << " " << user_->Trail();
  }

  // With everything closed as much is there as there was the time before.
  void Rest() {
    CloseAll();
    if (QuitWasAsked()) return;
    LiveObjects live = DiagnosticsLive();
    if (std::getenv("MIRRELL_SOAK_COUNTS")) std::printf("%d %s\n", user_->Sends(), LiveText(live).c_str());
    // These depend on what character, clock and schedule are chosen; they are counted when
    // the program has ended.
    live.bitmaps = live.blocks = live.fonts = live.regions = 0;
    if (settled_.empty()) settled_ = LiveText(live);
    EXPECT_EQ(LiveText(live), settled_) << user_->Trail();
  }

  // Whether anything has gone wrong.
  void Look() {
    for (const std::string& failure : HeadlessTakeFailures())
      ADD_FAILURE() << failure << " " << user_->Trail();
    for (const std::string& stuck : user_->Stuck()) ADD_FAILURE() << "cannot be left: " << stuck;
  }

  void FolderBack() const { fs::current_path(Folder()); }

  // One of the next calls of some kind fails, but for those of the network, all of which do.
  void Fault() const {
    static const bool faults = std::getenv("MIRRELL_SOAK_FAULTS") != nullptr;
    if (!faults || !user_->OneIn(3)) return;
    const auto kind = static_cast<FaultKind>(user_->Below(static_cast<int>(FaultKind::Count)));
    if (kind != FaultKind::Socket) FaultArm(kind, 1 + user_->Below(6));
  }

  void Step() {
    Fault();
    user_->SendAny();
    if (user_->OneIn(2)) user_->Wait(1 + user_->Below(30));
    for (int i = user_->Below(4); i > 0 && !QuitWasAsked(); --i) user_->PointAnywhere();
    if (user_->OneIn(10)) TestClockGo(static_cast<unsigned>(user_->Below(3600 * 1000)));
    DrawingClear();
    Look();
  }

  std::uint32_t seed_ = 0;
  Wanderer* user_ = nullptr;
  std::string before_;
  std::string settled_;
};

TEST_F(SoakTest, EveryCommandInAnyOrderLeavesNothingBehind) {
  const int sends = FromEnvironment("MIRRELL_SOAK_SENDS", kSends);
  Wanderer user(seed_);
  user_ = &user;
  while (user.Sends() < sends && !HasFailure()) {
    Begin();
    const int end = std::min(user.Sends() + kSession, sends);
    int rest = user.Sends() + kRest;
    while (user.Sends() < end && !QuitWasAsked() && !HasFailure()) {
      Step();
      if (user.Sends() < rest || QuitWasAsked()) continue;
      Rest();
      rest = user.Sends() + kRest;
    }
    End();
  }
  std::printf("%d sends, %d deeds\n", user.Sends(), user.Deeds());
}

}  // namespace
