#include "character/character_tables.h"

std::int32_t MainCharaCount;
MainChara MainCharas[kMainCharaMax];

std::int32_t AlarmCharaCount;
std::int32_t AlarmCharas[kAlarmCharaMax];

std::int32_t WalkCharaCount;
WalkChara WalkCharas[kWalkCharaMax];
unsigned char WalkFlags[kWalkCharaMax];

std::int32_t ClockDesignCount;
ClockDesignRow ClockDesigns[kClockDesignMax];
