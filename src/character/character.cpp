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
std::int32_t StageX;
std::int32_t StageY;
std::int32_t AlarmCharaSel[kAlarmRowCount];
unsigned char CharaSet[kCharaSetSize];
