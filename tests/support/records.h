// The records of characters, clock, calendars, schedule and world, emptied and
// counted for tests of the files that hold them.
#pragma once

// Everything as it stands before the program has read or set anything.
void ClearRecords();
