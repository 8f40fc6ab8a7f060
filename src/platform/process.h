// Starting programs, and the tables that tell which program opens a file.
#pragma once

struct ProcessTag;
using ProcessHandle = ProcessTag*;

// Starts a program by its command line, with no inherited handles and default
// flags. Null on failure.
ProcessHandle ProcessStart(const char* commandLine);

// Waits until the program waits for input, at most `milliseconds`.
void ProcessWaitIdle(ProcessHandle process, unsigned milliseconds);

// Closes the process handle (the program goes on). Null is accepted.
void ProcessClose(ProcessHandle process);

// The program that opens `file` of `folder`. False if none is registered.
bool AssociationFind(const char* file, const char* folder, char* program, int size);

// The unnamed value of a key of the file classes, at most 600 bytes with its
// terminator. False if it cannot be read or does not fit.
bool ClassValue(const char* key, char* value, int size);
