// CheckParameterDlg: which parameter is looked at, and how.

#include "platform/dialog.h"
#include "resources/scenario_trace_ids.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/trace/trace_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_TRACE_PARAMETERS, RowsOf(SnryParaUsedCount(), SnryParaListText));
}

// False, and nothing happens, while no parameter is chosen.
bool Choose(WindowHandle dialog) {
  const int slot = SnryParaSlotOfRow(ListSelected(dialog, IDC_TRACE_PARAMETERS));
  if (slot < 0) return false;
  SnryTrace.slot = slot;
  return true;
}

void Changes(WindowHandle dialog) {
  if (Choose(dialog)) CheckParameterDlg2Run(dialog);
}

void Progress(WindowHandle dialog) {
  if (Choose(dialog)) CheckParameterDlg3Run(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_TRACE_CHANGES, Changes},
    {IDC_TRACE_PROGRESS, Progress},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CheckParameterDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::CheckParameterDlg, IDD_CheckParameterDlg, owner, Handle);
}
