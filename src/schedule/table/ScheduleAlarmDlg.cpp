// ScheduleAlarmDlg, "スケジュールのアラーム設定": all alarms at once.
#include "resources/schedule_table_ids.h"
#include "schedule/model/schedule.h"
#include "schedule/table/schedule_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

namespace {

template <std::uint8_t on>
void SetAll(WindowHandle dialog) {
  for (int item = 0; item < Schedule.SclHeader.count; ++item) SclItem(item).alarmOn = on;
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {IDC_SCL_ALARMS_ON, SetAll<1>},
    {IDC_SCL_ALARMS_OFF, SetAll<0>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void ScheduleAlarmDlgRun(WindowHandle owner) {
  SubDialogRun(SubDialog::ScheduleAlarmDlg, IDD_ScheduleAlarmDlg, owner, Handle);
}
