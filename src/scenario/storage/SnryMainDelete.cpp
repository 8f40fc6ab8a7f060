// SnryMainDelete, "シナリオの削除".

#include "resources/scenario_storage_ids.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_list_file.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"

namespace {

constexpr ListEditor kList{IDC_SNRY_LIST, [] { return static_cast<int>(SnryList.count); }, SnryListRowText};

// A row is gone from the list in memory also when the file cannot be rewritten; it is shown
// so, or the next deletion would take another row than the chosen one.
bool Remove(WindowHandle dialog, int row) {
  SnryListRemove(row);
  if (SnryListWrite() == 0) return true;
  ListEditorShow(dialog, kList);
  return false;
}

// kept: a deleted scenario loses its row in the list only; its folder and its files stay.
constexpr ListDeed kDelete{
    .needsRow = true,
    .question = {"シナリオを削除します。よろしいですか", "シナリオの削除"},
    .act = Remove,
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
