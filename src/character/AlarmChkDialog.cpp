// An alarm character plays as a notice would show it.

#include "character/alarm_images.h"
#include "character/options.h"
#include "resources/character_ids.h"
#include "services/dialog_family.h"
#include "services/five_ticks.h"

AlarmCheckState AlarmCheck;

namespace {

constexpr ToolDialog kTemplates[kAlarmRowCount] = {ToolDialog::AlarmChkDialogMail,
                                                   ToolDialog::AlarmChkDialogSchedule,
                                                   ToolDialog::AlarmChkDialogClock};  // in DlgIdTool, by row
constexpr Rect kBox = {10, 10, 290, 170};

// The row that the open check plays; -1 for none.
int RowNow() {
  for (int row = 0; row < kAlarmRowCount; ++row) {
    if (Dialogs.hToolDlg && Dialogs.DlgIdTool == kTemplates[row]) return row;
  }
  return -1;
}

void Show(int row) {
  if (AlarmCheck.checked[row].frameCount > 0)
    AlarmFrameShow(Dialogs.hToolDlg, kBox, AlarmCheck.checked[row], AlarmCheck.frameNow);
}

bool Proc(const Event& event) {
  const int row = RowNow();
  switch (event.kind) {
    case EventKind::Init:
      AlarmCheck.frameNow = kFrameMax;  // the first step goes round to frame 0
      FiveTicksStart(1);
      return true;
    case EventKind::Paint:
      if (row >= 0) Show(row);
      return true;
    default:
      return false;
  }
}

}  // namespace

void AlarmCheckRun(WindowHandle owner, int row, int selection) {
  if (row < 0 || row >= kAlarmRowCount) return;
  AlarmRowLoad(&AlarmCheck.checked[row], selection);
  ToolDialogRun(kTemplates[row], IDD_AlarmChkDialog, owner, Proc);
}

void AlarmCheckFrameStep() {
  const int row = RowNow();
  if (row < 0) return;
  AlarmCheck.frameNow = AlarmFrameNext(AlarmCheck.checked[row], AlarmCheck.frameNow);
  Show(row);
}

void AlarmCheckFree() {
  for (AlarmRow& row : AlarmCheck.checked) AlarmRowFree(&row);
}

int AlarmCheckDue() {
  return TickDueIf(Dialogs.hToolDlg != nullptr);
}
