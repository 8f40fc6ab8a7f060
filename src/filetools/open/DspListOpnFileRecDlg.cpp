// DspListOpnFileRecDlg: the open record.

#include "filetools/open/open_controls.h"
#include "filetools/open/open_dialogs.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr DialogAct kActs[] = {{EventKind::Init, OpnRecordShow}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void DspListOpnFileRecDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::DspListOpnFileRecDlg, IDD_DspListOpnFileRecDlg, owner, Handle);
}
