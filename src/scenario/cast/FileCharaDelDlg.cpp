// FileCharaDelDlg: a character leaves the cast, with its copies.

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_list.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/characters/chara_preview.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr Point kPreviewAt{6, 42};  // dialog units
constexpr BoxWords kIsCopy{"コピーキャラクタはコピー数の変更で調整できます", "キャラクタ削除の無効"};

void Show(WindowHandle dialog) {
  CastMemberShow(dialog, CastMember.id);
}

void Paint(WindowHandle dialog) {
  CharaPreviewPaint(dialog, kPreviewAt, CastMember.id);
}

void Remove(WindowHandle dialog) {
  CastRemove(CastMember.place);
  SnryDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {EventKind::Paint, Paint},
    {kOkButton, Remove},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void FileCharaDelDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  if (SnryCastIsCopy(CastMember.id)) return BoxTell(owner, kIsCopy);
  SnryDialogRun(SnryDialog::FileCharaDelDlg, IDD_FileCharaDelDlg, owner, Handle);
}
