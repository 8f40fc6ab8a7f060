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
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

int shown;   // the group on show
bool dirty;  // its files, or another group's, were changed

void Open(WindowHandle dialog) {
  OpnGroupsKeep();
  dirty = false;
  shown = 0;
  ControlSetLimit(dialog, IDC_OPN_COMMENT, kOpnCommentSize - 1);
  OpnGroupsShow(dialog, shown);
  OpnGroupShow(dialog, shown);
  OpnFilesShow(dialog);
  OpnProgramsShow(dialog);
}

void FilesChanged(WindowHandle dialog) {
  dirty = true;
  OpnGroupsShow(dialog, shown);
  OpnGroupFilesShow(dialog, shown);
}

void GroupChosen(WindowHandle dialog) {
  const bool renamed = OpnCommentTake(dialog, shown);
  shown = OpnGroupOfList(dialog);
  if (renamed) OpnGroupsShow(dialog, shown);
  OpnGroupShow(dialog, shown);
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
    OpnGroupRemoveFile(shown, OpnGroupFind(shown));
    full = OpnGroupAddFile(shown) != 0;
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
  if (row < 0 || row >= OpnGroups.OpnGroupTable[shown].fileCount) return;
  if (!BoxAsk(dialog, "グループから削除しますか?", "グループから削除")) return;
  OpnGroupRemoveFile(shown, row);
  FilesChanged(dialog);
}

void Set(WindowHandle dialog) {
  // kept: when comments of groups alone were changed nobody is asked.
  if (dirty && !BoxAsk(dialog, "変更内容を登録して終了します。よろしいですか ?", "登録の確認")) return;
  OpnCommentTake(dialog, shown);
  OpnGroupSave();
  ToolDialogEnd(dialog, 1);
}

void Cancel(WindowHandle dialog) {
  if (dirty && !BoxAsk(dialog, "変更をキャンセルしてもよろしいですか ?", "キャンセルの確認")) return;
  OpnGroupsBack();
  ToolDialogEnd(dialog, 2);
}

struct Button {
  int id;
  void (*action)(WindowHandle dialog);
};
constexpr Button kButtons[] = {
    {IDC_OPN_GROUP_ADD, Add},
    {IDC_OPN_GROUP_REMOVE, Remove},
    {IDC_OPN_DETAILS, DspListOpnFileHisDlgRun},  // kept: the details of a group list the history
    {1, Set},
    {2, Cancel},
};

void Chosen(const Event& event) {
  if (event.id == IDC_OPN_GROUP) GroupChosen(event.window);
  if (event.id == IDC_OPN_FILE) FileChosen(event.window);
}

bool Press(const Event& event) {
  for (const Button& button : kButtons) {
    if (button.id != event.id) continue;
    button.action(event.window);
    return true;
  }
  return false;
}

bool Handle(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      Open(event.window);
      return true;
    case EventKind::Chosen:
      Chosen(event);
      return true;
    case EventKind::Pressed:
      return Press(event);
    case EventKind::Close:
      Cancel(event.window);
      return true;
    default:
      return false;
  }
}

}  // namespace

void FileOpnGrpSetDlgRun() {
  ToolDialogRun(ToolDialog::FileOpnGrpSetDlg, IDD_FileOpnGrpSetDlg, Program.hMainWnd, Handle);
}
