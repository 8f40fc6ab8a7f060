// Command 2373: the first run on a machine.
#include <cstring>

#include "character/layout.h"
#include "platform/window.h"
#include "schedule/application_list.h"
#include "shell/commands.h"
#include "shell/entry.h"
#include "shell/settings.h"
#include "shell/shell.h"

void CommandFirstRun(std::uint32_t) {
  if (std::memcmp(CommandLine, "_1_", 3) != 0) return;
  LayoutDefault();
  LayoutChange = kLayoutAll;
  char program[600];
  RootPath(program, sizeof program, "\\スケジュール表\\予定表 千里万象.exe");
  ApliListSetFirst(program);
  ApliListSave();
  SysFileWrite();
  SendCommand(hMainWnd, kLayoutApplyCommand);
}
