// SCPRsvTimeSetDlg, "学習時間設定": the hours of a study plan's line.

#include "resources/schedule_plan_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "schedule/plan/plan.h"
#include "schedule/plan/plan_editors.h"

bool SCPRsvTimeSetDlgRun(WindowHandle owner) {
  return SclHoursDlgRun(ToolDialog::SCPRsvTimeSetDlg, IDD_SCPRsvTimeSetDlg, owner,
                        Plan.ScpPlanTable[Plan.line].hours);
}
