#include "filetools/filetools_commands.h"

#include "platform/window.h"
#include "shell/shell.h"

namespace {

// A tool that has no dialog yet: all that is left of its entry is that the panel
// closes.
void NoDialog() {
  SendClose(hDiskMenu);
  MenuPanelState = 0;
}

}  // namespace

void CommandFileOpen(std::uint32_t) {
  NoDialog();
}
void CommandOpenAddFile(std::uint32_t) {}
void CommandOpenAddProgram(std::uint32_t) {}
void CommandOpenGroupSet(std::uint32_t) {}
void CommandOpenLaunch(std::uint32_t) {}
