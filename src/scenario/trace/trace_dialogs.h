// The dialogs that show how a parameter runs through a scenario.
#pragma once

#include "platform/types.h"
#include "scenario/trace/snry_walk.h"

struct SnryTraceState {
  int slot = 0;  // of the parameter that is looked at
};
extern SnryTraceState SnryTrace;

// "確認するパラメータの指定": chooses the parameter.
void CheckParameterDlgRun(WindowHandle owner);
// "パラメータを確認" and "パラメータ状態テスト", for the chosen one.
void CheckParameterDlg2Run(WindowHandle owner);
void CheckParameterDlg3Run(WindowHandle owner);

// Lines into the list box IDC_TRACE_LINES of a dialog.
SnryLineSink TraceLines(WindowHandle dialog);
// The name of the chosen parameter, into IDC_TRACE_NAME.
void TraceNameShow(WindowHandle dialog);
