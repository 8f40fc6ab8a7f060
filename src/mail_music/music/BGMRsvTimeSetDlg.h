// BGMRsvTimeSetDlg.
#pragma once

#include "platform/types.h"

// "時間設定": the time of a row cannot be set; the dialog only opens and closes.
void BGMRsvTimeSetDlgRun(WindowHandle owner);
