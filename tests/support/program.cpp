#include "tests/support/program.h"

#include <map>

#include "platform/entry.h"
#include "platform/window.h"
#include "services/program.h"
#include "shell/shutdown.h"
#include "shell/states.h"
#include "shell/tick.h"
#include "tests/support/places.h"
#include "tests/support/test_dialogs.h"

namespace {

std::vector<std::string> heard;
std::map<WindowHandle, std::string> names;  // of the listeners that have one, with a blank
bool started = false;
bool everything = false;   // main window and programs are listened to
std::size_t programs = 0;  // that were heard of

void Hear(const std::string& text) {
  for (; everything && programs < ProcessesStarted().size(); ++programs) heard.emplace_back("start");
  heard.push_back(text);
}

bool Listen(const Event& event) {
  const std::string name = names.contains(event.window) ? names[event.window] : "";
  switch (event.kind) {
    case EventKind::Pressed:
      Hear(name + "pressed " + std::to_string(event.id));
      break;
    case EventKind::Command:
      Hear(name + "command " + std::to_string(event.command));
      break;
    case EventKind::Paint:
      Hear(name + "paint");
      break;
    case EventKind::Close:
      Hear(name + "close");
      break;
    default:
      break;
  }
  return everything && event.kind == EventKind::Close;  // else a dialog is sent 2
}

void HearMain(const Event& event) {
  if (everything && event.kind == EventKind::Command && event.window == Program.hMainWnd)
    Hear("main " + std::to_string(event.command));
}

}  // namespace

void ProgramTest::SetUp() {
  DesktopTest::SetUp();
  heard.clear();
  names.clear();
  everything = false;
  started = false;
}

void ProgramTest::TearDown() {
  if (started && !QuitWasAsked()) Shutdown();
  StatesReset();
  DesktopTest::TearDown();
}

void ProgramTest::StartProgram(const char* commandLine, int showMode) {
  started = true;
  Overhear(HearMain);
  LeaveNextLoop();
  ProcessEntry(commandLine, showMode);
  ASSERT_NE(Program.hMainWnd, nullptr);
}

void Ticks(int times) {
  for (int i = 0; i < times; ++i) MainTick();
}

WindowHandle OpenListener(const char* name) {
  HeadlessResourceFile(kTestResourceFile);
  const WindowHandle dialog = DialogOpen(IDD_TestControls, nullptr, Listen);
  HeadlessResourceFile(kResourceFile);
  heard.clear();
  if (name[0] != '\0') names[dialog] = std::string(name) + " ";
  return dialog;
}

void ListenToEverything() {
  everything = true;
  programs = ProcessesStarted().size();
}

std::vector<std::string> TakeHeard() {
  std::vector<std::string> taken;
  taken.swap(heard);
  return taken;
}
