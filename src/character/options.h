// The option dialogs of the characters, and what the tick steps in them.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "services/tick_step.h"

// --- OptionSelDlg1_2: the main character is chosen.

// Frees the pictures that the dialog keeps of the characters it has shown.
void OptionPreviewsFree();

// --- OptionSelDlg1_1_2: the four motions of a main character (its place in the
// list) to be looked at.
void CharacterDetailRun(WindowHandle owner, int index);

// --- DspOptionOpeDlg: one motion plays.

// Kinds of motion; template numbers 2021 to 2024 belong to them in this order.
enum class Preview { None, Menu, Blink, Bored1, Bored2 };

// Plays a motion of the main character at a place in the list until the dialog is
// closed.
void MotionPreviewRun(WindowHandle owner, int index, Preview kind);

// One tick of the preview. Returns 1 when another frame is to be painted, else 0.
int MotionPreviewTick();

// --- AlarmChkDialog: an alarm character plays.

// Plays the character of a selection (0 none, else 1 + place in the alarm list) as
// row 0, 1 or 2 until the dialog is closed.
void AlarmCheckRun(WindowHandle owner, int row, int selection);

// The next frame of the open check; nothing while none is open.
void AlarmCheckFrameStep();

// Frees the pictures of all checks.
void AlarmCheckFree();

// --- Their steps of the tick.

// The preview's window is painted when it has another frame.
void MotionPreviewStep();
int MotionPreviewDue();
inline constexpr TickStep kMotionPreviewStep{MotionPreviewStep, MotionPreviewDue};

int AlarmCheckDue();
inline constexpr TickStep kAlarmCheckFrames{AlarmCheckFrameStep, AlarmCheckDue};
