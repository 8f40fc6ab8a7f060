// The copy of the schedule that is carried out.
#pragma once

#include "schedule/model/schedule.h"

// Copies the schedule on display into the executing copy, sees whether any alarm is on,
// and moves the starts that stand at the end of a day.
void SclExecRefresh();
// SclAlarmFlag: some item of the copy has hours and alarmOn.
void SclEvalAlarmFlag();
// Each start of the copy that stands at the end of its day, by the copy's rows, moves to
// the begin of the next day's row.
void SclExecShiftStarts();
// The copy with nothing finished in it, for a schedule that is chosen.
void SclExecCopyOpen();
