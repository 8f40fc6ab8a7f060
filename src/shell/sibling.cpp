#include "shell/sibling.h"

#include "platform/file.h"
#include "platform/process.h"
#include "shell/shell.h"

void SiblingStart(const char* folder, const char* commandLine) {
  MenuPanelState = 0;
  FolderSetCurrent(folder);
  const ProcessHandle process = ProcessStart(commandLine);
  ProcessWaitIdle(process, 5000);
  ProcessClose(process);
}
