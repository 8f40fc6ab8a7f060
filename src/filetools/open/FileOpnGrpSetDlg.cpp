// FileOpnGrpSetDlg: which files belong to which group. It works on the table itself;
// a copy aside takes everything back.

#include "filetools/open/open_choice.h"
#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_selection.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

void Open(WindowHandle dialog) {
  OpnGroupsKeep();
  OpnGroups.dirty = false;
  OpnGroups.shown = 0;
  ControlSetLimit(dialog, IDC_OPN_COMMENT, kOpnCommentSize - 1);
  OpnGroupsShow(dialog, OpnGroups.shown);
  OpnGroupShow(dialog, OpnGroups.shown);
  OpnFilesShow(dialog);
  OpnProgramsShow(dialog);
}

void FilesChanged(WindowHandle dialog) {
  OpnGroups.dirty = true;
  OpnGroupsShow(dialog, OpnGroups.shown);
  OpnGroupFilesShow(dialog, OpnGroups.shown);
}

void GroupChosen(WindowHandle dialog) {
  const bool renamed = OpnCommentTake(dialog, OpnGroups.shown);
  OpnGroups.shown = OpnGroupOfList(dialog);
  if (renamed) OpnGroupsShow(dialog, OpnGroups.shown);
  OpnGroupShow(dialog, OpnGroups.shown);
}

void FileChosen(WindowHandle dialog) {
  ListSelect(dialog, IDC_OPN_PROGRAM, OpnProgSelOf(ListSelected(dialog, IDC_OPN_FILE)));
}

// A file that the group has already goes out first, so that it ends up last.
void Add(WindowHandle dialog) {
  OpnSelectionKeep();
  const bool chosen = OpnSelectionFromLists(dialog);
  bool full = false;
  if (chosen) {
    OpnGroupRemoveFile(OpnGroups.shown, OpnGroupFind(OpnGroups.shown));
    full = OpnGroupAddFile(OpnGroups.shown) != 0;
  }
  OpnSelectionBack();
  if (!chosen) return;
  if (full) {
    BoxTell(dialog, "グループにはファイルを３０個まで登録できます", "ファイル最大登録数をオーバー");
  } else {
    FilesChanged(dialog);
  }
}

void Remove(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_OPN_GROUP_FILES);
  if (row < 0 || row >= OpnGroups.OpnGroupTable[OpnGroups.shown].fileCount) return;
  if (!BoxAsk(dialog, "グループから削除しますか?", "グループから削除")) return;
  OpnGroupRemoveFile(OpnGroups.shown, row);
  FilesChanged(dialog);
}

void Set(WindowHandle dialog) {
  // kept: when comments of groups alone were changed nobody is asked.
  if (OpnGroups.dirty && !BoxAsk(dialog, "変更内容を登録して終了します。よろしいですか ?", "登録の確認"))
    return;
  OpnCommentTake(dialog, OpnGroups.shown);
  OpnGroupSave();
  ToolDialogEnd(dialog, 1);
}

void Cancel(WindowHandle dialog) {
  if (OpnGroups.dirty && !BoxAsk(dialog, "変更をキャンセルしてもよろしいですか ?", "キャンセルの確認"))
    return;
  OpnGroupsBack();
  ToolDialogEnd(dialog, 2);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_OPN_GROUP, EventKind::Chosen, GroupChosen},
    {IDC_OPN_FILE, EventKind::Chosen, FileChosen},
    {IDC_OPN_GROUP_ADD, Add},
    {IDC_OPN_GROUP_REMOVE, Remove},
    {IDC_OPN_DETAILS, DspListOpnFileHisDlgRun},  // kept: the details of a group list the history
    {kOkButton, Set},
    {kCancelButton, Cancel},
    {EventKind::Close, Cancel},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void FileOpnGrpSetDlgRun() {
  ToolDialogRun(ToolDialog::FileOpnGrpSetDlg, IDD_FileOpnGrpSetDlg, Program.hMainWnd, Handle);
}
