// SCPRepeatTimeSetDlg, "復習回数": how often a line is placed after the first time.

#include <algorithm>

#include "resources/schedule_plan_ids.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_number.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kCharacters = 4;
constexpr std::uint32_t kRepeatMost = 10;

void Show(WindowHandle dialog) {
  PlanNumberShow(dialog, IDC_SCP_REPEAT, kCharacters, Plan.ScpPlanTable[Plan.line].repeat);
}

void Accept(WindowHandle dialog) {
  const std::uint32_t repeat = PlanNumberTake(dialog, IDC_SCP_REPEAT, kCharacters);
  Plan.ScpPlanTable[Plan.line].repeat = static_cast<std::uint8_t>(std::min(repeat, kRepeatMost));
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

bool SCPRepeatTimeSetDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::SCPRepeatTimeSetDlg, IDD_SCPRepeatTimeSetDlg, owner, Handle) == kOkButton;
}
