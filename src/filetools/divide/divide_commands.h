// The numbered commands of dividing and restoring, as the main window routes
// them.
#pragma once

inline constexpr int kCommandDivideMenu = 1915;
inline constexpr int kCommandDivide = 2066;
inline constexpr int kCommandRestore = 2067;
inline constexpr int kCommandDividePick = 2068;
inline constexpr int kCommandDivideFolder = 2069;
inline constexpr int kCommandDivideRun = 2070;
inline constexpr int kCommandRestorePick = 2071;
inline constexpr int kCommandRestoreFolder = 2094;

void DivideMenuCommand();     // 1915: FileDivideSetDlg
void DivideCommand();         // 2066: FileDivideSetDlg2
void RestoreCommand();        // 2067: FileDivideSetDlg3
void DividePickCommand();     // 2068: picks the file to divide
void DivideFolderCommand();   // 2069: FileDivFileDlg
void DivideRunCommand();      // 2070: what the open one of the two dialogs is for
void RestorePickCommand();    // 2071: picks the joining file
void RestoreFolderCommand();  // 2094: FileUDivFileDlg
