// SnryCharBariaDlg: what a member of the cast stands in front of, and what it does when it
// runs into another.

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/cast_words.h"
#include "scenario/cast/snry_cast.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

void Exchange(Form& form, SnryCastRec& member) {
  form.Choice(IDC_CAST_DEPTH, member.depth, RowsOf(kCastDepths));
  form.Choice(IDC_CAST_COLLISION, member.collision, RowsOf(kCastCollisions));
}

void Show(WindowHandle dialog) {
  CastMemberShow(dialog, CastMember.id);
  FormShow(dialog, CastMemberRecord(), Exchange);
}

void Confirm(WindowHandle dialog) {
  FormTake(dialog, CastMemberRecord(), Exchange);
  Scenario.changed = true;
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

void SnryCharBariaDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  SnryDialogRun(SnryDialog::SnryCharBariaDlg, IDD_SnryCharBariaDlg, owner, Handle);
}
