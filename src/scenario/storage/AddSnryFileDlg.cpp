// AddSnryFileDlg, "場面ファイル追加".

#include "platform/dialog.h"
#include "platform/file.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_reset.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

// kept: among the files that can become scenes only an entry whose one attribute is that of a
// folder is left out, so that a hidden folder is listed.
bool IsListed(const SearchEntry& entry) {
  return entry.name[0] != '.' && entry.attributes != kAttributeFolder && !SnrySceneHasFile(entry.name);
}

void Open(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_SNRY_SCENES);
  char pattern[kSnryLongPath];
  TextFormat(pattern, sizeof pattern, "%s\\*.*", SnryFolderNow().path);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    if (IsListed(entry)) ListAdd(dialog, IDC_SNRY_SCENES, entry.name);
  }
  SearchClose(search);
}

// kept: a file that is added as a scene is not looked into; one too many is left out in silence.
void Add(WindowHandle dialog) {
  char name[kSnryPathSize + 1];
  const int row = ListSelected(dialog, IDC_SNRY_SCENES);
  if (ListText(dialog, IDC_SNRY_SCENES, row, name, sizeof name) > 0 && SnrySceneAdd(name)) {
    SnryCastReset();
    Scenario.changed = true;
    Scenario.sceneListChanged = true;
  }
  SubDialogEnd(dialog, 1);
}

// kept: the button that would add all files as scenes has no effect.
constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Add},
    {IDC_SNRY_SCENE_ALL, [] {}},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void AddSnryFileDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::AddSnryFileDlg, IDD_AddSnryFileDlg, owner, Handle);
}
