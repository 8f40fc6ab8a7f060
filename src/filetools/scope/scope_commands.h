// The folder scope's numbered command, as the main window routes it.
#pragma once

inline constexpr int kCommandFolderScope = 1914;

void FolderScopeCommand();  // 1914: FolderScopeSetDlg
