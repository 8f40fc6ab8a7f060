#include "filetools/open/open_launch.h"

#include "filetools/open/open_choice.h"
#include "filetools/open/open_commands.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_state.h"
#include "platform/file.h"
#include "platform/process.h"
#include "services/commands.h"
#include "services/text.h"

namespace {

constexpr unsigned kIdleWait = 5000;
constexpr int kProgramSize = 600;
constexpr int kLineSize = kProgramSize + 4 * kOpnTextSize;

// kept: the program stands without quotes.
void CommandLineMake(char* line, std::size_t size) {
  const OpnSelectionRec& s = OpnSelection;
  if (s.progName[0] != '\0') {
    // kept: the file's folder is current for a moment, is read back, and gives way to
    // the program's.
    char folder[kProgramSize];
    FolderSetCurrent(s.filePath);
    FolderGetCurrent(folder, sizeof folder);
    FolderSetCurrent(s.progPath);
    TextFormat(line, size, "%s%s \"%s%s\"", s.progPath, s.progName, s.filePath, s.fileName);
    return;
  }
  char program[kProgramSize] = "";
  AssociationFind(s.fileName, s.filePath, program, sizeof program);
  FolderSetCurrent(s.progPath);
  TextFormat(line, size, "%s \"%s%s\"", program, s.filePath, s.fileName);
}

}  // namespace

void OpnLaunch() {
  char line[kLineSize];
  CommandLineMake(line, sizeof line);
  ProcessHandle process = ProcessStart(line);
  if (!process) return;
  ProcessWaitIdle(process, kIdleWait);
  ProcessClose(process);
}

void CommandOpenLaunch(Command) {
  if (OpnSelection.fileName[0] == '\0') return;  // nothing was chosen yet
  OpnLaunch();
  const bool changed = OpnHisUpdate();
  OpnRecordAdd();
  if (changed) OpnHisSave();
  FileOpnDialogRefresh();
}
