// The process entry: the main window, and the message loop.
#include "platform/entry.h"

#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/program_ids.h"
#include "services/program.h"
#include "shell/command_line.h"
#include "shell/main_window.h"

int ProcessEntry(const char* commandLine, int showMode) {
  char title[100];
  char className[100];
  StringLoad(IDS_TITLE, title, sizeof title);
  StringLoad(IDR_MAIN, className, sizeof className);
  const MainWindowClass mainClass{className, title, IDI_MAIN, IDI_SMALL, IDR_MAIN, MainWindowProc};
  const WindowHandle window = MainWindowCreate(mainClass, 500, 300, 120, 160);
  if (!window || Program.Quitting) return 0;
  WindowShowFirst(window, showMode);
  CommandLineKeep(commandLine);
  return MessageLoop(window, IDR_MAIN);
}
