// Numbers in the plan's editors: shown right-aligned in as many characters as are taken,
// read as the schedule reads hours.
#pragma once

#include <cstdint>

#include "platform/types.h"

void PlanNumberShow(WindowHandle dialog, int id, int characters, std::uint32_t value);
std::uint32_t PlanNumberTake(WindowHandle dialog, int id, int characters);
