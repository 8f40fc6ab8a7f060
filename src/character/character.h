// The desktop character: the records, tables and limits of this subsystem.
#pragma once

#include <cstdint>

#include "character/chara_set.h"

// --- The current character's settings, as the settings file keeps them.

inline constexpr int kBoredFrameCount = 5;
inline constexpr int kAlarmRowCount = 3;

extern std::int32_t CharaIndex;  // place of the current main character in the list, from 0
extern std::int32_t MenuFrame;   // frame shown while the panel is open
extern std::int32_t BlinkFrame;  // 0: no blink
extern std::int32_t Bored1Frames[kBoredFrameCount];  // a negative number ends the list
extern std::int32_t Bored2Frames[kBoredFrameCount];
extern std::int32_t BoredDelaySel;
extern std::int32_t BoredSpeedSel;
extern std::int32_t BoredRepeatSel;
extern std::int32_t BlinkSpeedSel;
extern std::int32_t StageX;
extern std::int32_t StageY;
// Row 0 the mail notice, 1 the schedule alarm, 2 the clock alarm and calendar
// note; 0 for none, else 1 + place in the alarm list.
extern std::int32_t AlarmCharaSel[kAlarmRowCount];
extern unsigned char CharaSet[kCharaSetSize];  // the current character's record, as it stands in the files
