// All that the program knows, as a fresh process has it.
#pragma once

// Makes the state of every feature new; what they own is freed. Windows are left
// alone: they are forgotten. A start in a process that has had one before calls it, and
// the tests; in a new process the loader has done as much.
void StatesReset();
