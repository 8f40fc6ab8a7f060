// AddSnryFolderDlg, "シナリオフォルダー追加".

#include "platform/file.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "services/folder_pick.h"

bool AddSnryFolderDlgRun(WindowHandle owner) {
  FolderSetCurrent(Scenario.mainFolder);
  char path[kSnryPathSize];
  if (FolderPickRun(ToolDialog::AddSnryFolderDlg, IDD_AddSnryFolderDlg, owner, path, sizeof path) == 0)
    return false;
  const bool added = SnryFolderAdd(path);
  if (added) Scenario.changed = true;
  return added;
}
