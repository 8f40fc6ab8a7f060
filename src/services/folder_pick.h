// Dialogs in which nothing but a folder is chosen.
#pragma once

#include "platform/types.h"
#include "services/dialog_numbers.h"
#include "services/folder_list.h"

struct FolderPickState {
  FolderList folders;
  char folderOnShow[kFolderSize] = {};
  bool active = false;  // one is up
};
extern FolderPickState FolderPick;

// Runs such a dialog of the tool family (FileBackUpDirDlg, FileDivFileDlg,
// FileUDivFileDlg), beginning in the current folder; `number` is its own in the
// family. 1, with the folder in `folder` (`size` bytes, terminated, no backslash at
// its end, so that a drive root is "C:"), or 0 when the user chose none, the
// dialog cannot be made or one is up already; `folder` is then as it was.
int FolderPickRun(ToolDialog number, int templateId, WindowHandle owner, char* folder, int size);
