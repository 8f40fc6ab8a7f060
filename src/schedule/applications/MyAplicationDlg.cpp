// MyAplicationDlg, the menu of the own applications: each button is a command, which is sent
// when the menu has closed.
// settled: the menu of the own applications leads to choosing and to registering them.
#include "resources/schedule_applications_ids.h"
#include "schedule/applications/application_dialogs.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/program.h"

namespace {

constexpr DialogAct kActs[] = {
    {IDC_APLI_SELECT, MenuDialogEndWith<Command::ApplicationSelect>},
    {IDC_APLI_REGISTER, MenuDialogEndWith<Command::ApplicationRegister>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

int MyAplicationDlgRun() {
  const int result =
      MenuDialogRun(MenuDialog::MyAplicationDlg, IDD_MyAplicationDlg, Program.hMainWnd, Handle);
  return result > kCancelButton ? result : 0;
}
