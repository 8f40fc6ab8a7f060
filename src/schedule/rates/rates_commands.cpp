#include "schedule/rates/rates_commands.h"

#include "schedule/rates/rates_dialogs.h"
#include "schedule/table/schedule_table.h"
#include "services/modal.h"

namespace {

// The window of the schedule shows what has been set.
void Run(void (*dialog)(WindowHandle owner)) {
  if (ModalIsUp()) return;
  dialog(ScheduleOwner());
  ScheduleTableShow();
}

}  // namespace

void CommandScheduleRates() {
  Run(SclSucsPerAndMapDlgRun);
}

void CommandScheduleMap() {
  Run(SelMapListScnDlgRun);
}

void CommandScheduleStatus() {
  Run(SetSclStatusDlgRun);
}
