#include "services/sibling.h"

#include "platform/file.h"
#include "platform/process.h"
#include "services/panel_entry.h"

bool SiblingStart(const char* folder, const char* commandLine) {
  PanelLeave();
  FolderSetCurrent(folder);
  const ProcessHandle process = ProcessStart(commandLine);
  ProcessWaitIdle(process, 5000);
  ProcessClose(process);
  return process != nullptr;
}
