// FileCharaAddDlg: a registered character joins the cast.

#include "platform/dialog.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_list.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/characters/chara_preview.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/list_editor.h"

namespace {

constexpr Point kPreviewAt{168, 42};  // dialog units

constexpr ListEditor kList{IDC_CAST_LIST, CastAddRows, CastAddRowText};

int Chosen(WindowHandle dialog) {
  return CastAddCharaOfRow(ListEditorChosen(dialog, kList));
}

void Paint(WindowHandle dialog) {
  CharaPreviewPaint(dialog, kPreviewAt, Chosen(dialog));
}

void ShowChosen(WindowHandle dialog) {
  CastMemberShow(dialog, Chosen(dialog));
  Paint(dialog);
}

void Show(WindowHandle dialog) {
  ListEditorShow(dialog, kList);
  CastMemberShow(dialog, 0);
}

void Add(WindowHandle dialog) {
  const int chara = Chosen(dialog);
  if (chara != 0) CastAdd(chara);
  SnryDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {EventKind::Paint, Paint},
    {IDC_CAST_LIST, EventKind::Chosen, ShowChosen},
    {kOkButton, Add},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void FileCharaAddDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::FileCharaAddDlg, IDD_FileCharaAddDlg, owner, Handle);
}
