// CharaRegiDlg: the characters of the world, and which of them are registered.

#include "platform/dialog.h"
#include "resources/scenario_characters_ids.h"
#include "scenario/characters/chara_regi.h"
#include "scenario/storage/snry_cast_list.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"

namespace {

constexpr ListEditor kList{IDC_CHARA_REGI_LIST, [] { return static_cast<int>(SnryMain.charaCount); },
                           CharaRegiRowText};

void Show(WindowHandle dialog) {
  ListEditorShow(dialog, kList);
}

void ShowAgain(WindowHandle dialog, int row) {
  ListEditorShow(dialog, kList, row);
}

void Set(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kList);
  if (row < 0) return;
  SetOrChkCharRegiDlgRun(dialog, row);
  ShowAgain(dialog, row);
}

void Delete(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kList);
  if (row < 0 || !SnryCharaIsRegistered(row + 1)) return;
  DelCharRegiDlgRun(dialog, row);
  ShowAgain(dialog, row);
}

// kept: in the registration of characters the buttons for all characters at once and for characters from
// elsewhere do nothing.
constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {IDC_CHARA_REGI_SET, Set},
    {IDC_CHARA_REGI_DELETE, Delete},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CharaRegiDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::CharaRegiDlg, IDD_CharaRegiDlg, owner, Handle);
}
