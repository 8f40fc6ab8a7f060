// FileBackUpDateDlg and FileBackUpContentDlg: the sources that a comparison has
// found to differ from their copies.

#include "filetools/back_up/back_up.h"
#include "filetools/back_up/back_up_dialogs.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"

namespace {

constexpr int kRowSize = 160;

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  const auto list = Dialogs.DlgIdTool == ToolDialog::FileBackUpDateDlg ? BackUpListDate : BackUpListContent;
  const ListQuiet quiet(event.window, IDC_BACKUP_ROWS);
  for (int row = 0; row < BackUp.fileCount; ++row) {
    char text[kRowSize];
    if (list(row, text, sizeof text)) ListAdd(event.window, IDC_BACKUP_ROWS, text);
  }
  return true;
}

}  // namespace

void FileBackUpDateDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::FileBackUpDateDlg, IDD_FileBackUpDateDlg, owner, Handle);
}

void FileBackUpContentDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::FileBackUpContentDlg, IDD_FileBackUpContentDlg, owner, Handle);
}
