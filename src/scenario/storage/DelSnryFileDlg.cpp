// DelSnryFileDlg, "場面ファイル削除".

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_reset.h"
#include "services/dialog_family.h"

namespace {

bool Handle(const Event& event) {
  if (event.kind != EventKind::Init) return false;
  ControlSetText(event.window, IDC_SNRY_SCENE_FILE, SnrySceneNow().file);
  ControlSetText(event.window, IDC_SNRY_SCENE_NAME, SnrySceneNow().name);
  return true;
}

}  // namespace

void DelSnryFileDlgRun(WindowHandle owner) {
  if (SubDialogRun(SubDialog::DelSnryFileDlg, IDD_DelSnryFileDlg, owner, Handle) != 1) return;
  SnrySceneRemove(Scenario.sceneIndex);
  SnryCastReset();
  Scenario.changed = true;
  Scenario.sceneListChanged = true;
}
