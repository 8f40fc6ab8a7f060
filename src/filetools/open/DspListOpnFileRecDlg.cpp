// DspListOpnFileRecDlg: the open record.

#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"

namespace {

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  OpnRecordShow(event.window);
  return true;
}

}  // namespace

void DspListOpnFileRecDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::DspListOpnFileRecDlg, IDD_DspListOpnFileRecDlg, owner, Handle);
}
