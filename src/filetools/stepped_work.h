// Long work in small steps, one a tick: searching, dividing and restoring. The tick drives
// one of them at a time and sends its progress dialog Command::WorkStep.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/tick_step.h"

// Values of progressMode.
enum SteppedWork { kStepNone, kStepDriveSearch, kStepFolderSearch, kStepDivide, kStepRestore };

// Written by the functions below only.
struct SteppedState {
  std::int32_t progressMode = kStepNone;
  std::int32_t stepCounter = 0;
  WindowHandle hSearchDlg = nullptr;  // the progress dialog
};
extern SteppedState Stepped;

// True while a work's progress dialog is up: no other work can begin.
bool SteppedBusy();

// The tick drives this work from now on, as soon as its dialog has come up.
void SteppedBegin(SteppedWork work);
void SteppedShown(WindowHandle dialog);

// stepCounter: 0 there is no step to do, 1 the first one is, n from 2 on the one for
// piece n - 2.
void SteppedNext(std::int32_t counter);

// The work's dialog goes. False if it has gone before, or is another work's.
bool SteppedHidden(WindowHandle dialog);
// The tick drives no work any more.
void SteppedEnd();

// Makes Stepped what it is in a fresh process.
void SteppedReset();

// The work's step of the tick: its dialog does the next piece.
void SteppedWorkTick();
int SteppedWorkDue();
inline constexpr TickStep kSteppedWorkStep{SteppedWorkTick, SteppedWorkDue};
