// The executing schedule: its mark and its file.
#pragma once

#include "schedule/model/scl_exec_copy.h"

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
