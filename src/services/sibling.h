// Starting the programs that live beside this one.
#pragma once

// Clears the panel state, makes `folder` current, starts the program by command
// line and waits up to 5 seconds until it waits for input. False when it cannot be started.
// kept: that a sibling program cannot be started is not told to the user.
bool SiblingStart(const char* folder, const char* commandLine);
