// Lists and fields that several of the open dialogs have.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

// Adds the row of a file or a program, "name [folder]", to a list.
void OpnRowAdd(WindowHandle dialog, int list, const char* name, const char* folder);

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

// Shows the group that is chosen in the list. True if the event was that.
bool OpnGroupListEvent(const Event& event);

// Takes the comment field over into a group. True if it was another one.
bool OpnCommentTake(WindowHandle dialog, int group);

// The open record.
void OpnRecordShow(WindowHandle dialog);
