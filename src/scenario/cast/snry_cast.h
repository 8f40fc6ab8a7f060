// The cast of the current scene: who is in it, what each says and does, and what stands
// behind them all.
//
// All but the first and the last dialog are about the member that is chosen in the list of
// SnryFileSetting, Scenario.castRow; without one they say nothing and do not open.
#pragma once

#include "platform/types.h"

void FileCharaAddDlgRun(WindowHandle owner);
void FileCharaDelDlgRun(WindowHandle owner);
void FileCharaCopyDlgRun(WindowHandle owner);
void SnryCharMessageDlgRun(WindowHandle owner);
void SnryCharPlayDlgRun(WindowHandle owner);
void SnryCharEntryDlgRun(WindowHandle owner);
void SnryCharBariaDlgRun(WindowHandle owner);

// SnryCharBackDlg; `scroll` opens the dialog of "スクロール設定", after which this one opens
// again; it may be null.
void SnryCharBackDlgRun(WindowHandle owner, void (*scroll)(WindowHandle owner));

// "背景を追加": asks for a bitmap file and copies it into the scenario's folder of
// backgrounds.
void SnryBackgroundAdd(WindowHandle owner);
