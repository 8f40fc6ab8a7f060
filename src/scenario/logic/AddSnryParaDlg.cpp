// AddSnryParaDlg, "パラメータ追加", ChgSnryParaDlg, "パラメータ変更", and DelSnryParaDlg,
// "パラメータ削除".

#include <limits>

#include "platform/dialog.h"
#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_logic.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_sheet.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kInitialDigits = 4;
constexpr int kNameMost = 63;
constexpr int kCommentMost = 127;

// What one of the three does when it is confirmed: false, and it stays open.
using Confirm = bool (*)(WindowHandle dialog);

// --- The fields

void Exchange(Form& form, SnryParaRec& para) {
  std::int32_t initial = para.initial;
  form.Text(IDC_PARA_NAME, para.name, kNameMost);
  form.NumberIn(IDC_PARA_INITIAL, initial, kInitialDigits, std::numeric_limits<std::int32_t>::min(), 0xFFFF);
  form.Text(IDC_PARA_COMMENT, para.comment, kCommentMost);
  form.Check(IDC_PARA_STATUS, para.statusBar);
  if (form.Takes()) para.initial = static_cast<std::uint16_t>(initial);
}

constexpr int kAssignments[] = {IDC_PARA_LOAD, IDC_PARA_SAVE, IDC_PARA_EXIT};

void ShowAssignment(WindowHandle dialog) {
  int number = 1;
  for (const int id : kAssignments) {
    ControlSetChecked(dialog, id, static_cast<int>(SnrySheet.para.assignment) == number++);
  }
}

// The active one is taken back; another takes its place.
template <SnryAssignment assignment>
void Assign(WindowHandle dialog) {
  SnryAssignment& now = SnrySheet.para.assignment;
  now = now == assignment ? SnryAssignment::None : assignment;
  ShowAssignment(dialog);
}

// --- What each does

bool Add(WindowHandle dialog) {
  if (SnryParaNameIsTaken(SnrySheet.para.name)) {
    BoxTell(dialog, "既に同じ名称のパラメータが存在します", "パラメータ追加エラー");
    return false;
  }
  SnryParaAdd(SnrySheet.para);
  return true;
}

bool Change(WindowHandle) {
  SnryParaChange(Scenario.paraSlot, SnrySheet.para);
  return true;
}

bool Remove(WindowHandle dialog) {
  if (!BoxAsk(dialog, "このパラメータの使用項目はすべて無効になります。よろしいですか ?", "パラメータの削除"))
    return false;
  SnryParaRemove(Scenario.paraSlot);
  return true;
}

// --- The dialog

void Open(WindowHandle dialog) {
  FormShow(dialog, SnrySheet.para, Exchange);
  ShowAssignment(dialog);
}

void Accept(const Event& event) {
  const auto confirm = *static_cast<Confirm*>(event.context);
  FormTake(event.window, SnrySheet.para, Exchange);
  if (!confirm(event.window)) return;
  Scenario.changed = true;
  ToolDialogEnd(event.window, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_PARA_LOAD, Assign<SnryAssignment::Load>},
    {IDC_PARA_SAVE, Assign<SnryAssignment::Save>},
    {IDC_PARA_EXIT, Assign<SnryAssignment::Exit>},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

void Run(ToolDialog number, int templateId, WindowHandle owner, Confirm confirm) {
  ToolDialogRun(number, templateId, owner, Handle, &confirm);
}

}  // namespace

void AddSnryParaDlgRun(WindowHandle owner) {
  if (SnryMain.paraCount >= kSnryParaMax) return;
  SnrySheet.para = {};
  Run(ToolDialog::AddSnryParaDlg, IDD_AddSnryParaDlg, owner, Add);
}

void ChgSnryParaDlgRun(WindowHandle owner) {
  SnrySheet.para = SnryParaNow();
  Run(ToolDialog::ChgSnryParaDlg, IDD_ChgSnryParaDlg, owner, Change);
}

void DelSnryParaDlgRun(WindowHandle owner) {
  SnrySheet.para = SnryParaNow();
  Run(ToolDialog::DelSnryParaDlg, IDD_DelSnryParaDlg, owner, Remove);
}
