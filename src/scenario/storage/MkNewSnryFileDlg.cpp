// MkNewSnryFileDlg, "場面ファイル新規作成".

#include <cstring>

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/path.h"
#include "services/text.h"

namespace {

constexpr char kFailed[] = "新規場面ファイル作成失敗";
constexpr char kNotMade[] = "ファイルが作成できません";
constexpr int kExtensionBytes = 4;  // that the name leaves room for

void Open(WindowHandle dialog) {
  char name[32];
  TextFormat(name, sizeof name, "シーン%d", SnrySceneCountNow() + 1);
  ControlSetText(dialog, IDC_SNRY_SCENE_FILE, name);
  ControlSetText(dialog, IDC_SNRY_SCENE_EXTENSION, "scd");
  ControlSetText(dialog, IDC_SNRY_SCENE_NAME, name);
}

// The name of the file with its extension into the scene. False when it does not fit.
bool TakeFile(WindowHandle dialog) {
  char name[kSnryPathSize + 1];
  char extension[kSnryPathSize + 1];
  const int length = ControlGetText(dialog, IDC_SNRY_SCENE_FILE, name, sizeof name);
  ControlGetText(dialog, IDC_SNRY_SCENE_EXTENSION, extension, sizeof extension);
  if (length + kExtensionBytes >= kSnryPathSize) return false;
  char file[kSnryLongPath];
  TextFormat(file, sizeof file, "%s.%s", name, extension);
  SnrySceneRec& scene = SnrySceneNow();
  return TextCopy(scene.file, kSnryPathSize, file) == std::strlen(file);
}

// The scene lies behind those that are counted, until its file is there.
const char* MakeScene(WindowHandle dialog) {
  if (!TakeFile(dialog)) return kNotMade;
  char path[kSnryLongPath];
  SnryScenePath(path, sizeof path, Scenario.folderIndex, Scenario.sceneIndex);
  if (FileExists(path) != 0) return "既に同名のファイルが存在します";
  SnrySceneRec& scene = SnrySceneNow();
  ControlGetText(dialog, IDC_SNRY_SCENE_NAME, scene.name, sizeof scene.name);
  SnrySceneReset();
  return SnrySceneSave(Scenario.folderIndex, Scenario.sceneIndex) == 0 ? nullptr : kNotMade;
}

void Make(WindowHandle dialog) {
  if (const char* failure = MakeScene(dialog)) {
    BoxTell(dialog, failure, kFailed);
    return;
  }
  BoxTell(dialog, "新規にファイルを作成しました", "新規場面ファイル作成");
  SnrySceneNow().used = 1;
  ++SnrySceneCountNow();
  Scenario.changed = true;
  Scenario.sceneListChanged = true;
  SubDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Make},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void MkNewSnryFileDlgRun(WindowHandle owner) {
  if (SnrySceneCountNow() >= kSnrySceneMax) {
    BoxTell(owner, "場面数リミットの50個を超えました", "新規場面ファイル作成");
    return;
  }
  Scenario.sceneIndex = SnrySceneCountNow();
  SnrySceneNow() = {};
  SubDialogRun(SubDialog::MkNewSnryFileDlg, IDD_MkNewSnryFileDlg, owner, Handle);
}
