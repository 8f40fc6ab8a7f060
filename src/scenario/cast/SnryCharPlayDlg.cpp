// SnryCharPlayDlg: what a member of the cast does.

#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_edit.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/logic/snry_paras.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/text.h"
#include "world/world_list.h"

namespace {

void FigureText(int row, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), WorldFigureName(CastFigureOfRow(CastMember.id, row)));
}

void Exchange(Form& form, CastMotion& motion) {
  form.Choice(IDC_CAST_FIGURE, motion.figureRow, RowsOf(CastFigureRows(CastMember.id), FigureText));
  SnryPairExchange(form, IDC_CAST_START_PARA, IDC_CAST_START_VALUE, motion.start, kCastValueDigits);
}

int Figure() {
  return CastFigureOfRow(CastMember.id, CastEdit.motion.figureRow);
}

constexpr ListEditor kList{
    IDC_CAST_LIST, [] { return CastMotionRows(CastMemberRecord()); },
    [](int row, char* text, int size) { CastMotionRowText(CastMemberRecord(), row, text, size); }};

constexpr ListDeed kAdd{.question = {"動作を追加します。", "動作の追加"}, .act = [](WindowHandle, int) {
                          return CastMotionAdd(CastMemberRecord(), Figure(), CastEdit.motion.start);
                        }};
constexpr ListDeed kChange{
    .needsRow = true, .question = {"動作を変更します。", "動作の変更"}, .act = [](WindowHandle, int row) {
      return CastMotionChange(CastMemberRecord(), row, Figure(), CastEdit.motion.start);
    }};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"動作を削除します。", "動作の削除"}, .act = [](WindowHandle, int row) {
      CastMotionDelete(CastMemberRecord(), row);
      return true;
    }};

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  FormTake(dialog, CastEdit.motion, Exchange);
  ListDeedRun(dialog, kList, deed);
}

void Show(WindowHandle dialog) {
  CastMemberShow(dialog, CastMember.id);
  ListEditorShow(dialog, kList);
  FormShow(dialog, CastEdit.motion, Exchange);
}

void RowChosen(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kList);
  if (row < 0) return;
  CastEdit.motion.figureRow = CastFigureRowOf(CastMember.id, CastMotionFigure(CastMemberRecord(), row));
  CastEdit.motion.start = CastMotionStart(CastMemberRecord(), row);
  FormShow(dialog, CastEdit.motion, Exchange);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},          {IDC_CAST_LIST, EventKind::Chosen, RowChosen},
    {IDC_CAST_ADD, Edit<kAdd>},       {IDC_CAST_CHANGE, Edit<kChange>},
    {IDC_CAST_DELETE, Edit<kDelete>},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryCharPlayDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  CastEdit.motion = {-1, {}};
  SnryDialogRun(SnryDialog::SnryCharPlayDlg, IDD_SnryCharPlayDlg, owner, Handle);
}
