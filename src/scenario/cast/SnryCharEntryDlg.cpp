// SnryCharEntryDlg: when and where a member of the cast comes on and goes off.

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/cast_words.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/logic/snry_cast_choice.h"
#include "scenario/logic/snry_paras.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

void Exchange(Form& form, SnryCastRec& member) {
  SnryPairExchange(form, IDC_CAST_START_PARA, IDC_CAST_START_VALUE, member.entry);
  form.Choice(IDC_CAST_ENTRY, member.entryPosition, RowsOf(kCastEntries));
  form.Number(IDC_CAST_X, member.standX, 4);
  form.Number(IDC_CAST_Y, member.standY, 4);
  form.Check(IDC_CAST_SCROLL_SYNC, member.scrollSync);
  form.Check(IDC_CAST_SCORE, member.score);
  SnryCastExchange(form, IDC_CAST_SYNC, SnryCastShow::All, member.syncCharacter);
  SnryPairExchange(form, IDC_CAST_END_PARA, IDC_CAST_END_VALUE, member.exit);
  form.Choice(IDC_CAST_EXIT, member.exitPosition, RowsOf(kCastExits));
}

void Show(WindowHandle dialog) {
  CastMemberShow(dialog, CastMember.id);
  FormShow(dialog, CastMemberRecord(), Exchange);
}

// kept: a character's entry and exit do not mark the scenario as changed; they are in the
// scene's file once the scene is confirmed.
void Confirm(WindowHandle dialog) {
  FormTake(dialog, CastMemberRecord(), Exchange);
  SnryDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {kOkButton, Confirm},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryCharEntryDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  SnryDialogRun(SnryDialog::SnryCharEntryDlg, IDD_SnryCharEntryDlg, owner, Handle);
}
