// SetOrChkCharRegiDlg, SetOrChkCharRegiDlg2 and DelCharRegiDlg: a character is registered,
// gets another cast name, is registered no more.

#include "platform/dialog.h"
#include "resources/scenario_characters_ids.h"
#include "scenario/characters/chara_preview.h"
#include "scenario/characters/chara_regi.h"
#include "scenario/storage/snry_cast_list.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

constexpr Point kPreviewAt{6, 50};  // dialog units

void Exchange(Form& form, CharaRegiState& state) {
  form.Text(IDC_CHARA_REGI_CAST_NAME, state.castName.text, kSnryNameSize - 1);
}

void Show(WindowHandle dialog) {
  ControlSetText(dialog, IDC_CHARA_REGI_NAME, SnryMain.charaNames[CharaRegi.chara].text);
  FormShow(dialog, CharaRegi, Exchange);
}

void Paint(WindowHandle dialog) {
  CharaPreviewPaint(dialog, kPreviewAt, CharaRegi.chara + 1);
}

void Register(WindowHandle dialog) {
  FormTake(dialog, CharaRegi, Exchange);
  CharaRegister(CharaRegi.chara, CharaRegi.castName);
  SubDialogEnd(dialog, kOkButton);
}

void Unregister(WindowHandle dialog) {
  CharaUnregister(CharaRegi.chara);
  SubDialogEnd(dialog, kOkButton);
}

template <void (*Confirm)(WindowHandle)>
bool Handle(const Event& event) {
  constexpr DialogAct kActs[] = {
      {EventKind::Init, Show},
      {EventKind::Paint, Paint},
      {kOkButton, Confirm},
  };
  return DialogActRun(event, kActs);
}

void Run(WindowHandle owner, int chara, SubDialog number, int templateId, EventHandler handler) {
  CharaRegi = {chara, SnryMain.castNames[chara]};
  SubDialogRun(number, templateId, owner, handler);
}

}  // namespace

void SetOrChkCharRegiDlgRun(WindowHandle owner, int chara) {
  const int templateId =
      SnryCharaIsRegistered(chara + 1) ? IDD_SetOrChkCharRegiDlg2 : IDD_SetOrChkCharRegiDlg;
  Run(owner, chara, SubDialog::SetOrChkCharRegiDlg, templateId, Handle<Register>);
}

void DelCharRegiDlgRun(WindowHandle owner, int chara) {
  Run(owner, chara, SubDialog::DelCharRegiDlg, IDD_DelCharRegiDlg, Handle<Unregister>);
}
