// The dialogs in which scenarios, their folders and their scenes are made, found and
// dropped.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"
#include "services/folder_list.h"

// Of NewSnryMainDlg.
struct SnryDialogsState {
  FolderList folders;
  char folderOnShow[kFolderSize] = {};
};
extern SnryDialogsState SnryDialogs;

// NewSnryMainDlg: chooses the main folder of a new scenario and makes it. False when there
// is none.
bool NewSnryMainDlgRun(WindowHandle owner);

// SnryMainLoad: the row of the list that was chosen; -1 for none.
int SnryMainLoadRun(WindowHandle owner);

// SnryMainDelete: takes rows out of the list.
void SnryMainDeleteRun(WindowHandle owner);

// From RoutSnrySetting. MkNewSnryFolderDlg makes a scenario folder, AddSnryFolderDlg takes
// one that is there; DelSnryFolderDlg drops the current one.
void MkNewSnryFolderDlgRun(WindowHandle owner);
void AddSnryFolderDlgRun(WindowHandle owner);
void DelSnryFolderDlgRun(WindowHandle owner);

// From SnryFolderSetting. MkNewSnryFileDlg makes a scene of the current folder with its
// file, AddSnryFileDlg takes a file that is there; DelSnryFileDlg drops the current scene.
// They set the flag that the list of scenes has changed.
void MkNewSnryFileDlgRun(WindowHandle owner);
void AddSnryFileDlgRun(WindowHandle owner);
void DelSnryFileDlgRun(WindowHandle owner);
