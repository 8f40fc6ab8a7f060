// FileDesktopClrDlg, "デスクトップの整理": runs desktop tidy.
// kept: in the dialog of desktop tidy the buttons that open the tidy folder and bring its
// content back, the two check boxes and the combo box have no function.

#include "filetools/tidy/desktop_tidy.h"
#include "filetools/tidy/tidy_commands.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    ControlSetLimit(event.window, IDC_TIDY_FOLDER, kTidyNameSize - 1);
    ControlSetText(event.window, IDC_TIDY_FOLDER, Tidy.tidyFolderName);
  } else if (IsPressed(event, IDC_TIDY_RUN)) {
    ControlGetText(event.window, IDC_TIDY_FOLDER, Tidy.tidyFolderName, sizeof Tidy.tidyFolderName);
    TidyRun(event.window);
  } else {
    return false;
  }
  return true;
}

int Run() {
  return ToolDialogRun(ToolDialog::FileDesktopClrDlg, IDD_FileDesktopClrDlg, Program.hMainWnd, Handle);
}

}  // namespace

void DesktopTidyCommand() {
  FeatureDialogRun(Feature::DesktopTidy, Run);
}
