// Commands of the desktop character.
#pragma once

#include <cstdint>

void CommandOptionMainCharacter(std::uint32_t number);  // 2281
void CommandOptionAlarmCharacter(std::uint32_t number);  // 2282
