// The dialogs of parameters and of how a scene moves on.
#pragma once

#include "platform/types.h"

// AddSnryParaDlg, ChgSnryParaDlg and DelSnryParaDlg; the last two are at the current
// parameter.
void AddSnryParaDlgRun(WindowHandle owner);
void ChgSnryParaDlgRun(WindowHandle owner);
void DelSnryParaDlgRun(WindowHandle owner);

// SnrySelParaDlg and SceneSelParaDlg: the start conditions of the current scenario folder
// and of the current scene.
void SnrySelParaDlgRun(WindowHandle owner);
void SceneSelParaDlgRun(WindowHandle owner);

// "場面進行方法設定": menus, events and randoms of the scene in the buffers.
void SnryAdvanceSheetRun(WindowHandle owner);
