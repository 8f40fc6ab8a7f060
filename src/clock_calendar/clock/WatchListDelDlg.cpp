// WatchListDelDlg, "時計イベント削除": the timed event that is chosen goes.
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/watch_list.h"
#include "resources/clock_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr ListDeed kDelete{.needsRow = true,
                           .noRow = {"リストから選択してください", "時計イベント削除"},
                           .act = [](WindowHandle, int row) { return TimedDelete(WatchListRow(row)); }};

void Open(WindowHandle dialog) {
  ListEditorShow(dialog, WatchListEditor(), 0);
}

void Delete(WindowHandle dialog) {
  ListDeedRun(dialog, WatchListEditor(), kDelete);
}

constexpr DialogAct kActs[] = {{EventKind::Init, Open}, {kOkButton, Delete}};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return SubDialogRun(SubDialog::WatchListDelDlg, IDD_WatchListDelDlg, Program.hMainWnd, Handle);
}

}  // namespace

void CommandWatchListDelete() {
  FeatureDialogRun(Feature::ClockDisplay, Run);
}
