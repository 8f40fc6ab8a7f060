// Lists and fields that several of the open dialogs have.
#pragma once

#include "platform/types.h"

// A file of the history as a row of a list.
void OpnFileRow(int row, char* text, int size);

// The files of the history and the program lists, with the rows that OpnWork has
// chosen.
void OpnFilesShow(WindowHandle dialog);
void OpnProgramsShow(WindowHandle dialog);

// Fills OpnSelection from the two chosen rows. False when no file is chosen.
bool OpnSelectionFromLists(WindowHandle dialog);

// All groups, one of them chosen.
void OpnGroupsShow(WindowHandle dialog, int group);

// The chosen group; 0 if there is none.
int OpnGroupOfList(WindowHandle dialog);

// A group's files, and its comment too.
void OpnGroupFilesShow(WindowHandle dialog, int group);
void OpnGroupShow(WindowHandle dialog, int group);

// Shows the group that is chosen in the list.
void OpnGroupChosen(WindowHandle dialog);

// Takes the comment field over into a group. True if it was another one.
bool OpnCommentTake(WindowHandle dialog, int group);

// The open record.
void OpnRecordShow(WindowHandle dialog);
