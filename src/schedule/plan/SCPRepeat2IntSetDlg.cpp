// SCPRepeat2IntSetDlg, "負荷ごとの疲労回復時間設定": the days of recovery of the three loads.
// kept: the dialog of the times of recovery only shows them; what is typed into it is stored by
// neither button.

#include "resources/schedule_plan_ids.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"
#include "schedule/plan/plan_number.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

constexpr int kCharacters = 3;
constexpr int kLoads = 3;

void Show(WindowHandle dialog) {
  for (int i = 0; i < kLoads; ++i) {
    PlanNumberShow(dialog, IDC_SCP_RECOVERY_FIRST + i, kCharacters,
                   static_cast<std::uint32_t>(Plan.head.ScpIntervalTable[i]));
  }
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Show},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SCPRepeat2IntSetDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::SCPRepeat2IntSetDlg, IDD_SCPRepeat2IntSetDlg, owner, Handle);
}
