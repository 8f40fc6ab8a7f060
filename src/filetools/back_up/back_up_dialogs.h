// The dialogs of the back-up.
#pragma once

#include "platform/types.h"

// FileBackUpSetDlg, the list of sources and all that is done with it. Modal over
// the stage.
int FileBackUpSetDlgRun();

// Show what changed in BackUp, if that dialog is open: both lists, the list of
// copies alone, or the comment.
void FileBackUpSetDlgShowLists();
void FileBackUpSetDlgShowCopies();
void FileBackUpSetDlgShowComment();

// Takes the comment field into BackUp, if that dialog is open.
void FileBackUpSetDlgTakeComment();

// BackUpDlg: a run, one file a tick. True when all files were copied.
bool BackUpDlgRun(WindowHandle owner);

// FileBackUpDateDlg and FileBackUpContentDlg: what a comparison has found.
void FileBackUpDateDlgRun(WindowHandle owner);
void FileBackUpContentDlgRun(WindowHandle owner);
