// SceneSelParaDlg, "場面起動条件": name and start condition of the current scene.

#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

void Exchange(Form& form, SnrySceneRec& scene) {
  form.Text(IDC_START_SCENE, scene.name);
  SnryPairExchange(form, IDC_START_PARA, IDC_START_VALUE, scene.start);
}

// kept: the scenario does not count as changed by a scene's name and start condition; the next
// save takes them along.
void Accept(WindowHandle dialog) {
  FormTake(dialog, SnrySceneNow(), Exchange);
  SnryDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, [](WindowHandle dialog) { FormShow(dialog, SnrySceneNow(), Exchange); }},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SceneSelParaDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::SceneSelParaDlg, IDD_SceneSelParaDlg, owner, Handle);
}
