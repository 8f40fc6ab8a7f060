// DelSnryFolderDlg, "シナリオフォルダー削除".

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "services/dialog_family.h"

namespace {

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  ControlSetText(event.window, IDC_SNRY_FOLDER_PATH, SnryFolderNow().path);
  return true;
}

}  // namespace

void DelSnryFolderDlgRun(WindowHandle owner) {
  if (ToolDialogRun(ToolDialog::DelSnryFolderDlg, IDD_DelSnryFolderDlg, owner, Handle) != 1) return;
  SnryFolderRemove(Scenario.folderIndex);
  Scenario.changed = true;
}
