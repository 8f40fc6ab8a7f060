// SetClockEventDlg, "時計イベント選択実行": a performance is run at once, with no alarm.
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/performance_rows.h"
#include "platform/dialog.h"
#include "resources/clock_ids.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"
#include "services/rows.h"

namespace {

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_EVENT_LIST, RowsOf(PerformancesInUse(), PerformanceTitle), 0);
}

void Accept(WindowHandle dialog) {
  const int number = PerformanceAt(ListSelected(dialog, IDC_EVENT_LIST));
  if (number == 0) return;
  ClockEventChoose(number);
  SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_EVENT_LIST, EventKind::Opened, Accept},
    {kOkButton, Accept},
};

// With no row chosen the dialog stays.
bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return SubDialogRun(SubDialog::SetClockEventDlg, IDD_SetClockEventDlg, Program.hMainWnd, Handle);
}

}  // namespace

void CommandClockEvents() {
  if (FeatureDialogRun(Feature::ClockDisplay, Run) == kOkButton) CommandSend(Command::ClockNoticeOpen);
}
