// Where the system enters the program.
#pragma once

// Runs the program with the text behind its name on the command line (code page 932)
// and the system's mode of showing the first window. Returns the exit code. The
// platform calls it once; the program defines it.
int ProcessEntry(const char* commandLine, int showMode);
