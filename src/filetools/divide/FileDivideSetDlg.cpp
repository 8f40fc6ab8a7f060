// FileDivideSetDlg, "ファイル 分割/復元選択".

#include "filetools/divide/divide_commands.h"
#include "filetools/divide/divide_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

bool Handle(const Event& event) {
  if (IsPressed(event, IDC_DIVIDE_CHOOSE_DIVIDE)) {
    ToolDialogEnd(event.window, kChoseDivide);
  } else if (IsPressed(event, IDC_DIVIDE_CHOOSE_RESTORE)) {
    ToolDialogEnd(event.window, kChoseRestore);
  } else {
    return false;
  }
  return true;
}

}  // namespace

int FileDivideSetDlgRun() {
  return ToolDialogRun(ToolDialog::FileDivideSetDlg, IDD_FileDivideSetDlg, Program.hMainWnd, Handle);
}
