#include "character/character.h"

std::int32_t CharaIndex;
std::int32_t MenuFrame;
std::int32_t BlinkFrame;
std::int32_t Bored1Frames[kBoredFrameCount];
std::int32_t Bored2Frames[kBoredFrameCount];
std::int32_t BoredDelaySel;
std::int32_t BoredSpeedSel;
std::int32_t BoredRepeatSel;
std::int32_t BlinkSpeedSel;
// Without a settings file the stage stays where the process entry makes its window.
std::int32_t StageX = 500;
std::int32_t StageY = 300;
std::int32_t AlarmCharaSel[kAlarmRowCount];
unsigned char CharaSet[kCharaSetSize];
