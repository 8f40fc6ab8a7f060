// AddSnryFolderDlg, "シナリオフォルダー追加".

#include "platform/file.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "services/folder_pick.h"

void AddSnryFolderDlgRun(WindowHandle owner) {
  FolderSetCurrent(Scenario.mainFolder);
  char path[kSnryPathSize];
  if (FolderPickRun(ToolDialog::AddSnryFolderDlg, IDD_AddSnryFolderDlg, owner, path, sizeof path) == 0)
    return;
  if (SnryFolderAdd(path)) Scenario.changed = true;
}
