// SnryFileSetting, "場面ファイル設定".

#include <algorithm>
#include <iterator>

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/scenario_doors.h"
#include "scenario/scenario_settings.h"
#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"

namespace {

void Exchange(Form& form, SnrySceneRec& scene) {
  form.Text(IDC_SNRY_SCENE_NAME, scene.name);
}

constexpr ListEditor kCast{
    IDC_SNRY_CAST, [] { return SnryCastRows(SnryCastShow::All); },
    [](int row, char* text, int size) { SnryCastRowText(SnryCastShow::All, row, text, size); }};

void CastChosen(WindowHandle dialog) {
  Scenario.castRow = ListEditorChosen(dialog, kCast);
}

void Show(WindowHandle dialog) {
  FormShow(dialog, SnrySceneNow(), Exchange);
  ListEditorShow(dialog, kCast, Scenario.castRow);
  CastChosen(dialog);
}

// A dialog behind a button works on the scene with the name that stands in the field.
bool OpenDoor(const Event& event) {
  CastChosen(event.window);
  if (event.id == IDC_SNRY_SCENE_START) FormTake(event.window, SnrySceneNow(), Exchange);
  if (!SnrySceneDoorOpen(event.id, event.window)) return false;
  ListEditorShow(event.window, kCast, Scenario.castRow);
  CastChosen(event.window);
  if (event.id == IDC_SNRY_SCENE_START) FormShow(event.window, SnrySceneNow(), Exchange);
  return true;
}

// settled: a scene that cannot be written is told, and the dialog stays, so that the edits are
// not lost.
void Accept(WindowHandle dialog) {
  FormTake(dialog, SnrySceneNow(), Exchange);
  Scenario.changed = true;
  Scenario.sceneListChanged = true;
  if (SnrySceneSave(Scenario.folderIndex, Scenario.sceneIndex) != 0) {
    BoxTell(dialog, "シナリオファイルに書き込めません!", "シナリオセーブエラー");
    return;
  }
  SubDialogEnd(dialog, 1);
}

// Name and start condition have been confirmed by themselves and stay; the rest goes with the
// file, which has no records for a cast that was not confirmed.
void DropEdits() {
  SnrySceneRec& scene = SnrySceneNow();
  SnrySceneRec& before = Scenario.sceneBefore;
  before.start = scene.start;
  std::copy(std::begin(scene.name), std::end(scene.name), before.name);
  scene = before;
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {IDC_SNRY_CAST, EventKind::Chosen, CastChosen},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs) || (event.kind == EventKind::Pressed && OpenDoor(event));
}

}  // namespace

// kept: when the file of a scene cannot be read, its dialog opens on whatever the buffers hold,
// and its confirm writes that over the file.
void SnryFileSettingRun(WindowHandle owner) {
  SnryFiguresTake();
  SnrySceneLoad(Scenario.folderIndex, Scenario.sceneIndex);
  Scenario.castRow = -1;
  Scenario.sceneBefore = SnrySceneNow();
  if (SubDialogRun(SubDialog::SnryFileSetting, IDD_SnryFileSetting, owner, Handle) != 1) DropEdits();
}
