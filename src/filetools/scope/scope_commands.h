// The folder scope's numbered command, as the main window routes it.
#pragma once

void FolderScopeCommand();  // 1914: FolderScopeSetDlg
