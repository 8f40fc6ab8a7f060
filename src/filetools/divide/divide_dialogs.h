// The dialogs of dividing and restoring.
#pragma once

#include "platform/types.h"

// FileDivideSetDlg, the choice between the two. Returns one of these, or another
// number for nothing.
inline constexpr int kChoseDivide = 10;
inline constexpr int kChoseRestore = 11;
int FileDivideSetDlgRun();

// FileDivideSetDlg2 and FileDivideSetDlg3: what is to be divided or restored, and
// where to. Modal over the stage.
int FileDivideSetDlg2Run();
int FileDivideSetDlg3Run();

// Whichever of these two is open shows the file and the folder anew, or draws its
// sizes and its banner anew.
void DivideDialogShow();
void DivideDialogPaint();

// Takes base name and count from FileDivideSetDlg2 into FileDivide.
void FileDivideSetDlg2Take();

// FileDivKeyWordDlg and FileDivKeyWordDlg2: the keyword of a division and of a
// restore, which is in FileDivide afterwards; keywordLength 0: there is none.
void FileDivKeyWordDlgRun(WindowHandle owner);
void FileDivKeyWordDlg2Run(WindowHandle owner);

// FileDivExeDlg and FileUnDivExeDlg: a run whose first step is done, a step a
// tick. They set progressMode for as long as they are up.
void FileDivExeDlgRun(WindowHandle owner);
void FileUnDivExeDlgRun(WindowHandle owner);
