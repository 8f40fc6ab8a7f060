// The program's own file picker: FileSelectForLoadDlg and FileSelectForSaveDlg.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/folder_list.h"

inline constexpr int kPickPathSize = 600;

// Let the user pick a file. `filter` is an extension pattern ("*.BUP") or empty.
// `path`, kPickPathSize bytes, goes in as a proposal (folder and name, or empty)
// and takes folder and name when the user has picked. A name that the user typed
// comes back as it stands; whether there is such a file is for the caller to see.
// For saving, a name without a full stop gets the filter's extension; about an
// existing file the caller asks (OverwriteAllowed). The current folder moves to
// the one that was shown last.
// 1 when a file was picked, else 0, with `path` as it was.
int PickFileForLoad(WindowHandle owner, const char* filter, char* path);
int PickFileForSave(WindowHandle owner, const char* filter, char* path);

// The picker's state, used by one call at a time. The folder on show, PickFolder,
// is in the shell's shared state.
inline constexpr int kPickerFolderCount = 5;
inline constexpr int kPickFilterSize = 32;
inline constexpr int kPickNameSize = 300;
struct PickerState {
  char PickStartFolder[kPickNameSize] = {};  // the folder to begin in; empty: the current one
  char PickName[kPickNameSize] = {};         // what stands in the name field
  char PickResult[kPickPathSize] = {};       // folder and name on OK
  char PickFilter[kPickFilterSize] = {};     // the caller's filter
  std::int32_t PickFilterSel = 0;            // selected row of the filter list; back as it was after a call
  std::int32_t PickDone = 0;                 // 1 after OK
  std::int32_t PickActive = 0;               // 1 while a picker is up
  std::int32_t PickMode = 0;                 // 0 load, 1 save
  WindowHandle hFilePickDlg = nullptr;
  char PickFolder[256] = {};  // the folder on show
  char PickerStartFolders[kPickerFolderCount][256] = {};
  FolderList folders;
};
extern PickerState Picker;

// Controls of both templates, beside OK and those of the folder list.
inline constexpr int kPickNameId = 100;
inline constexpr int kPickFilterId = 102;
inline constexpr int kPickFilesId = 103;
