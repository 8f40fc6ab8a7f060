// The walk that goes before an opening, and its settings.
#pragma once

#include "platform/types.h"

// Starts the walk of the file that OpnSelection holds, or of the pending group, with the
// sound of the opening. Return 0, or -1 when nobody walks: the opening then goes on at once.
int WalkStartOpen();
int WalkStartGroup();

// SetOpnFileAnimeDlg on the settings of the history. True when the user has set them;
// they are saved by then.
bool SetOpnFileAnimeDlgRun(WindowHandle owner);

// Carries the current character's walk, the sound and the flags of its walking
// row, into the history file after another character was chosen. Nothing happens
// for a character without a walking row, or while the file is damaged.
void OpnHisTakeWalkSettings();
