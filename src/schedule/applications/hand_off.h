// The hand-off file that a started schedule program answers through.
#pragma once

#include "services/tick_step.h"

// Looks at the file while a program is started. True when it has changed and the
// selection is to be applied anew.
bool SclHandOffCheck();

// The hand-off's step of the tick: a change sends command 2372.
void SclHandOffTick();
int SclHandOffDue();
inline constexpr TickStep kHandOffStep{SclHandOffTick, SclHandOffDue};
