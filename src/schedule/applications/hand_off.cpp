#include "schedule/applications/hand_off.h"

#include "schedule/applications/application_list.h"
#include "services/commands.h"

// No schedule program is started by this program yet, so none answers.
bool SclHandOffCheck() {
  return false;
}

void SclHandOffTick() {
  if (SclHandOffCheck()) CommandSend(Command::ApplicationHandOff);
}

int SclHandOffDue() {
  return TickDueIf(Applications.ApliStarted != 0);
}
