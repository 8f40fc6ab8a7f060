// The numbered commands of dividing and restoring, as the main window routes
// them.
#pragma once

void DivideMenuCommand();     // 1915: FileDivideSetDlg
void DivideCommand();         // 2066: FileDivideSetDlg2
void RestoreCommand();        // 2067: FileDivideSetDlg3
void DividePickCommand();     // 2068: picks the file to divide
void DivideFolderCommand();   // 2069: FileDivFileDlg
void DivideRunCommand();      // 2070: what the open one of the two dialogs is for
void RestorePickCommand();    // 2071: picks the joining file
void RestoreFolderCommand();  // 2094: FileUDivFileDlg
