// The back-up's numbered commands, as the main window routes them.
#pragma once

void BackUpCommand();        // 1901: FileBackUpSetDlg
void BackUpAddCommand();     // 2041: picks a source
void BackUpFolderCommand();  // 2042: FileBackUpDirDlg
void BackUpLoadCommand();    // 2044: picks a settings file and reads it
void BackUpSaveCommand();    // 2045: the same, and writes it

// Runs an action of the back-up's dialog unless another one is still running, so
// that a second picker cannot open over the first.
void BackUpGuarded(void (*action)());
