#include "tests/platform/machinery.h"

#include "platform/window.h"
#include "tests/support/places.h"
#include "tests/support/test_dialogs.h"

std::vector<std::string> heard;
std::function<bool(const Event&)> reaction;

namespace {

std::string NameOf(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      return "init";
    case EventKind::Pressed:
      return "pressed " + std::to_string(event.id);
    case EventKind::Chosen:
      return "chosen " + std::to_string(event.id);
    case EventKind::Opened:
      return "opened " + std::to_string(event.id);
    case EventKind::Edited:
      return "edited " + std::to_string(event.id);
    case EventKind::Command:
      return "command " + std::to_string(event.command);
    case EventKind::Apply:
      return "apply";
    case EventKind::Paint:
      return "paint";
    case EventKind::Size:
      return "size " + std::to_string(event.x) + " " + std::to_string(event.y);
    case EventKind::Close:
      return "close";
    case EventKind::Destroy:
      return "destroy";
    case EventKind::Timer:
      return "timer";
    case EventKind::Char:
      return "char " + std::to_string(event.key);
    case EventKind::MouseMove:
      return "move " + std::to_string(event.x) + " " + std::to_string(event.y);
    case EventKind::VScroll:
      return "scroll " + std::to_string(event.scrollPosition);
    default:
      return "other";
  }
}

}  // namespace

bool Listen(const Event& event) {
  heard.push_back(NameOf(event));
  if (reaction) return reaction(event);
  if (event.kind != EventKind::Pressed || event.id == 0 || event.id > 2) return false;
  DialogEnd(event.window, event.id * 10);
  return true;
}

void MachineryTest::SetUp() {
  DesktopTest::SetUp();
  HeadlessResourceFile(kTestResourceFile);
  heard.clear();
  reaction = nullptr;
}

void MachineryTest::TearDown() {
  reaction = nullptr;
  DesktopTest::TearDown();
}

WindowHandle MachineryTest::OpenControls() {
  const WindowHandle dialog = DialogOpen(IDD_TestControls, nullptr, Listen);
  EXPECT_NE(dialog, nullptr);
  WindowShow(dialog, true);
  heard.clear();
  return dialog;
}

std::string MachineryTest::TheFailure() {
  const std::vector<std::string> failures = HeadlessTakeFailures();
  if (failures.empty()) return "(none)";
  return failures.size() == 1 ? failures[0] : "(several)";
}
