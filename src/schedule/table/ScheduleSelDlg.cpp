// ScheduleSelDlg and ScheduleSelDlg2, "スケジュール表 メニュー": each button is a command,
// which is sent when the menu has closed.
#include "resources/schedule_table_ids.h"
#include "schedule/table/schedule_table_commands.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr DialogAct kActs[] = {
    {IDC_SCL_NEW, MenuDialogEndWith<Command::ScheduleNew>},
    {IDC_SCL_EXECUTING, MenuDialogEndWith<Command::ScheduleExecuting>},
    {IDC_SCL_LOAD, MenuDialogEndWith<Command::ScheduleLoad>},
    {IDC_SCL_PLAN, MenuDialogEndWith<Command::SchedulePlan>},
    {IDC_SCL_APPLICATIONS, MenuDialogEndWith<Command::ApplicationSelect>},
    {IDC_SCL_RUN, MenuDialogEndWith<Command::ApplicationRun>},
    {IDC_SCL_REGISTER, MenuDialogEndWith<Command::ApplicationRegister>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int MenuRun() {
  return MenuDialogRun(MenuDialog::ScheduleSelDlg, IDD_ScheduleSelDlg, Program.hMainWnd, Handle);
}

int SelectRun() {
  return MenuDialogRun(MenuDialog::ScheduleSelDlg2, IDD_ScheduleSelDlg2, Program.hMainWnd, Handle);
}

// What the menu ended with: a command, or less than one for its other ends.
void Send(int chosen) {
  if (chosen > kCancelButton) CommandSend(static_cast<Command>(chosen));
}

}  // namespace

void CommandScheduleSelect() {
  Send(FeatureDialogRun(Feature::ScheduleTable, SelectRun));
}

// settled: the menu of the schedule has a number of its own, as the panel leads to the menu
// of the applications only.
void CommandScheduleMenu() {
  Send(FeatureDialogRun(Feature::ScheduleTable, MenuRun));
}
