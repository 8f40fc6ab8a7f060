// SnrySelParaDlg, "シナリオ起動条件": the start condition of the current scenario folder.

#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

void Exchange(Form& form, SnryPair& start) {
  SnryPairExchange(form, IDC_START_PARA, IDC_START_VALUE, start);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, SnryFolderNow().start, Exchange);
  Scenario.changed = true;
  SubDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, [](WindowHandle dialog) { FormShow(dialog, SnryFolderNow().start, Exchange); }},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnrySelParaDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::SnrySelParaDlg, IDD_SnrySelParaDlg, owner, Handle);
}
