// FileDivideSetDlg, "ファイル 分割/復元選択".

#include "filetools/divide/divide_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

constexpr DialogAct kActs[] = {
    {IDC_DIVIDE_CHOOSE_DIVIDE, [](WindowHandle dialog) { ToolDialogEnd(dialog, kChoseDivide); }},
    {IDC_DIVIDE_CHOOSE_RESTORE, [](WindowHandle dialog) { ToolDialogEnd(dialog, kChoseRestore); }},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int FileDivideSetDlgRun() {
  return ToolDialogRun(ToolDialog::FileDivideSetDlg, IDD_FileDivideSetDlg, Program.hMainWnd, Handle);
}
