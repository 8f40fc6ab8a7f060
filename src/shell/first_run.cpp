// Command 2373: the first run on a machine.
#include <cstring>

#include "schedule/applications/application_list.h"
#include "services/commands.h"
#include "services/program.h"
#include "shell/command_line.h"
#include "shell/layout.h"
#include "shell/settings.h"
#include "shell/shell_commands.h"

void CommandFirstRun(Command) {
  if (std::memcmp(ProgramLine.CommandLine, "_1_", 3) != 0) return;
  LayoutDefault();
  Layout.LayoutChange = kLayoutAll;
  char program[600];
  RootPath(program, sizeof program, "\\スケジュール表\\予定表 千里万象.exe");
  ApliListSetFirst(program);
  ApliListSave();
  SysFileWrite();
  CommandSend(Command::LayoutApply);
}
