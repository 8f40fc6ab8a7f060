// RoutSnrySetting, "シナリオ設定".

#include "platform/dialog.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/scenario_doors.h"
#include "scenario/scenario_settings.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_main_file.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"

namespace {

constexpr int kTitleMost = 127;

void Exchange(Form& form, SnryMainState& main) {
  form.Text(IDC_SNRY_TITLE, main.title, kTitleMost);
}

// --- The lists

constexpr ListEditor kFolders{IDC_SNRY_FOLDERS, [] { return static_cast<int>(SnryMain.folderCount); },
                              SnryFolderRowText};
constexpr ListEditor kParas{IDC_SNRY_PARAS, SnryParaUsedCount, SnryParaListText};

void ShowFolders(WindowHandle dialog) {
  ListEditorShow(dialog, kFolders, ListSelected(dialog, IDC_SNRY_FOLDERS));
}

void ParaChosen(WindowHandle dialog) {
  const int slot = SnryParaSlotOfRow(ListEditorChosen(dialog, kParas));
  if (slot >= 0) Scenario.paraSlot = slot;
}

// The chosen row stays, as long as there is one; else it is the first.
void ShowParas(WindowHandle dialog) {
  const int chosen = ListSelected(dialog, IDC_SNRY_PARAS);
  ListEditorShow(dialog, kParas, chosen >= 0 && chosen < SnryParaUsedCount() ? chosen : 0);
  ParaChosen(dialog);
}

void Open(WindowHandle dialog) {
  FormShow(dialog, SnryMain, Exchange);
  ShowFolders(dialog);
  ShowParas(dialog);
}

// --- What is done to a folder, and to a parameter

template <void (*run)(WindowHandle)>
void ANewFolder(WindowHandle dialog) {
  run(dialog);
  ShowFolders(dialog);
}

template <void (*run)(WindowHandle)>
void OfFolder(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kFolders);
  if (row < 0) return;
  Scenario.folderIndex = row;
  run(dialog);
  ShowFolders(dialog);
}

void AddPara(WindowHandle dialog) {
  AddSnryParaDlgRun(dialog);
  ShowParas(dialog);
}

template <void (*run)(WindowHandle)>
void OfPara(WindowHandle dialog) {
  if (ListEditorChosen(dialog, kParas) < 0) return;
  ParaChosen(dialog);
  run(dialog);
  ShowParas(dialog);
}

// --- The end

void Save(WindowHandle dialog) {
  FormTake(dialog, SnryMain, Exchange);
  CommandSend(Command::ScenarioSave);
}

void SaveAndEnd(WindowHandle dialog) {
  Save(dialog);
  MenuDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_SNRY_FOLDER_NEW, ANewFolder<MkNewSnryFolderDlgRun>},
    {IDC_SNRY_FOLDER_ADD, ANewFolder<AddSnryFolderDlgRun>},
    {IDC_SNRY_FOLDER_DELETE, OfFolder<DelSnryFolderDlgRun>},
    {IDC_SNRY_FOLDER_SET, OfFolder<SnryFolderSettingRun>},
    {IDC_SNRY_PARAS, EventKind::Chosen, ParaChosen},
    {IDC_SNRY_PARA_ADD, AddPara},
    {IDC_SNRY_PARA_CHANGE, OfPara<ChgSnryParaDlgRun>},
    {IDC_SNRY_PARA_DELETE, OfPara<DelSnryParaDlgRun>},
    {IDC_SNRY_SAVE, Save},
    {kOkButton, SaveAndEnd},
};

bool Handle(const Event& event) {
  if (event.kind == EventKind::Pressed && SnryScenarioDoorOpen(event.id, event.window)) return true;
  return DialogActRun(event, kActs);
}

}  // namespace

void RoutSnrySettingRun(WindowHandle owner) {
  MenuDialogRun(MenuDialog::RoutSnrySetting, IDD_RoutSnrySetting, owner, Handle);
}

void SnrySaveTold(WindowHandle owner) {
  Scenario.changed = false;
  if (SnrySaveMain() != 0) BoxTell(owner, "シナリオファイルに書き込めません!", "シナリオセーブエラー");
}
