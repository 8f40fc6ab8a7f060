// Names of the statuses of a schedule that is tied to an application. A floor above, which
// knows them, defines this.
#pragma once

// The window of the schedule opens: the application's tables are read when SclMapFile
// names one.
void SclStatusNamesRead();

// The name of a code, or of a code that has none "済み" for 1 and nothing else. False
// while no tables are read.
bool SclStatusName(int code, char* name, int size);
