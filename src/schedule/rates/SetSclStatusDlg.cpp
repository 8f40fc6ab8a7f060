// SetSclStatusDlg: a status for the selected rows.

#include "platform/dialog.h"
#include "resources/schedule_rates_ids.h"
#include "schedule/rates/rates_dialogs.h"
#include "schedule/rates/scl_map.h"
#include "schedule/table/row_selection.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

int StatusOfCurrentRow() {
  const int index = RowSelection.currentRow - 1;
  return index < 0 || index >= kSclItemMax ? -1 : SclStatusRowOf(Schedule.SclItemTable[index].doneState);
}

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_STATUS_LIST, RowsOf(SclStatusCount(), SclStatusText), StatusOfCurrentRow());
}

void Accept(WindowHandle dialog) {
  const int code = SclStatusCodeOf(ListSelected(dialog, IDC_STATUS_LIST));
  if (code != 0) SclStatusRows(code);
  DialogEnd(dialog, kOkButton);
}

void TurnOff(WindowHandle dialog) {
  SclStatusClear();
  DialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Accept},
    {IDC_STATUS_OFF, TurnOff},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SetSclStatusDlgRun(WindowHandle owner) {
  PlainDialogRun(IDD_SetSclStatusDlg, owner, Handle);
}
