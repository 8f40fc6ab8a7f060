// SetGrpOpnFileRecDlg: puts the open record into a group.

#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_groups.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

void Open(WindowHandle dialog) {
  ControlSetLimit(dialog, IDC_OPN_COMMENT, kOpnCommentSize - 1);
  OpnGroupsShow(dialog, 0);
  OpnGroupShow(dialog, 0);
  OpnRecordShow(dialog);
}

void Register(WindowHandle dialog) {
  const int group = OpnGroupOfList(dialog);
  char text[80];
  TextFormat(text, sizeof text, "オープン記録をグループ%dに追加登録します", group + 1);
  if (!BoxAsk(dialog, text, "グループへの登録")) return;
  OpnCommentTake(dialog, group);
  const bool over = OpnGroupAddRecord(group) != 0;
  OpnGroupsShow(dialog, group);
  OpnGroupShow(dialog, group);
  // kept: a group whose overflow is refused is not saved, but keeps its files in memory.
  if (over && !BoxAsk(dialog, "1グループのファイル数=最大30個をオーバーしました。登録しますか?",
                      "ファイル登録数オーバー")) {
    return;
  }
  OpnGroupSave();
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_OPN_GROUP, EventKind::Chosen, OpnGroupChosen},
    {IDC_OPN_GROUP_REGISTER, Register},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SetGrpOpnFileRecDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::SetGrpOpnFileRecDlg, IDD_SetGrpOpnFileRecDlg, owner, Handle);
}
