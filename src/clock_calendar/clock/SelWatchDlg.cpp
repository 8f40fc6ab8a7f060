// SelWatchDlg, "時計 選択/設定": whether the clock stands on the desktop, and its design.
#include <algorithm>

#include "character/character_tables.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/watch_adust.h"
#include "platform/dialog.h"
#include "resources/clock_ids.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/program.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/text.h"

namespace {

void DesignRow(int row, char* text, int size) {
  char name[kDesignNameSize + 1];
  ClockDesignName(row, name);
  TextCopy(text, static_cast<std::size_t>(size), name);
}

int DesignCount() {
  return std::clamp<int>(CharaTables.ClockDesignCount, 0, kClockDesignMax);
}

// settled: while no clock design is chosen the list proposes the first, so that a clock that is
// switched on has one.
void Open(WindowHandle dialog) {
  const int chosen = Clock.ClockWanted == kClockNone ? 0 : Clock.ClockWanted;
  ControlSetChecked(dialog, IDC_WATCH_SHOW, Clock.ClockShowWanted != 0);
  RowsShow(dialog, IDC_WATCH_DESIGNS, RowsOf(DesignCount(), DesignRow), chosen);
}

// The chosen design; the one in force while none is chosen.
int Chosen(WindowHandle dialog) {
  const int row = ListSelected(dialog, IDC_WATCH_DESIGNS);
  return row >= 0 ? row : Clock.ClockDesign;
}

void Adust(WindowHandle dialog) {
  WatchAdustRun(dialog, Chosen(dialog));
}

void Accept(WindowHandle dialog) {
  ClockWantedSet(ControlIsChecked(dialog, IDC_WATCH_SHOW), Chosen(dialog));
  MenuDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_WATCH_DESIGNS, EventKind::Opened, Accept},
    {IDC_WATCH_ADUST, Adust},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

int Run() {
  ClockWantedDrop();
  const int result = MenuDialogRun(MenuDialog::SelWatchDlg, IDD_SelWatchDlg, Program.hMainWnd, Handle);
  if (result != kOkButton) return result;
  ClockWantedTake();
  SaveTold(Program.hMainWnd, SysFileWrite() == 0, "時計 選択/設定");
  CommandSend(Command::ClockOpen);
  return result;
}

}  // namespace

void CommandClockSelect() {
  FeatureDialogRun(Feature::ClockDisplay, Run);
}
