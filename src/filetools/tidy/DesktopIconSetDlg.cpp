// DesktopIconSetDlg, "デスクトップ カバー設定".
// kept: the dialog of the desktop's covers has no logic; its list stays empty, and only the
// button that closes it works.

#include "filetools/tidy/tidy_commands.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

bool Handle(const Event& /*event*/) {
  return false;
}

int Run() {
  return MenuDialogRun(MenuDialog::DesktopIconSetDlg, IDD_DesktopIconSetDlg, Program.hMainWnd, Handle);
}

}  // namespace

void DesktopCoverCommand() {
  FeatureDialogRun(Feature::DesktopCover, Run);
}
