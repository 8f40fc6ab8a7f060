#include "filetools/filetools_commands.h"

#include "filetools/open_choice.h"
#include "filetools/open_dialogs.h"
#include "filetools/open_groups.h"
#include "filetools/open_history.h"
#include "filetools/open_programs.h"
#include "platform/window.h"
#include "shell/boxes.h"
#include "shell/feature_dialog.h"
#include "shell/shell.h"

namespace {

constexpr int kFuncNo = 1;
constexpr std::uint32_t kGroupSetCommand = 2008;

void TablesRead() {
  if (OpnHisLoad() != 0) {
    BoxTell(hMainWnd, "オープンファイル履歴が失われました", "履歴ファイルの読み込みエラー");
    OpnHisReset();
  }
  OpnBuildProgList();
  OpnGroupLoad();
  OpnWorkReset();
}

int FileOpen() {
  TablesRead();
  return FileOpnDialogRun() ? 1 : 0;
}

int GroupSet() {
  // Without FileOpnDialog before it, an empty table would be saved over the file.
  if (!OpnProgListBuilt) TablesRead();
  FileOpnGrpSetDlgRun();
  return 0;
}

}  // namespace

void CommandFileOpen(std::uint32_t) {
  if (FeatureDialogRun(kFuncNo, FileOpen) != 0) SendCommand(hMainWnd, kGroupSetCommand);
}

void CommandOpenAddFile(std::uint32_t) {
  FileOpnDialogAddFile();
}

void CommandOpenAddProgram(std::uint32_t) {
  FileOpnDialogAddProgram();
}

void CommandOpenGroupSet(std::uint32_t) {
  if (hToolDlg) return;  // FileOpnDialog is not left under a dialog of its own
  if (FileOpnDialogIsOpen()) {
    FileOpnDialogLeaveForGroups();
  } else {
    FeatureDialogRun(kFuncNo, GroupSet);
  }
}
