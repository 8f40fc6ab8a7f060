// How a scene looks, sounds and is played: its title, sounds, keys, scrolling backgrounds
// and its form as a table; and the options of the scenario as a whole. The dialogs work in
// the scene's buffers; the file is written when the scene's dialog is confirmed.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"

// What the dialogs have in hand until they are confirmed.
struct SnryLooksState {
  std::int32_t key = -1;  // slot of the key whose parameters are on show; -1 for none
  // Of a key: the mode and the axes that its buttons show.
  std::uint8_t cursorSync = 0;
  std::uint8_t axes = 0;
  std::uint8_t direction = 0;  // of a condition of scrolling
};
extern SnryLooksState SnryLooks;

void TitleScnDlgRun(WindowHandle owner);
void SoundSetDlgRun(WindowHandle owner);
void TableFormScnDlgRun(WindowHandle owner);
void SceenKeyDlgRun(WindowHandle owner);
void SnryBackScrollDlgRun(WindowHandle owner);
void SnryOptionDlgRun(WindowHandle owner);
void StsBarSettingDlgRun(WindowHandle owner);
