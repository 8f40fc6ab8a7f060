#include "filetools/open/open_commands.h"

#include "filetools/open/open_choice.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_launch.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_selection.h"
#include "filetools/open/open_walk.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

void TablesRead() {
  if (OpnHisLoad() != 0) {
    BoxTell(Program.hMainWnd, "オープンファイル履歴が失われました", "履歴ファイルの読み込みエラー");
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
  if (!OpnProgList.built) TablesRead();
  FileOpnGrpSetDlgRun();
  return 0;
}

}  // namespace

void CommandFileOpen(Command) {
  if (FeatureDialogRun(Feature::FileOpening, FileOpen) != 0) CommandSend(Command::OpenGroupSet);
}

void CommandOpenWalk(Command) {
  if (WalkStartOpen() != 0) CommandSend(Command::OpenLaunch);
}

void CommandOpenLaunch(Command) {
  if (OpnSelection.fileName[0] == '\0') return;  // nothing was chosen yet
  OpnLaunch();
  const bool changed = OpnHisUpdate();
  OpnRecordAdd();
  if (changed) OpnHisSave();
  FileOpnDialogRefresh();
}

void CommandOpenAddFile(Command) {
  FileOpnDialogAddFile();
}

void CommandOpenAddProgram(Command) {
  FileOpnDialogAddProgram();
}

void CommandOpenGroupSet(Command) {
  if (Dialogs.hToolDlg) return;  // FileOpnDialog is not left under a dialog of its own
  if (FileOpnDialogIsOpen()) {
    FileOpnDialogLeaveForGroups();
  } else {
    FeatureDialogRun(Feature::FileOpening, GroupSet);
  }
}
