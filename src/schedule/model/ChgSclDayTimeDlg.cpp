// ChgSclDayTimeDlg, "1日のワーク時間設定": for each row of the week the hour at which work
// begins, and how many hours it takes.
#include <algorithm>

#include "platform/dialog.h"
#include "resources/schedule_model_ids.h"
#include "schedule/model/schedule_dialogs.h"
#include "services/dialog_family.h"
#include "services/rows.h"

namespace {

// The hours that are left of a day from the begin of a row on.
int HoursLeft(const SclWorkDayRow& row) {
  return kSclDayHours - std::clamp(row.begin, 0, kSclDayHours - 1);
}

void LengthShow(WindowHandle dialog, int row) {
  const SclWorkDayRow& day = Schedule.SclHeader.rows[row];
  RowsShow(dialog, IDC_SCL_LENGTHS + row, RowsOfNumbers(0, HoursLeft(day)), day.length);
}

void Open(WindowHandle dialog) {
  for (int row = 0; row < kSclRowCount; ++row) {
    RowsShow(dialog, IDC_SCL_BEGINS + row, kHourRows, Schedule.SclHeader.rows[row].begin);
    LengthShow(dialog, row);
  }
}

// kept: a choice of a day's work hours is written at once, no button takes it back, and the
// row's end stays as it is until all items are recalculated.
void BeginChosen(WindowHandle dialog, int row) {
  SclWorkDayRow& day = Schedule.SclHeader.rows[row];
  day.begin = ListSelected(dialog, IDC_SCL_BEGINS + row);
  day.length = std::min(day.length, HoursLeft(day));
  LengthShow(dialog, row);
}

void LengthChosen(WindowHandle dialog, int row) {
  Schedule.SclHeader.rows[row].length = ListSelected(dialog, IDC_SCL_LENGTHS + row);
}

bool IsOf(int id, int first) {
  return id >= first && id < first + kSclRowCount;
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) Open(event.window);
  if (event.kind != EventKind::Chosen) return event.kind == EventKind::Init;
  if (IsOf(event.id, IDC_SCL_BEGINS)) BeginChosen(event.window, event.id - IDC_SCL_BEGINS);
  if (IsOf(event.id, IDC_SCL_LENGTHS)) LengthChosen(event.window, event.id - IDC_SCL_LENGTHS);
  return true;
}

}  // namespace

bool ChgSclDayTimeDlgRun(ToolDialog number, WindowHandle owner) {
  return ToolDialogRun(number, IDD_ChgSclDayTimeDlg, owner, Handle) == kOkButton;
}
