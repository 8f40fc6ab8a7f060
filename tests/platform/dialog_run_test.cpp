#include "platform/window.h"
#include "tests/support/desktop.h"
#include "tests/support/test_dialogs.h"

namespace {

std::vector<std::string> heard;

std::string Name(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      return "init";
    case EventKind::Command:
      return "command " + std::to_string(event.command);
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
    default:
      return "other";
  }
}

bool Listen(const Event& event) {
  heard.push_back(Name(event));
  if (event.kind == EventKind::Command && (event.command == 1 || event.command == 2)) {
    DialogEnd(event.window, static_cast<int>(event.command) * 10);
    return true;
  }
  return false;
}

class DialogRunTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    HeadlessResourceFile(MIRRELL_TEST_RES_FILE);
    heard.clear();
  }
};

TEST_F(DialogRunTest, ModalDialogRunsTheScriptUntilItEnds) {
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_TestControls);
    Press(TopDialog(), 1);
  });
  EXPECT_EQ(DialogRun(IDD_TestControls, nullptr, Listen), 10);
  EXPECT_EQ(heard, (std::vector<std::string>{"init", "size 400 320", "paint", "command 1", "destroy"}));
  EXPECT_EQ(TopDialog(), nullptr);
}

}  // namespace
