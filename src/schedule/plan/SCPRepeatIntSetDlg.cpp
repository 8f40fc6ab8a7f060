// SCPRepeatIntSetDlg, "学習作業復習-時間間隔設定": the ten waits of a study plan.

#include <algorithm>

#include "resources/schedule_plan_ids.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_number.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kCharacters = 3;
constexpr std::uint32_t kDaysMost = 10;

void Show(WindowHandle dialog) {
  for (int i = 0; i < kScpIntervalCount; ++i) {
    PlanNumberShow(dialog, IDC_SCP_INTERVAL_FIRST + i, kCharacters,
                   static_cast<std::uint32_t>(Plan.head.ScpIntervalTable[i]));
  }
}

// kept: no interval of reviews is stored that is longer than 10 days, though a new plan has longer ones:
// to confirm them unchanged makes 10 of them.
void Accept(WindowHandle dialog) {
  for (int i = 0; i < kScpIntervalCount; ++i) {
    const std::uint32_t days = PlanNumberTake(dialog, IDC_SCP_INTERVAL_FIRST + i, kCharacters);
    Plan.head.ScpIntervalTable[i] = static_cast<std::int32_t>(std::min(days, kDaysMost));
  }
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

bool SCPRepeatIntSetDlgRun(WindowHandle owner) {
  return ToolDialogRun(ToolDialog::SCPRepeatIntSetDlg, IDD_SCPRepeatIntSetDlg, owner, Handle) == kOkButton;
}
