// SnryFolderSetting, "シナリオフォルダー設定".

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/scenario_settings.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"

namespace {

constexpr int kNameMost = 127;

void Exchange(Form& form, SnryFolderRec& folder) {
  form.Text(IDC_SNRY_FOLDER_NAME, folder.name, kNameMost);
}

constexpr ListEditor kScenes{IDC_SNRY_SCENES, [] { return static_cast<int>(SnrySceneCountNow()); },
                             SnrySceneRowText};

void ShowScenes(WindowHandle dialog) {
  ListEditorShow(dialog, kScenes, ListSelected(dialog, IDC_SNRY_SCENES));
}

void Open(WindowHandle dialog) {
  Scenario.sceneListChanged = false;
  FormShow(dialog, SnryFolderNow(), Exchange);
  ControlSetText(dialog, IDC_SNRY_FOLDER_PATH, SnryFolderNow().path);
  ShowScenes(dialog);
}

void Refresh(WindowHandle dialog) {
  if (Scenario.sceneListChanged) ShowScenes(dialog);
  Scenario.sceneListChanged = false;
}

template <void (*run)(WindowHandle)>
void OfScenes(WindowHandle dialog) {
  run(dialog);
  Refresh(dialog);
}

template <void (*run)(WindowHandle)>
void OfScene(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kScenes);
  if (row < 0) return;
  Scenario.sceneIndex = row;
  run(dialog);
  Refresh(dialog);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, SnryFolderNow(), Exchange);
  Scenario.changed = true;
  ToolDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_SNRY_FOLDER_START, SnrySelParaDlgRun},
    {IDC_SNRY_SCENE_NEW, OfScenes<MkNewSnryFileDlgRun>},
    {IDC_SNRY_SCENE_ADD, OfScenes<AddSnryFileDlgRun>},
    {IDC_SNRY_SCENE_DELETE, OfScene<DelSnryFileDlgRun>},
    {IDC_SNRY_SCENE_SET, OfScene<SnryFileSettingRun>},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryFolderSettingRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::SnryFolderSetting, IDD_SnryFolderSetting, owner, Handle);
  if (Scenario.changed) SnrySaveTold(owner);
}
