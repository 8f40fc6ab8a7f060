// The dialogs that open files.
#pragma once

#include "platform/types.h"

// FileOpnDialog, over the stage. True when the user has left it for the groups.
bool FileOpnDialogRun();
bool FileOpnDialogIsOpen();
// Shows both lists anew with the rows that OpnWork has chosen, if the dialog stands.
void FileOpnDialogRefresh();
// Ends the dialog for FileOpnGrpSetDlg and keeps what is chosen in OpnWork.
void FileOpnDialogLeaveForGroups();
// Lets the user browse for a file or a program, if the dialog stands.
void FileOpnDialogAddFile();
void FileOpnDialogAddProgram();

// FileOpnGrpSetDlg, over the stage.
void FileOpnGrpSetDlgRun();

// TakeOpnGrpSetDlg. True when a group was called: it is the pending one then.
bool TakeOpnGrpSetDlgRun(WindowHandle owner);

// SerchOpnFileGrpSelDlg: one of the groups of OpnSearchResult, -1 for none.
int SerchOpnFileGrpSelDlgRun(WindowHandle owner);

// DspListOpnFileRecDlg and DspListOpnFileHisDlg: the open record and the history.
void DspListOpnFileRecDlgRun(WindowHandle owner);
void DspListOpnFileHisDlgRun(WindowHandle owner);

// SetGrpOpnFileRecDlg: puts the open record into a group.
void SetGrpOpnFileRecDlgRun(WindowHandle owner);

// DelListOpnFileHisDlg: takes rows out of the history. True when it has changed.
bool DelListOpnFileHisDlgRun(WindowHandle owner);
