// FileCharaCopyDlg: how many copies of a character are in the cast.

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_copies.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/snry_cast.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

constexpr BoxWords kIsCopy{"コピーキャラクタはコピー出来ません", "キャラクタコピーの無効"};
constexpr BoxWords kTooMany{"コピー最大数を超えています。", "コピー数設定エラー"};
constexpr BoxWords kQuestion{"設定数分のコピーを作成します", "コピーの作成"};

struct Fields {
  std::int32_t copies;
  std::int32_t most;
};

// settled: a number of copies of a character below 0 counts as 0.
void Exchange(Form& form, Fields& fields) {
  form.NumberIn(IDC_CAST_COPIES, fields.copies, 3, 0, 999);
  if (!form.Takes()) form.Number(IDC_CAST_COPIES_MOST, fields.most, 3);
}

void Show(WindowHandle dialog) {
  Fields fields{CastCopies(CastMember.id), CastCopiesMost(CastMember.id)};
  CastMemberShow(dialog, CastMember.id);
  FormShow(dialog, fields, Exchange);
}

int Wanted(WindowHandle dialog) {
  Fields fields{};
  FormTake(dialog, fields, Exchange);
  return fields.copies;
}

void Confirm(WindowHandle dialog) {
  if (Wanted(dialog) > CastCopiesMost(CastMember.id)) return BoxTell(dialog, kTooMany);
  if (Wanted(dialog) != CastCopies(CastMember.id)) {
    if (!BoxAsk(dialog, kQuestion)) return;
    CastCopiesSet(CastMember.id, Wanted(dialog));
  }
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

void FileCharaCopyDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  if (SnryCastIsCopy(CastMember.id)) return BoxTell(owner, kIsCopy);
  SnryDialogRun(SnryDialog::FileCharaCopyDlg, IDD_FileCharaCopyDlg, owner, Handle);
}
