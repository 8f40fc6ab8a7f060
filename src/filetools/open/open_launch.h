// Starting the program that opens a file.
#pragma once

// Starts what OpnSelection holds: its program, or without one the program that the
// system associates with the file. Waits up to 5 seconds until the program is idle.
// Nobody hears of a failure. The current folder is left where it went.
void OpnLaunch();
