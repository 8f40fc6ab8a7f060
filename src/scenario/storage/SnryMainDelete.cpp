// SnryMainDelete, "シナリオの削除".

#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_list_file.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"

namespace {

constexpr ListEditor kList{IDC_SNRY_LIST, [] { return static_cast<int>(SnryList.count); }, SnryListRowText};

// kept: a deleted scenario loses its row in the list only; its folder and its files stay.
constexpr ListDeed kDelete{
    .needsRow = true,
    .question = {"シナリオを削除します。よろしいですか", "シナリオの削除"},
    .act =
        [](WindowHandle, int row) {
          SnryListRemove(row);
          return SnryListWrite() == 0;
        },
    .failed = {"シナリオリストファイルをセーブできません", "リストファイルのセーブ失敗"}};

constexpr DialogAct kActs[] = {
    {EventKind::Init, [](WindowHandle dialog) { ListEditorShow(dialog, kList); }},
    {IDC_SNRY_LIST_DELETE, [](WindowHandle dialog) { ListDeedRun(dialog, kList, kDelete); }},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryMainDeleteRun(WindowHandle owner) {
  MenuDialogRun(MenuDialog::SnryMainDelete, IDD_SnryMainDelete, owner, Handle);
}
