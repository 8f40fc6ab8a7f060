// The editors of the plan and of its lines. Each says whether it was confirmed; what it
// edited is in the plan then.
#pragma once

#include "platform/types.h"

bool SCPRepeatIntSetDlgRun(WindowHandle owner);
// Shows the days of recovery; it changes nothing.
void SCPRepeat2IntSetDlgRun(WindowHandle owner);
// The rests of all days: a sheet of two pages. What a page applies is in the plan at once,
// and makes it changed.
void PSDialog2no1Run(WindowHandle owner);

// Of Plan.line.
bool SCPRsvTimeSetDlgRun(WindowHandle owner);
bool SCPRsvTime2SetDlgRun(WindowHandle owner);
bool SCPRepeatTimeSetDlgRun(WindowHandle owner);
