// DesktopIconSetDlg, "デスクトップ カバー設定": a template without logic. The list
// stays empty and only " 終了" works.

#include "filetools/tidy/tidy_commands.h"
#include "resources/ids.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr int kDlgId = 2006;
constexpr int kFuncNo = 15;

bool Handle(const Event& /*event*/) {
  return false;
}

int Run() {
  return MenuDialogRun(kDlgId, IDD_DesktopIconSetDlg, Program.hMainWnd, Handle);
}

}  // namespace

void DesktopCoverCommand() {
  FeatureDialogRun(kFuncNo, Run);
}
