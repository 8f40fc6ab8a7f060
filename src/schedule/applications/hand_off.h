// A schedule application and this program: how one is started, and the hand-over file
// SclApliStUp.svt of its folder that both write.
#pragma once

#include "schedule/applications/hand_off_records.h"
#include "services/tick_step.h"

// Writes the hand-over file of the entry ApliToStart, starts its program with a command
// line that tells whether it is the executing one, and watches the file from then on.
// A program that does not start is not watched.
void ApliStart();

// Looks at the file while a program is started. True when it has changed and the
// selection is to be applied anew. The watch ends with the file.
bool SclHandOffCheck();

// Makes the change of the selection that waits and writes the list.
void ApliSelectionTake();

// The hand-off's step of the tick: a change sends command 2372.
void SclHandOffTick();
int SclHandOffDue();
inline constexpr TickStep kHandOffStep{SclHandOffTick, SclHandOffDue};
