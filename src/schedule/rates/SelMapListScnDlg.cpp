// SelMapListScnDlg: a place of the map for the selected rows.

#include "platform/dialog.h"
#include "resources/schedule_rates_ids.h"
#include "schedule/rates/rates_dialogs.h"
#include "schedule/rates/scl_map.h"
#include "schedule/table/row_selection.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/rows.h"
#include "services/text.h"

namespace {

void ShowNumber(WindowHandle dialog, int id, int number) {
  char text[16];
  TextFormat(text, sizeof text, "%d", number);
  ControlSetText(dialog, id, text);
}

int Chosen(WindowHandle dialog) {
  const int position = ListSelected(dialog, IDC_MAP_POSITIONS);
  return position < SclMapPositionCount() ? position : -1;
}

void ShowChosen(WindowHandle dialog) {
  const int position = Chosen(dialog);
  if (position < 0) return;
  const SefStage& stage = Sef.stages[position];
  ShowNumber(dialog, IDC_MAP_COLUMN, stage.width);
  ShowNumber(dialog, IDC_MAP_ROW, stage.height);
  ControlSetText(dialog, IDC_MAP_NAME, stage.name);
}

int PositionOfCurrentRow() {
  const int index = RowSelection.currentRow - 1;
  if (index < 0 || index >= kSclItemMax) return -1;
  return SclMapPositionFind(Schedule.SclMapColumn[index], Schedule.SclMapRow[index]);
}

void Open(WindowHandle dialog) {
  RowsShow(dialog, IDC_MAP_POSITIONS, RowsOf(SclMapPositionCount(), SclMapPositionText),
           PositionOfCurrentRow());
  ShowChosen(dialog);
}

void Accept(WindowHandle dialog) {
  const int position = Chosen(dialog);
  if (position >= 0) SclMapPlaceRows(Sef.stages[position].width, Sef.stages[position].height);
  DialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_MAP_POSITIONS, EventKind::Chosen, ShowChosen},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SelMapListScnDlgRun(WindowHandle owner) {
  PlainDialogRun(IDD_SelMapListScnDlg, owner, Handle);
}
