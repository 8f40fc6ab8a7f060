// WatchListAddDlg, "時計イベント追加": one more timed event.
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/watch_list.h"
#include "platform/dialog.h"
#include "platform/time.h"
#include "resources/clock_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr BoxWords kFull{"時計イベントの登録最大数は２４個です", "時計イベント追加"};

// The event that is proposed: now, enabled.
void Open(WindowHandle dialog) {
  LocalTime now;
  TimeGetLocal(&now);
  WatchListFill(dialog, {true, now.hour, now.minute, now.second, {}});
}

// settled: a clock event too many is refused with a box, and the dialog stays as it is filled in.
int Confirm(WindowHandle dialog) {
  WatchListTake(dialog);
  if (TimedAdd(WatchList.event) >= 0) return 0;
  BoxTell(dialog, kFull);
  return -1;
}

void Accept(WindowHandle dialog) {
  if (Confirm(dialog) == 0) SubDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kOkButton, Accept}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return SubDialogRun(SubDialog::WatchListAddDlg, IDD_WatchListAddDlg, Program.hMainWnd, Handle);
}

}  // namespace

void CommandWatchListAdd() {
  FeatureDialogRun(Feature::ClockDisplay, Run);
}
