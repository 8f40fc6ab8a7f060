// CheckParameterDlg2: where the chosen parameter is tested and set.

#include "platform/dialog.h"
#include "resources/scenario_trace_ids.h"
#include "scenario/trace/trace_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

void Open(WindowHandle dialog) {
  TraceNameShow(dialog);
  ListQuiet quiet(dialog, IDC_TRACE_LINES);
  SnryWalkChange(SnryTrace.slot, TraceLines(dialog));
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CheckParameterDlg2Run(WindowHandle owner) {
  SubDialogRun(SubDialog::CheckParameterDlg2, IDD_CheckParameterDlg2, owner, Handle);
}
