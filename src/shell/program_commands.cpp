// Commands about the program itself and the programs beside it.
#include "platform/dialog.h"
#include "platform/process.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/sibling.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"

void CommandCloseProgram(Command) {
  SendClose(Program.hMainWnd);
}

void CommandExit(Command) {
  PanelWindowClose();
  const BoxAnswer answer = MessageBoxRun(Program.hMainWnd, "プログラムを終了します。", "プログラム終了",
                                         BoxButtons::OkCancel, BoxIcon::Question);
  if (answer == BoxAnswer::Ok) {
    SendClose(Program.hMainWnd);
  } else {
    PanelStateClear();
  }
}

void CommandFocusStage(Command) {
  WindowSetFocus(Program.hMainWnd);
}

void CommandDropPopup(Command) {
  MenuPopupEnd();
}

// kept: the commands of two flapping bats are known and open nothing.
void CommandBat(Command) {}

namespace {
struct Sibling {
  Command command;
  const char* commandLine;
};
constexpr Sibling kSiblings[] = {
    {Command::CharacterEditor, "REALM_EDITOR.exe"},
    {Command::ScenarioWriter, "MOVEPLAY.exe"},
    {Command::Manual, "使用手引.exe"},
};
}  // namespace

void CommandStartSibling(Command command) {
  for (const Sibling& sibling : kSiblings) {
    if (sibling.command == command) SiblingStart(Program.RootFolder, sibling.commandLine);
  }
}
