// FileOpnDialog, "ファイル オープン".

#include "character/walk.h"
#include "filetools/open_choice.h"
#include "filetools/open_controls.h"
#include "filetools/open_dialogs.h"
#include "filetools/open_history.h"
#include "filetools/open_record.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "shell/boxes.h"
#include "shell/data_file.h"
#include "shell/dialog_family.h"
#include "shell/file_picker.h"
#include "shell/shell.h"

namespace {

constexpr int kDialogId = 2000;
constexpr int kCancelled = 2;
constexpr int kLeftForGroups = 2008;
constexpr std::uint32_t kOpenCommand = 2004;

// What the lists show is chosen in OpnWork too.
void ChoiceTake() {
  OpnWork.fileSel = ListSelected(hMenuDlg, IDC_OPN_FILE);
  OpnWork.progSel = ListSelected(hMenuDlg, IDC_OPN_PROGRAM);
}

void FileChosen() {
  OpnWorkChoose(ListSelected(hMenuDlg, IDC_OPN_FILE));
  ListSelect(hMenuDlg, IDC_OPN_PROGRAM, OpnWork.progSel);
}

void Open() {
  ChoiceTake();
  if (!OpnSelectionFromLists(hMenuDlg)) return;
  const WindowHandle dialog = hMenuDlg;
  SendCommand(hMainWnd, kOpenCommand);
  MenuDialogEnd(dialog, 0);
}

void TakeGroup() {
  if (!TakeOpnGrpSetDlgRun(hMenuDlg)) return;
  OpeningState = WalkStartOpen() == 0 ? kOpeningGroup : 0;
  MenuDialogEnd(hMenuDlg, 0);
}

void ShowRecord() {
  DspListOpnFileRecDlgRun(hMenuDlg);
}

void ClearRecord() {
  if (BoxAsk(hMenuDlg, "オープン記録を全てクリアします。よろしいですか ?", "オープン記録クリアの確認")) {
    OpnRecord.recCount = 0;
  }
}

void RecordToGroup() {
  SetGrpOpnFileRecDlgRun(hMenuDlg);
}

void DeleteHistory() {
  if (!DelListOpnFileHisDlgRun(hMenuDlg)) return;
  OpnHisSave();
  OpnBuildProgList();
  OpnWorkChoose(0);
  FileOpnDialogRefresh();
}

void Animation() {
  SetOpnFileAnimeDlgRun(hMenuDlg);
}

// What the buttons do: here, or by the main window's command of the same number.
struct Button {
  std::uint32_t id;
  void (*action)();
};
constexpr Button kButtons[] = {
    {1, Open},
    {IDC_OPN_ADD_FILE, nullptr},
    {IDC_OPN_ADD_PROGRAM, nullptr},
    {IDC_OPN_GROUP_SET, nullptr},
    {IDC_OPN_TAKE_GROUP, TakeGroup},
    {IDC_OPN_RECORD_TO_GROUP, RecordToGroup},
    {IDC_OPN_SHOW_RECORD, ShowRecord},
    {IDC_OPN_CLEAR_RECORD, ClearRecord},
    {IDC_OPN_DELETE_HISTORY, DeleteHistory},
    {IDC_OPN_ANIMATION, Animation},
};

bool Press(std::uint32_t id) {
  for (const Button& button : kButtons) {
    if (button.id != id) continue;
    if (button.action) {
      button.action();
    } else {
      SendCommand(hMainWnd, id);
    }
    return true;
  }
  return false;
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    FileOpnDialogRefresh();
    return true;
  }
  if (event.kind != EventKind::Command) return false;
  if (event.command == IDC_OPN_FILE && event.notice == Notice::SelectChange) {
    FileChosen();
    return true;
  }
  return event.notice == Notice::Click && Press(event.command);
}

// Picks a path. False when the user cancels, or when a picker is up already.
bool Pick(char* path) {
  if (!FileOpnDialogIsOpen() || hFilePickDlg) return false;
  ChoiceTake();
  FileStatus = 1;
  path[0] = '\0';
  return PickFileForLoad(hMenuDlg, "*.*", path) != 0;
}

}  // namespace

bool FileOpnDialogRun() {
  const int result = MenuDialogRun(kDialogId, IDD_FileOpnDialog, hMainWnd, Handle);
  if (result == kCancelled) OpnWorkReset();
  return result == kLeftForGroups;
}

bool FileOpnDialogIsOpen() {
  return hMenuDlg && DlgIdMenu == kDialogId;
}

void FileOpnDialogRefresh() {
  if (!FileOpnDialogIsOpen()) return;
  OpnFilesShow(hMenuDlg);
  OpnProgramsShow(hMenuDlg);
}

void FileOpnDialogLeaveForGroups() {
  ChoiceTake();
  MenuDialogEnd(hMenuDlg, kLeftForGroups);
}

void FileOpnDialogAddFile() {
  char path[kPickPathSize];
  if (!Pick(path)) return;
  const bool fits = OpnBrowseFile(path);
  FileOpnDialogRefresh();
  if (!fits) BoxTell(hMenuDlg, "オープンファイル登録最大数は２００個です", "ファイル登録リミット");
}

void FileOpnDialogAddProgram() {
  char path[kPickPathSize];
  if (!Pick(path)) return;
  const bool fits = OpnBrowseProgram(path);
  FileOpnDialogRefresh();
  if (!fits) BoxTell(hMenuDlg, "オープンプログラム登録最大数は１９９個です", "プログラム登録リミット");
}
