#include "services/feature_dialog.h"

#include "platform/window.h"
#include "services/dialog_family.h"
#include "shell/panel.h"

int FeatureDialogRun(int funcNo, int (*dialog)()) {
  if (Dialogs.hMenuDlg || Dialogs.hToolDlg || Dialogs.hSubDlg || Dialogs.hSnryDlg) return 0;
  SendClose(Panel.hDiskMenu);
  Panel.FuncNo = funcNo;
  const int result = dialog();
  Panel.FuncNo = 0;
  Panel.MenuPanelState = 0;
  return result;
}
