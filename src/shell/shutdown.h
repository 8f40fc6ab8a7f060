// The end of the program.
#pragma once

// Releases what the shell owns, in the fixed order, and ends the message loop.
// Nothing is saved, and feature windows are not closed: they end with the
// process.
void Shutdown();
