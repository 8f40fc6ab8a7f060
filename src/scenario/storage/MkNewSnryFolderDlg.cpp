// MkNewSnryFolderDlg, "シナリオフォルダー新規作成".

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_paths.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

constexpr char kFailed[] = "シナリオフォルダー作成失敗";

void Open(WindowHandle dialog) {
  char name[32];
  TextFormat(name, sizeof name, "シナリオ%d", SnryMain.folderCount + 1);
  ControlSetText(dialog, IDC_SNRY_FOLDER_NAME, name);
  ControlSetText(dialog, IDC_SNRY_FOLDER_PATH, Scenario.mainFolder);
}

// What is wrong with the name, in the order in which it is looked at; null when the folder
// has been made.
const char* MakeFolder(const char* name, const char* path) {
  if (name[0] == '\0') return "フォルダー名を入力してください";
  if (std::strlen(path) >= kSnryPathSize) return "フォルダーを作成できません";
  if (FolderSetCurrent(path)) return "同名のフォルダーがすでに存在します";
  return FolderCreate(path) ? nullptr : "フォルダーを作成できません";
}

void Make(WindowHandle dialog) {
  char name[kSnryPathSize + 1];
  ControlGetText(dialog, IDC_SNRY_FOLDER_NAME, name, sizeof name);
  char path[kSnryLongPath];
  TextFormat(path, sizeof path, "%s\\%s", Scenario.mainFolder, name);
  if (const char* failure = MakeFolder(name, path)) {
    BoxTell(dialog, failure, kFailed);
    return;
  }
  if (SnryFolderAdd(path)) Scenario.changed = true;
  BoxTell(dialog, "フォルダーを新規作成しました", "シナリオフォルダー新規作成");
  ToolDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Make},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void MkNewSnryFolderDlgRun(WindowHandle owner) {
  if (SnryMain.folderCount >= kSnryFolderMax) {
    BoxTell(owner, "シナリオフォルダー数リミットの30個を超えました", "新規フォルダー作成");
    return;
  }
  ToolDialogRun(ToolDialog::MkNewSnryFolderDlg, IDD_MkNewSnryFolderDlg, owner, Handle);
}
