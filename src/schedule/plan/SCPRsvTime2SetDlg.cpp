// SCPRsvTime2SetDlg, "負荷・時間設定": load and hours of a training plan's line.

#include <iterator>

#include "resources/schedule_plan_ids.h"
#include "schedule/model/scl_records.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_number.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/text.h"

namespace {

constexpr int kCharacters = 3;
constexpr std::uint32_t kHoursMost = 23;

constexpr void (*kLoads[])(char* text, int size) = {
    [](char* text, int size) { TextFormat(text, static_cast<std::size_t>(size), "軽い=70%%未満"); },
    [](char* text, int size) { TextFormat(text, static_cast<std::size_t>(size), "中くらい=70%%～84%%"); },
    [](char* text, int size) { TextFormat(text, static_cast<std::size_t>(size), "重い=85%%以上"); },
};

void LoadText(int row, char* text, int size) {
  kLoads[row](text, size);
}

ScpPlanRec& Line() {
  return Plan.ScpPlanTable[Plan.line];
}

void Exchange(Form& form, ScpPlanRec& line) {
  form.Choice(IDC_SCP_LOAD, line.load, RowsOf(static_cast<int>(std::size(kLoads)), LoadText));
}

void Show(WindowHandle dialog) {
  FormShow(dialog, Line(), Exchange);
  PlanNumberShow(dialog, IDC_SCP_LOAD_HOURS, kCharacters, Line().hours);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, Line(), Exchange);
  const std::uint32_t hours = PlanNumberTake(dialog, IDC_SCP_LOAD_HOURS, kCharacters);
  // kept: more than 23 hours of a workout become 24.
  Line().hours = hours > kHoursMost ? std::uint32_t{kSclDayHours} : hours;
  ToolDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool SCPRsvTime2SetDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::SCPRsvTime2SetDlg, IDD_SCPRsvTime2SetDlg, owner, Handle) == kOkButton;
}
