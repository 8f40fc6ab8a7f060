#include "services/sibling.h"

#include "platform/file.h"
#include "platform/process.h"
#include "shell/panel.h"

void SiblingStart(const char* folder, const char* commandLine) {
  Panel.MenuPanelState = 0;
  FolderSetCurrent(folder);
  const ProcessHandle process = ProcessStart(commandLine);
  ProcessWaitIdle(process, 5000);
  ProcessClose(process);
}
