// The desktop character: the records, tables and limits of this subsystem.
#pragma once

#include <cstdint>

#include "character/chara_records.h"

// --- The current character's settings, as the settings file keeps them.

inline constexpr int kAlarmRowCount = 3;

struct CharacterState {
  std::int32_t CharaIndex = 0;  // place of the current main character in the list, from 0
  std::int32_t MenuFrame = 0;   // frame shown while the panel is open
  std::int32_t BlinkFrame = 0;  // 0: no blink
  std::int32_t Bored1Frames[kBoredFrameCount] = {};  // a negative number ends the list
  std::int32_t Bored2Frames[kBoredFrameCount] = {};
  std::int32_t BoredDelaySel = 0;
  std::int32_t BoredSpeedSel = 0;
  std::int32_t BoredRepeatSel = 0;
  std::int32_t BlinkSpeedSel = 0;
  std::int32_t StageX = 500;
  std::int32_t StageY = 300;
  // Row 0 the mail notice, 1 the schedule alarm, 2 the clock alarm and calendar
  // note; 0 for none, else 1 + place in the alarm list.
  std::int32_t AlarmCharaSel[kAlarmRowCount] = {};
  CharaSetRecord CharaSet = {};  // of the current character
};
extern CharacterState Character;
