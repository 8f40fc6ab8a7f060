// SnryCharMessageDlg: what a member of the cast says.

#include "platform/dialog.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/cast/cast_edit.h"
#include "scenario/cast/cast_member.h"
#include "scenario/cast/cast_words.h"
#include "scenario/cast/snry_cast.h"
#include "scenario/logic/snry_paras.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"

namespace {

void Exchange(Form& form, CastLine& line) {
  form.Text(IDC_CAST_LINE_TEXT, line.text, kCastLineMax);
  SnryPairExchange(form, IDC_CAST_START_PARA, IDC_CAST_START_VALUE, line.start, kCastValueDigits);
  form.Choice(IDC_CAST_LINE_END, line.end, RowsOf(kCastLineEnds));
  SnryPairExchange(form, IDC_CAST_END_PARA, IDC_CAST_END_VALUE, line.change, kCastValueDigits);
}

constexpr ListEditor kList{
    IDC_CAST_LIST, [] { return CastLineRows(CastMemberRecord()); },
    [](int row, char* text, int size) { CastLineRowText(CastMemberRecord(), row, text, size); }};

constexpr ListDeed kAdd{.question = {"台詞を追加します。", "台詞の追加"}, .act = [](WindowHandle, int) {
                          return CastLineAdd(CastMemberRecord(), CastEdit.line);
                        }};
constexpr ListDeed kChange{
    .needsRow = true, .question = {"台詞を変更します。", "台詞の変更"}, .act = [](WindowHandle, int row) {
      CastLineChange(CastMemberRecord(), row, CastEdit.line);
      return true;
    }};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"台詞を削除します。", "台詞の削除"}, .act = [](WindowHandle, int row) {
      CastLineDelete(CastMemberRecord(), row);
      return true;
    }};

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  FormTake(dialog, CastEdit.line, Exchange);
  ListDeedRun(dialog, kList, deed);
}

void Show(WindowHandle dialog) {
  CastMemberShow(dialog, CastMember.id);
  ListEditorShow(dialog, kList);
  FormShow(dialog, CastEdit.line, Exchange);
}

void RowChosen(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kList);
  if (row < 0) return;
  CastEdit.line = CastLineTake(CastMemberRecord(), row);
  FormShow(dialog, CastEdit.line, Exchange);
}

void TextClear(WindowHandle dialog) {
  ControlSetText(dialog, IDC_CAST_LINE_TEXT, "");
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},          {IDC_CAST_LIST, EventKind::Chosen, RowChosen},
    {IDC_CAST_ADD, Edit<kAdd>},       {IDC_CAST_CHANGE, Edit<kChange>},
    {IDC_CAST_DELETE, Edit<kDelete>}, {IDC_CAST_CLEAR, TextClear},
};
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryCharMessageDlgRun(WindowHandle owner) {
  if (!CastMemberTake(Scenario.castRow)) return;
  CastEdit.line = {};
  SnryDialogRun(SnryDialog::SnryCharMessageDlg, IDD_SnryCharMessageDlg, owner, Handle);
}
