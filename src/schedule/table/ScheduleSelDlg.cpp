// ScheduleSelDlg and ScheduleSelDlg2, "スケジュール表 メニュー": each button is a command,
// which is sent when the menu has closed.
#include "platform/event.h"
#include "resources/schedule_table_ids.h"
#include "schedule/table/schedule_table_commands.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

struct Choice {
  int button;
  Command command;
};
constexpr Choice kChoices[] = {
    {IDC_SCL_NEW, Command::ScheduleNew},
    {IDC_SCL_EXECUTING, Command::ScheduleExecuting},
    {IDC_SCL_LOAD, Command::ScheduleLoad},
    {IDC_SCL_PLAN, Command::SchedulePlan},
    {IDC_SCL_APPLICATIONS, Command::ApplicationSelect},
    {IDC_SCL_RUN, Command::ApplicationRun},
    {IDC_SCL_REGISTER, Command::ApplicationRegister},
};

bool Handle(const Event& event) {
  for (const Choice& choice : kChoices) {
    if (!IsPressed(event, choice.button)) continue;
    MenuDialogEnd(event.window, static_cast<int>(choice.command));
    return true;
  }
  return false;
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
