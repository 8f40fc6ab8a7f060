#include "filetools/stepped_work.h"

#include "services/commands.h"
#include "services/state.h"

SteppedState Stepped;

bool SteppedBusy() {
  return Stepped.hSearchDlg != nullptr;
}

void SteppedBegin(SteppedWork work) {
  Stepped.progressMode = work;
}

void SteppedShown(WindowHandle dialog) {
  Stepped.hSearchDlg = dialog;
}

void SteppedNext(std::int32_t counter) {
  Stepped.stepCounter = counter;
}

bool SteppedHidden(WindowHandle dialog) {
  if (Stepped.hSearchDlg != dialog) return false;
  Stepped.hSearchDlg = nullptr;
  return true;
}

void SteppedEnd() {
  Stepped.progressMode = kStepNone;
}

void SteppedReset() {
  StateReset(Stepped);
}

void SteppedWorkTick() {
  if (Stepped.progressMode >= kStepDriveSearch && Stepped.progressMode <= kStepRestore)
    CommandSendTo(Stepped.hSearchDlg, Command::WorkStep);
}

int SteppedWorkDue() {
  return TickDueIf(Stepped.progressMode != kStepNone || Stepped.hSearchDlg);
}
