// Long work in small steps, one a tick: searching, dividing and restoring.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/tick_step.h"

// Values of progressMode.
enum SteppedWork { kStepNone, kStepDriveSearch, kStepFolderSearch, kStepDivide, kStepRestore };

struct SteppedState {
  std::int32_t progressMode = kStepNone;
  std::int32_t stepCounter = 0;
  WindowHandle hSearchDlg = nullptr;  // the progress dialog
};
extern SteppedState Stepped;

// The work's step of the tick: its dialog does the next piece.
void SteppedWorkTick();
int SteppedWorkDue();
inline constexpr TickStep kSteppedWorkStep{SteppedWorkTick, SteppedWorkDue};
