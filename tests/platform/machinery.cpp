#include "tests/platform/machinery.h"

#include "platform/window.h"
#include "tests/support/test_dialogs.h"

std::vector<std::string> heard;
std::function<bool(const Event&)> reaction;

namespace {

std::string CommandName(const Event& event) {
  std::string name = "command " + std::to_string(event.command);
  if (!event.fromControl) return name;
  switch (event.notice) {
    case Notice::Click:
      return name + " click";
    case Notice::SelectChange:
      return name + " select";
    case Notice::DoubleClick:
      return name + " double";
    case Notice::EditChange:
      return name + " edit";
    case Notice::Other:
      break;
  }
  return name + " other";
}

std::string NameOf(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      return "init";
    case EventKind::Command:
      return CommandName(event);
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
  if (event.kind != EventKind::Command || event.command == 0 || event.command > 2) return false;
  DialogEnd(event.window, static_cast<int>(event.command) * 10);
  return true;
}

void MachineryTest::SetUp() {
  DesktopTest::SetUp();
  HeadlessResourceFile(MIRRELL_TEST_RES_FILE);
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
