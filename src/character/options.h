// The option dialogs of the characters, and what the tick steps in them.
#pragma once

#include <cstdint>

#include "character/alarm_images.h"
#include "character/bored_frames.h"
#include "character/character_tables.h"
#include "character/outline.h"
#include "platform/types.h"
#include "services/dib.h"
#include "services/tick_step.h"

struct CharaOptionState {
  ImageHandle previews[kMainCharaMax] = {};  // first frames of those that were shown
  int shown = 0;                             // place of the character on show
  bool changed = false;                      // the choice is to be saved
};
extern CharaOptionState CharaOption;

struct CharaDetailState {
  int shown = 0;  // place of the character in the list
};
extern CharaDetailState CharaDetail;

struct AlarmOptionState {
  bool changed = false;  // the choice is to be saved
};
extern AlarmOptionState AlarmOption;

struct AlarmCheckState {
  AlarmRow checked[kAlarmRowCount] = {};
  int frameNow = 0;
};
extern AlarmCheckState AlarmCheck;

// --- OptionSelDlg1_2: the main character is chosen.

// Frees the pictures that the dialog keeps of the characters it has shown.
void OptionPreviewsFree();

// --- OptionSelDlg1_1_2: the four motions of a main character (its place in the
// list) to be looked at.
void CharacterDetailRun(WindowHandle owner, int index);

// --- DspOptionOpeDlg: one motion plays.

// Kinds of motion; template numbers 2021 to 2024 belong to them in this order.
enum class Preview { None, Menu, Blink, Bored1, Bored2 };

// What plays: its frames in order with their pictures, and the place on show.
struct MotionPreviewState {
  Preview kind = Preview::None;
  int count = 0;
  ImageHandle pictures[kBoredLenMax] = {};
  bool hasOutline[kBoredLenMax] = {};
  int place = 0;
  int delay = 0;
  Outline outlines[kFrameMax] = {};  // of the character that plays
};
extern MotionPreviewState MotionPreview;

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
