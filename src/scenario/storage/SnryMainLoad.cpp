// SnryMainLoad, "シナリオのロード".

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_list_file.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_SNRY_LIST, RowsOf(SnryList.count, SnryListRowText));
}

void Choose(const Event& event) {
  const int row = ListSelected(event.window, IDC_SNRY_LIST);
  if (row < SnryList.count) *static_cast<int*>(event.context) = row;
  MenuDialogEnd(event.window, 1);
}

// kept: the button of details in the list of scenarios has no effect.
constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Choose},
    {IDC_SNRY_LIST_DETAIL, [] {}},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int SnryMainLoadRun(WindowHandle owner) {
  int row = -1;
  MenuDialogRun(MenuDialog::SnryMainLoad, IDD_SnryMainLoad, owner, Handle, &row);
  return row;
}
