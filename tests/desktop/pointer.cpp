#include <windows.h>

#include "tests/desktop/pointer.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/desktop/companion.h"

namespace {

// Runs the tool that speaks to the display.
void Act(const std::string& arguments) {
  std::string line = "Z:\\usr\\bin\\xdotool " + arguments;
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  ASSERT_TRUE(CreateProcessA("Z:\\usr\\bin\\xdotool", line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                             nullptr, &startup, &process))
      << "xdotool cannot be started";
  WaitForSingleObject(process.hProcess, 5000);
  CloseHandle(process.hProcess);
  CloseHandle(process.hThread);
}

}  // namespace

void PointerTo(int x, int y) {
  Act("mousemove " + std::to_string(x) + " " + std::to_string(y));
}

void PointerAway() {
  constexpr int kCorner = 2;
  PointerTo(kCorner, kCorner);
  // Where no window of a Windows program is, none is told of the move.
  SetCursorPos(kCorner, kCorner);
}

void PointerClick() {
  Act("click 1");
}

void PointerDoubleClick() {
  Act("click --repeat 2 --delay 60 1");
}

void PointerHold(bool down) {
  Act(down ? "mousedown 1" : "mouseup 1");
}

void PointerWheel(int notches) {
  const std::string button = notches > 0 ? "4" : "5";
  Act("click --repeat " + std::to_string(notches > 0 ? notches : -notches) + " --delay 30 " + button);
}

void KeyPress(const char* name) {
  Act(std::string("key ") + name);
}

void KeysType(const char* text) {
  Act(std::string("type --delay 30 ") + text);
}
