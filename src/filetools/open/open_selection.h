// What is about to be opened.
#pragma once

#include "filetools/open/open_text.h"

// A file and the program that opens it. An empty progName stands for the associated
// program. Folders end with a backslash.
struct OpnSelectionRec {
  char fileName[kOpnTextSize];
  char filePath[kOpnTextSize];
  char progName[kOpnTextSize];
  char progPath[kOpnTextSize];
};
// The current choice, filled before anything is started.
extern OpnSelectionRec OpnSelection;
// Where the current choice waits while a group's files go through OpnSelection.
extern OpnSelectionRec OpnSelectionSave;

// Fills all four texts of the current choice.
void OpnSelectionSet(const char* fileName, const char* filePath, const char* progName, const char* progPath);

// Put the current choice aside, and back.
void OpnSelectionKeep();
void OpnSelectionBack();

// True if all four texts are the same.
bool OpnSelectionSame(const OpnSelectionRec& a, const OpnSelectionRec& b);
