// What the tests of the dialog machinery share: the small resource file, and a
// handler that writes down what it is told.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/desktop.h"

// What Listen was told, each event in short: "init", "command 7", "edited 7",
// "size 40 60", "paint", ...
extern std::vector<std::string> heard;

// What Listen does about an event; without one it ends a modal dialog at the
// buttons 1 and 2 with 10 and 20.
extern std::function<bool(const Event&)> reaction;

bool Listen(const Event& event);

using Names = std::vector<std::string>;

class MachineryTest : public DesktopTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Opens the dialog with one of everything as a modeless one, shown.
  static WindowHandle OpenControls();
  // The one failure there is, taken back; "(none)" or "(several)" otherwise.
  static std::string TheFailure();
};
