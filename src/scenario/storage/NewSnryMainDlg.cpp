// NewSnryMainDlg, "新規シナリオの作成".

#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/window.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_paths.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

SnryDialogsState SnryDialogs;

namespace {

// The list of folders takes this part of the dialog, in pixels.
constexpr int kMargin = 12;
constexpr int kListBottom = 300;

void Open(WindowHandle dialog) {
  const Rect place{kMargin, FolderListTop(dialog), WindowClientRect(dialog).right - kMargin, kListBottom};
  FolderListOpenWide(SnryDialogs.folders, dialog, place, SnryDialogs.folderOnShow, "", nullptr);
}

bool MakeParts() {
  for (const char* part : {"", kSnryBackFolder, kSnryCharaFolder, kSnrySoundFolder}) {
    char path[kSnryLongPath];
    SnryMainPart(path, sizeof path, part);
    if (!FolderCreate(path)) return false;
  }
  return true;
}

// False when it could not be told where the list of folders stands.
bool FolderIsKnown() {
  return SnryDialogs.folderOnShow[0] != '\0';
}

// False for a path that its field cannot hold.
bool TakeMain(const char* path) {
  return TextCopy(Scenario.mainFolder, kSnryPathSize, path) == TextLength(path, kSnryLongPath);
}

void Make(WindowHandle dialog) {
  char name[kSnryPathSize + 1];
  ControlGetText(dialog, IDC_SNRY_NEW_NAME, name, sizeof name);
  char path[kSnryLongPath];
  TextFormat(path, sizeof path, "%s\\%s", SnryDialogs.folderOnShow, name);
  const bool made = FolderIsKnown() && TakeMain(path) && MakeParts();
  if (!made) BoxTell(dialog, "フォルダーを作成できませんでした", "メインフォルダー作成失敗");
  ToolDialogEnd(dialog, made ? 1 : 2);
}

void TakeAsItIs(WindowHandle dialog) {
  ToolDialogEnd(dialog, FolderIsKnown() && TakeMain(SnryDialogs.folderOnShow) ? 1 : 2);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, [] { FolderListPaint(SnryDialogs.folders); }},
    {kOkButton, Make},
    {IDC_SNRY_NEW_AS_IT_IS, TakeAsItIs},
    {kFolderCancelId, [](WindowHandle dialog) { ToolDialogEnd(dialog, 2); }},
};

bool Handle(const Event& event) {
  return FolderListEvent(SnryDialogs.folders, event) || DialogActRun(event, kActs);
}

}  // namespace

bool NewSnryMainDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::NewSnryMainDlg, IDD_NewSnryMainDlg, owner, Handle) == 1;
}
