// The numbered commands of desktop tidy, as the main window routes them. No row of
// the panel sends them.
#pragma once

void DesktopTidyCommand();   // 1920: FileDesktopClrDlg
void DesktopCoverCommand();  // 1922: DesktopIconSetDlg
