// FileBackUpDateDlg and FileBackUpContentDlg: the sources that a comparison has
// found to differ from their copies.

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  RowsShow(event.window, IDC_BACKUP_ROWS, *static_cast<const Rows*>(event.context));
  return true;
}

}  // namespace

void FileBackUpDateDlgRun(WindowHandle owner) {
  Rows rows = RowsOf(BackUp.fileCount, BackUpListDate);
  ToolDialogRun(ToolDialog::FileBackUpDateDlg, IDD_FileBackUpDateDlg, owner, Handle, &rows);
}

void FileBackUpContentDlgRun(WindowHandle owner) {
  Rows rows = RowsOf(BackUp.fileCount, BackUpListContent);
  ToolDialogRun(ToolDialog::FileBackUpContentDlg, IDD_FileBackUpContentDlg, owner, Handle, &rows);
}
