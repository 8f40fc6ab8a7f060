#include "shell/feature_dialog.h"

#include "platform/window.h"
#include "shell/shell.h"

int FeatureDialogRun(int funcNo, int (*dialog)()) {
  if (hMenuDlg || hToolDlg || hSubDlg || hSnryDlg) return 0;
  SendClose(hDiskMenu);
  FuncNo = funcNo;
  const int result = dialog();
  FuncNo = 0;
  MenuPanelState = 0;
  return result;
}
