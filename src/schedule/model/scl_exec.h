// The executing schedule: its copy, its mark and its file.
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

// Makes the schedule on display the executing one, chosen and not yet saved: its copy has
// no finished items. Both dirty bits are raised. The caller forgets the alarms of the day.
void SclExecChoose();
// Takes the mark back; nothing is carried out any more. Both dirty bits are raised.
void SclExecUnchoose();
// After a save under a name: a chosen schedule is the executing one, of that file.
void SclExecSaved();
// After a load: the mark tells whether the loaded file is the executing one.
void SclExecLoaded();
// Loads the executing schedule for display: its path becomes SclCurrentFile, the mark is
// set. Returns FileStatus. Only while there is one.
int SclExecEdit();
// Loads a file as the executing schedule: onto display, marked, and copied. Returns
// FileStatus; nothing is executed anew unless it is 0.
int SclExecLoad(const char* path);
