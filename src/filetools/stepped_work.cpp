#include "filetools/stepped_work.h"

#include "services/commands.h"

SteppedState Stepped;

void SteppedWorkTick() {
  if (Stepped.progressMode >= kStepDriveSearch && Stepped.progressMode <= kStepRestore)
    CommandSendTo(Stepped.hSearchDlg, Command::WorkStep);
}

int SteppedWorkDue() {
  return TickDueIf(Stepped.progressMode != kStepNone || Stepped.hSearchDlg);
}
