// Long work in small steps, one a tick: searching, dividing and restoring.
#pragma once

#include <cstdint>

#include "platform/types.h"

// Values of progressMode.
enum SteppedWork { kStepNone, kStepDriveSearch, kStepFolderSearch, kStepDivide, kStepRestore };

struct SteppedState {
  std::int32_t progressMode = kStepNone;
  std::int32_t stepCounter = 0;
  WindowHandle hSearchDlg = nullptr;  // the progress dialog
};
extern SteppedState Stepped;
