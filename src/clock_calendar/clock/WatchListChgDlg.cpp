// WatchListChgDlg, "時計イベント変更": the timed event that is chosen is changed.
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/watch_list.h"
#include "platform/dialog.h"
#include "resources/clock_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr ListDeed kChange{
    .needsRow = true,
    .noRow = {"リストから選択してください", "時計イベント変更"},
    .act = [](WindowHandle, int row) { return TimedChange(WatchListRow(row), WatchList.event); }};

void Choose(WindowHandle dialog) {
  WatchListFill(dialog, TimedGet(WatchListRow(ListEditorChosen(dialog, WatchListEditor()))));
}

void Open(WindowHandle dialog) {
  ListEditorShow(dialog, WatchListEditor(), 0);
  Choose(dialog);
}

void Change(WindowHandle dialog) {
  WatchListTake(dialog);
  ListDeedRun(dialog, WatchListEditor(), kChange);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_TIMED_LIST, EventKind::Chosen, Choose},
    {kOkButton, Change},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return SubDialogRun(SubDialog::WatchListChgDlg, IDD_WatchListChgDlg, Program.hMainWnd, Handle);
}

}  // namespace

void CommandWatchListChange() {
  FeatureDialogRun(Feature::ClockDisplay, Run);
}
