// FileDesktopClrDlg, "デスクトップの整理": runs desktop tidy.
// kept: in the dialog of desktop tidy the buttons that open the tidy folder and bring its
// content back, the two check boxes and the combo box have no function.

#include "filetools/tidy/desktop_tidy.h"
#include "filetools/tidy/tidy_commands.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/form.h"
#include "services/program.h"

namespace {

void Exchange(Form& form, TidyState& tidy) {
  form.Text(IDC_TIDY_FOLDER, tidy.tidyFolderName);
}

void Open(WindowHandle dialog) {
  ControlSetLimit(dialog, IDC_TIDY_FOLDER, kTidyNameSize - 1);
  FormShow(dialog, Tidy, Exchange);
}

void RunTidy(WindowHandle dialog) {
  FormTake(dialog, Tidy, Exchange);
  TidyRun(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_TIDY_RUN, RunTidy},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  return ToolDialogRun(ToolDialog::FileDesktopClrDlg, IDD_FileDesktopClrDlg, Program.hMainWnd, Handle);
}

}  // namespace

void DesktopTidyCommand() {
  FeatureDialogRun(Feature::DesktopTidy, Run);
}
