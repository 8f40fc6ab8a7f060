#include "filetools/open/open_launch.h"

#include "filetools/open/open_selection.h"
#include "platform/file.h"
#include "platform/process.h"
#include "services/text.h"

namespace {

constexpr unsigned kIdleWait = 5000;
constexpr int kProgramSize = 600;
constexpr int kLineSize = kProgramSize + 4 * kOpnTextSize;

// kept: in a command line the program stands without quotes.
void CommandLineMake(char* line, std::size_t size) {
  const OpnSelectionRec& s = OpnSelection;
  if (s.progName[0] != '\0') {
    // kept: before a start the file's folder is current for a moment, is read back, and
    // gives way to the program's.
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

// kept: nothing else goes on until the started program is idle, for up to 5 seconds, and
// the current folder stays where it went.
void OpnLaunch() {
  char line[kLineSize];
  CommandLineMake(line, sizeof line);
  ProcessHandle process = ProcessStart(line);
  if (!process) return;
  ProcessWaitIdle(process, kIdleWait);
  ProcessClose(process);
}
