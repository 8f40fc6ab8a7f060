// FileOpnDialog, "ファイル オープン".

#include "filetools/open/open_choice.h"
#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_walk.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/program.h"

namespace {

constexpr int kCancelled = 2;
constexpr int kLeftForGroups = 2008;

// What the lists show is chosen in OpnWork too.
void ChoiceTake() {
  OpnWorkTake(ListSelected(Dialogs.hMenuDlg, IDC_OPN_FILE), ListSelected(Dialogs.hMenuDlg, IDC_OPN_PROGRAM));
}

void FileChosen() {
  OpnWorkChoose(ListSelected(Dialogs.hMenuDlg, IDC_OPN_FILE));
  ListSelect(Dialogs.hMenuDlg, IDC_OPN_PROGRAM, OpnWork.progSel);
}

void Open() {
  ChoiceTake();
  if (!OpnSelectionFromLists(Dialogs.hMenuDlg)) return;
  const WindowHandle dialog = Dialogs.hMenuDlg;
  CommandSend(Command::OpenWalk);
  MenuDialogEnd(dialog, 0);
}

void TakeGroup() {
  if (!TakeOpnGrpSetDlgRun(Dialogs.hMenuDlg)) return;
  WalkStartGroup();
  MenuDialogEnd(Dialogs.hMenuDlg, 0);
}

void ClearRecord() {
  if (BoxAsk(Dialogs.hMenuDlg, "オープン記録を全てクリアします。よろしいですか ?",
             "オープン記録クリアの確認")) {
    OpnRecordClear();
  }
}

void DeleteHistory() {
  if (!DelListOpnFileHisDlgRun(Dialogs.hMenuDlg)) return;
  OpnHisSave();
  OpnBuildProgList();
  OpnWorkChoose(0);
  FileOpnDialogRefresh();
}

void Animation() {
  SetOpnFileAnimeDlgRun(Dialogs.hMenuDlg);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, FileOpnDialogRefresh},
    {IDC_OPN_FILE, EventKind::Chosen, FileChosen},
    {kOkButton, Open},
    {IDC_OPN_ADD_FILE, Command::OpenAddFile},
    {IDC_OPN_ADD_PROGRAM, Command::OpenAddProgram},
    {IDC_OPN_GROUP_SET, Command::OpenGroupSet},
    {IDC_OPN_TAKE_GROUP, TakeGroup},
    {IDC_OPN_RECORD_TO_GROUP, SetGrpOpnFileRecDlgRun},
    {IDC_OPN_SHOW_RECORD, DspListOpnFileRecDlgRun},
    {IDC_OPN_CLEAR_RECORD, ClearRecord},
    {IDC_OPN_DELETE_HISTORY, DeleteHistory},
    {IDC_OPN_ANIMATION, Animation},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

// Picks a path. False when the user cancels, or when a picker is up already.
bool Pick(char* path) {
  if (!FileOpnDialogIsOpen() || Picker.hFilePickDlg) return false;
  ChoiceTake();
  FileResult.FileStatus = 1;
  path[0] = '\0';
  return PickFileForLoad(Dialogs.hMenuDlg, "*.*", path) != 0;
}

}  // namespace

bool FileOpnDialogRun() {
  const int result = MenuDialogRun(MenuDialog::FileOpnDialog, IDD_FileOpnDialog, Program.hMainWnd, Handle);
  if (result == kCancelled) OpnWorkReset();
  return result == kLeftForGroups;
}

bool FileOpnDialogIsOpen() {
  return Dialogs.hMenuDlg && Dialogs.DlgIdMenu == MenuDialog::FileOpnDialog;
}

void FileOpnDialogRefresh() {
  if (!FileOpnDialogIsOpen()) return;
  OpnFilesShow(Dialogs.hMenuDlg);
  OpnProgramsShow(Dialogs.hMenuDlg);
}

void FileOpnDialogLeaveForGroups() {
  ChoiceTake();
  MenuDialogEnd(Dialogs.hMenuDlg, kLeftForGroups);
}

void FileOpnDialogAddFile() {
  char path[kPickPathSize];
  if (!Pick(path)) return;
  const bool fits = OpnBrowseFile(path);
  FileOpnDialogRefresh();
  if (!fits) BoxTell(Dialogs.hMenuDlg, "オープンファイル登録最大数は２００個です", "ファイル登録リミット");
}

void FileOpnDialogAddProgram() {
  char path[kPickPathSize];
  if (!Pick(path)) return;
  const bool fits = OpnBrowseProgram(path);
  FileOpnDialogRefresh();
  if (!fits)
    BoxTell(Dialogs.hMenuDlg, "オープンプログラム登録最大数は１９９個です", "プログラム登録リミット");
}
